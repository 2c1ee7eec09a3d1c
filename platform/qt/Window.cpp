#include "platform/qt/Window.h"

#include "platform/Process.h"
#include "platform/qt/Controls.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Keyboard.h"
#include "platform/qt/Native.h"
#include "platform/qt/Sleep.h"
#include "platform/qt/UnmadeControl.h"

#include <QHash>
#include <QtWidgets>

#include <utility>

namespace orvplatform
{
namespace
{
QHash<const QWidget*, HWND>& handles()
{
    static QHash<const QWidget*, HWND> map;
    return map;
}
QSet<HWND>& liveWindows()
{
    static QSet<HWND> set;
    return set;
}
// WM_DESTROY goes from the window down to its descendants, WM_NCDESTROY comes back up.
void endTree(HWND window, bool withChildren = true)
{
    if (window->ending)
        return;
    window->ending = true;
    deliver(window, WM_DESTROY, 0, 0);
    for (HWND control : std::vector<HWND>(window->unmadeControls))
        if (isLive(control) && control->unmade)
            endTree(control);
    if (window->madeWidget() && withChildren) {
        for (QWidget* child : window->madeWidget()->findChildren<QWidget*>())
            if (HWND handle = existingHandle(child))
                endTree(handle);
    }
    deliver(window, WM_NCDESTROY, 0, 0);
    window->procedure = nullptr;
    if (window->madeWidget())
        handles().remove(window->madeWidget());
    if (window->unmade)
        std::erase(window->unmade->dialog->unmadeControls, window);
    liveWindows().remove(window);
    for (const auto& function : window->whenGone)
        function();
}
} // namespace

QString toQString(const wchar_t* text)
{
    return text ? QString::fromWCharArray(text) : QString();
}

bool isLive(HWND window)
{
    return window && liveWindows().contains(window);
}

HWND existingHandle(const QWidget* widget)
{
    return handles().value(widget, nullptr);
}

HWND nearestHandle(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget())
        if (HWND window = existingHandle(widget))
            return window;
    return nullptr;
}

HWND nearestDialog(HWND window)
{
    while (isLive(window) && !window->isDialog)
        window = GetParent(window);
    return window;
}

HWND attachHandle(QWidget* widget, const std::wstring& className, std::unique_ptr<Behaviour> behaviour)
{
    auto* window = new HWND__(widget, className);
    window->behaviour = behaviour ? std::move(behaviour) : std::make_unique<Behaviour>();
    return window;
}

ControlKind controlKind(HWND window)
{
    const struct {
        const wchar_t* name;
        ControlKind kind;
    } kinds[] = {{L"Button", ControlKind::Button},
                 {L"Edit", ControlKind::Edit},
                 {L"Static", ControlKind::Static},
                 {L"SysLink", ControlKind::Links}};
    for (const auto& each : kinds)
        if (isLive(window) && window->className == each.name)
            return each.kind;
    return ControlKind::Other;
}

void whenGone(HWND window, std::function<void()> function)
{
    if (isLive(window))
        window->whenGone.push_back(std::move(function));
}

void reportSize(HWND window)
{
    const QSize size = isLive(window) ? placeInParent(window).size() : QSize();
    if (!isLive(window) || window->reportedSize == size)
        return;
    window->reportedSize = size;
    deliver(window, WM_SIZE, SIZE_RESTORED, MAKELPARAM(size.width(), size.height()));
}

} // namespace orvplatform

using orvplatform::isLive;

HWND__::HWND__(QWidget* shown, std::wstring name)
    : QObject(shown), childHost(shown), className(std::move(name)), reportedSize(-1, -1), shownWidget(shown)
{
    orvplatform::handles().insert(shown, this);
    orvplatform::liveWindows().insert(this);
    shown->installEventFilter(this);
}

HWND__::HWND__(QWidget* owner, std::unique_ptr<orvplatform::UnmadeControl> control, std::wstring name)
    : QObject(owner), childHost(nullptr), className(std::move(name)), unmade(std::move(control)), shownWidget(nullptr)
{
    orvplatform::liveWindows().insert(this);
}

QWidget* HWND__::widget()
{
    if (!shownWidget)
        orvplatform::makeControls(unmade->dialog);
    return shownWidget;
}

void HWND__::takeWidget(QWidget* made)
{
    shownWidget = made;
    childHost = made;
    setParent(made);
    orvplatform::handles().insert(made, this);
    made->installEventFilter(this);
}

HWND__::~HWND__()
{
    // The widget is losing its children, this one among them; they end their own handles.
    orvplatform::endTree(this, false);
}

bool HWND__::eventFilter(QObject* watched, QEvent* event)
{
    return watched == shownWidget && !foreign && !ending && translate(event);
}

