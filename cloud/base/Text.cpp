#include "cloud/base/Text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <json/writer.h>

namespace orvcloud
{

Clock systemClock()
{
    return [] {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        return static_cast<std::int64_t>(std::chrono::duration_cast<std::chrono::seconds>(now).count());
    };
}

bool isUtf8(std::string_view text)
{
    // Table 3-7 of the Unicode Standard: the range of the second byte depends on the first.
    const auto byteAt = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    for (std::size_t i = 0; i < text.size();) {
        const unsigned char first = byteAt(i);
        std::size_t length = 1;
        unsigned char low = 0x80;
        unsigned char high = 0xBF;
        if (first < 0x80) {
            ++i;
            continue;
        }
        if (first >= 0xC2 && first <= 0xDF) {
            length = 2;
        } else if (first >= 0xE0 && first <= 0xEF) {
            length = 3;
            low = first == 0xE0 ? 0xA0 : 0x80;
            high = first == 0xED ? 0x9F : 0xBF;
        } else if (first >= 0xF0 && first <= 0xF4) {
            length = 4;
            low = first == 0xF0 ? 0x90 : 0x80;
            high = first == 0xF4 ? 0x8F : 0xBF;
        } else {
            return false;
        }
        if (text.size() - i < length || byteAt(i + 1) < low || byteAt(i + 1) > high)
            return false;
        for (std::size_t k = 2; k < length; ++k)
            if ((byteAt(i + k) & 0xC0) != 0x80)
                return false;
        i += length;
    }
    return true;
}

bool hasControlCharacter(std::string_view text)
{
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; });
}

std::string lowerAscii(std::string_view text)
{
    std::string result(text);
    for (char& c : result)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return result;
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view cut(std::string_view text, std::size_t mostBytes)
{
    std::size_t length = std::min(text.size(), mostBytes);
    while (length > 0 && length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
        --length;
    return text.substr(0, length);
}

std::string oneLine(std::string text)
{
    for (char& c : text)
        if (hasControlCharacter({&c, 1}))
            c = '?';
    return text;
}

std::vector<std::string_view> split(std::string_view text, std::string_view separators)
{
    std::vector<std::string_view> pieces;
    while (true) {
        const auto end = text.find_first_of(separators);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

std::string jsonString(std::string_view text)
{
    return Json::valueToQuotedString(std::string(text).c_str());
}

std::string formattedTime(std::int64_t seconds, const char* form)
{
    const auto moment = static_cast<std::time_t>(seconds);
    std::tm parts{};
    gmtime_r(&moment, &parts);
    std::array<char, 64> buffer{};
    return {buffer.data(), std::strftime(buffer.data(), buffer.size(), form, &parts)};
}

std::string isoTime(std::int64_t seconds)
{
    return formattedTime(seconds, "%Y-%m-%dT%H:%M:%SZ");
}

std::string httpTime(std::int64_t seconds)
{
    return formattedTime(seconds, "%a, %d %b %Y %H:%M:%S GMT");
}

bool isMailAddress(std::string_view address)
{
    const auto at = address.find('@');
    if (address.size() > 254 || at == std::string_view::npos || at == 0 || at + 1 == address.size())
        return false;
    if (address.find('@', at + 1) != std::string_view::npos || !isUtf8(address) || hasControlCharacter(address))
        return false;
    return address.find_first_of(" \",;:<>()[]\\") == std::string_view::npos;
}

} // namespace orvcloud
