#pragma once
// Formatting with the wide functions' own rule: "%s" takes wide text, "%S" and "%hs" narrow text.

#include <cstdarg>
#include <cstddef>

// Returns the number of characters written. When the text does not fit, the buffer is left empty and the result is -1.
int swprintf_s(wchar_t* buffer, std::size_t size, const wchar_t* format, ...);
int vswprintf_s(wchar_t* buffer, std::size_t size, const wchar_t* format, std::va_list arguments);

template <std::size_t size, class... Arguments>
int swprintf_s(wchar_t (&buffer)[size], const wchar_t* format, Arguments... arguments)
{
    return swprintf_s(static_cast<wchar_t*>(buffer), size, format, arguments...);
}
