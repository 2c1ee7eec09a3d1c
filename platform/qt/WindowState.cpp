// Place, visibility, focus and texts of windows.
#include "platform/qt/Gdi.h"
#include "platform/qt/Native.h"
#include "platform/qt/Sleep.h"
#include "platform/qt/UnmadeControl.h"
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

void placeUnmade(HWND control, const QRect& place, UINT flags)
{
    QRect& kept = control->unmade->place;
    if (!(flags & SWP_NOMOVE))
        kept.moveTopLeft(place.topLeft());
    if (!(flags & SWP_NOSIZE))
        kept.setSize(place.size().expandedTo(QSize(0, 0)));
    orvplatform::reportSize(control);
    if (isLive(control) && flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW))
        orvplatform::setShown(control, flags & SWP_SHOWWINDOW);
}
} // namespace

HWND GetParent(HWND window)
{
    if (!isLive(window))
        return nullptr;
    return window->unmade ? window->unmade->dialog : orvplatform::nearestHandle(window->widget()->parentWidget());
}

HWND GetAncestor(HWND window, UINT flags)
{
    if (!isLive(window))
        return nullptr;
    if (flags == GA_PARENT)
        return window->widget()->isWindow() ? nullptr : GetParent(window);
    return orvplatform::handleOf(window->widget()->window());
}

HWND SetParent(HWND window, HWND parent)
{
    HWND earlier = GetParent(window);
    if (isLive(window) && isLive(parent)) {
        const bool hidden = orvplatform::isHidden(window);
        window->placed = false; // another parent lets nothing sleep
        window->asleep = false;
        orvplatform::makeControls(window);
        window->widget()->setParent(parent->childHost);
        orvplatform::renewFonts(window->widget());
        window->widget()->setVisible(!hidden);
    }
    return earlier;
}

HWND GetDlgItem(HWND dialog, int id)
{
    if (!isLive(dialog))
        return nullptr;
    for (HWND control : dialog->unmadeControls)
        if (control->id == id)
            return control;
    return childWithId(dialog->widget(), id);
}

int GetDlgCtrlID(HWND window)
{
    return isLive(window) ? window->id : 0;
}

BOOL IsChild(HWND parent, HWND window)
{
    if (!isLive(parent) || !isLive(window) || parent->unmade)
        return FALSE;
    HWND inner = window->unmade ? window->unmade->dialog : window;
    return (inner == parent && inner != window) || parent->widget()->isAncestorOf(inner->widget());
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
    if (isLive(window)) {
        orvplatform::bringIntoSight(window);
        window->widget()->setFocus(Qt::OtherFocusReason);
    }
    return earlier;
}

BOOL ShowWindow(HWND window, int command)
{
    if (!isLive(window))
        return FALSE;
    const bool visible = !orvplatform::isHidden(window);
    orvplatform::setShown(window, command != SW_HIDE);
    return visible;
}

BOOL IsWindowVisible(HWND window)
{
    if (isLive(window) && window->madeWidget() && window->madeWidget()->isVisible())
        return TRUE;
    // What sleeps or stands in such a window is as visible as the pane: nobody is to tell that it sleeps.
    for (HWND at = window; isLive(at) && !orvplatform::isHidden(at); at = GetParent(at))
        if (at->asleep)
            return IsWindowVisible(GetParent(at));
    return FALSE;
}

BOOL EnableWindow(HWND window, BOOL enable)
{
    if (!isLive(window))
        return FALSE;
    const bool disabled = orvplatform::isDisabled(window);
    if (!window->unmade)
        window->widget()->setEnabled(enable != FALSE);
    else if (std::exchange(window->unmade->isDisabled, enable == FALSE) != (enable == FALSE))
        orvplatform::deliver(window, WM_ENABLE, static_cast<WPARAM>(enable), 0);
    return disabled;
}

BOOL IsWindowEnabled(HWND window)
{
    // As documented, a window is enabled by its own state, whatever its parent's.
    return isLive(window) && !orvplatform::isDisabled(window);
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint)
{
    return SetWindowPos(window, nullptr, x, y, width, height, SWP_NOZORDER | (repaint ? 0u : SWP_NOREDRAW));
}

BOOL SetWindowPos(HWND window, HWND, int x, int y, int width, int height, UINT flags)
{
    if (!isLive(window))
        return FALSE;
    if (window->unmade && flags & SWP_NOZORDER) {
        placeUnmade(window, {x, y, width, height}, flags);
        return TRUE;
    }
    QWidget& widget = *window->widget();
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
    if (flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW))
        orvplatform::setShown(window, flags & SWP_SHOWWINDOW);
    if (!(flags & SWP_NOZORDER) && isLive(window))
        widget.raise();
    return TRUE;
}

BOOL GetClientRect(HWND window, LPRECT rect)
{
    if (!isLive(window) || !rect)
        return FALSE;
    *rect = rectOf(QRect(QPoint(), orvplatform::placeInParent(window).size()));
    return TRUE;
}

BOOL GetWindowRect(HWND window, LPRECT rect)
{
    if (!isLive(window) || !rect)
        return FALSE;
    if (window->unmade) {
        const QRect place = window->unmade->place;
        const QWidget& host = *window->unmade->dialog->childHost;
        *rect = rectOf(QRect(host.mapToGlobal(place.topLeft()), place.size()));
        return TRUE;
    }
    const QWidget& widget = *window->widget();
    *rect = rectOf(widget.isWindow() ? widget.frameGeometry() : QRect(widget.mapToGlobal(QPoint()), widget.size()));
    return TRUE;
}

BOOL ScreenToClient(HWND window, LPPOINT point)
{
    if (!isLive(window) || !point)
        return FALSE;
    const QPoint at = window->widget()->mapFromGlobal(QPoint(point->x, point->y));
    *point = {at.x(), at.y()};
    return TRUE;
}

BOOL ClientToScreen(HWND window, LPPOINT point)
{
    if (!isLive(window) || !point)
        return FALSE;
    const QPoint at = window->widget()->mapToGlobal(QPoint(point->x, point->y));
    *point = {at.x(), at.y()};
    return TRUE;
}

BOOL InvalidateRect(HWND window, LPCRECT rect, BOOL)
{
    if (!isLive(window))
        return FALSE;
    if (window->unmade)
        return TRUE; // it has been drawn nowhere yet
    if (rect)
        window->widget()->update(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top);
    else
        window->widget()->update();
    return TRUE;
}

BOOL UpdateWindow(HWND window)
{
    if (!isLive(window))
        return FALSE;
    if (window->madeWidget() && window->madeWidget()->isVisible())
        window->widget()->repaint();
    return TRUE;
}

BOOL RedrawWindow(HWND window, LPCRECT rect, void*, UINT flags)
{
    if (!InvalidateRect(window, rect, TRUE))
        return FALSE;
    if (flags & RDW_ALLCHILDREN && !window->unmade)
        for (QWidget* child : window->widget()->findChildren<QWidget*>())
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
                                     (orvplatform::isHidden(window) ? 0 : WS_VISIBLE) |
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
