#include "platform/qt/TasksWidget.h"

#include "afxtaskspane.h"
#include "platform/Process.h"
#include "platform/qt/ButtonRoom.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Look.h"
#include "platform/qt/Native.h"
#include "platform/qt/Sleep.h"
#include "platform/qt/UnmadeControl.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace orvplatform
{
namespace
{
QRect rectOf(const RECT& rect)
{
    return {QPoint(rect.left, rect.top), QPoint(rect.right - 1, rect.bottom - 1)};
}
CRect rectOf(const QRect& rect)
{
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

// The first group that doesn't end above y.
TaskGroups::const_iterator firstReaching(const TaskGroups& groups, int y)
{
    return std::partition_point(groups.begin(), groups.end(),
                                [y](const auto& group) { return group->m_rect.bottom <= y; });
}

// The scrolled column. It paints the cards; the groups' windows are its children.
class Column final : public QWidget
{
public:
    const TaskGroups* groups = nullptr;
    bool collapsible = true;
    std::function<void()> relayout;

    Column() { setMouseTracking(true); }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (!groups)
            return;
        // From top to bottom, so those in sight stand together.
        const QRect dirty = event->rect();
        for (auto group = firstReaching(*groups, dirty.top()); group != groups->end(); ++group) {
            if ((*group)->m_rect.top > dirty.bottom())
                break;
            paintCard(painter, **group);
        }
    }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        const CMFCTasksPaneTaskGroup* now = titleAt(event->position().toPoint());
        if (now != hovered) {
            hovered = now;
            update();
        }
    }
    void leaveEvent(QEvent*) override
    {
        hovered = nullptr;
        update();
    }
    void mousePressEvent(QMouseEvent* event) override
    {
        CMFCTasksPaneTaskGroup* group = collapsible ? titleAt(event->position().toPoint()) : nullptr;
        if (!group)
            return QWidget::mousePressEvent(event);
        group->m_bIsCollapsed = !group->m_bIsCollapsed;
        relayout();
    }

private:
    CMFCTasksPaneTaskGroup* titleAt(QPoint at) const
    {
        if (!groups)
            return nullptr;
        const auto group = firstReaching(*groups, at.y());
        const bool hit =
            group != groups->end() && rectOf((*group)->m_rect).contains(at) && at.y() < (*group)->m_rectGroup.top;
        return hit ? group->get() : nullptr;
    }

    void paintCard(QPainter& painter, const CMFCTasksPaneTaskGroup& group)
    {
        const Theme& t = theme();
        const QRectF card = QRectF(rectOf(group.m_rect)).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setPen(t.border);
        painter.setBrush(t.surface);
        painter.drawRoundedRect(card, measures::radius, measures::radius);
        if (group.m_strName.IsEmpty())
            return;
        QRect title = rectOf(group.m_rect);
        title.setBottom(group.m_rectGroup.top - 1);
        title.adjust(measures::gap + measures::grid, 0, -measures::gap, 0);
        if (group.m_hIcon) {
            const QImage icon = imageOf(group.m_hIcon);
            painter.drawImage(title.left(), title.center().y() - icon.height() / 2, icon);
            title.setLeft(title.left() + icon.width() + measures::grid);
        }
        const bool hot = &group == hovered && collapsible;
        const COLORREF chosen = hot && group.m_clrTextHot != CLR_DEFAULT ? group.m_clrTextHot : group.m_clrText;
        QFont font = dialogFont();
        font.setBold(group.m_bIsSpecial != FALSE);
        painter.setFont(font);
        painter.setPen(
            chosen == CLR_DEFAULT ? t.text : readable(QColor(GetRValue(chosen), GetGValue(chosen), GetBValue(chosen))));
        const QString name = QFontMetrics(font).elidedText(QString::fromStdWString(group.m_strName.GetString()),
                                                           Qt::ElideRight, title.width() - (collapsible ? 16 : 0));
        painter.drawText(title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
        if (collapsible)
            painter.drawText(title, Qt::AlignRight | Qt::AlignVCenter,
                             group.m_bIsCollapsed ? QStringLiteral("\u25B8") : QStringLiteral("\u25BE"));
    }

    const CMFCTasksPaneTaskGroup* hovered = nullptr;
};

class TasksWidget final : public QWidget
{
public:
    explicit TasksWidget(QWidget* parent) : QWidget(parent), scroll(this), column(new Column)
    {
        scroll.setFrameShape(QFrame::NoFrame);
        scroll.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        scroll.setFocusPolicy(Qt::NoFocus);
        scroll.setWidget(column);
        scroll.viewport()->setAutoFillBackground(false);
        column->setAutoFillBackground(false);
        column->relayout = [this] { layoutGroups(); };
        connect(scroll.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { wakeInSight(); });
        qApp->installEventFilter(this);
    }

    void layoutGroups();
    void wakeInSight();
    void wakeNow(HWND window);

    QScrollArea scroll;
    Column* column;

protected:
    // The Tab key passes over what is hidden, so what sleeps where it goes next wakes first. Where it goes comes into
    // sight, also from outside.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (watched->isWidgetType() && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab))
                wakeNextStop(key->key() == Qt::Key_Tab && !(key->modifiers() & Qt::ShiftModifier));
        } else if (event->type() == QEvent::FocusIn && watched->isWidgetType()) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            auto* focus = static_cast<QWidget*>(watched);
            if ((reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) && column->isAncestorOf(focus))
                scroll.ensureWidgetVisible(focus);
        }
        return false;
    }
    void resizeEvent(QResizeEvent*) override
    {
        const int strip = captionHeight();
        scroll.setGeometry(0, strip, width(), std::max(height() - strip, 0));
        layoutGroups();
    }
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(theme().text);
        painter.setFont(dialogFont());
        painter.drawText(QRect(measures::gap, 0, width() - 2 * measures::gap, captionHeight()), Qt::AlignVCenter,
                         windowTitle());
    }