bool HWND__::translate(QEvent* event)
{
    bool defaulted = true;
    const auto mouse = [&](UINT message) {
        const auto* e = static_cast<QMouseEvent*>(event);
        const WPARAM keys = (e->buttons() & Qt::LeftButton ? MK_LBUTTON : 0) |
                            (e->buttons() & Qt::RightButton ? MK_RBUTTON : 0) |
                            (e->modifiers() & Qt::ShiftModifier ? MK_SHIFT : 0) |
                            (e->modifiers() & Qt::ControlModifier ? MK_CONTROL : 0);
        const QPoint at = e->position().toPoint();
        orvplatform::deliver(this, message, keys, MAKELPARAM(at.x(), at.y()), &defaulted);
    };
    const auto button = [&](UINT left, UINT right) {
        const auto* e = static_cast<QMouseEvent*>(event);
        if (e->button() == Qt::LeftButton)
            mouse(left);
        else if (e->button() == Qt::RightButton)
            mouse(right);
    };
    switch (event->type()) {
    case QEvent::Polish:
    case QEvent::StyleChange:
        // The style sheet has just put the application's font in the place of the window's own.
        orvplatform::renewFont(this);
        return false;
    case QEvent::PolishRequest:
        return !unmadeControls.empty(); // a dialog that has never been in sight is styled when it comes there
    case QEvent::Resize:
        orvplatform::reportSize(this);
        break;
    case QEvent::MouseButtonPress:
        button(WM_LBUTTONDOWN, WM_RBUTTONDOWN);
        break;
    case QEvent::MouseButtonRelease:
        button(WM_LBUTTONUP, WM_RBUTTONUP);
        break;
    case QEvent::MouseButtonDblClick:
        button(WM_LBUTTONDBLCLK, WM_RBUTTONDOWN);
        break;
    case QEvent::MouseMove:
        mouse(WM_MOUSEMOVE);
        break;
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (orvplatform::navigate(this, key))
            return true;
        if (const int code = orvplatform::virtualKey(key->key()))
            orvplatform::deliver(this, WM_KEYDOWN, static_cast<WPARAM>(code), 0, &defaulted);
        break;
    }
    case QEvent::FocusIn:
        orvplatform::deliver(this, WM_SETFOCUS, 0, 0);
        break;
    case QEvent::FocusOut:
        orvplatform::deliver(this, WM_KILLFOCUS, 0, 0);
        break;
    case QEvent::ShowToParent:
        orvplatform::makeControls(this);
        orvplatform::reportSize(this);
        if (!turning)
            orvplatform::deliver(this, WM_SHOWWINDOW, TRUE, 0);
        break;
    case QEvent::HideToParent:
        if (!turning)
            orvplatform::deliver(this, WM_SHOWWINDOW, FALSE, 0);
        break;
    case QEvent::EnabledChange:
        orvplatform::deliver(this, WM_ENABLE, shownWidget->isEnabled(), 0);
        break;
    case QEvent::Close:
        // The window's own handling decides; nothing closes by itself.
        event->ignore();
        orvplatform::deliver(this, WM_CLOSE, 0, 0);
        return true;
    default:
        return false;
    }
    return !defaulted;
}

HWND orvplatform::createWindow(const CREATESTRUCTW& create, const std::function<void(HWND)>& attach)
{
    HWND parent = isLive(create.hwndParent) ? create.hwndParent : nullptr;
    if ((create.style & static_cast<LONG>(WS_CHILD)) && !parent)
        return nullptr;
    if (parent)
        orvplatform::makeControls(parent); // the new one comes behind them
    HWND window = makeControl(create, parent);
    window->style = static_cast<DWORD>(create.style);
    window->exStyle = create.dwExStyle;
    window->id = static_cast<int>(reinterpret_cast<LONG_PTR>(create.hMenu));
    window->widget()->setGeometry(create.x, create.y, create.cx, create.cy);
    window->widget()->setEnabled(!(window->style & WS_DISABLED));
    // Without a word of its own a child would come into view together with its parent.
    if (!(window->style & WS_VISIBLE))
        window->widget()->hide();
    if (attach)
        attach(window);
    SetWindowTextW(window, create.lpszName ? create.lpszName : L"");
    LRESULT answer = 0;
    try {
        answer = SendMessageW(window, WM_CREATE, 0, reinterpret_cast<LPARAM>(&create));
    } catch (...) {
        ::DestroyWindow(window);
        throw;
    }
    if (answer == -1) {
        ::DestroyWindow(window);
        return nullptr;
    }
    reportSize(window);
    if (isLive(window) && (window->style & WS_VISIBLE))
        window->widget()->show();
    return isLive(window) ? window : nullptr;
}

HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter)
{
    const CREATESTRUCTW create{parameter, instance,  menu,   parent, height, width, y, x, static_cast<LONG>(style),
                               name,      className, exStyle};
    return orvplatform::createWindow(create, {});
}

BOOL DestroyWindow(HWND window)
{
    if (!isLive(window) || window->ending)
        return FALSE;
    if (window->unmade) {
        orvplatform::endTree(window);
        QObject* end = window->madeWidget(); // where somebody asked for it while the window ended
        if (!end)
            end = window;
        if (end->isWidgetType())
            static_cast<QWidget*>(end)->setParent(nullptr);
        else
            end->setParent(nullptr);
        end->deleteLater();
        return TRUE;
    }
    orvplatform::setShown(window, false);
    QWidget* widget = window->widget();
    orvplatform::endTree(window);
    // The widget may be in the middle of an event of its own, so it goes when the event loop is next free.
    widget->setParent(nullptr);
    widget->deleteLater();
    return TRUE;
}

BOOL IsWindow(HWND window)
{
    return isLive(window);
}
