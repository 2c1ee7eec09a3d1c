#include "platform/qt/DialogWindow.h"

#include "platform/Process.h"
#include "platform/qt/Controls.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Native.h"
#include "platform/qt/TasksWidget.h"
#include "platform/qt/UnmadeControl.h"
#include "platform/qt/Window.h"
#include "winbase.h"

#include <QtWidgets>

#include <algorithm>

namespace orvplatform
{
namespace
{
QHash<HWND, QEventLoop*>& modalLoops()
{
    static QHash<HWND, QEventLoop*> loops;
    return loops;
}
int waitCursors = 0;

QRect pixels(const SIZE& base, int x, int y, int width, int height)
{
    return {MulDiv(x, base.cx, 4), MulDiv(y, base.cy, 8), MulDiv(width, base.cx, 4), MulDiv(height, base.cy, 8)};
}

// The text of a label marks a letter with "&"; without a field to jump to, the mark alone goes.
std::wstring withoutMarks(const std::wstring& text)
{
    std::wstring result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'&' && i + 1 < text.size())
            ++i;
        result += text[i];
    }
    return result;
}

void createItem(HWND dialog, const DialogItem& item, bool late)
{
    const QRect place = pixels(dialog->baseUnits, item.x, item.y, item.width, item.height);
    const bool label = wcscasecmp(item.className.c_str(), L"Static") == 0 && !(item.style & SS_NOPREFIX);
    const std::wstring text = label ? withoutMarks(item.text) : item.text;
    const CREATESTRUCTW create{nullptr,
                               nullptr,
                               reinterpret_cast<HMENU>(static_cast<LONG_PTR>(item.id)),
                               dialog,
                               place.height(),
                               place.width(),
                               place.y(),
                               place.x(),
                               static_cast<LONG>(item.style | WS_CHILD),
                               text.c_str(),
                               item.className.c_str(),
                               item.exStyle};
    HWND control = late ? makeUnmadeControl(create, dialog) : createWindow(create, {});
    if (!control)
        return;
    applyFont(control, dialog->font);
    if (item.creationData.size() >= 2) {
        std::wstring address = orvtext::fromUtf16Le(item.creationData.data(), item.creationData.size() / 2);
        address.resize(std::min(address.find(L'\0'), address.size()));
        setLinkAddress(control, address);
    }
}

// Over the owner's middle, and whole on its screen.
void centre(QWidget& widget)
{
    if (widget.layout() && !widget.testAttribute(Qt::WA_Resized))
        widget.adjustSize(); // as showing it would
    const QWidget* owner = widget.parentWidget() ? widget.parentWidget()->window() : nullptr;
    const bool placed = owner && owner->isVisible();
    const QRect screen = (placed ? owner : &widget)->screen()->availableGeometry();
    QRect place(QPoint(), widget.size());
    place.moveCenter((placed ? owner->geometry() : screen).center());
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveTopLeft({std::max(place.left(), screen.left()), std::max(place.top(), screen.top())});
    widget.move(place.topLeft());
}
} // namespace

QWidget* ownerOf(HWND parent)
{
    if (!isLive(parent)) {
        CWnd* main = AfxGetMainWnd();
        parent = main ? main->m_hWnd : nullptr;
    }
    return isLive(parent) ? parent->widget()->window() : nullptr;
}

