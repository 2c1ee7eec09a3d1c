// The window object's text, place and state: its handle's, under the toolkit's names.
#include "afxdlg.h"

#include <vector>

namespace
{
HWND handleOf(const CWnd* window)
{
    return window ? window->m_hWnd : nullptr;
}

std::wstring textOf(HWND window)
{
    std::vector<wchar_t> buffer(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1);
    const int length = GetWindowTextW(window, buffer.data(), static_cast<int>(buffer.size()));
    return {buffer.data(), static_cast<std::size_t>(length)};
}
} // namespace

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}
CWnd* CWnd::GetAncestor(UINT flags) const
{
    return FromHandle(::GetAncestor(m_hWnd, flags));
}
CWnd* CWnd::GetTopLevelParent() const
{
    return FromHandle(::GetAncestor(m_hWnd, GA_ROOT));
}
CWnd* CWnd::SetParent(CWnd* parent)
{
    return FromHandle(::SetParent(m_hWnd, handleOf(parent)));
}
CWnd* CWnd::GetDlgItem(int id) const
{
    return FromHandle(::GetDlgItem(m_hWnd, id));
}
void CWnd::GetDlgItem(int id, HWND* window) const
{
    *window = ::GetDlgItem(m_hWnd, id);
}
int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}
int CWnd::SetDlgCtrlID(int id)
{
    return static_cast<int>(SetWindowLongPtrW(m_hWnd, GWL_ID, id));
}

void CWnd::SetWindowTextW(LPCWSTR text)
{
    ::SetWindowTextW(m_hWnd, text);
}
int CWnd::GetWindowTextW(LPWSTR buffer, int size) const
{
    return ::GetWindowTextW(m_hWnd, buffer, size);
}
void CWnd::GetWindowTextW(CString& text) const
{
    text = textOf(m_hWnd);
}
int CWnd::GetWindowTextLengthW() const
{
    return ::GetWindowTextLengthW(m_hWnd);
}
void CWnd::SetDlgItemText(int id, LPCWSTR text)
{
    ::SetWindowTextW(::GetDlgItem(m_hWnd, id), text);
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    text = textOf(::GetDlgItem(m_hWnd, id));
    return text.GetLength();
}

void CWnd::SetFont(CFont* font, BOOL redraw)
{
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font ? font->m_hObject : nullptr), redraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

HICON CWnd::SetIcon(HICON icon, BOOL big)
{
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, big ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(icon)));
}

HICON CWnd::GetIcon(BOOL big) const
{
    return reinterpret_cast<HICON>(SendMessage(WM_GETICON, big ? ICON_BIG : ICON_SMALL));
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint)
{
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

void CWnd::MoveWindow(LPCRECT rect, BOOL repaint)
{
    MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
}

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags)
{
    return ::SetWindowPos(m_hWnd, handleOf(after), x, y, width, height, flags);
}

void CWnd::GetClientRect(LPRECT rect) const
{
    ::GetClientRect(m_hWnd, rect);
}
void CWnd::GetWindowRect(LPRECT rect) const
{
    ::GetWindowRect(m_hWnd, rect);
}

void CWnd::ScreenToClient(LPRECT rect) const
{
    POINT first{rect->left, rect->top};
    POINT last{rect->right, rect->bottom};
    ::ScreenToClient(m_hWnd, &first);
    ::ScreenToClient(m_hWnd, &last);
    *rect = {first.x, first.y, last.x, last.y};
}

void CWnd::ScreenToClient(LPPOINT point) const
{
    ::ScreenToClient(m_hWnd, point);
}
void CWnd::ClientToScreen(LPPOINT point) const
{
    ::ClientToScreen(m_hWnd, point);
}

void CWnd::CenterWindow(CWnd* other)
{
    CRect own;
    CRect around;
    GetWindowRect(own);
    ::GetWindowRect(other ? other->m_hWnd : ::GetParent(m_hWnd), around);
    if (around.IsRectEmpty())
        return;
    const CPoint centre = around.CenterPoint();
    SetWindowPos(nullptr, centre.x - own.Width() / 2, centre.y - own.Height() / 2, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

BOOL CWnd::ShowWindow(int command)
{
    return ::ShowWindow(m_hWnd, command);
}
BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}
BOOL CWnd::EnableWindow(BOOL enable)
{
    return ::EnableWindow(m_hWnd, enable);
}
BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}
CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}
DWORD CWnd::GetStyle() const
{
    return static_cast<DWORD>(GetWindowLongPtrW(m_hWnd, GWL_STYLE));
}
DWORD CWnd::GetExStyle() const
{
    return static_cast<DWORD>(GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE));
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT)
{
    const DWORD earlier = GetStyle();
    const DWORD style = (earlier & ~remove) | add;
    SetWindowLongPtrW(m_hWnd, GWL_STYLE, static_cast<LONG_PTR>(style));
    if ((remove | add) & WS_VISIBLE)
        ShowWindow(style & WS_VISIBLE ? SW_SHOW : SW_HIDE);
    if ((remove | add) & WS_DISABLED)
        EnableWindow(!(style & WS_DISABLED));
    return style != earlier;
}

void CWnd::SetRedraw(BOOL redraw)
{
    SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw));
}
void CWnd::Invalidate(BOOL erase)
{
    ::InvalidateRect(m_hWnd, nullptr, erase);
}
void CWnd::InvalidateRect(LPCRECT rect, BOOL erase)
{
    ::InvalidateRect(m_hWnd, rect, erase);
}
void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}
BOOL CWnd::RedrawWindow(LPCRECT rect, void* region, UINT flags)
{
    return ::RedrawWindow(m_hWnd, rect, region, flags);
}
CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

int CWnd::ReleaseDC(CDC* context)
{
    return context ? ::ReleaseDC(m_hWnd, context->Detach()) : 0;
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return PostMessageW(m_hWnd, message, wParam, lParam);
}
