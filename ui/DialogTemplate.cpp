#include "ui/DialogTemplate.h"

#include "host/orvsgutils/ResourceLoader.h"

#include <array>
#include <utility>

UINT DialogTemplate::forLanguage(std::wstring_view code) const
{
    std::array<std::pair<wchar_t const*, UINT>, 7> const choices = {{{L"fr", french},
                                                                     {L"de", german},
                                                                     {L"ja", japanese},
                                                                     {L"ko", korean},
                                                                     {L"zh", chinese},
                                                                     {L"es", spanish},
                                                                     {L"pt", portuguese}}};
    for (auto const& [language, id] : choices) {
        if (code == language) {
            return id;
        }
    }
    return other;
}

UINT DialogTemplate::forCurrentLanguage() const
{
    return forLanguage(orvsgutils::ResourceLoader::getCurrentLocaleID());
}
