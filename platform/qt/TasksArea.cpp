#include "platform/qt/TasksArea.h"

#include <QScrollBar>

#include <algorithm>

namespace orvplatform
{
namespace
{
constexpr qint64 barReach = 1 << 30; // its style adds a page to it
constexpr int lineStep = 20;         // pixels
} // namespace

TasksArea::TasksArea(QWidget* parent) : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
}

qint64 TasksArea::span() const
{
    return std::max<qint64>(total - height(), 0); // the viewport itself hears of its size only when it is shown
}

void TasksArea::setListHeight(qint64 pixels)
{
    const qint64 before = offset();
    total = pixels;
    unit = span() / barReach + 1;
    QScrollBar& bar = *verticalScrollBar();
    bar.setRange(0, static_cast<int>((span() + unit - 1) / unit));
    bar.setPageStep(std::max(static_cast<int>(height() / unit), 1));
    bar.setSingleStep(std::max(static_cast<int>(lineStep / unit), 1));
    scrollTo(before);
}

qint64 TasksArea::offset() const
{
    return std::min(verticalScrollBar()->value() * unit, span());
}

void TasksArea::scrollTo(qint64 pixels)
{
    // Not before the place: what is to be seen would end below the view.
    verticalScrollBar()->setValue(static_cast<int>((std::clamp<qint64>(pixels, 0, span()) + unit - 1) / unit));
}

void TasksArea::reveal(qint64 top, qint64 bottom, int margin)
{
    const qint64 seen = offset();
    if (top >= seen && bottom <= seen + height())
        return;
    if (bottom - top + 2 * margin > height())
        scrollTo(top - std::clamp<qint64>((height() - (bottom - top)) / 2, 0, margin));
    else if (bottom + margin > seen + height())
        scrollTo(bottom + margin - height());
    else
        scrollTo(top - margin);
}

void TasksArea::scrollContentsBy(int, int)
{
    if (onScroll)
        onScroll();
}
} // namespace orvplatform
