#include "platform/qt/TasksColumn.h"

#include "afxtaskspane.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Look.h"

#include <QtWidgets>

#include <algorithm>

namespace orvplatform
{
namespace
{
QFont titleFont(bool bold)
{
    QFont font = dialogFont();
    font.setBold(bold);
    return font;
}
} // namespace

TaskGroups::const_iterator firstReaching(const TaskGroups& groups, qint64 y)
{
    return std::partition_point(groups.begin(), groups.end(),
                                [y](const auto& group) { return group->place.bottom <= y; });
}

int cardTitleHeight()
{
    return std::max(measures::cardTitle, QFontMetrics(titleFont(true)).height() + 2 * measures::grid);
}

TasksColumn::TasksColumn()
{
    setMouseTracking(true);
    setAutoFillBackground(false);
}

int TasksColumn::local(qint64 y) const
{
    constexpr qint64 farAway = 1 << 28; // windows are moved from here by sums that an int holds
    return static_cast<int>(std::clamp(y - origin, -farAway, farAway));
}

void TasksColumn::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!groups)
        return;
    // From top to bottom, so those in sight stand together.
    const QRect dirty = event->rect();
    for (auto group = firstReaching(*groups, origin + dirty.top()); group != groups->end(); ++group) {
        if ((*group)->place.top > origin + dirty.bottom())
            break;
        paintCard(painter, **group);
    }
}

void TasksColumn::mouseMoveEvent(QMouseEvent* event)
{
    const CMFCTasksPaneTaskGroup* now = titleAt(event->position().toPoint());
    if (now != hovered) {
        hovered = now;
        update();
    }
}

void TasksColumn::leaveEvent(QEvent*)
{
    hovered = nullptr;
    update();
}

void TasksColumn::mousePressEvent(QMouseEvent* event)
{
    CMFCTasksPaneTaskGroup* group = collapsible ? titleAt(event->position().toPoint()) : nullptr;
    if (!group)
        return QWidget::mousePressEvent(event);
    group->m_bIsCollapsed = !group->m_bIsCollapsed;
    relayout();
}

CMFCTasksPaneTaskGroup* TasksColumn::titleAt(QPoint at) const
{
    if (!groups)
        return nullptr;
    const qint64 y = origin + at.y();
    const auto group = firstReaching(*groups, y);
    const bool hit = group != groups->end() && at.x() >= (*group)->m_rect.left && at.x() < (*group)->m_rect.right &&
                     y >= (*group)->place.top && y < (*group)->place.body;
    return hit ? group->get() : nullptr;
}

void TasksColumn::paintCard(QPainter& painter, const CMFCTasksPaneTaskGroup& group)
{
    const Theme& t = theme();
    const int left = group.m_rect.left;
    const int width = group.m_rect.right - left;
    const int top = local(group.place.top);
    const QRectF card = QRectF(left, top, width, local(group.place.bottom) - top).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(t.border);
    painter.setBrush(t.surface);
    painter.drawRoundedRect(card, measures::radius, measures::radius);
    if (group.m_strName.IsEmpty())
        return;
    QRect title(left, top, width, local(group.place.body) - top);
    title.adjust(measures::gap + measures::grid, 0, -measures::gap, 0);
    if (group.m_hIcon) {
        const QImage icon = imageOf(group.m_hIcon);
        painter.drawImage(title.left(), title.center().y() - icon.height() / 2, icon);
        title.setLeft(title.left() + icon.width() + measures::grid);
    }
    const bool hot = &group == hovered && collapsible;
    const COLORREF chosen = hot && group.m_clrTextHot != CLR_DEFAULT ? group.m_clrTextHot : group.m_clrText;
    const QFont font = titleFont(group.m_bIsSpecial != FALSE);
    painter.setFont(font);
    painter.setPen(chosen == CLR_DEFAULT ? t.text
                                         : readable(QColor(GetRValue(chosen), GetGValue(chosen), GetBValue(chosen))));
    const QString name = QFontMetrics(font).elidedText(QString::fromStdWString(group.m_strName.GetString()),
                                                       Qt::ElideRight, title.width() - (collapsible ? 16 : 0));
    painter.drawText(title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
    if (collapsible)
        painter.drawText(title, Qt::AlignRight | Qt::AlignVCenter,
                         group.m_bIsCollapsed ? QStringLiteral("\u25B8") : QStringLiteral("\u25BE"));
}
} // namespace orvplatform
