#pragma once
// Dialog windows out of templates, and the loop that runs a modal one. No Qt in this header.

#include "platform/windows/DialogTemplate.h"
#include "winuser.h"

#include <functional>

namespace orvplatform
{
// Makes the dialog with its controls, hidden unless it is a child with WS_VISIBLE. As a child it loses frame and
// caption. `attach` runs before the first message.
HWND createDialogWindow(const DialogTemplate& source, HWND parent, bool child, const std::function<void(HWND)>& attach);
// Gives any window the part of a dialog in keyboard handling.
void makeDialog(HWND window);
void focusFirstControl(HWND dialog);
int defaultButtonId(HWND dialog); // 0 when it has none

// Shows a top-level window over its owner and blocks the others until endModal, or until the program quits.
void runModal(HWND window);
void endModal(HWND window);

void changeWaitCursor(int step); // 1 on, -1 off, 0 shows it again
} // namespace orvplatform
