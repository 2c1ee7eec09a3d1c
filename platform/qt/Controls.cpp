#include "platform/qt/Controls.h"

#include "platform/Process.h"
#include "platform/qt/ButtonControl.h"
#include "platform/qt/EditControl.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/LinkControl.h"
#include "platform/qt/OutlookWidget.h"
#include "platform/qt/RibbonWidget.h"
#include "platform/qt/StaticControl.h"
#include "platform/qt/TasksWidget.h"
#include "platform/qt/UnmadeControl.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

#include <array>

namespace orvplatform
{
namespace
{
HWND makePlain(const CREATESTRUCTW& create, QWidget* parent)
{
    auto* widget = new QWidget(parent, create.style & static_cast<LONG>(WS_CHILD) ? Qt::Widget : Qt::Dialog);
    return attachHandle(widget, create.lpszClass ? create.lpszClass : L"", nullptr);
}

struct WindowClass {
    const wchar_t* name;
    HWND (*make)(const CREATESTRUCTW&, QWidget*);
};
constexpr std::array classes = {
    WindowClass{L"Button", makeButton},
    WindowClass{L"MfcButton", makeButton},
    WindowClass{L"Edit", makeEdit},
    WindowClass{L"MfcMaskedEdit", makeEdit},
    WindowClass{L"Static", makeStatic},
    WindowClass{L"SysLink", makeTextWithLinks},
    WindowClass{L"MfcLink", makeWebLink},
    WindowClass{tasksPaneClass, makeTasksPane},
    WindowClass{ribbonClass, makeRibbon},
    WindowClass{outlookBarClass, makeOutlookBar},
    WindowClass{outlookTabsClass, makeOutlookTabs},
};
} // namespace

HWND makeControl(const CREATESTRUCTW& create, HWND parent)
{
    QWidget* host = parent ? parent->childHost : nullptr;
    HWND window = nullptr;
    for (const WindowClass& each : classes)
        if (!window && create.lpszClass && wcscasecmp(create.lpszClass, each.name) == 0)
            window = each.make(create, host);
    if (!window)
        window = makePlain(create, host);
    limitFocus(*window->widget(), static_cast<DWORD>(create.style));
    return window;
}

void limitFocus(QWidget& widget, DWORD style)
{
    if (!(style & WS_TABSTOP) && widget.focusPolicy() == Qt::StrongFocus)
        widget.setFocusPolicy(Qt::ClickFocus);
}

std::wstring toolTip(HWND window)
{
    return isLive(window) ? window->widget()->toolTip().toStdWString() : L"";
}

void setHandCursor(HWND window)
{
    if (isLive(window))
        window->widget()->setCursor(Qt::PointingHandCursor);
}
} // namespace orvplatform