private:
    static int captionHeight() { return logicalDpi() >= 120 ? 40 : 20; }
    void layoutWithin(int width);
    void wakeNextStop(bool forwards);

    std::vector<HWND> awake; // of the groups' windows; some may be gone
    ButtonRoom buttonRoom;
    bool layingOut = false;
};

// Room for a card's title in its font, which grows with the display's resolution.
int titleHeight()
{
    QFont font = dialogFont();
    font.setBold(true);
    return std::max(measures::cardTitle, QFontMetrics(font).height() + 2 * measures::grid);
}

int totalHeight(const TaskGroups& groups)
{
    const int title = titleHeight();
    int height = measures::gap;
    for (const auto& group : groups) {
        height += (group->m_strName.IsEmpty() ? measures::gap : title) + measures::gap;
        if (group->m_bIsCollapsed)
            continue;
        height += measures::grid;
        for (const CMFCTasksPaneTask& task : group->m_lstTasks)
            height += task.m_nWindowHeight;
    }
    return height;
}

void TasksWidget::layoutWithin(int width)
{
    const int title = titleHeight();
    const int left = measures::gap;
    const int inner = std::max(width - 2 * measures::gap, 0);
    int y = measures::gap;
    for (const auto& group : *column->groups) {
        const int top = y;
        y += group->m_strName.IsEmpty() ? measures::gap : title;
        const int body = y;
        for (const CMFCTasksPaneTask& task : group->m_lstTasks) {
            if (group->m_bIsCollapsed) {
                ShowWindow(task.m_hwndTask, SW_HIDE);
                continue;
            }
            const int height = task.m_nWindowHeight;
            MoveWindow(task.m_hwndTask, left + measures::grid, y, std::max(inner - 2 * measures::grid, 0), height,
                       TRUE);
            buttonRoom.fit(task.m_hwndTask, height);
            ShowWindow(task.m_hwndTask, SW_SHOW);
            y += height;
        }
        group->m_rectGroup = rectOf(QRect(left, body, inner, y - body));
        y += group->m_bIsCollapsed ? 0 : measures::grid;
        group->m_rect = rectOf(QRect(left, top, inner, y - top));
        y += measures::gap;
    }
}

void TasksWidget::layoutGroups()
{
    if (!column->groups)
        return;
    // The bar takes its width from the column only when it is needed.
    const int total = totalHeight(*column->groups);
    int columnWidth = scroll.width();
    if (total > scroll.height())
        columnWidth -= scroll.verticalScrollBar()->sizeHint().width();
    const bool outer = std::exchange(layingOut, true);
    layoutWithin(columnWidth);
    column->resize(std::max(columnWidth, 0), total);
    layingOut = outer;
    wakeInSight();
    column->update();
}

