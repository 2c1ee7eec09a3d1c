#include "tests/support/ScopedVariables.h"
#include "tests/viewer/SessionFixture.h"

#include "host/orvsgutils/ResourceLoader.h"
#include "host/runtime/Runtime.h"
#include "platform/qt/Native.h"
#include "platform/testing/ModalExpectation.h"
#include "viewer/app/Language.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Preferences.h"
#include "viewer/commands/CommandId.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <afxcontrolbars.h>

#include <cstdlib>
#include <map>
#include <set>

using namespace orvtest;
using orvviewer::chooseLanguage;

namespace
{

std::vector<std::string> const translated{"fr", "de", "ja", "ko", "zh", "es", "pt"};

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

/// The sentences that go to the user through localizedSentence, with "%1" and "%2" for the names in them.
std::set<QString> sentencesToTranslate()
{
    static QRegularExpression const given(
        R"re((?:\b(?:showStatus|complain|report)\(|\b(?:error|errorText|message|return) ?=? ?)(L"(?:[^"\\]|\\.)*"(?: \+ [\w.()]+ \+ L"(?:[^"\\]|\\.)*")*)[);])re");
    static QRegularExpression const name(R"re(\\"" \+ [\w.()]+ \+ L"\\")re");
    static QRegularExpression const word(R"re(\\"([^"\\%]*)\\")re");
    std::set<QString> sentences;
    for (char const* const folder : {"viewer/app", "viewer/plugins", "viewer/scene", "viewer/import"}) {
        for (auto const& entry : std::filesystem::directory_iterator(std::filesystem::path(ORV_SOURCE_DIR) / folder)) {
            if (entry.path().extension() != ".cpp" || entry.path().stem() == "CommandLine") { // that one is English
                continue;
            }
            auto const source = sourceText(entry.path());
            for (auto matches = given.globalMatch(source); matches.hasNext();) {
                auto text = matches.next().captured(1).mid(2).chopped(1);
                for (int number = 1; text.contains(name); ++number) {
                    text.replace(text.indexOf(name), name.match(text).capturedLength(), QString("\"%%1\"").arg(number));
                }
                for (int number = 1 + static_cast<int>(text.count("\"%")); text.contains(word); ++number) {
                    text.replace(text.indexOf(word), word.match(text).capturedLength(), QString("\"%%1\"").arg(number));
                }
                if (text.endsWith('.') && text.contains(' ')) {
                    sentences.insert(text);
                }
            }
        }
    }
    return sentences;
}

std::map<QString, QString> translationsOf(std::string const& code)
{
    QFile file(QString::fromStdString(std::string(ORV_SOURCE_DIR) + "/viewer/translations/orvanta_" + code + ".ts"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::map<QString, QString> texts;
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"source") {
            source = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == u"translation") {
            EXPECT_FALSE(xml.attributes().hasAttribute("type")) << "unfinished: " << source.toStdString();
            texts[source] = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
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

class LanguageTest : public SessionFixture
{
protected:
    void TearDown() override
    {
        SessionFixture::TearDown();
        orvviewer::useViewerLanguage(L"en");
        orvhost::configure({});
    }
    void startIn(std::wstring const& language)
    {
        session.reset();
        orvhost::Settings settings;
        settings.dataDirectory = (folder.path / "data").wstring();
        settings.libraryDirectory = (folder.path / "lib").wstring();
        settings.language = language;
        session = std::make_unique<orvviewer::ViewerSession>(settings);
    }
    std::wstring panelTitle(int panel) { return session->ribbonBar().GetActiveCategory()->GetPanel(panel)->GetName(); }
    /// Sets the language in the options, as a user does; gives what the list offered.
    QStringList chooseInOptions(QString const& ownName)
    {
        QStringList offered;
        orvplatform::testing::ModalScript script([](std::string const& why) { ADD_FAILURE() << why; });
        script.expectModal<CMFCPropertySheet>([&](CMFCPropertySheet& sheet) {
            auto* const box = orvplatform::widgetOf(sheet.GetSafeHwnd())->findChild<QComboBox*>();
            EXPECT_NE(box, nullptr);
            for (int i = 0; i < box->count(); ++i) {
                offered << box->itemText(i);
            }
            box->setCurrentText(ownName);
            for (auto* button : orvplatform::widgetOf(sheet.GetSafeHwnd())->findChildren<QPushButton*>()) {
                if (button->text() == QObject::tr("OK")) {
                    button->click();
                }
            }
            return IDCANCEL;
        });
        session->runCommand(orvviewer::showOptions);
        return offered;
    }
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
    auto const translations = translationsOf(GetParam());
    auto const sentences = sentencesToTranslate();
    EXPECT_GE(sentences.size(), 12U);
    EXPECT_TRUE(sentences.contains("\"%1\" was saved.") ||
                sentences.contains("\"%1\" can't be written: the disk is full. Make room, or choose another disk."));
    for (auto const& sentence : sentences) {
        EXPECT_TRUE(translations.contains(sentence)) << sentence.toStdString();
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

TEST(Language, IsTheOneAskedForThenThePreferredThenTheSystems)
{
    orvtest::ScopedVariables const earlier{"LC_ALL", "LC_MESSAGES", "LANG"};
    setenv("LC_ALL", "fr_CA.UTF-8", 1);
    EXPECT_EQ(chooseLanguage(L"de", L"ja"), L"de");
    EXPECT_EQ(chooseLanguage(L"", L"ja"), L"ja");
    EXPECT_EQ(chooseLanguage(L"", L""), L"fr");
    setenv("LC_ALL", "it_IT.UTF-8", 1);
    EXPECT_EQ(chooseLanguage(L"", L""), L"en");
    EXPECT_EQ(chooseLanguage(L"xx", L"de"), L"en");
}

TEST(Language, OfTheSystemIsTheFirstVariablesThatSaysOne)
{
    orvtest::ScopedVariables const earlier{"LC_ALL", "LC_MESSAGES", "LANG"};
    auto const expect = [](char const* all, char const* messages, char const* lang, wchar_t const* language) {
        setenv("LC_ALL", all, 1);
        setenv("LC_MESSAGES", messages, 1);
        setenv("LANG", lang, 1);
        EXPECT_EQ(chooseLanguage(L"", L""), language) << all << ", " << messages << ", " << lang;
    };
    expect("fr_FR.UTF-8", "de_DE.UTF-8", "ja_JP.UTF-8", L"fr");
    expect("", "de_DE.UTF-8", "ja_JP.UTF-8", L"de");
    expect("", "", "ja_JP.UTF-8", L"ja");
    expect("", "", "", L"en");
    expect("C.UTF-8", "de_DE.UTF-8", "", L"en");
    expect("", "", "pt", L"pt");
    expect("", "", "es@euro", L"es");
    expect("", "", "deu_DE", L"en"); // three letters are no German
    expect("", "", "fil_PH.UTF-8", L"en");
    expect("", "", "kok_IN", L"en"); // Konkani isn't Korean
}

TEST_F(LanguageTest, APluginThatFailedSpeaksTheLanguage)
{
    startIn(L"de");
    EXPECT_NE(session->statusText().find(L"Die Bibliothek „cloudplugin.so“ fehlt."), std::wstring::npos)
        << QString::fromStdWString(session->statusText()).toStdString();
    writeFile(guiFolder() / "cloudplugin.so", "this is no library");
    startIn(L"de");
    EXPECT_EQ(session->statusText(), L"Die Bibliothek „cloudplugin.so“ kann nicht geladen werden: „file too short“. "
                                     L"Installieren Sie Orvanta erneut, und starten Sie es neu.");
}

TEST_F(LanguageTest, NamesMayHoldQuotationMarks)
{
    startIn(L"de");
    EXPECT_EQ(orvviewer::localizedSentence(L"\"a \"b\".step\" was saved."), L"„a \"b\".step“ wurde gespeichert.");
    EXPECT_EQ(orvviewer::localizedSentence(L"\"a\".step\" was saved."), L"„a\".step“ wurde gespeichert.");
    EXPECT_EQ(
        orvviewer::localizedSentence(L"The library \"x\"y\" failed to start: \"no \"z\"\". Install Orvanta again and "
                                     L"start it anew."),
        L"Die Bibliothek „x\"y“ konnte nicht gestartet werden: „no \"z\"“. Installieren Sie Orvanta erneut, und "
        L"starten Sie es neu.");
}

TEST_F(LanguageTest, NumbersAndTheirNounsFollowTheLanguage)
{
    auto const facts = [](int parts, int triangles) {
        return QObject::tr("%Ln part(s)", nullptr, parts) + ", " + QObject::tr("%Ln triangle(s)", nullptr, triangles);
    };
    startIn(L"en");
    EXPECT_EQ(facts(1, 12345), "1 part, 12,345 triangles");
    startIn(L"de");
    EXPECT_EQ(facts(2, 12345), "2 Teile, 12.345 Dreiecke");
    EXPECT_EQ(facts(1, 1), "1 Teil, 1 Dreieck");
    EXPECT_EQ(QObject::tr("%Ln selected", nullptr, 2), "2 ausgewählt");
    startIn(L"fr");
    EXPECT_EQ(facts(0, 1), "0 pièce, 1 triangle");
}

TEST_F(LanguageTest, TheToolkitsOwnDialogsSpeakTheLanguage)
{
    std::map<std::string, QString> const cancel{{"fr", "Annuler"}, {"de", "Abbrechen"}, {"ja", "キャンセル"},
                                                {"ko", "취소"},    {"zh", "取消"},      {"es", "Cancelar"},
                                                {"pt", "Cancelar"}};
    for (auto const& [code, word] : cancel) {
        orvviewer::useViewerLanguage(std::wstring(code.begin(), code.end()));
        EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel").remove('&').section('(', 0, 0), word) << code;
        EXPECT_NE(QCoreApplication::translate("QColorDialog", "Hu&e:"), "Hu&e:") << code;
        EXPECT_NE(QCoreApplication::translate("QFileDialog", "Look in:"), "Look in:") << code;
    }
}

TEST_F(LanguageTest, TheWindowSpeaksTheLanguageThatWasAskedFor)
{
    startIn(L"de");
    EXPECT_EQ(panelTitle(0), L"Datei");
    EXPECT_EQ(session->ribbonBar().GetActiveCategory()->GetName(), std::wstring(L"Start"));
    startIn(L"ja");
    EXPECT_EQ(panelTitle(0), L"ファイル");
    startIn(L"en");
    EXPECT_EQ(panelTitle(0), L"File");
}

TEST_F(LanguageTest, EveryLanguageHasARibbonOfItsOwn)
{
    for (auto const& code : translated) {
        SCOPED_TRACE(code);
        startIn(std::wstring(code.begin(), code.end()));
        auto const translations = translationsOf(code);
        EXPECT_EQ(panelTitle(0), translations.at("File").toStdWString());
        auto* const panel = session->ribbonBar().GetActiveCategory()->GetPanel(0);
        EXPECT_EQ(panel->GetElement(0)->GetText(), translations.at("Open").toStdWString());
        EXPECT_EQ(std::wstring(panel->GetElement(0)->GetToolTipText().GetString())
                      .rfind(translations.at("Open a model").toStdWString(), 0),
                  0U);
        // To be looked at, in pictures/ of the build.
        auto& window = session->window();
        window.resize(1440, 760);
        window.show();
        orvplatform::testing::processEvents();
        auto const pictures = QStringLiteral(ORV_BINARY_DIR "/pictures");
        EXPECT_TRUE(QDir().mkpath(pictures));
        EXPECT_TRUE(window.grab().save(pictures + "/viewer-" + QString::fromStdString(code) + ".png"));
    }
}

TEST_F(LanguageTest, SentencesNameTheFileInTheLanguage)
{
    startIn(L"de");
    writeFile(folder.path / "leer %1.step", "");
    EXPECT_FALSE(session->openModel((folder.path / "leer %1.step").wstring()));
    EXPECT_EQ(session->statusText(),
              L"„leer %1.step“ ist leer. Exportieren Sie das Modell erneut, und öffnen Sie die neue Datei.");
    EXPECT_EQ(orvviewer::localizedSentence(L"A sentence that nobody knows."), L"A sentence that nobody knows.");
}

TEST_F(LanguageTest, TheOptionsOfferTheEightLanguagesAndTheSystems)
{
    startIn(L"de");
    EXPECT_EQ(chooseInOptions("Français"), (QStringList{"Sprache des Systems", "English", "Français", "Deutsch",
                                                        "日本語", "한국어", "简体中文", "Español", "Português"}));
    EXPECT_EQ(orvviewer::ViewerPreferences::load().language, L"fr");
    EXPECT_EQ(panelTitle(0), L"Datei") << "windows that stand keep their language";
    startIn(L"");
    EXPECT_EQ(panelTitle(0), L"Fichier");
    EXPECT_EQ(orvsgutils::ResourceLoader::getCurrentLocaleID(), L"fr") << "the plug-ins, too";
    startIn(L"de");
    EXPECT_EQ(panelTitle(0), L"Datei") << "what is asked for on the command line comes first";
    chooseInOptions("Sprache des Systems");
    EXPECT_EQ(orvviewer::ViewerPreferences::load().language, L"");
}
