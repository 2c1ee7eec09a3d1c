#include "ui/DialogTemplate.h"

#include "host/orvsgutils/ResourceLoader.h"

#include <array>
#include <utility>

UINT DialogTemplate::forCurrentLanguage() const
{
    std::array<std::pair<wchar_t const*, UINT>, 7> const choices = {{{L"fr", french},
                                                                     {L"de", german},
                                                                     {L"ja", japanese},
                                                                     {L"ko", korean},
                                                                     {L"zh", chinese},
                                                                     {L"es", spanish},
                                                                     {L"pt", portuguese}}};
    std::wstring const language = orvsgutils::ResourceLoader::getCurrentLocaleID();
    for (auto const& [code, id] : choices) {
        if (language == code) {
            return id;
        }
    }
    return other;
}
