#include "platform/qt/PaneTabParts.h"

#include "platform/qt/Look.h"

#include <QtWidgets>

#include <utility>

namespace orvplatform
{
namespace
{
// Small pictures of the pane's own buttons, drawn in the colour of quiet text.
template <class Draw>
QIcon drawn(Draw draw)
{
    const int side = scaled(measures::smallIcon);
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(side) / measures::smallIcon, double(side) / measures::smallIcon);
    painter.setPen(QPen(theme().mutedText, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    draw(painter);
    return picture;
}
} // namespace

QSize sizeOf(const QIcon& icon)
{
    QSize size(0, 0);
    for (const QSize& each : icon.availableSizes())
        size = size.expandedTo(each);
    return size;
}

QIcon floatIcon()
{
    return drawn([](QPainter& painter) {
        painter.drawRoundedRect(QRectF(2.5, 5.5, 8, 8), 1.5, 1.5);
        painter.drawPolyline(QPolygonF({{5.5, 2.5}, {13.5, 2.5}, {13.5, 10.5}}));
    });
}
QIcon pinIcon(bool pinned)
{
    return drawn([pinned](QPainter& painter) {
        // Upright it holds the side bar, lying it lets it go.
        painter.translate(8, 8);
        painter.rotate(pinned ? 0 : 90);
        painter.drawRect(QRectF(-2.5, -5.5, 5, 6.5));
        painter.drawLine(QPointF(-4.5, 1), QPointF(4.5, 1));
        painter.drawLine(QPointF(0, 1), QPointF(0, 6));
    });
}

Edge::Edge(QWidget* parent, std::function<void(int)> drag) : QWidget(parent), dragged(std::move(drag))
{
    setFixedWidth(scaled(measures::grid));
    setCursor(Qt::SplitHCursor);
}
void Edge::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}
void Edge::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        dragged(event->globalPosition().toPoint().x());
}
void Edge::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(theme().border);
    painter.drawLine(0, 0, 0, height());
}
} // namespace orvplatform
