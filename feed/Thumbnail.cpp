#include "feed/Thumbnail.h"

#include "platform/text/Text.h"
#include "service/ReplaceAll.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <type_traits>

namespace
{

constexpr std::size_t shortestWithImage = 24;
constexpr std::size_t prefixLength = 23;    // "data:image/jpeg;base64,"
constexpr std::size_t webPrefixLength = 22; // the web client's prefix is one character shorter

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint32_t noValue = 64;

/// The six bits that a character stands for, or noValue.
constexpr std::array<std::uint32_t, 256> valuesOfCharacters()
{
    std::array<std::uint32_t, 256> values{};
    values.fill(noValue);
    for (std::uint32_t value = 0; value < alphabet.size(); ++value) {
        values[static_cast<unsigned char>(alphabet[value])] = value;
    }
    return values;
}

/// Decodes up to the first character outside the alphabet, whose place is `end`.
template <class Character>
std::string decodeUpTo(std::basic_string_view<Character> text, std::size_t& end)
{
    static constexpr std::array<std::uint32_t, 256> values = valuesOfCharacters();
    auto const valueAt = [text](std::size_t at) {
        auto const character = static_cast<std::make_unsigned_t<Character>>(text[at]);
        return character < values.size() ? values[character] : noValue;
    };
    std::string bytes(text.size() / 4 * 3 + 3, '\0'); // as long as it can get
    char* out = bytes.data();
    auto const put = [&out](std::uint32_t group, unsigned count) {
        for (unsigned shift = 16; count > 0; --count, shift -= 8) {
            *out++ = static_cast<char>(group >> shift);
        }
    };
    end = 0;
    for (; end + 4 <= text.size(); end += 4) {
        std::uint32_t const first = valueAt(end);
        std::uint32_t const second = valueAt(end + 1);
        std::uint32_t const third = valueAt(end + 2);
        std::uint32_t const fourth = valueAt(end + 3);
        if (((first | second | third | fourth) & noValue) != 0) {
            break;
        }
        put(first << 18U | second << 12U | third << 6U | fourth, 3);
    }
    // What is left are three characters at most, up to the one that ends the text.
    std::uint32_t group = 0;
    unsigned count = 0;
    for (; end < text.size() && valueAt(end) != noValue; ++end) {
        group = group << 6U | valueAt(end);
        ++count;
    }
    if (count > 1) {
        put(group << (6U * (4 - count)), count - 1);
    }
    bytes.resize(static_cast<std::size_t>(out - bytes.data()));
    return bytes;
}

} // namespace

bool hasThumbnail(Feed const& feed)
{
    // The first so many characters tell it, whatever follows them.
    std::wstring_view const text(feed.thumbnail);
    return orvtext::utf16Length(text.substr(0, shortestWithImage)) >= shortestWithImage;
}

std::string decodeThumbnail(Feed const& feed)
{
    std::size_t const prefix = feed.source == L"web" ? webPrefixLength : prefixLength;
    std::wstring_view const text(feed.thumbnail);
    if (text.size() > prefix && orvtext::utf16Length(text.substr(0, prefix)) == prefix) {
        // Pictures come by the thousand, and hardly one has anything to undo.
        std::size_t end = 0;
        std::wstring_view const payload = text.substr(prefix);
        std::string bytes = decodeUpTo(payload, end);
        if (end == payload.size() || payload[end] == L'=') {
            return bytes;
        }
    }
    // One byte a 16-bit character, so the prefix can be counted off after the narrowing.
    std::string payload = orvtext::narrowLowBytes(text);
    payload.erase(0, prefix);
    payload = replaceAll(payload, "%2b", "+");
    std::erase(payload, '\n');
    std::erase(payload, '\r');
    return decodeBase64(payload);
}

std::string decodeBase64(std::string_view text)
{
    std::size_t end = 0;
    return decodeUpTo(text, end);
}

std::string encodeBase64(std::string_view bytes)
{
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::size_t const count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t group = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            group = (group << 8U) | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0U);
        }
        for (unsigned k = 0; k < 4; ++k) {
            text.push_back(k <= count ? alphabet[(group >> (18U - 6U * k)) & 0x3FU] : '=');
        }
    }
    return text;
}
