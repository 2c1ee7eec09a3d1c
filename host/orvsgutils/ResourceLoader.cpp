#include "host/orvsgutils/ResourceLoader.h"

#include "host/runtime/Languages.h"
#include "host/runtime/Runtime.h"
#include "platform/text/Text.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>

namespace orvsgutils
{

namespace
{

constexpr int stringsInBlock = 16;

std::uint16_t unitAt(unsigned char const* bytes, std::size_t place)
{
    return static_cast<std::uint16_t>(bytes[place] | bytes[place + 1] << 8);
}

/// A string of a block: 16 strings in a row, each a count of UTF-16 units and the units, low byte first.
std::wstring stringOfBlock(unsigned char const* bytes, std::size_t size, int number)
{
    std::size_t place = 0;
    for (int i = 0; place + 2 <= size; ++i) {
        std::size_t const units = unitAt(bytes, place);
        place += 2;
        if (units * 2 > size - place) {
            return {};
        }
        if (i == number) {
            return orvtext::fromUtf16Le(bytes + place, units);
        }
        place += units * 2;
    }
    return {};
}

std::wstring stringIn(std::wstring const& library, int id, WORD language)
{
    HMODULE const module = GetModuleHandleW(library.c_str());
    if (module == nullptr || id < 0 || id > 0xFFFF) {
        return {};
    }
    HRSRC const block = FindResourceExW(module, RT_STRING, MAKEINTRESOURCEW(id / stringsInBlock + 1), language);
    if (block == nullptr) {
        return {};
    }
    auto const* const bytes = static_cast<unsigned char const*>(LockResource(LoadResource(module, block)));
    return bytes == nullptr ? std::wstring() : stringOfBlock(bytes, SizeofResource(module, block), id % stringsInBlock);
}

} // namespace

PIXELS ResourceLoader::m_Pixel;
double ResourceLoader::m_dpi = 96.0;

std::wstring ResourceLoader::getString(std::wstring const& library, int const& id)
{
    std::wstring text = stringIn(library, id, orvhost::resourceLanguage(orvhost::settings().language));
    return text.empty() ? getEngString(library, id) : text;
}

std::wstring ResourceLoader::getEngString(std::wstring const& library, int const& id)
{
    return stringIn(library, id, orvhost::resourceLanguage(L"en"));
}

std::wstring ResourceLoader::getCurrentLocaleID()
{
    return orvhost::settings().language;
}

int ResourceLoader::getImage(int step1, int step2, int step3, int step4)
{
    if (m_dpi < 120.0) {
        return step1;
    }
    if (m_dpi < 144.0) {
        return step2;
    }
    return m_dpi < 192.0 ? step3 : step4;
}

} // namespace orvsgutils
