#pragma once
// Conversions between wide text (one code point a character), UTF-8 and UTF-16, and the byte-wise ones that old formats
// need. Broken input gives U+FFFD; nothing here throws but for want of memory.

#include <cstddef>
#include <string>
#include <string_view>

namespace orvtext
{
std::string toUtf8(std::wstring_view text);
std::wstring fromUtf8(std::string_view bytes);
std::u16string toUtf16(std::wstring_view text);
std::wstring fromUtf16(std::u16string_view text);
std::wstring fromUtf16Le(const void* bytes, std::size_t units); // little-endian, unaligned

// Number of UTF-16 units: U+1F600 counts two.
std::size_t utf16Length(std::wstring_view text);

// The low eight bits of each UTF-16 unit: U+1F600 gives two bytes.
std::string narrowLowBytes(std::wstring_view text);
// One character a byte, by sign extension to 16 bits: 0xE9 gives U+FFE9.
std::wstring widenSignExtended(std::string_view bytes);
// One character a byte, U+0000 to U+00FF.
std::wstring widenBytes(std::string_view bytes);
} // namespace orvtext
