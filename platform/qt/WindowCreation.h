#pragma once
// What window objects need of their windows beyond the system calls. No Qt in this header.

#include "winuser.h"

#include <functional>

namespace orvplatform
{
// CreateWindowExW with a function that runs before WM_CREATE, when an object takes the window over.
HWND createWindow(const CREATESTRUCTW& create, const std::function<void(HWND)>& attach);

enum class ControlKind { Other, Button, Edit, Static, Links };
ControlKind controlKind(HWND window);

// Runs the function when the window has had its last message.
void whenGone(HWND window, std::function<void()> function);
} // namespace orvplatform
