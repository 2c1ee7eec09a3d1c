#include "platform/qt/TasksWidget.h"

#include "afxtaskspane.h"
#include "platform/Process.h"
#include "platform/qt/ButtonRoom.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Look.h"
#include "platform/qt/Native.h"
#include "platform/qt/Sleep.h"
#include "platform/qt/TasksArea.h"
#include "platform/qt/TasksColumn.h"
#include "platform/qt/UnmadeControl.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <utility>

namespace orvplatform
{
namespace
{
constexpr int focusMargin = 50; // pixels of a list that stay in sight around what the Tab key comes to

CRect rectOf(int left, qint64 top, int width, qint64 bottom)
{
    const auto reachable = [](qint64 y) {
        return static_cast<int>(std::min<qint64>(y, std::numeric_limits<int>::max()));
    };
    return {left, reachable(top), left + width, reachable(bottom)};
}

class TasksWidget final : public QWidget
{
public:
    explicit TasksWidget(QWidget* parent) : QWidget(parent), area(this), column(new TasksColumn)
    {
        column->setParent(area.viewport());
        column->show();
        column->relayout = [this] { layoutGroups(); };
        area.onScroll = [this] { followScrolling(); };
        qApp->installEventFilter(this);
    }

    void layoutGroups();
    void wakeInSight();
    void wakeNow(HWND window);
    void reveal(HWND window, const QWidget& part, int margin);

    TasksArea area;
    TasksColumn* column;

protected:
    // The Tab key passes over what is hidden, so what sleeps where it goes next wakes first. Where it goes comes into
    // sight, also from outside.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (watched->isWidgetType() && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab))
                wakeNextStop(key->key() == Qt::Key_Tab && !(key->modifiers() & Qt::ShiftModifier));
        } else if (event->type() == QEvent::Hide && watched->isWidgetType()) {
            // The toolkit is about to take the focus on, as the Tab key does.
            const auto* hidden = static_cast<QWidget*>(watched);
            const QWidget* focus = QApplication::focusWidget();
            if (focus && column->isAncestorOf(hidden) && (focus == hidden || hidden->isAncestorOf(focus)))
                wakeNextStop(true);
        } else if (event->type() == QEvent::FocusIn && watched->isWidgetType()) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            auto* focus = static_cast<QWidget*>(watched);
            if ((reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) && column->isAncestorOf(focus))
                reveal(placedWindowOf(focus), *focus, focusMargin);
        }
        return false;
    }
    void resizeEvent(QResizeEvent*) override
    {
        const int strip = captionHeight();
        area.setGeometry(0, strip, width(), std::max(height() - strip, 0));
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
    HWND placedWindowOf(QWidget* widget) const;
    void findPlaces(int width);
    void chooseOrigin();
    void placeWindows(bool show);
    void placeColumn();
    void followScrolling();
    bool holds(HWND window) const;
    void wakeNextStop(bool forwards);

    std::vector<HWND> awake; // of the groups' windows; some may be gone
    ButtonRoom buttonRoom;
    bool layingOut = false;
};

