#include "cloud/feed/JsonCheck.h"

#include <algorithm>

namespace orvcloud
{
namespace
{
bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Takes digits off the front. False if there are none.
bool takeDigits(std::string_view& text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    const auto count = static_cast<std::size_t>(end - text.begin());
    text.remove_prefix(count);
    return count > 0;
}

bool takeOneOf(std::string_view& text, std::string_view characters)
{
    if (text.empty() || characters.find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    return true;
}

bool isNumber(std::string_view text)
{
    takeOneOf(text, "-");
    if (!takeOneOf(text, "0") && !takeDigits(text))
        return false;
    if (takeOneOf(text, ".") && !takeDigits(text))
        return false;
    if (takeOneOf(text, "eE")) {
        takeOneOf(text, "+-");
        if (!takeDigits(text))
            return false;
    }
    return text.empty();
}

/// The string's length with both quotation marks, or 0 if it doesn't end or holds a control character.
std::size_t stringLength(std::string_view text)
{
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (static_cast<unsigned char>(text[i]) < 0x20)
            return 0;
        if (text[i] == '"')
            return i + 1;
        if (text[i] == '\\')
            ++i;
    }
    return 0;
}
} // namespace

bool isPlainJson(std::string_view text)
{
    std::size_t values = 1;
    while (!text.empty()) {
        const char c = text.front();
        std::size_t length = 1;
        if (c == '"') {
            length = stringLength(text);
            if (length == 0)
                return false;
        } else if (isDigit(c) || c == '-' || c == '+' || c == '.') {
            length = std::min(text.size(), text.find_first_not_of("0123456789+-.eE"));
            if (!isNumber(text.substr(0, length)))
                return false;
        } else if (static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\r' && c != '\t') {
            return false;
        } else if ((c == ',' || c == '[' || c == '{') && ++values > mostJsonValues) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

} // namespace orvcloud
