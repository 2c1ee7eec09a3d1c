#pragma once
// The part of a task pane's list around the view: it paints the groups as cards, and their windows are its children. Of
// a list that is higher than a widget can be it is a piece that moves along.

#include "platform/qt/TasksWidget.h"

#include <QWidget>

#include <functional>

namespace orvplatform
{
class TasksColumn final : public QWidget
{
public:
    static constexpr int reach = 1 << 23; // its greatest height, pixels

    TasksColumn();

    const TaskGroups* groups = nullptr; // null without a list
    bool collapsible = true;
    std::function<void()> relayout; // a group was opened or closed
    qint64 origin = 0;              // the place of its upper edge in the list, pixels

    // A place in the list as one in the column, far outside of it where it lies farther away than that.
    int local(qint64 y) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    CMFCTasksPaneTaskGroup* titleAt(QPoint at) const;
    void paintCard(QPainter& painter, const CMFCTasksPaneTaskGroup& group);

    const CMFCTasksPaneTaskGroup* hovered = nullptr;
};

// The first group that doesn't end above the place in the list.
TaskGroups::const_iterator firstReaching(const TaskGroups& groups, qint64 y);
// Room for a card's title in its font, which grows with the display's resolution.
int cardTitleHeight();
} // namespace orvplatform
