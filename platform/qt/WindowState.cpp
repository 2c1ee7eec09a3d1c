// Place, visibility, focus and texts of windows.
#include "platform/qt/Gdi.h"
#include "platform/qt/Native.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

using orvplatform::existingHandle;
using orvplatform::isLive;

namespace
{
RECT rectOf(const QRect& rect)
{
    return {rect.x(), rect.y(), rect.x() + rect.width(), rect.y() + rect.height()};
}

// Looks through widgets without a window of their own, and never into other windows: a list may hold thousands.
HWND childWithId(const QWidget* parent, int id)
{
    for (QObject* object : parent->children()) {
        auto* child = qobject_cast<QWidget*>(object);
        if (!child)
            continue;
        HWND window = existingHandle(child);
        HWND found = window ? (window->id == id ? window : nullptr) : childWithId(child, id);
        if (found)
            return found;
    }
    return nullptr;
}
} // namespace

HWND GetParent(HWND window)
{
    return isLive(window) ? orvplatform::nearestHandle(window->widget->parentWidget()) : nullptr;
}

HWND GetAncestor(HWND window, UINT flags)
{
    if (!isLive(window))
        return nullptr;
    if (flags == GA_PARENT)
        return window->widget->isWindow() ? nullptr : GetParent(window);
    return orvplatform::handleOf(window->widget->window());
}

HWND SetParent(HWND window, HWND parent)
{
    HWND earlier = GetParent(window);
    if (isLive(window) && isLive(parent)) {
        const bool hidden = window->widget->isHidden();
        window->widget->setParent(parent->childHost);
        orvplatform::renewFonts(window->widget);
        window->widget->setVisible(!hidden);
    }
    return earlier;
}

HWND GetDlgItem(HWND dialog, int id)
{
    return isLive(dialog) ? childWithId(dialog->widget, id) : nullptr;
}

int GetDlgCtrlID(HWND window)
{
    return isLive(window) ? window->id : 0;
}

BOOL IsChild(HWND parent, HWND window)
{
    return isLive(parent) && isLive(window) && parent->widget->isAncestorOf(window->widget);
}

HWND GetActiveWindow()
{
    QWidget* active = QApplication::activeWindow();
    CWnd* main = AfxGetMainWnd();
    return active ? orvplatform::handleOf(active) : main ? main->m_hWnd : nullptr;
}

HWND GetFocus()
{
    return orvplatform::nearestHandle(QApplication::focusWidget());
}

HWND SetFocus(HWND window)
{
    HWND earlier = GetFocus();
    if (isLive(window))
        window->widget->setFocus(Qt::OtherFocusReason);
    return earlier;
}

BOOL ShowWindow(HWND window, int command)
{
    if (!isLive(window))
        return FALSE;
    const bool visible = !window->widget->isHidden();
    window->widget->setVisible(command != SW_HIDE);
    return visible;
}

BOOL IsWindowVisible(HWND window)
{
    return isLive(window) && window->widget->isVisible();
}

BOOL EnableWindow(HWND window, BOOL enable)
{
    if (!isLive(window))
        return FALSE;
    const bool disabled = window->widget->testAttribute(Qt::WA_ForceDisabled);
    window->widget->setEnabled(enable != FALSE);
    return disabled;
}

BOOL IsWindowEnabled(HWND window)
{
    // As documented, a window is enabled by its own state, whatever its parent's.
    return isLive(window) && !window->widget->testAttribute(Qt::WA_ForceDisabled);
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint)
{
    return SetWindowPos(window, nullptr, x, y, width, height, SWP_NOZORDER | (repaint ? 0u : SWP_NOREDRAW));
}

BOOL SetWindowPos(HWND window, HWND, int x, int y, int width, int height, UINT flags)
{
    if (!isLive(window))
        return FALSE;
    QWidget& widget = *window->widget;
    if (!(flags & SWP_NOMOVE))
        widget.move(x, y);
    if (!(flags & SWP_NOSIZE)) {
        if (widget.isWindow() && widget.minimumSize() == widget.maximumSize())
            widget.setFixedSize(std::max(width, 0), std::max(height, 0));
        else
            widget.resize(std::max(width, 0), std::max(height, 0));
        // A hidden widget hears of its size only when it is shown; a window hears of it at once.
        orvplatform::reportSize(window);
    }
    if (flags & SWP_SHOWWINDOW)
        widget.show();
    if (flags & SWP_HIDEWINDOW)
        widget.hide();
    if (!(flags & SWP_NOZORDER) && isLive(window))
        widget.raise();
    return TRUE;
}

