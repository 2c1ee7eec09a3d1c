#include "platform/qt/Keyboard.h"

#include "platform/qt/DialogWindow.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
struct Key {
    int qt;
    int windows;
};
constexpr Key keys[] = {{Qt::Key_Return, VK_RETURN}, {Qt::Key_Enter, VK_RETURN}, {Qt::Key_Escape, VK_ESCAPE},
                        {Qt::Key_Tab, VK_TAB},       {Qt::Key_Space, VK_SPACE},  {Qt::Key_Delete, VK_DELETE}};

bool isPushButton(HWND window)
{
    return qobject_cast<QPushButton*>(window->widget()) != nullptr;
}

HWND defaultButton(HWND dialog)
{
    for (QWidget* child : dialog->widget()->findChildren<QPushButton*>()) {
        HWND button = existingHandle(child);
        if (button && (button->style & BS_TYPEMASK) == BS_DEFPUSHBUTTON && nearestDialog(button) == dialog)
            return button;
    }
    return nullptr;
}

// A dialog inside a dialog (a page of a sheet) leaves the keys that it doesn't use to the outer one.
HWND outerDialog(HWND dialog)
{
    HWND outer = nearestDialog(GetParent(dialog));
    return (dialog->style & WS_CHILD) && outer && !dialog->widget()->isWindow() ? outerDialog(outer) : dialog;
}

bool press(HWND button)
{
    auto* widget = qobject_cast<QAbstractButton*>(button->widget());
    if (widget && widget->isEnabled() && !widget->isHidden())
        widget->click();
    return true;
}
} // namespace

int defaultButtonId(HWND dialog)
{
    HWND button = isLive(dialog) ? defaultButton(dialog) : nullptr;
    return button ? button->id : 0;
}

int virtualKey(int qtKey)
{
    for (const Key& key : keys)
        if (key.qt == qtKey)
            return key.windows;
    const bool plain = (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) || (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z);
    return plain ? qtKey : 0;
}

int qtKey(int virtualKey)
{
    for (const Key& key : keys)
        if (key.windows == virtualKey)
            return key.qt;
    return virtualKey;
}

bool navigate(HWND focus, QKeyEvent* event)
{
    HWND dialog = nearestDialog(focus);
    if (!dialog || focus == nullptr)
        return false;
    const int key = virtualKey(event->key());
    if (key == VK_ESCAPE) {
        HWND target = outerDialog(dialog);
        deliver(target, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                reinterpret_cast<LPARAM>(GetDlgItem(target, IDCANCEL)));
        return true;
    }
    if (key != VK_RETURN)
        return false;
    // A multi-line edit takes Enter for itself only when it asks for it; with Ctrl or Shift it always breaks the line.
    const bool multiLine = qobject_cast<QPlainTextEdit*>(focus->widget()) != nullptr;
    if (multiLine && (focus->style & ES_WANTRETURN))
        return false;
    if (multiLine && (event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier))) {
        static_cast<QPlainTextEdit*>(focus->widget())->insertPlainText(QStringLiteral("\n"));
        return true;
    }
    if (isPushButton(focus))
        return press(focus);
    if (HWND button = defaultButton(dialog))
        return press(button);
    HWND target = outerDialog(dialog);
    if (HWND button = target == dialog ? nullptr : defaultButton(target))
        return press(button);
    deliver(target, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(target, IDOK)));
    return true;
}
} // namespace orvplatform
