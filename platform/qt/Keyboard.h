#pragma once
// The keyboard in dialogs: Enter presses the default button, Escape cancels.

#include "winuser.h"

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QKeyEvent;
QT_END_NAMESPACE

namespace orvplatform
{
// True when the key was the dialog's and is done with.
bool navigate(HWND focus, QKeyEvent* event);
int virtualKey(int qtKey); // 0 for keys that no message tells of
int qtKey(int virtualKey);
} // namespace orvplatform
