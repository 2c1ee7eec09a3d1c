#pragma once
#include "windef.h"

// Opens a web address or a file with the program that the desktop has for it. The verb is "open" or null. The result is
// above 32 on success, as documented.
HINSTANCE ShellExecuteW(HWND owner, LPCWSTR verb, LPCWSTR file, LPCWSTR parameters, LPCWSTR directory, INT show);
