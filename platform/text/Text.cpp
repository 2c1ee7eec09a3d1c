#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <type_traits>

namespace orvtext
{
namespace
{
constexpr char32_t replacement = 0xFFFD;

bool isSurrogate(char32_t code)
{
    return code >= 0xD800 && code <= 0xDFFF;
}

char32_t checked(wchar_t character)
{
    const auto code = static_cast<char32_t>(character);
    return code > 0x10FFFF || isSurrogate(code) ? replacement : code;
}

// Reads one code point at `at` and moves past it. A broken sequence gives one replacement and ends before the first
// byte that can't belong to it, so that nothing valid is swallowed.
char32_t readUtf8(std::string_view bytes, std::size_t& at)
{
    const auto lead = static_cast<unsigned char>(bytes[at++]);
    if (lead < 0x80)
        return lead;
    int following = 0;
    char32_t code = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        following = 1;
        code = lead & 0x1Fu;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        following = 2;
        code = lead & 0x0Fu;
        low = lead == 0xE0 ? 0xA0 : 0x80;  // no overlong forms
        high = lead == 0xED ? 0x9F : 0xBF; // no surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        following = 3;
        code = lead & 0x07u;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF;
    } else {
        return replacement;
    }
    for (; following > 0; --following) {
        if (at == bytes.size())
            return replacement;
        const auto next = static_cast<unsigned char>(bytes[at]);
        if (next < low || next > high)
            return replacement;
        code = code << 6 | (next & 0x3Fu);
        low = 0x80;
        high = 0xBF;
        ++at;
    }
    return code;
}
} // namespace

// Feeds carry pictures as text, megabytes of it, nearly all of it plain ASCII. So texts are converted block by block, and
// a block of plain ASCII goes through as a whole, which the compiler turns into vectors of characters.
namespace
{
constexpr std::size_t blockLength = 256;

template <class Character>
bool isPlain(std::basic_string_view<Character> block)
{
    std::make_unsigned_t<Character> bits = 0;
    for (const Character character : block)
        bits |= static_cast<std::make_unsigned_t<Character>>(character);
    return bits < 0x80;
}

template <class To, class From>
void appendPlain(std::basic_string<To>& text, std::basic_string_view<From> block)
{
    std::array<To, blockLength> converted;
    std::transform(block.begin(), block.end(), converted.begin(), [](From c) { return static_cast<To>(c); });
    text.append(converted.data(), block.size());
}

void appendUtf8(std::string& bytes, char32_t code)
{
    const auto put = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | code >> 6);
        put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | code >> 18);
        put(0x80 | (code >> 12 & 0x3F));
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    }
}
} // namespace

std::string toUtf8(std::wstring_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (; !text.empty(); text.remove_prefix(std::min(blockLength, text.size()))) {
        const std::wstring_view block = text.substr(0, blockLength);
        if (isPlain(block)) {
            appendPlain(bytes, block);
            continue;
        }
        for (const wchar_t character : block)
            appendUtf8(bytes, checked(character));
    }
    return bytes;
}

std::wstring fromUtf8(std::string_view bytes)
{
    std::wstring text;
    text.reserve(bytes.size()); // as long as it can get
    for (std::size_t at = 0; at < bytes.size();) {
        const std::string_view block = bytes.substr(at, blockLength);
        if (isPlain(block)) {
            appendPlain(text, block);
            at += block.size();
            continue;
        }
        for (const std::size_t end = at + block.size(); at < end;)
            text += static_cast<wchar_t>(readUtf8(bytes, at)); // its last character may reach into the next block
    }
    return text;
}

std::u16string toUtf16(std::wstring_view text)
{
    std::u16string units;
    units.reserve(text.size());
    for (const wchar_t character : text) {
        // A lone surrogate passes: it may stand for a unit that was widened from elsewhere.
        const auto code = static_cast<char32_t>(character) > 0x10FFFF ? replacement : static_cast<char32_t>(character);
        if (code < 0x10000) {
            units += static_cast<char16_t>(code);
        } else {
            units += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
        }
    }
    return units;
}

std::wstring fromUtf16(std::u16string_view text)
{
    std::wstring result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char32_t unit = text[at];
        if (!isSurrogate(unit)) {
            result += static_cast<wchar_t>(unit);
        } else if (unit < 0xDC00 && at + 1 < text.size() && text[at + 1] >= 0xDC00 && text[at + 1] <= 0xDFFF) {
            result += static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (text[at + 1] - 0xDC00u));
            ++at;
        } else {
            result += static_cast<wchar_t>(replacement);
        }
    }
    return result;
}

std::wstring fromUtf16Le(const void* bytes, std::size_t units)
{
    const auto* byte = static_cast<const unsigned char*>(bytes);
    std::u16string text(units, u'\0');
    for (std::size_t i = 0; i < units; ++i)
        text[i] = static_cast<char16_t>(byte[2 * i] | byte[2 * i + 1] << 8);
    return fromUtf16(text);
}

std::size_t utf16Length(std::wstring_view text)
{
    std::size_t length = text.size();
    for (const wchar_t character : text)
        length += static_cast<char32_t>(character) > 0xFFFF && static_cast<char32_t>(character) <= 0x10FFFF;
    return length;
}

std::string narrowLowBytes(std::wstring_view text)
{
    const auto low = [](auto unit) { return static_cast<char>(unit & 0xFF); };
    if (std::none_of(text.begin(), text.end(), [](wchar_t c) { return static_cast<char32_t>(c) > 0xFFFF; })) {
        std::string bytes(text.size(), '\0');
        std::transform(text.begin(), text.end(), bytes.begin(), low);
        return bytes;
    }
    const std::u16string units = toUtf16(text);
    std::string bytes(units.size(), '\0');
    std::transform(units.begin(), units.end(), bytes.begin(), low);
    return bytes;
}

namespace
{
// Block by block, so that fresh memory, four times the bytes, is gone through once and not filled with zeros first.
template <class Widen>
std::wstring widened(std::string_view bytes, Widen widen)
{
    std::wstring text;
    text.reserve(bytes.size());
    std::array<wchar_t, blockLength> block;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(blockLength, bytes.size()))) {
        const std::string_view part = bytes.substr(0, blockLength);
        std::transform(part.begin(), part.end(), block.begin(), widen);
        text.append(block.data(), part.size());
    }
    return text;
}
} // namespace

std::wstring widenSignExtended(std::string_view bytes)
{
    return widened(
        bytes, [](char byte) { return static_cast<wchar_t>(static_cast<char16_t>(static_cast<signed char>(byte))); });
}

std::wstring widenBytes(std::string_view bytes)
{
    return widened(bytes, [](char byte) { return static_cast<wchar_t>(static_cast<unsigned char>(byte)); });
}
} // namespace orvtext
