#include "feed/Thumbnail.h"

#include "platform/text/Text.h"
#include "service/ReplaceAll.h"

#include <algorithm>
#include <array>
#include <cstdint>

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

} // namespace

bool hasThumbnail(Feed const& feed)
{
    return orvtext::utf16Length(feed.thumbnail) >= shortestWithImage;
}

std::string decodeThumbnail(Feed const& feed)
{
    // One byte a 16-bit character, so the prefix can be counted off after the narrowing.
    std::string payload = orvtext::narrowLowBytes(feed.thumbnail);
    payload.erase(0, feed.source == L"web" ? webPrefixLength : prefixLength);
    payload = replaceAll(payload, "%2b", "+");
    std::erase(payload, '\n');
    std::erase(payload, '\r');
    return decodeBase64(payload);
}

std::string decodeBase64(std::string_view text)
{
    static constexpr std::array<std::uint32_t, 256> values = valuesOfCharacters();
    std::string bytes(text.size() / 4 * 3 + 3, '\0'); // as long as it can get
    char* end = bytes.data();
    std::uint32_t group = 0;
    unsigned count = 0;
    for (char const character : text) {
        std::uint32_t const value = values[static_cast<unsigned char>(character)];
        if (value == noValue) {
            break;
        }
        group = (group << 6U) | value;
        if (++count == 4) {
            *end++ = static_cast<char>(group >> 16U);
            *end++ = static_cast<char>(group >> 8U);
            *end++ = static_cast<char>(group);
            group = 0;
            count = 0;
        }
    }
    if (count > 1) {
        group <<= 6U * (4 - count);
        *end++ = static_cast<char>(group >> 16U);
        if (count == 3) {
            *end++ = static_cast<char>(group >> 8U);
        }
    }
    bytes.resize(static_cast<std::size_t>(end - bytes.data()));
    return bytes;
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