qint64 heightOf(const TaskGroups& groups)
{
    const int title = cardTitleHeight();
    qint64 height = measures::gap;
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

void TasksWidget::findPlaces(int width)
{
    const int title = cardTitleHeight();
    const int left = measures::gap;
    const int inner = std::max(width - 2 * measures::gap, 0);
    qint64 y = measures::gap;
    for (const auto& group : *column->groups) {
        CMFCTasksPaneTaskGroup::Place& place = group->place;
        place.top = y;
        y += group->m_strName.IsEmpty() ? measures::gap : title;
        place.body = y;
        if (!group->m_bIsCollapsed)
            for (const CMFCTasksPaneTask& task : group->m_lstTasks)
                y += task.m_nWindowHeight;
        group->m_rectGroup = rectOf(left, place.body, inner, y);
        y += group->m_bIsCollapsed ? 0 : measures::grid;
        place.bottom = y;
        group->m_rect = rectOf(left, place.top, inner, y);
        y += measures::gap;
    }
}

// The column stays where it is while it holds what is near the view, so that scrolling moves it alone.
void TasksWidget::chooseOrigin()
{
    const qint64 page = area.height();
    const qint64 last = std::max<qint64>(area.listHeight() - TasksColumn::reach, 0);
    const qint64 offset = area.offset();
    const bool holdsAbove = column->origin <= std::max<qint64>(offset - page, 0);
    const bool holdsBelow =
        std::min(offset + 2 * page, area.listHeight()) <= column->origin + TasksColumn::reach && column->origin <= last;
    if (!holdsAbove || !holdsBelow)
        column->origin = std::clamp<qint64>(offset - TasksColumn::reach / 2, 0, last);
}

// A group keeps a window that was given another parent, and that one's place, but has no say in it.
bool TasksWidget::holds(HWND window) const
{
    return isLive(window) && window->widget()->parentWidget() == column;
}

void TasksWidget::placeWindows(bool show)
{
    for (const auto& group : *column->groups) {
        const int left = group->m_rectGroup.left + measures::grid;
        const int width = std::max(group->m_rectGroup.right - measures::grid - left, 0);
        qint64 y = group->place.body;
        for (const CMFCTasksPaneTask& task : group->m_lstTasks) {
            if (!holds(task.m_hwndTask)) {
                y += task.m_nWindowHeight;
                continue;
            }
            if (group->m_bIsCollapsed) {
                ShowWindow(task.m_hwndTask, SW_HIDE);
                continue;
            }
            MoveWindow(task.m_hwndTask, left, column->local(y), width, task.m_nWindowHeight, TRUE);
            if (show) {
                buttonRoom.fit(task.m_hwndTask, task.m_nWindowHeight);
                ShowWindow(task.m_hwndTask, SW_SHOW);
            }
            y += task.m_nWindowHeight;
        }
    }
}

void TasksWidget::placeColumn()
{
    column->move(0, static_cast<int>(column->origin - area.offset()));
}

void TasksWidget::layoutGroups()
{
    if (!column->groups)
        return;
    // The bar takes its width from the column only when it is needed.
    const qint64 total = heightOf(*column->groups);
    int columnWidth = area.width();
    if (total > area.height())
        columnWidth -= area.verticalScrollBar()->sizeHint().width();
    const bool outer = std::exchange(layingOut, true);
    findPlaces(columnWidth);
    area.setListHeight(total);
    chooseOrigin();
    placeWindows(true);
    column->resize(std::max(columnWidth, 0), static_cast<int>(std::min<qint64>(total, TasksColumn::reach)));
    placeColumn();
    layingOut = outer;
    wakeInSight();
    column->update();
}

void TasksWidget::followScrolling()
{
    if (!column->groups || layingOut)
        return;
    const qint64 before = column->origin;
    chooseOrigin();
    if (column->origin != before)
        placeWindows(false);
    placeColumn();
    wakeInSight();
}

HWND TasksWidget::placedWindowOf(QWidget* widget) const
{
    while (widget && widget->parentWidget() != column)
        widget = widget->parentWidget();
    return widget ? existingHandle(widget) : nullptr;
}

// Nothing for a window that stands in no open group, or while the groups have no places yet.
void TasksWidget::reveal(HWND window, const QWidget& part, int margin)
{
    if (!column->groups || testAttribute(Qt::WA_ForceUpdatesDisabled))
        return;
    for (const auto& group : *column->groups) {
        qint64 y = group->place.body;
        for (const CMFCTasksPaneTask& task : group->m_lstTasks) {
            if (task.m_hwndTask == window && !group->m_bIsCollapsed) {
                // Of a field that is higher than the view, the line with the cursor.
                const QRect seen = part.height() <= area.height()
                                       ? part.rect()
                                       : part.inputMethodQuery(Qt::ImCursorRectangle).toRect();
                y += part.mapTo(window->widget(), seen.topLeft()).y();
                area.reveal(y, y + seen.height(), margin);
                return;
            }
            y += task.m_nWindowHeight;
        }
    }
}

void TasksWidget::wakeInSight()
{
    if (!column->groups || layingOut)
        return;
    // A page more on each side, so that a small step finds everything ready.
    const int page = area.height();
    const qint64 top = area.offset() - page;
    const qint64 bottom = top + 3 * page;
    std::unordered_set<HWND> inSight;
    for (auto group = firstReaching(*column->groups, top); group != column->groups->end(); ++group) {
        if ((*group)->place.top > bottom)
            break;
        for (const CMFCTasksPaneTask& task : (*group)->m_lstTasks)
            if (holds(task.m_hwndTask))
                inSight.insert(task.m_hwndTask);
    }
    const QWidget* const focus = window()->focusWidget();
    const auto isNeeded = [&](HWND each) {
        return !isLive(each) || inSight.contains(each) ||
               (focus && each->widget()->isAncestorOf(focus)); // of itself, too
    };
    const auto leaving = std::partition(awake.begin(), awake.end(), isNeeded);
    const std::vector<HWND> asleep(leaving, awake.end());
    awake.erase(leaving, awake.end());
    for (HWND each : asleep)
        if (holds(each))
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
        widget->reveal(window, *part->widget(), 0);
    }
}
} // namespace orvplatform
