#pragma once
// The scrolled view of a task pane's list. A list may be higher than any widget can be and than an int counts, so its
// height and its offset are 64-bit pixels; the bar goes by more than a pixel where its own numbers wouldn't reach.

#include <QAbstractScrollArea>

#include <functional>

namespace orvplatform
{
class TasksArea final : public QAbstractScrollArea
{
public:
    explicit TasksArea(QWidget* parent);

    std::function<void()> onScroll; // the offset has changed

    // Of the whole list, after it or the view has got a new size. The offset stays where it can.
    void setListHeight(qint64 pixels);
    qint64 listHeight() const { return total; }
    qint64 offset() const;                              // how much of the list lies above the view
    void scrollTo(qint64 pixels);                       // to that offset, or the nearest that there is
    void reveal(qint64 top, qint64 bottom, int margin); // so that this part of the list is seen, or its beginning

protected:
    void scrollContentsBy(int dx, int dy) override;

private:
    qint64 span() const; // the largest offset

    qint64 total = 0;
    qint64 unit = 1; // pixels of one step of the bar
};
} // namespace orvplatform
