#include "feed/Thumbnail.h"

#include "platform/text/Text.h"
#include "service/ReplaceAll.h"

#include <algorithm>
#include <cstdint>

namespace
{

constexpr std::size_t shortestWithImage = 24;
constexpr std::size_t prefixLength = 23;    // "data:image/jpeg;base64,"
constexpr std::size_t webPrefixLength = 22; // the web client's prefix is one character shorter

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

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
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t group = 0;
    int count = 0;
    for (char const character : text) {
        std::size_t const value = alphabet.find(character);
        if (value == std::string_view::npos) {
            break;
        }
        group = (group << 6U) | static_cast<std::uint32_t>(value);
        if (++count == 4) {
            for (unsigned shift : {16U, 8U, 0U}) {
                bytes.push_back(static_cast<char>((group >> shift) & 0xFFU));
            }
            group = 0;
            count = 0;
        }
    }
    if (count > 1) {
        group <<= 6U * static_cast<unsigned>(4 - count);
        bytes.push_back(static_cast<char>((group >> 16U) & 0xFFU));
        if (count == 3) {
            bytes.push_back(static_cast<char>((group >> 8U) & 0xFFU));
        }
    }
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
