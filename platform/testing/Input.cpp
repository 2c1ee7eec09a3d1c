#include "platform/testing/Input.h"

#include "platform/Process.h"
#include "platform/qt/Keyboard.h"
#include "platform/qt/LinkControl.h"
#include "platform/qt/Look.h"
#include "platform/qt/Native.h"
#include "platform/qt/RibbonWidget.h"
#include "platform/qt/Sleep.h"
#include "platform/text/Text.h"

#include <QtWidgets>

#include <algorithm>

#ifdef __SANITIZE_ADDRESS__
// The system's font library keeps a block for the life of the process.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}
#endif

namespace orvplatform::testing
{
namespace
{
QWidget* control(CWnd& dialog, int id)
{
    QWidget* widget = widgetOf(::GetDlgItem(dialog.m_hWnd, id));
    return widget && widget->isEnabled() && !widget->isHidden() ? widget : nullptr;
}

void sendKey(QWidget& widget, int key, const QString& text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &event);
    }
}
} // namespace

void ensureApplication()
{
    if (qApp)
        return;
    prepareProcess();
    static int count = 1;
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    // Never deleted: windows of other objects may outlive main.
    applyLook(*new QApplication(count, arguments));
    QApplication::setQuitOnLastWindowClosed(false);
}

bool clickButton(CWnd& dialog, int id)
{
    auto* button = qobject_cast<QAbstractButton*>(control(dialog, id));
    if (!button)
        return false;
    button->click();
    return true;
}

bool clickAt(CWnd& window, int x, int y)
{
    QWidget* widget = widgetOf(window.m_hWnd);
    if (!widget || !widget->isEnabled())
        return false;
    bringIntoSight(window.m_hWnd);
    QPoint at(x, y);
    // What lets the mouse through is not seen by childAt's receiver: its parent gets the click.
    if (QWidget* child = widget->childAt(at)) {
        while (child != widget && child->testAttribute(Qt::WA_TransparentForMouseEvents))
            child = child->parentWidget();
        at = child->mapFrom(widget, at);
        widget = child;
    }
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
    return true;
}

bool clickLink(CWnd& dialog, int id, const std::wstring& address)
{
    return control(dialog, id) && followLink(::GetDlgItem(dialog.m_hWnd, id), address);
}

bool typeText(CWnd& dialog, int id, const std::wstring& text)
{
    QWidget* widget = control(dialog, id);
    if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->end(false);
        line->insert(QString::fromStdWString(text));
        return true;
    }
    if (auto* lines = qobject_cast<QPlainTextEdit*>(widget)) {
        lines->moveCursor(QTextCursor::End);
        lines->insertPlainText(QString::fromStdWString(text));
        return true;
    }
    return false;
}

bool pressKey(CWnd& window, int key)
{
    QWidget* widget = widgetOf(window.m_hWnd);
    if (!widget || !widget->isEnabled())
        return false;
    QWidget* focus = widget->focusWidget() ? widget->focusWidget() : widget;
    sendKey(*focus, qtKey(key), {});
    return true;
}

std::wstring textOf(CWnd& dialog, int id)
{
    CString text;
    dialog.GetDlgItemText(id, text);
    return text.GetString();
}

bool isVisible(CWnd& dialog, int id)
{
    QWidget* widget = widgetOf(::GetDlgItem(dialog.m_hWnd, id));
    return widget && !widget->isHidden();
}

bool isEnabled(CWnd& dialog, int id)
{
    QWidget* widget = widgetOf(::GetDlgItem(dialog.m_hWnd, id));
    return widget && widget->isEnabled();
}

std::wstring promptOf(CWnd& dialog, int id)
{
    QWidget* widget = widgetOf(::GetDlgItem(dialog.m_hWnd, id));
    if (auto* line = qobject_cast<QLineEdit*>(widget))
        return line->placeholderText().toStdWString();
    auto* lines = qobject_cast<QPlainTextEdit*>(widget);
    return lines ? lines->placeholderText().toStdWString() : std::wstring();
}

bool clickRibbon(CWnd& ribbon, unsigned int command)
{
    auto* button = static_cast<QToolButton*>(ribbonButton(ribbon.m_hWnd, command));
    if (!button || !button->isEnabled())
        return false;
    button->click();
    return true;
}

bool isRibbonEnabled(CWnd& ribbon, unsigned int command)
{
    const QWidget* button = ribbonButton(ribbon.m_hWnd, command);
    return button && button->isEnabled();
}

void processEvents()
{
    QCoreApplication::processEvents();
    // What was shown is drawn once the system has told that it is in view.
    QDeadlineTimer deadline(1000);
    const auto isAwaited = [](const QWidget* each) {
        return each->isVisible() && each->windowHandle() && !each->windowHandle()->isExposed();
    };
    const auto isAnyAwaited = [&] {
        const QWidgetList all = QApplication::topLevelWidgets();
        return std::any_of(all.begin(), all.end(), isAwaited);
    };
    while (isAnyAwaited() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents, 10);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool waitFor(const std::function<bool()>& condition, int milliseconds)
{
    QDeadlineTimer deadline(milliseconds);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
    }
    return true;
}

bool savePicture(CWnd& window, const std::string& pngPath)
{
    QWidget* widget = widgetOf(window.m_hWnd);
    if (!widget)
        return false;
    processEvents();
    return widget->grab().save(QString::fromStdString(pngPath), "PNG");
}
} // namespace orvplatform::testing
