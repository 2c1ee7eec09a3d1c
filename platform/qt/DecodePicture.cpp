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

QSize pictureSize(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    // The headers of other formats may tell less than comes.
    if (const QByteArray format = reader.format(); format != "jpeg" && format != "png" && format != "bmp")
        return decodePicture(bytes).size();
    const QSize size = reader.size();
    if (size.isEmpty() || !isInBounds(size))
        return {0, 0};
    return reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed() : size;
}

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
