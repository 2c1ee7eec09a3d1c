#include "feed/JsonLine.h"

#include "platform/text/Text.h"
#include "service/JsonText.h"

#include <array>
#include <charconv>
#include <utility>

namespace
{

/// Looks at every character, found or not: that goes many at a time, and pictures are long.
bool needsEscape(std::wstring const& text)
{
    unsigned found = 0;
    for (wchar_t const character : text) {
        auto const code = static_cast<unsigned>(character);
        found |= static_cast<unsigned>(code - 0x20U > 0x5FU) | static_cast<unsigned>(code == '"') |
                 static_cast<unsigned>(code == '\\');
    }
    return found != 0;
}

} // namespace

void JsonLine::key(std::string_view name)
{
    separate();
    text += L'"';
    append(name);
    text += L"\":";
    hasSibling = false;
}

void JsonLine::value(bool flag)
{
    separate();
    append(flag ? "true" : "false");
}

void JsonLine::value(int number)
{
    separate();
    std::array<char, 16> digits;
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(digits.data(), end);
}

void JsonLine::value(double number)
{
    separate();
    append(Json::valueToString(number));
}

void JsonLine::value(std::wstring const& content)
{
    separate();
    if (!needsEscape(content)) {
        text += L'"';
        text += content;
        text += L'"';
        return;
    }
    std::string quoted = writeJson(Json::Value(orvtext::toUtf8(content)));
    quoted.pop_back(); // its line feed
    append(quoted);
}

std::wstring JsonLine::take()
{
    hasSibling = false;
    text += L'\n';
    return std::exchange(text, {});
}

void JsonLine::open(wchar_t bracket)
{
    separate();
    text += bracket;
    hasSibling = false;
}

void JsonLine::close(wchar_t bracket)
{
    text += bracket;
    hasSibling = true;
}

void JsonLine::separate()
{
    if (hasSibling) {
        text += L',';
    }
    hasSibling = true;
}