BOOL GetClientRect(HWND window, LPRECT rect)
{
    if (!isLive(window) || !rect)
        return FALSE;
    *rect = rectOf(window->widget->rect());
    return TRUE;
}

BOOL GetWindowRect(HWND window, LPRECT rect)
{
    if (!isLive(window) || !rect)
        return FALSE;
    const QWidget& widget = *window->widget;
    *rect = rectOf(widget.isWindow() ? widget.frameGeometry() : QRect(widget.mapToGlobal(QPoint()), widget.size()));
    return TRUE;
}

BOOL ScreenToClient(HWND window, LPPOINT point)
{
    if (!isLive(window) || !point)
        return FALSE;
    const QPoint at = window->widget->mapFromGlobal(QPoint(point->x, point->y));
    *point = {at.x(), at.y()};
    return TRUE;
}

BOOL ClientToScreen(HWND window, LPPOINT point)
{
    if (!isLive(window) || !point)
        return FALSE;
    const QPoint at = window->widget->mapToGlobal(QPoint(point->x, point->y));
    *point = {at.x(), at.y()};
    return TRUE;
}

BOOL InvalidateRect(HWND window, LPCRECT rect, BOOL)
{
    if (!isLive(window))
        return FALSE;
    if (rect)
        window->widget->update(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top);
    else
        window->widget->update();
    return TRUE;
}

BOOL UpdateWindow(HWND window)
{
    if (!isLive(window))
        return FALSE;
    if (window->widget->isVisible())
        window->widget->repaint();
    return TRUE;
}

BOOL RedrawWindow(HWND window, LPCRECT rect, void*, UINT flags)
{
    if (!InvalidateRect(window, rect, TRUE))
        return FALSE;
    if (flags & RDW_ALLCHILDREN)
        for (QWidget* child : window->widget->findChildren<QWidget*>())
            child->update();
    return flags & RDW_UPDATENOW ? UpdateWindow(window) : TRUE;
}

BOOL SetWindowTextW(HWND window, LPCWSTR text)
{
    return static_cast<BOOL>(SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text ? text : L"")));
}

int GetWindowTextW(HWND window, LPWSTR buffer, int size)
{
    if (!buffer || size <= 0)
        return 0;
    buffer[0] = L'\0';
    return static_cast<int>(
        SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(buffer)));
}

int GetWindowTextLengthW(HWND window)
{
    return static_cast<int>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
}

LONG_PTR GetWindowLongPtrW(HWND window, int index)
{
    if (!isLive(window))
        return 0;
    switch (index) {
    case GWL_STYLE:
        return static_cast<LONG_PTR>((window->style & ~(WS_VISIBLE | WS_DISABLED)) |
                                     (window->widget->isHidden() ? 0 : WS_VISIBLE) |
                                     (IsWindowEnabled(window) ? 0 : WS_DISABLED));
    case GWL_EXSTYLE:
        return static_cast<LONG_PTR>(window->exStyle);
    case GWL_ID:
        return window->id;
    case GWLP_WNDPROC:
        return reinterpret_cast<LONG_PTR>(window->procedure ? window->procedure : DefWindowProcW);
    default:
        return 0;
    }
}

LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value)
{
    const LONG_PTR earlier = GetWindowLongPtrW(window, index);
    if (!isLive(window))
        return 0;
    if (index == GWL_STYLE)
        window->style = static_cast<DWORD>(value);
    else if (index == GWL_EXSTYLE)
        window->exStyle = static_cast<DWORD>(value);
    else if (index == GWL_ID)
        window->id = static_cast<int>(value);
    else if (index == GWLP_WNDPROC)
        window->procedure = reinterpret_cast<WNDPROC>(value);
    return earlier;
}
