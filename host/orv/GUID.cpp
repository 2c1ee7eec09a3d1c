#include "host/orv/GUID.h"

#include <random>
#include <string_view>

namespace orv
{

namespace
{

constexpr std::wstring_view digits = L"0123456789abcdef";

bool isHyphenPlace(std::size_t place)
{
    return place == 8 || place == 13 || place == 18 || place == 23;
}

int digitValue(wchar_t c)
{
    if (c >= L'0' && c <= L'9') {
        return c - L'0';
    }
    if (c >= L'a' && c <= L'f') {
        return c - L'a' + 10;
    }
    return c >= L'A' && c <= L'F' ? c - L'A' + 10 : -1;
}

/// Reads the 36 characters between the braces; false leaves `bytes` in any state.
bool read(std::wstring_view text, std::array<std::uint8_t, 16>& bytes)
{
    if (text.size() != 36) {
        return false;
    }
    std::size_t nibble = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (isHyphenPlace(place)) {
            if (text[place] != L'-') {
                return false;
            }
            continue;
        }
        int const value = digitValue(text[place]);
        if (value < 0) {
            return false;
        }
        auto& byte = bytes[nibble / 2];
        byte = static_cast<std::uint8_t>(nibble % 2 == 0 ? value << 4 : byte | value);
        ++nibble;
    }
    return true;
}

} // namespace

GUID::GUID()
{
    // The system's own source of random numbers: no two runs, and no two machines, share a sequence.
    std::random_device source;
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        unsigned int const word = source();
        for (std::size_t k = 0; k < 4; ++k) {
            bytes[i + k] = static_cast<std::uint8_t>(word >> (8 * k));
        }
    }
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40); // version 4
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80); // the RFC's variant
}

GUID::GUID(wchar_t const* text)
{
    std::wstring_view body(text == nullptr ? L"" : text);
    if (body.size() == 38 && body.front() == L'{' && body.back() == L'}') {
        body = body.substr(1, 36);
    }
    if (!read(body, bytes)) {
        bytes = {};
    }
}

std::wstring GUID::toString() const
{
    std::wstring text = L"{";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) {
            text += L'-';
        }
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 0x0F];
    }
    return text + L'}';
}

} // namespace orv
