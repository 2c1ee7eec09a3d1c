#include "viewer/app/Language.h"

#include "viewer/app/CommandLine.h"
#include "viewer/scene/CubeSides.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>

// The texts are in a static library, so they have to be asked for; the macro works outside of namespaces alone.
static void loadTexts()
{
    Q_INIT_RESOURCE(translations);
}

namespace orvviewer
{

namespace
{

/// The viewer's texts. A text is the same whichever window shows it, so the place that asks plays no part.
class Texts final : public QTranslator
{
public:
    QString translate(char const*, char const* text, char const* remark, int count) const override
    {
        return QTranslator::translate("Orvanta", text, remark, count);
    }
};

/// What is installed while this lives.
struct Installed {
    Texts own;
    QTranslator toolkit; ///< file dialogs, colour dialog, names of keys
};

} // namespace

std::vector<Language> const& languages()
{
    static std::vector<Language> const all{{L"en", L"English"}, {L"fr", L"Français"}, {L"de", L"Deutsch"},
                                           {L"ja", L"日本語"},  {L"ko", L"한국어"},   {L"zh", L"简体中文"},
                                           {L"es", L"Español"}, {L"pt", L"Português"}};
    return all;
}

std::wstring chooseLanguage(std::wstring const& asked, std::wstring const& preferred)
{
    std::wstring const wanted = !asked.empty() ? asked : !preferred.empty() ? preferred : systemLanguage();
    bool const isKnown = std::any_of(languages().begin(), languages().end(),
                                     [&](Language const& language) { return language.code == wanted; });
    return isKnown ? wanted : languages().front().code;
}

void useViewerLanguage(std::wstring const& code)
{
    loadTexts();
    static std::unique_ptr<Installed> current; // a translator's end takes it off again
    current.reset();
    // Numbers are written as the texts are; the system's own rules hold for its own language.
    auto const name = QString::fromStdWString(code == L"zh" ? L"zh_CN" : code == L"pt" ? L"pt_BR" : code);
    QLocale const chosen(name);
    QLocale::setDefault(QLocale::system().language() == chosen.language() ? QLocale::system() : chosen);
    auto next = std::make_unique<Installed>();
    if (next->toolkit.load("qtbase_" + name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&next->toolkit);
    }
    if (next->own.load(":/translations/orvanta_" + QString::fromStdWString(code) + ".qm")) {
        QCoreApplication::installTranslator(&next->own); // asked before the toolkit's
    }
    current = std::move(next);
    auto const side = [](char const* english) { return localized(english).toUpper().toStdString(); };
    nameCubeSides({side("Front"), side("Back"), side("Left"), side("Right"), side("Top"), side("Bottom")});
}

QString localized(char const* text)
{
    return QCoreApplication::translate("Orvanta", text);
}

namespace
{

/// A part of a sentence between two of its quotation marks.
struct Quotation {
    qsizetype begin = 0; ///< of the first mark
    qsizetype end = 0;   ///< behind the second
};

/// The sentence with these quotations as its names, in the language; empty where it isn't known.
QString withNames(QString const& sentence, std::vector<Quotation> const& quotations)
{
    QString pattern;
    QStringList names;
    qsizetype at = 0;
    for (auto const& [begin, end] : quotations) {
        names << sentence.mid(begin + 1, end - begin - 2);
        pattern += sentence.mid(at, begin - at) + QString("\"%%1\"").arg(names.size());
        at = end;
    }
    pattern += sentence.mid(at);
    auto const text = localized(pattern.toUtf8().constData());
    if (text == pattern) {
        return {};
    }
    // In one go: a name may hold "%1" itself.
    switch (names.size()) {
    case 0:
        return text;
    case 1:
        return text.arg(names[0]);
    default:
        return text.arg(names[0], names[1]);
    }
}

} // namespace

std::wstring localizedSentence(std::wstring const& sentence)
{
    auto const english = QString::fromStdWString(sentence);
    std::vector<qsizetype> marks;
    for (auto at = english.indexOf('"'); at >= 0; at = english.indexOf('"', at + 1)) {
        marks.push_back(at);
    }
    if (auto const text = withNames(english, {}); !text.isEmpty()) {
        return text.toStdWString();
    }
    // A name may hold quotation marks itself, so each pair is tried; a name with more than a few isn't worth the time.
    constexpr std::size_t mostMarks = 12;
    auto const count = std::min(marks.size(), mostMarks);
    for (std::size_t first = 0; first < count; ++first) {
        for (std::size_t second = first + 1; second < count; ++second) {
            Quotation const one{marks[first], marks[second] + 1};
            if (auto const text = withNames(english, {one}); !text.isEmpty()) {
                return text.toStdWString();
            }
            for (std::size_t third = second + 1; third < count; ++third) {
                for (std::size_t fourth = third + 1; fourth < count; ++fourth) {
                    Quotation const other{marks[third], marks[fourth] + 1};
                    if (auto const text = withNames(english, {one, other}); !text.isEmpty()) {
                        return text.toStdWString();
                    }
                }
            }
        }
    }
    return sentence;
}

} // namespace orvviewer
