#include "platform/qt/Sleep.h"

#include "platform/qt/TasksWidget.h"
#include "platform/qt/UnmadeControl.h"
#include "platform/qt/Window.h"

#include <QAccessible>
#include <QtWidgets>

#include <algorithm>
#include <vector>

namespace orvplatform
{
namespace
{
// The widget alone shows or hides; for everybody else the window stays on show.
void turn(HWND window, bool awake)
{
    window->turning = true;
    window->asleep = !awake;
    if (awake)
        makeControls(window);
    window->widget()->setVisible(awake);
    window->turning = false;
}

// A screen reader finds what is made and shown, so nothing sleeps while one listens. What it has woken stays awake
// until it is hidden.
class Listener final : public QAccessible::ActivationObserver
{
public:
    Listener() { QAccessible::installActivationObserver(this); }
    ~Listener() override { QAccessible::removeActivationObserver(this); }
    void accessibilityActiveChanged(bool active) override
    {
        listens = active;
        if (!active)
            return;
        std::vector<HWND> asleep;
        for (const QWidget* each : QApplication::allWidgets())
            if (HWND window = existingHandle(each); window && window->asleep)
                asleep.push_back(window);
        for (HWND each : asleep)
            wake(each);
    }

    bool listens = QAccessible::isActive();
};

bool isListenedTo()
{
    static Listener listener;
    return listener.listens;
}
} // namespace

void setPlaced(HWND window, bool placed)
{
    isListenedTo(); // from now on it is known
    if (isLive(window) && !window->unmade)
        window->placed = placed;
}

void wake(HWND window)
{
    if (isLive(window) && window->asleep)
        turn(window, true);
}

void putToSleep(HWND window)
{
    if (isLive(window) && window->placed && !window->asleep && !window->widget()->isHidden() && !isListenedTo())
        turn(window, false);
}

void setShown(HWND window, bool shown)
{
    if (window->unmade) {
        if (std::exchange(window->unmade->isHidden, !shown) == shown)
            deliver(window, WM_SHOWWINDOW, shown, 0);
    } else if (window->asleep && !shown) {
        window->asleep = false;
        deliver(window, WM_SHOWWINDOW, FALSE, 0);
    } else if (window->asleep && !window->placed) {
        turn(window, true);
    } else if (window->placed && shown) {
        if (!isHidden(window))
            return;
        window->asleep = true;
        reportSize(window);
        deliver(window, WM_SHOWWINDOW, TRUE, 0);
        if (isListenedTo())
            wake(window);
        else if (isLive(window))
            wakeTasks(GetParent(window));
    } else {
        if (shown)
            makeControls(window);
        window->widget()->setVisible(shown);
    }
}

bool takesTab(const QWidget& widget, const QWidget& within)
{
    return widget.focusPolicy() & Qt::TabFocus && widget.isEnabled() && widget.isVisibleTo(&within);
}

bool hasTabStop(HWND dialog)
{
    if (isDisabled(dialog))
        return false;
    const auto isStop = [](HWND control) {
        return controlKind(control) == ControlKind::Button && control->style & WS_TABSTOP && !isHidden(control) &&
               !isDisabled(control);
    };
    if (std::any_of(dialog->unmadeControls.begin(), dialog->unmadeControls.end(), isStop))
        return true;
    const QList<QWidget*> made = dialog->widget()->findChildren<QWidget*>();
    return std::any_of(made.begin(), made.end(),
                       [dialog](const QWidget* each) { return takesTab(*each, *dialog->widget()); });
}

void bringIntoSight(HWND window)
{
    for (HWND at = window; isLive(at); at = GetParent(at))
        if (at->asleep)
            scrollTo(GetParent(at), at, window);
}
} // namespace orvplatform
