#include "cstringt.h"

#include "afxcmdtarget.h"
#include "platform/text/Format.h"

#include <algorithm>
#include <cwctype>

namespace
{
std::size_t clamped(int value, std::size_t limit)
{
    return value < 0 ? 0 : std::min(static_cast<std::size_t>(value), limit);
}
int positionOf(std::size_t found)
{
    return found == std::wstring::npos ? -1 : static_cast<int>(found);
}
constexpr LPCWSTR blanks = L" \t\r\n\v\f";
} // namespace

void CStringW::FormatPlain(LPCWSTR format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    // Made aside first: this text may be one of the arguments.
    std::wstring result = orvtext::format(format, arguments);
    va_end(arguments);
    text = std::move(result);
}

BOOL CStringW::LoadString(UINT id)
{
    return LoadString(AfxFindResourceHandle(MAKEINTRESOURCEW(id / 16 + 1), RT_STRING), id);
}

BOOL CStringW::LoadString(HINSTANCE module, UINT id)
{
    LPCWSTR place = nullptr;
    const int length = LoadStringW(module, id, reinterpret_cast<LPWSTR>(&place), 0);
    text.assign(length > 0 ? place : L"", static_cast<std::size_t>(length));
    return length > 0;
}

CStringW CStringW::Left(int count) const
{
    return CStringW(text.substr(0, clamped(count, text.size())));
}

CStringW CStringW::Right(int count) const
{
    return CStringW(text.substr(text.size() - clamped(count, text.size())));
}

CStringW CStringW::Mid(int first) const
{
    return CStringW(text.substr(clamped(first, text.size())));
}

CStringW CStringW::Mid(int first, int count) const
{
    return CStringW(text.substr(clamped(first, text.size()), clamped(count, text.size())));
}

int CStringW::Find(LPCWSTR part, int start) const
{
    return positionOf(text.find(part, clamped(start, text.size())));
}

int CStringW::Find(WCHAR character, int start) const
{
    return positionOf(text.find(character, clamped(start, text.size())));
}

int CStringW::ReverseFind(WCHAR character) const
{
    return positionOf(text.rfind(character));
}

CStringW CStringW::Tokenize(LPCWSTR separators, int& start) const
{
    if (start >= 0) {
        const std::size_t first = text.find_first_not_of(separators, clamped(start, text.size()));
        if (first != std::wstring::npos) {
            const std::size_t last = std::min(text.find_first_of(separators, first), text.size());
            start = static_cast<int>(std::min(last + 1, text.size()));
            return CStringW(text.substr(first, last - first));
        }
    }
    start = -1;
    return {};
}

int CStringW::Replace(LPCWSTR from, LPCWSTR to)
{
    const std::wstring_view old(from);
    const std::wstring_view fresh(to ? to : L"");
    int count = 0;
    if (old.empty())
        return 0;
    for (std::size_t at = text.find(old); at != std::wstring::npos; at = text.find(old, at + fresh.size())) {
        text.replace(at, old.size(), fresh);
        ++count;
    }
    return count;
}

int CStringW::Remove(WCHAR character)
{
    return static_cast<int>(std::erase(text, character));
}

CStringW& CStringW::TrimLeft()
{
    text.erase(0, std::min(text.find_first_not_of(blanks), text.size()));
    return *this;
}

CStringW& CStringW::TrimRight()
{
    text.erase(text.find_last_not_of(blanks) + 1);
    return *this;
}

CStringW& CStringW::Trim()
{
    return TrimRight().TrimLeft();
}

CStringW& CStringW::MakeLower()
{
    for (wchar_t& character : text)
        character = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(character)));
    return *this;
}

CStringW& CStringW::MakeUpper()
{
    for (wchar_t& character : text)
        character = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(character)));
    return *this;
}

int CStringW::CompareNoCase(LPCWSTR other) const
{
    return wcscasecmp(text.c_str(), other);
}

LPWSTR CStringW::GetBuffer(int length)
{
    if (text.size() < static_cast<std::size_t>(std::max(length, 0)))
        text.resize(static_cast<std::size_t>(length));
    return text.data();
}

void CStringW::ReleaseBuffer(int length)
{
    text.resize(length < 0 ? std::wcslen(text.c_str()) : clamped(length, text.size()));
}

CStringW& CStringW::operator=(LPCWSTR other)
{
    text = other ? std::wstring(other) : std::wstring();
    return *this;
}

CStringW& CStringW::operator=(const std::wstring& other)
{
    text = other;
    return *this;
}

CStringW& CStringW::operator+=(const CStringW& other)
{
    text += other.text;
    return *this;
}

CStringW& CStringW::operator+=(LPCWSTR other)
{
    text += other ? other : L"";
    return *this;
}

CStringW& CStringW::operator+=(WCHAR character)
{
    text += character;
    return *this;
}
