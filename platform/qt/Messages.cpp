// Messages on their way to windows, and what becomes of those that nobody handles.
#include "platform/Process.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Native.h"
#include "platform/qt/Window.h"

#include <QHash>
#include <QtWidgets>

#include <algorithm>
#include <utility>

namespace
{
bool defaultReached = false; // by the message that is being delivered
}

namespace orvplatform
{
void Behaviour::setText(HWND window, const QString& text)
{
    window->widget()->setWindowTitle(text);
}
QString Behaviour::text(HWND window)
{
    return window->text;
}
bool Behaviour::message(HWND, UINT, WPARAM, LPARAM, LRESULT&)
{
    return false;
}

LRESULT deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool* defaulted)
{
    const bool outer = std::exchange(defaultReached, false);
    LRESULT result = 0;
    guarded([&] { result = SendMessageW(window, message, wParam, lParam); });
    if (defaulted)
        *defaulted = defaultReached;
    defaultReached = outer;
    return result;
}

void sendCommand(HWND control, UINT code)
{
    deliver(GetParent(control), WM_COMMAND, MAKEWPARAM(control->id, static_cast<int>(code)),
            reinterpret_cast<LPARAM>(control));
}
} // namespace orvplatform

using orvplatform::isLive;

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!isLive(window))
        return 0;
    return (window->procedure ? window->procedure : DefWindowProcW)(window, message, wParam, lParam);
}

BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!isLive(window))
        return FALSE;
    QMetaObject::invokeMethod(
        window, [=] { orvplatform::deliver(window, message, wParam, lParam); }, Qt::QueuedConnection);
    return TRUE;
}

UINT RegisterWindowMessageW(LPCWSTR name)
{
    static QHash<QString, UINT> numbers;
    const QString key = orvplatform::toQString(name).toLower();
    if (key.isEmpty())
        return 0;
    const auto known = numbers.constFind(key);
    return known != numbers.constEnd() ? *known : *numbers.insert(key, 0xC000u + static_cast<UINT>(numbers.size()));
}

LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    defaultReached = true;
    if (!isLive(window))
        return 0;
    LRESULT result = 0;
    if (!window->ending && window->behaviour->message(window, message, wParam, lParam, result))
        return result;
    switch (message) {
    case WM_CLOSE:
        ::DestroyWindow(window);
        return 0;
    case WM_SETREDRAW:
        window->widget()->setUpdatesEnabled(wParam != 0);
        return 0;
    case WM_SETTEXT:
        window->text = orvplatform::toQString(reinterpret_cast<LPCWSTR>(lParam));
        if (!window->unmade)
            window->behaviour->setText(window, window->text);
        return TRUE;
    case WM_GETTEXTLENGTH:
        return static_cast<LRESULT>(window->behaviour->text(window).toStdWString().size());
    case WM_GETTEXT: {
        const std::wstring text = window->behaviour->text(window).toStdWString();
        const std::size_t room = wParam;
        if (room == 0 || !lParam)
            return 0;
        const std::size_t count = std::min(room - 1, text.size());
        auto* buffer = reinterpret_cast<LPWSTR>(lParam);
        std::copy_n(text.begin(), count, buffer);
        buffer[count] = L'\0';
        return static_cast<LRESULT>(count);
    }
    case WM_SETFONT:
        orvplatform::applyFont(window, reinterpret_cast<HFONT>(wParam));
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(window->font);
    case WM_SETICON: {
        HICON earlier = std::exchange(window->icons[wParam == ICON_BIG], reinterpret_cast<HICON>(lParam));
        QIcon icon;
        for (HICON each : window->icons)
            if (each)
                icon.addPixmap(orvplatform::pixmapOf(each));
        window->widget()->setWindowIcon(icon);
        return reinterpret_cast<LRESULT>(earlier);
    }
    case WM_GETICON:
        return reinterpret_cast<LRESULT>(window->icons[wParam == ICON_BIG]);
    default:
        return 0;
    }
}
