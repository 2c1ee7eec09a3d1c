// The translation files hold each text of the viewer, in its language and with its marks, and nothing else.

#include "tests/viewer/TranslationFiles.h"

#include <QRegularExpression>

#include <filesystem>
#include <set>

using namespace orvtest;

namespace
{

/// All of a file's string literals stand whole: those of neighbouring lines are put together.
QString sourceText(std::filesystem::path const& path)
{
    QFile file(QString::fromStdString(path.string()));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    static QRegularExpression const seam("\"\\s*\n\\s*L?\"");
    return QString::fromUtf8(file.readAll()).replace(seam, "");
}

QString allSources()
{
    QString all;
    for (char const* const folder : {"viewer", "platform/qt", "host/orv"}) {
        for (auto const& entry :
             std::filesystem::recursive_directory_iterator(std::filesystem::path(ORV_SOURCE_DIR) / folder)) {
            if (entry.path().extension() == ".cpp") {
                all += sourceText(entry.path());
            }
        }
    }
    return all;
}

/// The texts that the sources give out to be translated.
std::set<QString> textsToTranslate()
{
    static QRegularExpression const call(
        R"re(\b(?:tr|localized|word|QT_TRANSLATE_NOOP)\(\s*(?:"Orvanta",\s*)?"((?:[^"\\]|\\.)*)")re");
    std::set<QString> texts;
    auto const sources = allSources();
    for (auto matches = call.globalMatch(sources); matches.hasNext();) {
        texts.insert(matches.next().captured(1).replace("\\\"", "\""));
    }
    static QRegularExpression const panel(R"re(addPanel\(\*category, "([^"]*)")re");
    for (auto matches = panel.globalMatch(sources); matches.hasNext();) {
        texts.insert(matches.next().captured(1));
    }
    return texts;
}

/// Every piece of a sentence in the sources that speak to the user, however it is put together: a literal with two
/// words of small letters. What belongs to no sentence is left out: names of fonts, ids, filters.
std::map<QString, QString> piecesOfSentences()
{
    static QRegularExpression const literal(R"re("((?:[^"\\\n]|\\.)*)")re");
    static QRegularExpression const words("[a-z]['a-z]* [a-z]");
    std::map<QString, QString> pieces; // and the file that each is in
    std::vector<std::filesystem::path> files{std::filesystem::path(ORV_SOURCE_DIR) / "host/orv/LibraryEntry.cpp"};
    for (char const* const folder : {"viewer/app", "viewer/plugins", "viewer/scene", "viewer/import"}) {
        for (auto const& entry : std::filesystem::directory_iterator(std::filesystem::path(ORV_SOURCE_DIR) / folder)) {
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h") {
                files.push_back(entry.path());
            }
        }
    }
    for (auto const& file : files) {
        static QRegularExpression const aside(R"re((?m)//.*$|^#include.*$|'(?:[^'\\]|\\.)')re");
        auto const source = sourceText(file).remove(aside);
        for (auto matches = literal.globalMatch(source); matches.hasNext();) {
            auto const text = matches.next().captured(1).replace("\\\"", "\"");
            if (text.contains(words)) {
                pieces[text] = QString::fromStdString(file.filename().string());
            }
        }
    }
    return pieces;
}

/// The piece as it stands in the translations: words in quotation marks are names there.
QRegularExpression asInTranslations(QString const& piece)
{
    static QRegularExpression const name("\\\\\"[^\"%]*\\\\\"|\"[^\"%]+\"");
    QString pattern;
    qsizetype at = 0;
    for (auto matches = name.globalMatch(piece); matches.hasNext();) {
        auto const match = matches.next();
        pattern += QRegularExpression::escape(piece.mid(at, match.capturedStart() - at)) + "\"%[1-9]\"";
        at = match.capturedEnd();
    }
    return QRegularExpression(pattern + QRegularExpression::escape(piece.mid(at)));
}

std::multiset<QString> marksOf(QString const& text)
{
    static QRegularExpression const mark("%[0-9]|&");
    std::multiset<QString> marks;
    for (auto matches = mark.globalMatch(text); matches.hasNext();) {
        marks.insert(matches.next().captured());
    }
    return marks;
}

class LanguageFiles : public testing::TestWithParam<std::string>
{
};

} // namespace

TEST_P(LanguageFiles, HoldEveryTextOfTheViewer)
{
    auto const translations = translationsOf(GetParam());
    auto const texts = textsToTranslate();
    EXPECT_GE(texts.size(), 90U);
    for (auto const& text : texts) {
        auto const found = translations.find(text);
        ASSERT_NE(found, translations.end()) << text.toStdString();
        EXPECT_FALSE(found->second.isEmpty()) << text.toStdString();
    }
}

TEST_P(LanguageFiles, HoldEverySentenceThatIsReported)
{
    QString all;
    for (auto const& [text, translation] : translationsOf(GetParam())) {
        all += text + '\n';
    }
    auto const pieces = piecesOfSentences();
    EXPECT_GE(pieces.size(), 120U);
    for (char const* const known : {" is empty. Export the model again and open the new file.", "\" was saved.",
                                    "can't be opened. Check the file and try again."}) {
        EXPECT_TRUE(pieces.contains(known)) << known;
    }
    for (auto const& [piece, file] : pieces) {
        EXPECT_TRUE(all.contains(asInTranslations(piece))) << file.toStdString() << ": " << piece.toStdString();
    }
}

TEST_P(LanguageFiles, AreAskedForWordsThatStandInTheSources)
{
    // Else the collection of texts above would miss one.
    static QRegularExpression const call(
        R"re(\b(?:tr|localized)\((?!\)|"|char const|QT_TRANSLATE_NOOP|text|english|names\[axis\]|entry\.name|option\.meaning|pattern\.)([^)]*)\))re");
    for (auto matches = call.globalMatch(allSources()); matches.hasNext();) {
        ADD_FAILURE() << matches.next().captured(0).toStdString();
    }
}

TEST_P(LanguageFiles, WriteTheMarksOfTheScript)
{
    if (GetParam() != "ja" && GetParam() != "zh") {
        return; // the other six take the Latin marks
    }
    // Wide marks stand behind a wide letter; the brackets around a menu's letter are the toolkit's.
    static QRegularExpression const narrow(
        R"re([\p{Han}\p{Hiragana}\p{Katakana}] ?(?:[,:;!?]|\((?!&.\)))|\.[\p{Han}\p{Hiragana}\p{Katakana}])re",
        QRegularExpression::UseUnicodePropertiesOption);
    ASSERT_TRUE(QString::fromUtf8("画像 (.png)").contains(narrow));
    ASSERT_TRUE(QString::fromUtf8("用法: orvanta").contains(narrow));
    for (auto const& [text, translation] : translationsOf(GetParam())) {
        EXPECT_FALSE(translation.contains(narrow)) << translation.toStdString();
    }
}

TEST_P(LanguageFiles, SayNothingInEnglish)
{
    // Words that are the same in the language; and names, units and marks.
    std::map<std::string, std::set<QString>> const alike{
        {"fr", {"Message", "Perspective", "&Opaque", "Options", "Orange", "Violet"}},
        {"de", {"Orange"}},
        {"es", {"General"}},
    };
    std::set<QString> const everywhere{"%1 %", " mm", "OK"};
    auto const own = alike.find(GetParam());
    for (auto const& [text, translation] : translationsOf(GetParam())) {
        if (!everywhere.contains(text)) { // those may be alike
            EXPECT_EQ(translation == text, own != alike.end() && own->second.contains(text)) << text.toStdString();
        }
    }
}

TEST_P(LanguageFiles, KeepFrenchMarksOnTheirLine)
{
    if (GetParam() != "fr") {
        GTEST_SKIP() << "a rule of French";
    }
    static QRegularExpression const breakable(" [:;?!\u00BB]|\u00AB ");
    for (auto const& [text, translation] : translationsOf(GetParam())) {
        EXPECT_FALSE(translation.contains(breakable)) << translation.toStdString();
    }
}

TEST_P(LanguageFiles, HoldNothingElse)
{
    auto const sources = allSources();
    static QRegularExpression const seams("\"?%[0-9]\"?|(?<=[.:]) ");
    for (auto const& [text, translation] : translationsOf(GetParam())) {
        for (auto const& piece : text.split(seams, Qt::SkipEmptyParts)) {
            auto words = piece.trimmed();
            if (words.endsWith(':') || (words.endsWith('.') && !sources.contains(words))) {
                words.chop(1); // a reason may follow
            }
            EXPECT_TRUE(words.size() < 2 || sources.contains(words))
                << text.toStdString() << ": " << words.toStdString();
        }
    }
}

TEST_P(LanguageFiles, KeepTheMarksOfEachText)
{
    for (auto const& [text, translation] : translationsOf(GetParam())) {
        EXPECT_EQ(marksOf(translation), marksOf(text)) << text.toStdString();
        EXPECT_EQ(translation.contains("..."), text.contains("...")) << text.toStdString();
        EXPECT_EQ(translation.startsWith(' '), text.startsWith(' ')) << text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageFiles, testing::ValuesIn(translated),
                         [](auto const& test) { return test.param; });