HWND createDialogWindow(const DialogTemplate& source, HWND parent, bool child, const std::function<void(HWND)>& attach)
{
    QWidget* host = isLive(parent) ? parent->childHost : nullptr;
    Qt::WindowFlags flags = Qt::Widget;
    if (!child) {
        host = ownerOf(parent);
        flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
        if (source.style & WS_SYSMENU)
            flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    }
    auto* widget = new QWidget(host, flags);
    HWND window = attachHandle(widget, L"#32770", nullptr);
    window->style = child ? (source.style & ~(WS_POPUP | WS_CAPTION | WS_SYSMENU)) | WS_CHILD : source.style;
    window->exStyle = source.exStyle;
    window->isDialog = true;
    widget->hide(); // or a child would be shown with its parent
    const QFont font = dialogFont(QString::fromStdWString(source.face.empty() ? L"MS Shell Dlg" : source.face),
                                  source.points > 0 && source.points < 200 ? source.points : 8,
                                  source.weight >= FW_BOLD, source.italic);
    applyFont(window, sharedFont(font));
    window->baseUnits = orvplatform::baseUnits(font);
    const QRect place = pixels(window->baseUnits, source.x, source.y, source.width, source.height);
    if (child)
        widget->setGeometry(place);
    else if (source.style & WS_THICKFRAME)
        widget->resize(place.size());
    else
        widget->setFixedSize(place.size());
    if (attach)
        attach(window);
    SetWindowTextW(window, source.caption.c_str());
    const CREATESTRUCTW create{nullptr,
                               nullptr,
                               nullptr,
                               parent,
                               place.height(),
                               place.width(),
                               place.y(),
                               place.x(),
                               static_cast<LONG>(window->style),
                               source.caption.c_str(),
                               L"#32770",
                               source.exStyle};
    if (SendMessageW(window, WM_CREATE, 0, reinterpret_cast<LPARAM>(&create)) == -1) {
        ::DestroyWindow(window);
        return nullptr;
    }
    // In a list most dialogs are out of sight.
    const bool late = child && isLive(parent) && parent->className == tasksPaneClass &&
                      std::all_of(source.items.begin(), source.items.end(), [](const DialogItem& item) {
                          return canBeUnmade(item.className.c_str(), item.style);
                      });
    for (const DialogItem& item : source.items)
        createItem(window, item, late);
    reportSize(window);
    return window;
}

void makeDialog(HWND window)
{
    if (isLive(window))
        window->isDialog = true;
}

void focusFirstControl(HWND dialog)
{
    if (!isLive(dialog))
        return;
    for (QWidget* child : dialog->widget()->findChildren<QWidget*>()) {
        HWND control = existingHandle(child);
        if (control && (control->style & WS_TABSTOP) && child->isEnabled() && !child->isHidden()) {
            child->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void presentModal(HWND window)
{
    if (!isLive(window))
        return;
    QWidget& widget = *window->widget();
    widget.setWindowModality(Qt::ApplicationModal);
    centre(widget);
    widget.show();
    widget.raise();
    widget.activateWindow();
}

void runModal(HWND window)
{
    if (!isLive(window))
        return;
    presentModal(window);
    QEventLoop loop;
    modalLoops().insert(window, &loop);
    // A busy cursor of the command that opened the dialog would say that the dialog is busy.
    const int cursors = waitCursors;
    for (int i = 0; i < cursors; ++i)
        QGuiApplication::restoreOverrideCursor();
    loop.exec(QEventLoop::DialogExec);
    for (int i = 0; i < cursors; ++i)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    modalLoops().remove(window);
}

void endModal(HWND window)
{
    if (QEventLoop* loop = modalLoops().value(window))
        loop->quit();
}

void changeWaitCursor(int step)
{
    if (!qApp) {
        // Nothing is drawn yet or any more; the calls still come in pairs.
        waitCursors = std::max(waitCursors + step, 0);
    } else if (step < 0 && waitCursors > 0) {
        --waitCursors;
        QGuiApplication::restoreOverrideCursor();
    } else if (step > 0) {
        ++waitCursors;
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (step == 0 && waitCursors > 0) {
        QGuiApplication::changeOverrideCursor(Qt::WaitCursor);
    }
}

int waitCursorDepth()
{
    return waitCursors;
}
} // namespace orvplatform

BOOL MapDialogRect(HWND dialog, LPRECT rect)
{
    using orvplatform::isLive;
    if (!isLive(dialog) || !dialog->isDialog || !rect || dialog->baseUnits.cx == 0)
        return FALSE;
    const SIZE& base = dialog->baseUnits;
    *rect = {MulDiv(rect->left, base.cx, 4), MulDiv(rect->top, base.cy, 8), MulDiv(rect->right, base.cx, 4),
             MulDiv(rect->bottom, base.cy, 8)};
    return TRUE;
}
