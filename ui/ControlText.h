#pragma once

#include <afxwin.h>

#include <string>

/// The text of a window or control.
inline std::wstring textOf(CWnd const& window)
{
    CString text;
    window.GetWindowTextW(text);
    return text.GetString();
}
