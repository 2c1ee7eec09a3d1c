#pragma once
// A text that is too long to be laid out each time that a part of it is painted.

#include <QFont>
#include <QRect>
#include <QString>

#include <memory>

QT_BEGIN_NAMESPACE
class QPainter;
class QTextLayout;
QT_END_NAMESPACE

namespace orvplatform
{
class LongText
{
public:
    static constexpr int shortest = 4096; // 16-bit characters

    LongText();
    ~LongText();

    // Draws those lines of the text, broken to the room's width, that lie in the dirty part; in the painter's pen.
    // Lays it out only where text, font, room or alignment are others than the last time.
    void draw(QPainter& painter, const QString& text, const QFont& font, const QRect& room, Qt::Alignment alignment,
              const QRect& dirty);
    void forget(); // gives the lines' memory back

private:
    void layOut();

    QString text;
    QFont font;
    QSize room;
    Qt::Alignment alignment;
    std::unique_ptr<QTextLayout> lines;
    qreal height = 0; // of the lines, pixels
};
} // namespace orvplatform
