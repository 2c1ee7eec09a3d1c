#pragma once
// Dialog windows out of templates, and the loop that runs a modal one.

#include "platform/windows/DialogTemplate.h"
#include "winuser.h"

#include <QtGlobal>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
// Makes the dialog with its controls, hidden unless it is a child with WS_VISIBLE. As a child it loses frame and
// caption. `attach` runs before the first message.
HWND createDialogWindow(const DialogTemplate& source, HWND parent, bool child, const std::function<void(HWND)>& attach);
// Gives any window the part of a dialog in keyboard handling.
void makeDialog(HWND window);
void focusFirstControl(HWND dialog);
int defaultButtonId(HWND dialog); // 0 when it has none

// The widget that a top-level window belongs to: the parent's window, without a parent the main window, else null.
QWidget* ownerOf(HWND parent);

// Shows a top-level window in the middle of its owner, whole on the screen, and keeps input from the others.
void presentModal(HWND window);
// The same, and returns after endModal. Blocks the others until endModal, or until the program quits.
void runModal(HWND window);
void endModal(HWND window);

void changeWaitCursor(int step); // 1 on, -1 off, 0 shows it again
} // namespace orvplatform
