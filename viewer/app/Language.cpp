#include "viewer/app/Language.h"

#include "viewer/app/CommandLine.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QRegularExpression>
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
    if (code == languages().front().code) {
        return;
    }
    auto next = std::make_unique<Installed>();
    auto const name = QString::fromStdWString(code == L"zh" ? L"zh_CN" : code == L"pt" ? L"pt_BR" : code);
    if (next->toolkit.load("qtbase_" + name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&next->toolkit);
    }
    if (next->own.load(":/translations/orvanta_" + QString::fromStdWString(code) + ".qm")) {
        QCoreApplication::installTranslator(&next->own); // asked before the toolkit's
    }
    current = std::move(next);
}

QString localized(char const* text)
{
    return QCoreApplication::translate("Orvanta", text);
}

std::wstring localizedSentence(std::wstring const& sentence)
{
    static QRegularExpression const quoted("\"([^\"]*)\"");
    auto const english = QString::fromStdWString(sentence);
    QString pattern;
    QStringList names;
    qsizetype at = 0;
    for (auto matches = quoted.globalMatch(english); matches.hasNext();) {
        auto const match = matches.next();
        names << match.captured(1);
        pattern += english.mid(at, match.capturedStart() - at) + QString("\"%%1\"").arg(names.size());
        at = match.capturedEnd();
    }
    pattern += english.mid(at);
    auto const source = pattern.toUtf8();
    auto text = localized(source.constData());
    if (text == pattern) {
        return sentence;
    }
    // In one go: a name may hold "%1" itself.
    switch (names.size()) {
    case 0:
        break;
    case 1:
        text = text.arg(names[0]);
        break;
    default:
        text = text.arg(names[0], names[1]);
    }
    return text.toStdWString();
}

} // namespace orvviewer
