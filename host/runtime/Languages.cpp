#include "host/runtime/Languages.h"

#include "host/orvsgutils/ResourceLoader.h"

#include <windows.h>

#include <cwctype>

namespace orvhost
{

namespace
{

struct Language {
    wchar_t const* code;
    std::uint16_t resource;
};
constexpr Language languages[] = {{L"en", 1033}, {L"fr", 1036}, {L"de", 1031}, {L"ja", 1041},
                                  {L"ko", 1042}, {L"zh", 2052}, {L"es", 1034}, {L"pt", 1046}};

} // namespace

std::wstring languageCode(std::wstring const& wish)
{
    std::wstring code = wish.substr(0, wish.find_first_of(L"_-.@"));
    for (wchar_t& c : code) {
        c = c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
    }
    for (Language const& language : languages) {
        if (code == language.code) {
            return code;
        }
    }
    return languages[0].code;
}

std::uint16_t resourceLanguage(std::wstring const& code)
{
    for (Language const& language : languages) {
        if (code == language.code) {
            return language.resource;
        }
    }
    return languages[0].resource;
}

void useLanguage(std::wstring const& code)
{
    SetThreadUILanguage(resourceLanguage(code));
}

void useResolution(double dpi)
{
    using orvsgutils::ResourceLoader;
    ResourceLoader::m_dpi = dpi;
    // The images come in four sizes; what is measured by them follows the same steps.
    ResourceLoader::m_Pixel.largeWidth = ResourceLoader::m_Pixel.largeHeight = ResourceLoader::getImage(32, 40, 48, 64);
    ResourceLoader::m_Pixel.smallWidth = ResourceLoader::m_Pixel.smallHeight = ResourceLoader::getImage(16, 20, 24, 32);
}

} // namespace orvhost
