#pragma once
// Files, memory blocks, modules and their resources. Functions that return BOOL return 0 on failure; GetLastError then
// tells the documented error number.

#include "windef.h"

struct _SECURITY_ATTRIBUTES {
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
};
using SECURITY_ATTRIBUTES = _SECURITY_ATTRIBUTES;
using LPSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;

#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))
inline constexpr DWORD GENERIC_READ = 0x80000000;
inline constexpr DWORD GENERIC_WRITE = 0x40000000;
inline constexpr DWORD FILE_SHARE_READ = 1;
inline constexpr DWORD FILE_SHARE_WRITE = 2;
inline constexpr DWORD FILE_SHARE_DELETE = 4;
inline constexpr DWORD CREATE_NEW = 1;
inline constexpr DWORD CREATE_ALWAYS = 2;
inline constexpr DWORD OPEN_EXISTING = 3;
inline constexpr DWORD OPEN_ALWAYS = 4;
inline constexpr DWORD TRUNCATE_EXISTING = 5;
inline constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;

inline constexpr DWORD ERROR_SUCCESS = 0;
inline constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
inline constexpr DWORD ERROR_PATH_NOT_FOUND = 3;
inline constexpr DWORD ERROR_ACCESS_DENIED = 5;
inline constexpr DWORD ERROR_INVALID_HANDLE = 6;
inline constexpr DWORD ERROR_GEN_FAILURE = 31;
inline constexpr DWORD ERROR_FILE_EXISTS = 80;
inline constexpr DWORD ERROR_INVALID_PARAMETER = 87;
inline constexpr DWORD ERROR_BUFFER_OVERFLOW = 111;
inline constexpr DWORD ERROR_MOD_NOT_FOUND = 126;
inline constexpr DWORD ERROR_PROC_NOT_FOUND = 127;
inline constexpr DWORD ERROR_DIR_NOT_EMPTY = 145;
inline constexpr DWORD ERROR_ALREADY_EXISTS = 183;
DWORD GetLastError();
void SetLastError(DWORD error);

// Paths are the platform's; a backslash in one counts as "/". New files get the mode 0600, new directories 0700.
// Sharing flags are accepted: files of this platform are always shared.
HANDLE CreateFileW(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security, DWORD disposition,
                   DWORD attributes, HANDLE templateFile);
BOOL CloseHandle(HANDLE handle);
BOOL DeleteFileW(LPCWSTR path);
BOOL CreateDirectoryW(LPCWSTR path, LPSECURITY_ATTRIBUTES security);
BOOL RemoveDirectoryW(LPCWSTR path); // an empty directory only

// The machine's name. `size`: in, the buffer's length with the terminator; out, the name's length without it (the
// needed length with the terminator when the buffer is too short, error ERROR_BUFFER_OVERFLOW).
inline constexpr DWORD MAX_COMPUTERNAME_LENGTH = 64;
BOOL GetComputerNameW(LPWSTR buffer, LPDWORD size);

// Modules. "name.dll" means "name.so" here, with or without a directory; orvplatform::lastModuleError() has the
// reason for which a library could not be loaded. GetModuleHandleW(nullptr) is the program itself.
HMODULE LoadLibraryW(LPCWSTR path);
BOOL FreeLibrary(HMODULE module);
FARPROC GetProcAddress(HMODULE module, LPCSTR name);
HMODULE GetModuleHandleW(LPCWSTR name);
DWORD GetModuleFileNameW(HMODULE module, LPWSTR buffer, DWORD size);
BOOL SetDllDirectoryW(LPCWSTR path); // searched by LoadLibraryW; nullptr takes it away

// Resources of a module. Ids are pointers below 65536 (MAKEINTRESOURCEW). The language looked for is the given one,
// else the thread's, then English, then any. Handles stay valid as long as the module; null when there is no such
// resource.
#define MAKEINTRESOURCEW(id) (reinterpret_cast<LPCWSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id))))
#define MAKEINTRESOURCE MAKEINTRESOURCEW
#define IS_INTRESOURCE(name) ((reinterpret_cast<ULONG_PTR>(name) >> 16) == 0)
#define RT_ICON MAKEINTRESOURCEW(3)
#define RT_DIALOG MAKEINTRESOURCEW(5)
#define RT_STRING MAKEINTRESOURCEW(6)
#define RT_RCDATA MAKEINTRESOURCEW(10)
#define RT_GROUP_ICON MAKEINTRESOURCEW(14)
HRSRC FindResourceW(HMODULE module, LPCWSTR name, LPCWSTR type);
HRSRC FindResourceExW(HMODULE module, LPCWSTR type, LPCWSTR name, WORD language);
HGLOBAL LoadResource(HMODULE module, HRSRC resource);
LPVOID LockResource(HGLOBAL resource);
DWORD SizeofResource(HMODULE module, HRSRC resource);

// A string of a string table. Returns the length in characters, 0 when there is no such string. The text is cut to
// `size` with its terminator; with `size` 0 the buffer is taken as the address of a pointer that receives the text in
// place (without terminator).
int LoadStringW(HINSTANCE module, UINT id, LPWSTR buffer, int size);

// The language that this thread's resources are taken in; SetThreadUILanguage(0) goes back to English.
LANGID SetThreadUILanguage(LANGID language);
LANGID GetThreadUILanguage();

// Movable memory blocks. GlobalLock returns the bytes, null for a bad handle.
inline constexpr UINT GMEM_FIXED = 0;
inline constexpr UINT GMEM_MOVEABLE = 2;
inline constexpr UINT GMEM_ZEROINIT = 0x40;
inline constexpr UINT GHND = GMEM_MOVEABLE | GMEM_ZEROINIT;
HGLOBAL GlobalAlloc(UINT flags, SIZE_T bytes);
LPVOID GlobalLock(HGLOBAL block);
BOOL GlobalUnlock(HGLOBAL block);
SIZE_T GlobalSize(HGLOBAL block);
HGLOBAL GlobalFree(HGLOBAL block); // null on success

// number * numerator / denominator, rounded to the nearest; -1 for a zero denominator.
int MulDiv(int number, int numerator, int denominator);
