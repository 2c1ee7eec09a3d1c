#pragma once
#include <cstdarg>
#include <string>

namespace orvtext
{
// Formats by the wide functions' rule, in which "%s" takes wide text, "%S" and "%hs" narrow text.
std::wstring format(const wchar_t* pattern, std::va_list arguments);
} // namespace orvtext
