#include "platform/qt/Gdi.h"
#include "platform/qt/PictureEnd.h"

#include <QBuffer>
#include <QCache>
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

// The formats of the system's picture class. Drawings and what else the toolkit reads are not among them, nor is a file
// that has been cut: its missing pixels would be made up.
bool isKnownAndWhole(const QByteArray& format, const QByteArray& bytes)
{
    static const QList<QByteArray> known{"bmp", "gif", "ico", "jpeg", "png", "tiff"};
    return known.contains(format) && !breaksOff(format, bytes);
}
} // namespace

QSize pictureSize(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (!isKnownAndWhole(format, bytes))
        return {0, 0};
    // The headers of the other formats may tell less than comes.
    if (format != "jpeg" && format != "png" && format != "bmp")
        return decodePicture(bytes).size();
    // A bitmap that is stored from the top has a negative height.
    const QSize size(reader.size().width(), qAbs(reader.size().height()));
    if (size.isEmpty() || !isInBounds(size))
        return {0, 0};
    return reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed() : size;
}

QImage decodeOnce(const QByteArray& bytes)
{
    constexpr int keptKibibytes = 4096;
    static QCache<QByteArray, QImage> kept(keptKibibytes);
    if (const QImage* known = kept.object(bytes))
        return *known;
    const QImage image = decodePicture(bytes);
    kept.insert(bytes, new QImage(image), static_cast<int>(image.sizeInBytes() / 1024) + 1);
    return image;
}

QImage decodePicture(const QByteArray& bytes)
{
    QImageReader::setAllocationLimit(mebibytes);
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    if (!isKnownAndWhole(reader.format(), bytes) || !isInBounds(reader.size()))
        return {};
    const QImage image = reader.read();
    // Not every format tells beforehand how large its picture is, and some tell less than comes.
    return image.isNull() || !isInBounds(image.size()) ? QImage() : image.convertToFormat(QImage::Format_ARGB32);
}
} // namespace orvplatform
