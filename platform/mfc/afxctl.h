#pragma once
// The basic controls.

#include "afxwnd.h"

class CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    BOOL Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);
    // Shows a picture and returns the one shown before, which is the caller's again. The picture on show belongs to the
    // control and goes with it.
    HBITMAP SetBitmap(HBITMAP bitmap);
    HBITMAP GetBitmap() const;
    HICON SetIcon(HICON icon);
};

class CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    BOOL Create(LPCWSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetCheck() const;
    void SetCheck(int check);
};

class CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // A grey prompt, drawn while the control is empty and never part of its text; with `drawIfFocused` also while the
    // control has the focus.
    BOOL SetCueBanner(LPCWSTR text, BOOL drawIfFocused = FALSE);
    void SetSel(int start, int end);
    void SetLimitText(UINT count);
    BOOL SetReadOnly(BOOL readOnly = TRUE);
    void SetPasswordChar(WCHAR character);
};
