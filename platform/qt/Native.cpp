#include "platform/qt/Native.h"

#include "platform/qt/Gdi.h"
#include "platform/qt/OutlookWidget.h"
#include "platform/qt/RibbonWidget.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
QPointer<QWidget>& mainWidget()
{
    static QPointer<QWidget> widget;
    return widget;
}
} // namespace

QWidget* widgetOf(HWND window)
{
    return isLive(window) ? window->widget() : nullptr;
}

HWND handleOf(QWidget* widget)
{
    if (!widget)
        return nullptr;
    HWND window = existingHandle(widget);
    if (!window) {
        window = attachHandle(widget, L"OrvForeign", nullptr);
        window->foreign = true;
        window->text = widget->windowTitle();
    }
    return window;
}

CWnd* windowOf(QWidget* widget)
{
    return CWnd::FromHandle(handleOf(widget));
}

void setMainWindow(QWidget* widget)
{
    mainWidget() = widget;
}

QPixmap pixmapOf(HBITMAP bitmap)
{
    return QPixmap::fromImage(imageOf(bitmap));
}
QPixmap pixmapOf(HICON icon)
{
    return QPixmap::fromImage(imageOf(icon));
}
HBITMAP bitmapOf(const QPixmap& pixmap)
{
    return makeBitmap(pixmap.toImage());
}
HICON iconOf(const QIcon& icon, int size)
{
    return makeIcon(icon.pixmap(size, size).toImage());
}

int addPicture(CMFCToolBarImages& images, const QIcon& icon)
{
    const SIZE size = images.GetImageSize();
    HICON handle = makeIcon(icon.pixmap(size.cx, size.cy).toImage());
    const int index = images.AddIcon(handle);
    DestroyIcon(handle);
    return index;
}

void setRibbonHooks(CMFCRibbonBar& ribbon, RibbonHooks hooks)
{
    setRibbonHooks(ribbon.m_hWnd, std::move(hooks));
}
void refreshRibbon(CMFCRibbonBar& ribbon)
{
    updateRibbon(ribbon.m_hWnd);
}

bool focusRibbon(CMFCRibbonBar& ribbon)
{
    return focusRibbon(ribbon.m_hWnd);
}
bool focusSideBar(CMFCOutlookBar& bar)
{
    const CWnd* tabs = bar.GetUnderlyingWindow();
    return tabs && focusPane(tabs->GetSafeHwnd());
}
bool hasSideBarFocus(CMFCOutlookBar& bar)
{
    const CWnd* tabs = bar.GetUnderlyingWindow();
    return tabs && hasPaneFocus(tabs->GetSafeHwnd());
}
} // namespace orvplatform

CWnd* AfxGetMainWnd()
{
    return orvplatform::windowOf(orvplatform::mainWidget());
}
