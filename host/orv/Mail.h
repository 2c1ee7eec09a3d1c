#pragma once

#include <windows.h>

namespace orv
{

/// Hands a mail to the desktop's mail client, where the user sees it before it goes out.
class Mail
{
public:
    static bool isClientAvailable(); ///< a mail client is installed for this desktop

    /// Opens the client with a new mail. `attachment` is a path or null. The mail travels as one "mailto:" URL (RFC
    /// 6068), so a line feed arrives as mail's line end, and a body is shortened, and says so, where the URL would be
    /// longer than what the system passes to a program (128 KiB with three bytes for all but letters and digits). False
    /// where there is no address or the client could not be started.
    bool send(HWND window, wchar_t const* to, wchar_t const* subject, wchar_t const* body, wchar_t const* attachment);
};

} // namespace orv
