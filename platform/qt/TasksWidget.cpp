#include "platform/qt/TasksWidget.h"

#include "afxtaskspane.h"
#include "platform/Process.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Look.h"
#include "platform/qt/Native.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

#include <algorithm>

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
        for (auto group = firstReaching(dirty.top()); group != groups->end(); ++group) {
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
        const auto group = firstReaching(at.y());
        const bool hit =
            group != groups->end() && rectOf((*group)->m_rect).contains(at) && at.y() < (*group)->m_rectGroup.top;
        return hit ? group->get() : nullptr;
    }
    // The first group that doesn't end above y.
    TaskGroups::const_iterator firstReaching(int y) const
    {
        return std::partition_point(groups->begin(), groups->end(),
                                    [y](const auto& group) { return group->m_rect.bottom <= y; });
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
    }

    void layoutGroups();

    QScrollArea scroll;
    Column* column;

protected:
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
    int layoutWithin(int width);
};

// The height that a window was given, and more where its lowest button would be cut: heights are set for a few display
// steps, forms grow with their font.
int heightOf(const CMFCTasksPaneTask& task)
{
    int height = task.m_nWindowHeight;
    if (isLive(task.m_hwndTask))
        for (const auto* button : task.m_hwndTask->widget->findChildren<QPushButton*>(Qt::FindDirectChildrenOnly))
            height = std::max(height, button->geometry().bottom() + 1);
    return height;
}

// Room for a card's title in its font, which grows with the display's resolution.
int titleHeight()
{
    QFont font = dialogFont();
    font.setBold(true);
    return std::max(measures::cardTitle, QFontMetrics(font).height() + 2 * measures::grid);
}

int TasksWidget::layoutWithin(int width)
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
            const int height = heightOf(task);
            MoveWindow(task.m_hwndTask, left + measures::grid, y, std::max(inner - 2 * measures::grid, 0), height,
                       TRUE);
            ShowWindow(task.m_hwndTask, SW_SHOW);
            y += height;
        }
        group->m_rectGroup = rectOf(QRect(left, body, inner, y - body));
        y += group->m_bIsCollapsed ? 0 : measures::grid;
        group->m_rect = rectOf(QRect(left, top, inner, y - top));
        y += measures::gap;
    }
    return y;
}

void TasksWidget::layoutGroups()
{
    if (!column->groups)
        return;
    // The bar takes its width from the column only when it is needed.
    int total = layoutWithin(scroll.width());
    int columnWidth = scroll.width();
    if (total > scroll.height()) {
        columnWidth -= scroll.verticalScrollBar()->sizeHint().width();
        total = layoutWithin(columnWidth);
    }
    column->resize(std::max(columnWidth, 0), total);
    column->update();
}

TasksWidget* tasksWidget(HWND pane)
{
    return isLive(pane) ? dynamic_cast<TasksWidget*>(pane->widget) : nullptr;
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
} // namespace orvplatform
