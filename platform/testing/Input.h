#pragma once
// A user's hands, for tests: each function does with events what a user would do, and says by `false` when a user could
// not (no such control, hidden or disabled).

#include "afxwin.h"

#include <functional>
#include <string>

namespace orvplatform::testing
{
void ensureApplication(); // makes the application object, once a process

bool clickButton(CWnd& dialog, int id);
bool clickAt(CWnd& window, int x, int y); // left button, client pixels; goes to the deepest child there
bool clickLink(CWnd& dialog, int id, const std::wstring& address);
bool typeText(CWnd& dialog, int id, const std::wstring& text); // behind what is there
bool pressKey(CWnd& window, int key); // VK_RETURN, VK_ESCAPE, VK_TAB, ... to the focus or window
std::wstring textOf(CWnd& dialog, int id);
bool isVisible(CWnd& dialog, int id); // apart from whether the dialog itself is
bool isEnabled(CWnd& dialog, int id);
std::wstring promptOf(CWnd& dialog, int id); // the grey prompt of an edit control
bool clickRibbon(CWnd& ribbon, unsigned int command);
bool isRibbonEnabled(CWnd& ribbon, unsigned int command);

void processEvents();
// Lets events run until the condition holds; false after `milliseconds`.
bool waitFor(const std::function<bool()>& condition, int milliseconds = 5000);
bool savePicture(CWnd& window, const std::string& pngPath);
} // namespace orvplatform::testing
