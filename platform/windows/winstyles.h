#pragma once
// Styles and other constants of windows and controls.

#include "windef.h"

inline constexpr DWORD WS_OVERLAPPED = 0x00000000;
inline constexpr DWORD WS_POPUP = 0x80000000;
inline constexpr DWORD WS_CHILD = 0x40000000;
inline constexpr DWORD WS_VISIBLE = 0x10000000;
inline constexpr DWORD WS_DISABLED = 0x08000000;
inline constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
inline constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
inline constexpr DWORD WS_CAPTION = 0x00C00000;
inline constexpr DWORD WS_BORDER = 0x00800000;
inline constexpr DWORD WS_VSCROLL = 0x00200000;
inline constexpr DWORD WS_HSCROLL = 0x00100000;
inline constexpr DWORD WS_SYSMENU = 0x00080000;
inline constexpr DWORD WS_THICKFRAME = 0x00040000;
inline constexpr DWORD WS_GROUP = 0x00020000;
inline constexpr DWORD WS_TABSTOP = 0x00010000;
inline constexpr DWORD WS_EX_CLIENTEDGE = 0x00000200;
inline constexpr DWORD WS_EX_STATICEDGE = 0x00020000;
inline constexpr DWORD WS_EX_TRANSPARENT = 0x00000020;
inline constexpr DWORD WS_EX_CONTROLPARENT = 0x00010000;

inline constexpr DWORD DS_SETFONT = 0x40;
inline constexpr DWORD DS_MODALFRAME = 0x80;
inline constexpr DWORD DS_CONTROL = 0x400;
inline constexpr DWORD DS_CENTER = 0x800;

inline constexpr DWORD BS_PUSHBUTTON = 0;
inline constexpr DWORD BS_DEFPUSHBUTTON = 1;
inline constexpr DWORD BS_CHECKBOX = 2;
inline constexpr DWORD BS_AUTOCHECKBOX = 3;
inline constexpr DWORD BS_RADIOBUTTON = 4;
inline constexpr DWORD BS_GROUPBOX = 7;
inline constexpr DWORD BS_AUTORADIOBUTTON = 9;
inline constexpr DWORD BS_OWNERDRAW = 11;
inline constexpr DWORD BS_TYPEMASK = 15;

inline constexpr DWORD ES_LEFT = 0;
inline constexpr DWORD ES_CENTER = 1;
inline constexpr DWORD ES_RIGHT = 2;
inline constexpr DWORD ES_MULTILINE = 4;
inline constexpr DWORD ES_PASSWORD = 0x20;
inline constexpr DWORD ES_AUTOVSCROLL = 0x40;
inline constexpr DWORD ES_AUTOHSCROLL = 0x80;
inline constexpr DWORD ES_READONLY = 0x800;
inline constexpr DWORD ES_WANTRETURN = 0x1000;
inline constexpr DWORD ES_NUMBER = 0x2000;

inline constexpr DWORD SS_LEFT = 0;
inline constexpr DWORD SS_CENTER = 1;
inline constexpr DWORD SS_RIGHT = 2;
inline constexpr DWORD SS_ICON = 3;
inline constexpr DWORD SS_SIMPLE = 11;
inline constexpr DWORD SS_LEFTNOWORDWRAP = 12;
inline constexpr DWORD SS_BITMAP = 14;
inline constexpr DWORD SS_TYPEMASK = 31;
inline constexpr DWORD SS_NOPREFIX = 0x80;
inline constexpr DWORD SS_NOTIFY = 0x100;
inline constexpr DWORD SS_CENTERIMAGE = 0x200;
inline constexpr DWORD SS_REALSIZECONTROL = 0x40;
inline constexpr DWORD SS_SUNKEN = 0x1000;

inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOWNORMAL = 1;
inline constexpr int SW_NORMAL = 1;
inline constexpr int SW_SHOWNOACTIVATE = 4;
inline constexpr int SW_SHOW = 5;
inline constexpr int SW_SHOWNA = 8;

inline constexpr UINT SWP_NOSIZE = 0x0001;
inline constexpr UINT SWP_NOMOVE = 0x0002;
inline constexpr UINT SWP_NOZORDER = 0x0004;
inline constexpr UINT SWP_NOREDRAW = 0x0008;
inline constexpr UINT SWP_NOACTIVATE = 0x0010;
inline constexpr UINT SWP_FRAMECHANGED = 0x0020;
inline constexpr UINT SWP_SHOWWINDOW = 0x0040;
inline constexpr UINT SWP_HIDEWINDOW = 0x0080;

inline constexpr UINT RDW_INVALIDATE = 0x0001;
inline constexpr UINT RDW_ERASE = 0x0004;
inline constexpr UINT RDW_ALLCHILDREN = 0x0080;
inline constexpr UINT RDW_UPDATENOW = 0x0100;

inline constexpr UINT GA_PARENT = 1;
inline constexpr UINT GA_ROOT = 2;
inline constexpr int GWL_STYLE = -16;
inline constexpr int GWL_EXSTYLE = -20;
inline constexpr int GWL_ID = -12;
inline constexpr int GWLP_ID = -12;
inline constexpr int GWLP_WNDPROC = -4;

inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;
inline constexpr int IDC_STATIC = -1;

inline constexpr UINT IMAGE_BITMAP = 0;
inline constexpr UINT IMAGE_ICON = 1;
inline constexpr UINT LR_DEFAULTCOLOR = 0;
inline constexpr UINT LR_DEFAULTSIZE = 0x40;
inline constexpr UINT LR_SHARED = 0x8000;
inline constexpr int SM_CXICON = 11;
inline constexpr int SM_CYICON = 12;
inline constexpr int SM_CXSMICON = 49;
inline constexpr int SM_CYSMICON = 50;
inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_BTNFACE = 15;
inline constexpr int COLOR_HOTLIGHT = 26;
