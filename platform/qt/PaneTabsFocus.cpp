#include "platform/qt/PaneTabs.h"

#include "platform/qt/Sleep.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

// Where the keyboard and the pointer are: what holds a pane that is slid out, and what lets it go.
namespace orvplatform
{
bool PaneTabs::takeFocus()
{
    Pane* pane = at(bar.currentIndex());
    if (!pane || !pane->frame)
        return false;
    if (pane->frame->isWindow()) {
        pane->frame->raise();
        pane->frame->activateWindow();
    } else {
        slideOut(bar.currentIndex(), true); // does nothing while the panes are pinned
    }
    focusWithin(pane->frame);
    return true;
}

bool PaneTabs::hasFocusInside() const
{
    const QWidget* focus = QApplication::focusWidget();
    return focus && (contains(focus) || std::any_of(panes.begin(), panes.end(), [focus](const Pane& each) {
                         return each.frame && each.frame->isAncestorOf(focus);
                     }));
}

bool PaneTabs::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::Enter:
        for (std::size_t i = 0; i < panes.size(); ++i)
            if (panes[i].opener == watched) {
                hovered = static_cast<int>(i);
                hover.start();
            }
        break;
    case QEvent::Leave:
        if (widget && widget->parentWidget() == strip)
            hover.stop();
        if (isSlidOut() && !taken)
            leave.start();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (isSlidOut() && widget && widget->isAncestorOf(this))
            arrange();
        break;
    case QEvent::MouseButtonPress:
        if (isSlidOut() && widget && widget->window() == window())
            contains(widget) ? void(taken = true) : slideIn();
        break;
    case QEvent::FocusIn:
        if (isSlidOut() && taken && widget && !widget->isWindow() && widget->window() == window() && !contains(widget))
            slideIn();
        break;
    case QEvent::KeyPress:
        if (isSlidOut() && widget && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && contains(widget)) {
            slideIn();
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void PaneTabs::focusWithin(const QWidget* frame)
{
    QWidget* last = frame ? frame->focusWidget() : nullptr;
    if (last && last->isEnabled() && IsWindowVisible(nearestHandle(last)))
        bringIntoSight(nearestHandle(last)); // it may sleep
    if (last && last->isVisible() && last->isEnabled())
        return last->setFocus(Qt::TabFocusReason);
    for (QWidget* each = frame ? frame->nextInFocusChain() : nullptr; each && each != frame;
         each = each->nextInFocusChain()) {
        // The controls of one that sleeps come right behind it.
        if (HWND window = existingHandle(each); window && window->asleep && hasTabStop(window))
            bringIntoSight(window);
        if (frame->isAncestorOf(each) && (each->focusPolicy() & Qt::TabFocus) && each->isVisible() && each->isEnabled())
            return each->setFocus(Qt::TabFocusReason);
    }
    bar.setFocus(Qt::TabFocusReason);
}

bool PaneTabs::contains(const QWidget* widget) const
{
    return widget == opened || opened->isAncestorOf(widget) || widget == strip || strip->isAncestorOf(widget);
}

bool PaneTabs::isUsed() const
{
    const QWidget* focus = QApplication::focusWidget();
    return !isSlidOut() || taken || opened->underMouse() || strip->underMouse() ||
           (focus && opened->isAncestorOf(focus)) || QApplication::activePopupWidget();
}

void PaneTabs::stopWatching()
{
    qApp->removeEventFilter(this);
    hover.stop();
    leave.stop();
    taken = false;
}
} // namespace orvplatform
