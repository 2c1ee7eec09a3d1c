#include "platform/qt/Sleep.h"

#include "platform/qt/TasksWidget.h"
#include "platform/qt/UnmadeControl.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

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
} // namespace

void setPlaced(HWND window, bool placed)
{
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
    if (isLive(window) && window->placed && !window->asleep && !window->widget()->isHidden())
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
        if (isLive(window))
            wakeTasks(GetParent(window));
    } else {
        if (shown)
            makeControls(window);
        window->widget()->setVisible(shown);
    }
}

void bringIntoSight(HWND window)
{
    for (HWND at = window; isLive(at); at = GetParent(at))
        if (at->asleep)
            scrollTo(GetParent(at), at, window);
}
} // namespace orvplatform
