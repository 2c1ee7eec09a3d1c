#pragma once
#include "afxwnd.h"

inline constexpr DWORD AFX_CBRS_FLOAT = 0x0001;
inline constexpr DWORD AFX_CBRS_AUTOHIDE = 0x0002;
inline constexpr DWORD AFX_CBRS_RESIZE = 0x0004;
inline constexpr DWORD AFX_CBRS_CLOSE = 0x0008;
inline constexpr DWORD AFX_CBRS_REGULAR_TABS = 0x0020;
inline constexpr DWORD AFX_CBRS_OUTLOOK_TABS = 0x0040;
inline constexpr DWORD AFX_DEFAULT_DOCKING_PANE_STYLE =
    AFX_CBRS_FLOAT | AFX_CBRS_AUTOHIDE | AFX_CBRS_RESIZE | AFX_CBRS_CLOSE;

// A window that can stand at a side of the frame.
class CDockablePane : public CWnd
{
    DECLARE_DYNAMIC(CDockablePane)

public:
    using CWnd::Create;
    virtual BOOL Create(LPCWSTR caption, CWnd* parent, const RECT& rect, BOOL gripper, UINT id, DWORD style,
                        DWORD tabbedStyle = AFX_CBRS_REGULAR_TABS,
                        DWORD controlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE, CCreateContext* context = nullptr);
    DWORD GetControlBarStyle() const { return controlBarStyle; }

protected:
    virtual LPCWSTR GetWindowClass() const; // the window class behind this pane
    DWORD controlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE;
};
