#include "platform/Process.h"

#include "platform/qt/Gdi.h"
#include "platform/qt/Look.h"
#include "shellapi.h"
#include "winbase.h"
#include "winuser.h"

#include <QtWidgets>

#include <clocale>

namespace orvplatform
{
namespace
{
OpenAddress& openAddressHook()
{
    static OpenAddress hook;
    return hook;
}
} // namespace

void prepareProcess()
{
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    qunsetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_SCREEN_SCALE_FACTORS");
    // The application object takes the user's locale; numbers in files and messages keep their point.
    qAddPreRoutine([] { std::setlocale(LC_NUMERIC, "C"); });
}

double logicalDpi()
{
    const QScreen* screen = qApp ? QGuiApplication::primaryScreen() : nullptr;
    const double dpi = screen ? screen->logicalDotsPerInch() : 0;
    return dpi > 0 ? dpi : 96.0;
}

void setOpenAddressHook(OpenAddress hook)
{
    openAddressHook() = std::move(hook);
}
} // namespace orvplatform

HINSTANCE ShellExecuteW(HWND, LPCWSTR, LPCWSTR file, LPCWSTR, LPCWSTR, INT)
{
    constexpr LONG_PTR success = 33;
    const std::wstring address = file ? file : L"";
    bool opened = false;
    if (orvplatform::openAddressHook())
        opened = orvplatform::openAddressHook()(address);
    else if (!address.empty())
        opened = QDesktopServices::openUrl(QUrl::fromUserInput(QString::fromStdWString(address)));
    return reinterpret_cast<HINSTANCE>(opened ? success : static_cast<LONG_PTR>(ERROR_FILE_NOT_FOUND));
}

int GetSystemMetrics(int index)
{
    const double scale = orvplatform::logicalDpi() / 96.0;
    switch (index) {
    case SM_CXICON:
    case SM_CYICON:
        return qRound(32 * scale);
    case SM_CXSMICON:
    case SM_CYSMICON:
        return qRound(16 * scale);
    default:
        return 0;
    }
}

COLORREF GetSysColor(int index)
{
    const orvplatform::Theme& theme = orvplatform::theme();
    const QColor colour = index == COLOR_WINDOW       ? theme.field
                          : index == COLOR_WINDOWTEXT ? theme.text
                          : index == COLOR_HOTLIGHT   ? theme.accentText
                                                      : theme.window;
    return RGB(colour.red(), colour.green(), colour.blue());
}
