#pragma once
// Windows that lie in a tasks pane's groups sleep while they are out of sight: they are on show as far as anybody can
// tell, by IsWindowVisible, WS_VISIBLE and WM_SHOWWINDOW, but their widgets are hidden. So of a list of thousands only
// those that are looked at are styled, shown and drawn. Scrolling, a new size, the Tab key and SetFocus wake them, and
// none sleeps while a screen reader listens.

#include "winuser.h"

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
// A window comes to lie in a group or leaves it. One that leaves stays asleep until it is shown or hidden.
void setPlaced(HWND window, bool placed);

void wake(HWND window);       // shows the widget of one that is asleep
void putToSleep(HWND window); // hides that of one that is awake and on show, unless a screen reader listens

// Shows or hides a window. One that lies in a group is shown asleep; its pane wakes it where it is in sight.
void setShown(HWND window, bool shown);

// Whether the Tab key stops at the widget as soon as `within` is on show.
bool takesTab(const QWidget& widget, const QWidget& within);
// Whether it stops anywhere in a dialog, which may be asleep. Makes no control: the key may pass over thousands.
bool hasTabStop(HWND dialog);

// Wakes what the window stands in, where that is asleep, and brings it into sight.
void bringIntoSight(HWND window);
} // namespace orvplatform
