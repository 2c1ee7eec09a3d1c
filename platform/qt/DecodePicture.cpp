#include "platform/qt/Gdi.h"

#include <QBuffer>
#include <QImageReader>

namespace orvplatform
{
namespace
{
constexpr int longestSide = 16384; // pixels
constexpr int mebibytes = 64;

bool isInBounds(QSize size)
{
    return size.width() <= longestSide && size.height() <= longestSide &&
           qint64{4} * size.width() * size.height() <= qint64{mebibytes} * 1024 * 1024;
}
} // namespace

QImage decodePicture(const QByteArray& bytes)
{
    QImageReader::setAllocationLimit(mebibytes);
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    if (!isInBounds(reader.size()))
        return {};
    const QImage image = reader.read();
    // Not every format tells beforehand how large its picture is, and some tell less than comes.
    return image.isNull() || !isInBounds(image.size()) ? QImage() : image.convertToFormat(QImage::Format_ARGB32);
}
} // namespace orvplatform
