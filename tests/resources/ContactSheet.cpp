#include "resources/ContactSheet.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace restest
{

QImage ContactSheet::draw() const
{
    const QFontMetrics metrics(QGuiApplication::font());
    const int titleHeight = metrics.height() + 4;
    std::vector<QPoint> places;
    QPoint next(distance, distance);
    int rowHeight = 0;
    int right = 0;
    for (const Entry& entry : entries) {
        const int width = std::max(entry.picture.width(), metrics.horizontalAdvance(entry.title));
        if (next.x() > distance && next.x() + width + distance > rowWidth) {
            next = QPoint(distance, next.y() + rowHeight + distance);
            rowHeight = 0;
        }
        places.push_back(next);
        rowHeight = std::max(rowHeight, titleHeight + entry.picture.height());
        next.rx() += width + distance;
        right = std::max(right, next.x());
    }
    QImage sheet(right, next.y() + rowHeight + distance, QImage::Format_RGB32);
    sheet.fill(QColor(0xC9, 0xCE, 0xD6));
    QPainter painter(&sheet);
    painter.setFont(QGuiApplication::font());
    painter.setPen(QColor(0x1E, 0x22, 0x27));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        painter.drawText(places[i] + QPoint(0, metrics.ascent()), entries[i].title);
        painter.drawImage(places[i] + QPoint(0, titleHeight), entries[i].picture);
    }
    return sheet;
}

} // namespace restest
