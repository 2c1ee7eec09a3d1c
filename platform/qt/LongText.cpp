#include "platform/qt/LongText.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace orvplatform
{
namespace
{
// Each line looks for the end of its last word, so a word of pages gets breaks that nobody sees.
QString withBreaks(const QString& text)
{
    constexpr int longestWord = 256;
    QString result;
    result.reserve(text.size() + text.size() / longestWord);
    int word = 0;
    for (const QChar each : text) {
        if (each == u'\n') {
            result += QChar::LineSeparator;
            word = 0;
            continue;
        }
        word = each.isSpace() ? 0 : word + 1;
        if (word > longestWord && !each.isLowSurrogate() && !each.isMark()) {
            result += QChar(0x200B); // a space without width
            word = 1;
        }
        result += each;
    }
    return result;
}
} // namespace

LongText::LongText() = default;
LongText::~LongText() = default;

void LongText::draw(QPainter& painter, const QString& newText, const QFont& newFont, const QRect& newRoom,
                    Qt::Alignment newAlignment, const QRect& dirty)
{
    if (!lines || text != newText || font != newFont || room != newRoom.size() || alignment != newAlignment) {
        text = newText;
        font = newFont;
        room = newRoom.size();
        alignment = newAlignment;
        layOut();
    }
    const qreal free = std::max<qreal>(room.height() - height, 0);
    const QPointF at(newRoom.left(), newRoom.top() + (alignment & Qt::AlignVCenter ? free / 2 : 0));
    painter.setClipRect(newRoom.intersected(dirty));
    lines->draw(&painter, at, {}, QRectF(dirty));
}

void LongText::forget()
{
    lines.reset();
}

void LongText::layOut()
{
    lines = std::make_unique<QTextLayout>(withBreaks(text), font);
    lines->setCacheEnabled(true);
    QTextOption option(alignment & Qt::AlignHorizontal_Mask);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere); // nobody would see the rest of an endless word
    lines->setTextOption(option);
    height = 0;
    lines->beginLayout();
    while (height < room.height()) {
        QTextLine line = lines->createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(room.width());
        line.setPosition({0, height});
        height += line.height();
    }
    lines->endLayout();
}
} // namespace orvplatform