void TasksWidget::wakeInSight()
{
    if (!column->groups || layingOut)
        return;
    // A page more on each side, so that a small step finds everything ready.
    const int page = scroll.height(); // the viewport itself hears of its size only when it is shown
    const int top = -column->y() - page;
    const int bottom = top + 3 * page;
    std::unordered_set<HWND> inSight;
    for (auto group = firstReaching(*column->groups, top); group != column->groups->end(); ++group) {
        if ((*group)->m_rect.top > bottom)
            break;
        for (const CMFCTasksPaneTask& task : (*group)->m_lstTasks)
            inSight.insert(task.m_hwndTask);
    }
    const QWidget* const focus = window()->focusWidget();
    const auto isNeeded = [&](HWND each) {
        return !isLive(each) || inSight.contains(each) || (focus && each->widget()->isAncestorOf(focus));
    };
    const auto leaving = std::partition(awake.begin(), awake.end(), isNeeded);
    const std::vector<HWND> asleep(leaving, awake.end());
    awake.erase(leaving, awake.end());
    for (HWND each : asleep)
        putToSleep(each);
    for (HWND each : inSight)
        wakeNow(each);
}

void TasksWidget::wakeNow(HWND window)
{
    wake(window);
    if (isLive(window) && !window->asleep && std::find(awake.begin(), awake.end(), window) == awake.end())
        awake.push_back(window);
}

namespace
{
bool takesTab(const QWidget& widget, const QWidget& within)
{
    return widget.focusPolicy() & Qt::TabFocus && widget.isEnabled() && widget.isVisibleTo(&within);
}

// Without making a control: the key may pass over thousands.
bool hasTabStop(HWND dialog)
{
    const auto isStop = [](HWND control) {
        return controlKind(control) == ControlKind::Button && control->style & WS_TABSTOP && !isHidden(control) &&
               !isDisabled(control);
    };
    if (std::any_of(dialog->unmadeControls.begin(), dialog->unmadeControls.end(), isStop))
        return true;
    const QList<QWidget*> made = dialog->widget()->findChildren<QWidget*>();
    return std::any_of(made.begin(), made.end(),
                       [dialog](const QWidget* each) { return takesTab(*each, *dialog->widget()); });
}
} // namespace

void TasksWidget::wakeNextStop(bool forwards)
{
    const QWidget* const focus = QApplication::focusWidget();
    if (!column->groups || !isVisible() || !focus || focus->window() != window())
        return;
    const auto following = [forwards](const QWidget* widget) {
        return forwards ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    for (QWidget* at = following(focus); at != focus && !takesTab(*at, *window()); at = following(at)) {
        HWND each = at->parentWidget() == column ? existingHandle(at) : nullptr;
        if (each && each->asleep && hasTabStop(each)) {
            wakeNow(each);
            return;
        }
    }
}

TasksWidget* tasksWidget(HWND pane)
{
    return isLive(pane) ? dynamic_cast<TasksWidget*>(pane->widget()) : nullptr;
}
} // namespace

HWND makeTasksPane(const CREATESTRUCTW&, QWidget* parent)
{
    auto* widget = new TasksWidget(parent);
    HWND window = attachHandle(widget, tasksPaneClass, nullptr);
    window->childHost = widget->column;
    return window;
}

void setTaskGroups(HWND pane, const TaskGroups* groups, bool collapsible)
{
    if (TasksWidget* widget = tasksWidget(pane)) {
        widget->column->groups = groups;
        widget->column->collapsible = collapsible;
        widget->column->update();
    }
}

void layoutTasks(HWND pane)
{
    if (TasksWidget* widget = tasksWidget(pane))
        widget->layoutGroups();
}

void wakeTasks(HWND pane)
{
    TasksWidget* widget = tasksWidget(pane);
    if (widget && !widget->testAttribute(Qt::WA_ForceUpdatesDisabled))
        widget->wakeInSight();
}

void scrollTo(HWND pane, HWND window, HWND part)
{
    if (TasksWidget* widget = tasksWidget(pane)) {
        widget->wakeNow(window);
        widget->scroll.ensureWidgetVisible(part->widget(), 0, 0);
    }
}
} // namespace orvplatform
