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

bool isKnown(const QByteArray& format)
{
    // Those of the system's picture class. Drawings and what else the toolkit reads are not among them.
    static const QList<QByteArray> known{"bmp", "gif", "ico", "jpeg", "png", "tiff"};
    return known.contains(format);
}

// By the header alone, pixels as they are stored: a camera that was held upright turns nothing. Empty where the picture
// is refused, as a file is that has been cut: its missing pixels would be made up.
QSize announcedSize(QImageReader& reader, const QByteArray& bytes)
{
    const QByteArray format = reader.format();
    if (!isKnown(format) || breaksOff(format, bytes))
        return {0, 0};
    // The reader doubts a large screen of a GIF and makes it all the same.
    const QSize told = format == "gif" ? gifSize(bytes) : reader.size();
    // A bitmap that is stored from the top has a negative height.
    const QSize size(told.width(), qAbs(told.height()));
    return size.isEmpty() || !isInBounds(size) ? QSize(0, 0) : size;
}
} // namespace

QSize pictureSize(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return announcedSize(reader, bytes);
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
    reader.setAutoTransform(false);
    const QSize size = announcedSize(reader, bytes);
    if (size.isEmpty())
        return {};
    const QImage image = reader.read();
    // Room has been made for what the header tells; pixels of another size are not those of this picture.
    return image.isNull() || image.size() != size ? QImage() : image.convertToFormat(QImage::Format_ARGB32);
}
} // namespace orvplatform
