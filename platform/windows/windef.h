#pragma once
// Basic types of the system calls. Sizes are those of the documented interfaces: a LONG and a DWORD have 32 bits, and
// what can hold a pointer has the pointer's size. A WCHAR holds one code point here (see platform/text/Text.h).

#include <cstddef>
#include <cstdint>
#include <cwchar>

#define WINAPI
#define CALLBACK

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using UINT = unsigned int;
using INT = int;
using SHORT = std::int16_t;
using LONGLONG = std::int64_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using SIZE_T = std::size_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using HRESULT = std::int32_t;
using LANGID = WORD;
using ATOM = WORD;
using COLORREF = DWORD;

using CHAR = char;
using WCHAR = wchar_t;
using TCHAR = wchar_t;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using LPCTSTR = const wchar_t*;
using LPVOID = void*;
using LPCVOID = const void*;
using LPBYTE = BYTE*;
using LPDWORD = DWORD*;

using HANDLE = void*;
using HGDIOBJ = void*;
using HGLOBAL = void*;
using HWND = struct HWND__*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HICON = struct HICON__*;
using HCURSOR = HICON;
using HBITMAP = struct HBITMAP__*;
using HFONT = struct HFONT__*;
using HBRUSH = struct HBRUSH__*;
using HMENU = struct HMENU__*;
using HDC = struct HDC__*;
using HRSRC = struct HRSRC__*;
using HIMAGELIST = struct _IMAGELIST*;
using FARPROC = void (*)(); // cast to the function's own type
using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);

inline constexpr BOOL TRUE = 1;
inline constexpr BOOL FALSE = 0;
inline constexpr int MAX_PATH = 4096; // of this platform

struct tagRECT {
    LONG left, top, right, bottom;
};
struct tagPOINT {
    LONG x, y;
};
struct tagSIZE {
    LONG cx, cy;
};
using RECT = tagRECT;
using LPRECT = RECT*;
using LPCRECT = const RECT*;
using POINT = tagPOINT;
using LPPOINT = POINT*;
using SIZE = tagSIZE;
using LPSIZE = SIZE*;

// Packed colour: red in bits 0-7, green in 8-15, blue in 16-23.
constexpr COLORREF RGB(int red, int green, int blue)
{
    return static_cast<COLORREF>((red & 255) | (green & 255) << 8 | (blue & 255) << 16);
}
constexpr BYTE GetRValue(COLORREF colour)
{
    return static_cast<BYTE>(colour);
}
constexpr BYTE GetGValue(COLORREF colour)
{
    return static_cast<BYTE>(colour >> 8);
}
constexpr BYTE GetBValue(COLORREF colour)
{
    return static_cast<BYTE>(colour >> 16);
}
inline constexpr COLORREF CLR_NONE = 0xFFFFFFFF;
inline constexpr COLORREF CLR_DEFAULT = 0xFF000000;

constexpr WORD LOWORD(ULONG_PTR value)
{
    return static_cast<WORD>(value & 0xFFFF);
}
constexpr WORD HIWORD(ULONG_PTR value)
{
    return static_cast<WORD>((value >> 16) & 0xFFFF);
}
constexpr BYTE LOBYTE(ULONG_PTR value)
{
    return static_cast<BYTE>(value & 0xFF);
}
constexpr LONG MAKELONG(int low, int high)
{
    return static_cast<LONG>(static_cast<DWORD>(low & 0xFFFF) | static_cast<DWORD>(high & 0xFFFF) << 16);
}
constexpr WPARAM MAKEWPARAM(int low, int high)
{
    return static_cast<DWORD>(MAKELONG(low, high));
}
constexpr LPARAM MAKELPARAM(int low, int high)
{
    return static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(low, high)));
}
constexpr LANGID MAKELANGID(int primary, int sub)
{
    return static_cast<LANGID>(sub << 10 | primary);
}
constexpr LANGID PRIMARYLANGID(int language)
{
    return static_cast<LANGID>(language & 0x3FF);
}

constexpr bool SUCCEEDED(HRESULT result)
{
    return result >= 0;
}
constexpr bool FAILED(HRESULT result)
{
    return result < 0;
}
inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005u);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057u);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000Eu);
