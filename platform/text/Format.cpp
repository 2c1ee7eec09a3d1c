#include "platform/text/Format.h"
#include "stringapi.h"

#include <algorithm>
#include <cstring>

namespace orvtext
{
namespace
{
// The same pattern in the C library's own rule, in which "%s" takes narrow text and "%ls" wide text.
std::wstring translated(const wchar_t* pattern)
{
    std::wstring result;
    while (*pattern) {
        result += *pattern;
        if (*pattern++ != L'%')
            continue;
        while (*pattern && std::wcschr(L"-+ #0123456789.*", *pattern))
            result += *pattern++;
        std::wstring size;
        while (*pattern && std::wcschr(L"hlwjzt", *pattern))
            size += *pattern++;
        if (*pattern == L'I' && pattern[1] == L'6' && pattern[2] == L'4') {
            size = L"ll";
            pattern += 3;
        }
        const bool narrow = size == L"h";
        switch (*pattern) {
        case L's':
        case L'c':
            result += narrow ? L"" : L"l";
            result += *pattern++;
            break;
        case L'S':
        case L'C':
            result += *pattern++ == L'S' ? L's' : L'c';
            break;
        case L'\0':
            break;
        default:
            result += size;
            result += *pattern++;
        }
    }
    return result;
}
} // namespace

std::wstring format(const wchar_t* pattern, std::va_list arguments)
{
    const std::wstring own = translated(pattern);
    // The C library does not say how long the result would be, so the room grows until it fits.
    for (std::size_t room = 256; room <= std::size_t{1} << 24; room *= 4) {
        std::wstring text(room, L'\0');
        std::va_list copy;
        va_copy(copy, arguments);
        const int length = std::vswprintf(text.data(), room, own.c_str(), copy);
        va_end(copy);
        if (length >= 0) {
            text.resize(static_cast<std::size_t>(length));
            return text;
        }
    }
    return {};
}
} // namespace orvtext

int vswprintf_s(wchar_t* buffer, std::size_t size, const wchar_t* format, std::va_list arguments)
{
    if (!buffer || size == 0 || !format)
        return -1;
    const std::wstring text = orvtext::format(format, arguments);
    buffer[0] = L'\0';
    if (text.size() >= size)
        return -1;
    std::copy(text.begin(), text.end(), buffer);
    buffer[text.size()] = L'\0';
    return static_cast<int>(text.size());
}

int swprintf_s(wchar_t* buffer, std::size_t size, const wchar_t* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const int length = vswprintf_s(buffer, size, format, arguments);
    va_end(arguments);
    return length;
}
