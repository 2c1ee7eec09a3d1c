#include "viewer/app/CommandLine.h"

#include "platform/text/Text.h"
#include "viewer/app/Language.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdlib>
#include <cwctype>
#include <string_view>

namespace orvviewer
{

namespace
{

bool isLanguage(std::wstring const& code)
{
    return code.size() == 2 && std::all_of(code.begin(), code.end(), [](wchar_t c) { return c >= L'a' && c <= L'z'; });
}

} // namespace

CommandLine readCommandLine(int count, char const* const* arguments)
{
    CommandLine line;
    // The first mistake is the one that is told. What follows is read all the same: it may say in which language.
    auto const complain = [&line](std::wstring const& sentence) {
        if (line.error.empty()) {
            line.error = sentence;
        }
    };
    bool onlyFiles = false;
    for (int i = 1; i < count; ++i) {
        std::wstring argument = orvtext::fromUtf8(arguments[i]);
        if (argument == L"--" && !onlyFiles) {
            onlyFiles = true;
            continue;
        }
        if (onlyFiles || !argument.starts_with(L"-") || argument == L"-") {
            if (!line.file.empty()) {
                complain(L"Only one model can be opened at a time. Give one file.");
            }
            line.file = argument;
            continue;
        }
        if (argument == L"--help" || argument == L"-h") {
            line.wantsHelp = true;
            continue;
        }
        if (argument == L"--version") {
            line.wantsVersion = true;
            continue;
        }
        // Both "--data DIR" and "--data=DIR".
        std::wstring value;
        auto const equals = argument.find(L'=');
        bool const hasValue = equals != std::wstring::npos || i + 1 < count;
        if (equals != std::wstring::npos) {
            value = argument.substr(equals + 1);
            argument.erase(equals);
        }
        std::wstring const option = argument;
        if (option != L"--service" && option != L"--data" && option != L"--language" && option != L"--export" &&
            option != L"--screenshot") {
            complain(L"The option \"" + option + L"\" isn't known. Use --help to see all options.");
            continue;
        }
        if (!hasValue) {
            complain(L"The option \"" + option + L"\" needs a value. Use --help to see all options.");
            continue;
        }
        if (equals == std::wstring::npos) {
            value = orvtext::fromUtf8(arguments[++i]);
        }
        if (option == L"--service") {
            line.serviceUrl = value;
        } else if (option == L"--data") {
            line.dataDirectory = value;
        } else if (option == L"--language") {
            if (isLanguage(value)) {
                line.language = value;
            } else {
                complain(L"The language must be a code of two letters, such as \"de\".");
            }
        } else if (option == L"--export") {
            line.exports.push_back(value);
        } else {
            line.screenshot = value;
        }
    }
    if (line.isHeadless() && line.file.empty()) {
        complain(L"There is nothing to export or draw. Give a model file, too.");
    }
    return line;
}

std::wstring usage()
{
    struct Option {
        char const* form;
        char const* meaning;
    };
    static constexpr Option options[] = {
        {"--service URL", QT_TRANSLATE_NOOP("Orvanta", "address of the cloud service")},
        {"--data DIR", QT_TRANSLATE_NOOP("Orvanta", "where the user's data lies")},
        {"--language CODE", QT_TRANSLATE_NOOP("Orvanta", "language, two letters: en, fr, de, ja, ko, zh, es or pt")},
        {"--export OUT",
         QT_TRANSLATE_NOOP("Orvanta", "write FILE to OUT in the format of its ending and exit; may be repeated")},
        {"--screenshot OUT", QT_TRANSLATE_NOOP("Orvanta", "draw FILE to a picture (.png, .jpg) and exit")},
        {"--help", QT_TRANSLATE_NOOP("Orvanta", "show this text and exit")},
        {"--version", QT_TRANSLATE_NOOP("Orvanta", "show the version and exit")},
    };
    constexpr int column = 19;
    auto text = localized(QT_TRANSLATE_NOOP("Orvanta", "Usage: orvanta [FILE] [OPTION]...")) + '\n' +
                localized(QT_TRANSLATE_NOOP("Orvanta",
                                            "Views and reviews 3D CAD models: STEP, IGES, BREP, STL, OBJ and glTF.")) +
                "\n\n";
    for (auto const& option : options) {
        text += "  " + QString(option.form).leftJustified(column) + localized(option.meaning) + '\n';
    }
    return text.toStdWString();
}

std::wstring systemLanguage()
{
    for (char const* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        char const* const value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            std::string_view const locale(value);
            auto const code = orvtext::fromUtf8(locale.substr(0, locale.find_first_of("_.@")));
            return isLanguage(code) ? code : L"en";
        }
    }
    return L"en";
}

} // namespace orvviewer
