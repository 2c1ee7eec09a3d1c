#pragma once
// The toolkit's text value, over std::wstring. Lengths and positions count characters of std::wstring.

#include "windef.h"

#include <string>
#include <type_traits>

class CStringW
{
public:
    CStringW() = default;
    CStringW(LPCWSTR other) : text(other ? other : L"") {}
    CStringW(LPCWSTR other, int length) : text(other, static_cast<std::size_t>(length)) {}
    CStringW(const std::wstring& other) : text(other) {}
    explicit CStringW(WCHAR character, int count = 1) : text(static_cast<std::size_t>(count), character) {}

    operator LPCWSTR() const { return text.c_str(); }
    LPCWSTR GetString() const { return text.c_str(); }
    int GetLength() const { return static_cast<int>(text.size()); }
    BOOL IsEmpty() const { return text.empty(); }
    void Empty() { text.clear(); }
    WCHAR GetAt(int index) const { return text.at(static_cast<std::size_t>(index)); }
    void SetAt(int index, WCHAR character) { text.at(static_cast<std::size_t>(index)) = character; }
    WCHAR operator[](int index) const { return GetAt(index); }

    // "%s" takes wide text. Values of this class may be given as they are.
    template <class... Arguments>
    void Format(LPCWSTR format, const Arguments&... arguments)
    {
        FormatPlain(format, plain(arguments)...);
    }
    template <class... Arguments>
    void AppendFormat(LPCWSTR format, const Arguments&... arguments)
    {
        CStringW addition;
        addition.FormatPlain(format, plain(arguments)...);
        text += addition.text;
    }
    // False, and empty, when the string table has no such string.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE module, UINT id);

    // Counts and positions outside the text are cut to it.
    CStringW Left(int count) const;
    CStringW Right(int count) const;
    CStringW Mid(int first) const;
    CStringW Mid(int first, int count) const;
    int Find(LPCWSTR part, int start = 0) const; // -1: not found
    int Find(WCHAR character, int start = 0) const;
    int ReverseFind(WCHAR character) const;
    // The next piece at or after `start` between any of the separators; empty pieces are skipped. `start` is -1, and
    // the result empty, when there are no more.
    CStringW Tokenize(LPCWSTR separators, int& start) const;
    int Replace(LPCWSTR from, LPCWSTR to); // number of replacements
    int Remove(WCHAR character);
    CStringW& Trim(); // white space at both ends
    CStringW& TrimLeft();
    CStringW& TrimRight();
    CStringW& MakeLower();
    CStringW& MakeUpper();
    int Compare(LPCWSTR other) const { return text.compare(other); }
    int CompareNoCase(LPCWSTR other) const;
    LPWSTR GetBuffer(int length); // room for `length` characters; ReleaseBuffer must follow
    void ReleaseBuffer(int length = -1);

    CStringW& operator=(LPCWSTR other);
    CStringW& operator=(const std::wstring& other);
    CStringW& operator+=(const CStringW& other);
    CStringW& operator+=(LPCWSTR other);
    CStringW& operator+=(WCHAR character);
    friend CStringW operator+(const CStringW& a, const CStringW& b) { return CStringW(a.text + b.text); }
    friend CStringW operator+(const CStringW& a, LPCWSTR b) { return CStringW(a.text + b); }
    friend CStringW operator+(LPCWSTR a, const CStringW& b) { return CStringW(a + b.text); }
    friend CStringW operator+(const CStringW& a, WCHAR b) { return CStringW(a.text + b); }
    friend bool operator==(const CStringW& a, const CStringW& b) { return a.text == b.text; }
    friend bool operator==(const CStringW& a, LPCWSTR b) { return a.text == b; }
    friend bool operator<(const CStringW& a, const CStringW& b) { return a.text < b.text; }

private:
    void FormatPlain(LPCWSTR format, ...);
    template <class Value>
    static auto plain(const Value& value)
    {
        if constexpr (std::is_same_v<Value, CStringW>)
            return value.GetString();
        else if constexpr (std::is_array_v<Value>)
            return static_cast<const std::remove_extent_t<Value>*>(value);
        else
            return value;
    }

    std::wstring text;
};
using CString = CStringW;
