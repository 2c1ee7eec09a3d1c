#pragma once
// Windows, messages and controls. A handle is an opaque pointer; functions take null or a stale handle and then do
// nothing (0, false or null).

#include "windef.h"
#include "winmessages.h"
#include "winstyles.h"

struct tagMSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};
using MSG = tagMSG;

struct tagNMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};
using NMHDR = tagNMHDR;
using LPNMHDR = NMHDR*;

struct tagCREATESTRUCTW {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu; // a child window's id
    HWND hwndParent;
    int cy, cx, y, x; // pixels, in the parent's client area
    LONG style;
    LPCWSTR lpszName;
    LPCWSTR lpszClass;
    DWORD dwExStyle;
};
using CREATESTRUCTW = tagCREATESTRUCTW;
using CREATESTRUCT = CREATESTRUCTW;
using LPCREATESTRUCT = CREATESTRUCT*;

// The classes are "Button", "Edit", "Static", "SysLink", "MfcButton", "MfcLink", "MfcMaskedEdit"; any other name gives
// a plain window. Null when WM_CREATE was answered with -1.
HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);
BOOL DestroyWindow(HWND window);
BOOL IsWindow(HWND window);

// Messages. SendMessageW goes to the window's procedure at once, PostMessageW when the event loop next runs.
// An exception out of a handler ends at the event loop and goes to orvplatform::setExceptionHandler's function.
LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
UINT RegisterWindowMessageW(LPCWSTR name); // 0xC000 and up, the same number for the same name

HWND GetParent(HWND window);
HWND GetAncestor(HWND window, UINT flags); // GA_PARENT, GA_ROOT
HWND SetParent(HWND window, HWND parent);
HWND GetDlgItem(HWND dialog, int id);
int GetDlgCtrlID(HWND window);
BOOL IsChild(HWND parent, HWND window);
HWND GetActiveWindow();
HWND GetFocus();
HWND SetFocus(HWND window);

BOOL ShowWindow(HWND window, int command);   // returns whether it was visible
BOOL IsWindowVisible(HWND window);           // with all its ancestors
BOOL EnableWindow(HWND window, BOOL enable); // returns whether it was disabled
BOOL IsWindowEnabled(HWND window);
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
BOOL GetClientRect(HWND window, LPRECT rect); // pixels, from (0, 0)
BOOL GetWindowRect(HWND window, LPRECT rect); // screen pixels
BOOL ScreenToClient(HWND window, LPPOINT point);
BOOL ClientToScreen(HWND window, LPPOINT point);
BOOL InvalidateRect(HWND window, LPCRECT rect, BOOL erase);
BOOL UpdateWindow(HWND window);
BOOL RedrawWindow(HWND window, LPCRECT rect, void* region, UINT flags);

// Texts. A multi-line edit gives and takes line breaks as "\r\n".
BOOL SetWindowTextW(HWND window, LPCWSTR text);
int GetWindowTextW(HWND window, LPWSTR buffer, int size);
int GetWindowTextLengthW(HWND window);

LONG_PTR GetWindowLongPtrW(HWND window, int index); // GWL_STYLE, GWL_EXSTYLE, GWL_ID, GWLP_WNDPROC
LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value);
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC context);

// Dialog units to pixels with the dialog's own font: x * base width / 4, y * base height / 8.
BOOL MapDialogRect(HWND dialog, LPRECT rect);

// Pictures from resources; the size asked for picks the best of an icon group (0: the system's own).
HICON LoadIconW(HINSTANCE module, LPCWSTR name); // shared: the same at every call, not to be destroyed
HANDLE LoadImageW(HINSTANCE module, LPCWSTR name, UINT type, int width, int height, UINT flags); // IMAGE_ICON
BOOL DestroyIcon(HICON icon);
HICON CopyIcon(HICON icon); // null for a bad handle
int GetSystemMetrics(int index); // SM_CXICON, SM_CYICON, SM_CXSMICON, SM_CYSMICON
COLORREF GetSysColor(int index); // COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_BTNFACE, COLOR_HOTLIGHT
