#pragma once

#include <windows.h>

namespace orv
{

/// Hands a mail to the desktop's mail client, where the user sees it before it goes out.
class Mail
{
public:
    static bool isClientAvailable(); ///< a mail client is installed for this desktop

    /// Opens the client with a new mail. `attachment` is a path or null. A body that is longer than the system passes
    /// to a program (128 KiB in UTF-8) is shortened and says so. False where the client could not be started.
    bool send(HWND window, wchar_t const* to, wchar_t const* subject, wchar_t const* body, wchar_t const* attachment);
};

} // namespace orv
