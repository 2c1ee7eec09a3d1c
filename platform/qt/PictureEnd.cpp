#include "platform/qt/PictureEnd.h"

#include <QtEndian>

namespace orvplatform
{
namespace
{
// Reads whole numbers from front to back; past the end they are zero.
class Cursor
{
public:
    Cursor(const QByteArray& all, qsizetype start) : bytes(all), at(start) {}

    bool isBehindEnd() const { return at > bytes.size(); }
    bool isAtEnd() const { return at >= bytes.size(); }
    qsizetype position() const { return at; }
    void skip(qsizetype count) { at += count; }
    quint8 byte()
    {
        const quint8 value = isAtEnd() ? quint8{0} : static_cast<quint8>(bytes[at]);
        ++at;
        return value;
    }
    quint32 bigEndian(int count)
    {
        quint32 value = 0;
        for (int i = 0; i < count; ++i)
            value = value << 8 | byte();
        return value;
    }
    qint64 littleEndian(int count)
    {
        quint32 value = 0;
        for (int i = 0; i < count; ++i)
            value |= static_cast<quint32>(byte()) << (8 * i);
        return count == 4 ? static_cast<qint32>(value) : static_cast<qint64>(value);
    }

private:
    const QByteArray& bytes;
    qsizetype at;
};

bool pngBreaksOff(const QByteArray& bytes)
{
    constexpr qsizetype signature = 8;
    constexpr qsizetype checksum = 4;
    constexpr quint32 end = 0x49454E44; // "IEND"
    Cursor chunks(bytes, signature);
    while (!chunks.isAtEnd()) {
        const qsizetype length = chunks.bigEndian(4);
        const quint32 type = chunks.bigEndian(4);
        chunks.skip(length + checksum);
        if (type == end)
            return chunks.isBehindEnd();
    }
    return true;
}

bool jpegBreaksOff(const QByteArray& bytes)
{
    constexpr quint8 mark = 0xFF;
    constexpr quint8 startOfScan = 0xDA;
    constexpr qsizetype startOfImage = 2;
    Cursor segments(bytes, startOfImage);
    while (!segments.isAtEnd()) {
        if (segments.byte() != mark)
            return false; // not as it should be; that is the decoder's to judge
        quint8 kind = segments.byte();
        while (kind == mark) // any number of them may fill the room between two segments
            kind = segments.byte();
        if (kind == startOfScan) // an end within a segment before it would be that of a preview
            return bytes.lastIndexOf("\xFF\xD9") < segments.position();
        segments.skip(static_cast<qsizetype>(segments.bigEndian(2)) - 2);
    }
    return true;
}

void skipGifColours(Cursor& cursor, quint8 flags)
{
    if (flags & 0x80)
        cursor.skip(qsizetype{3} << ((flags & 7) + 1));
}

void skipGifParts(Cursor& cursor)
{
    while (const quint8 length = cursor.byte())
        cursor.skip(length);
}

enum class GifBlock { picture, none, foreign };

// Puts the cursor behind the mark of the first picture. It alone counts; others that follow it are never shown.
GifBlock goToGifPicture(Cursor& blocks)
{
    constexpr quint8 extension = 0x21;
    constexpr quint8 picture = 0x2C;
    constexpr qsizetype screenFlags = 10;
    blocks.skip(screenFlags);
    const quint8 flags = blocks.byte();
    blocks.skip(2);
    skipGifColours(blocks, flags);
    while (!blocks.isAtEnd()) {
        const quint8 kind = blocks.byte();
        if (kind == picture)
            return GifBlock::picture;
        if (kind != extension)
            return GifBlock::foreign;
        blocks.skip(1);
        skipGifParts(blocks);
    }
    return GifBlock::none;
}

bool gifBreaksOff(const QByteArray& bytes)
{
    Cursor blocks(bytes, 0);
    const GifBlock first = goToGifPicture(blocks);
    if (first != GifBlock::picture)
        return first == GifBlock::none; // a foreign block is not as it should be; that is the decoder's to judge
    constexpr qsizetype placeAndSize = 8;
    blocks.skip(placeAndSize);
    skipGifColours(blocks, blocks.byte());
    constexpr qsizetype codeSize = 1;
    blocks.skip(codeSize);
    skipGifParts(blocks);
    return blocks.isBehindEnd();
}

bool bmpBreaksOff(const QByteArray& bytes)
{
    constexpr qsizetype offsetOfPixels = 10;
    Cursor header(bytes, offsetOfPixels);
    const qint64 pixels = header.littleEndian(4);
    constexpr qint64 oldHeader = 12; // of 16-bit sizes
    const bool isOld = header.littleEndian(4) == oldHeader;
    const qint64 width = header.littleEndian(isOld ? 2 : 4);
    const qint64 height = header.littleEndian(isOld ? 2 : 4);
    header.skip(2);
    const qint64 bits = header.littleEndian(2);
    const qint64 packing = isOld ? 0 : header.littleEndian(4);
    constexpr qint64 plain = 0;
    constexpr qint64 masked = 3;
    if (packing != plain && packing != masked)
        return false; // how long packed lines are shows only when they are unpacked
    const qint64 line = (width * bits + 31) / 32 * 4;
    const qint64 room = bytes.size() - pixels;
    return room < 0 || (line > 0 && qAbs(height) > room / line); // the product may be beyond 64 bits
}
} // namespace

bool breaksOff(const QByteArray& format, const QByteArray& bytes)
{
    if (format == "png")
        return pngBreaksOff(bytes);
    if (format == "jpeg")
        return jpegBreaksOff(bytes);
    if (format == "gif")
        return gifBreaksOff(bytes);
    return format == "bmp" && bmpBreaksOff(bytes);
}

QSize gifSize(const QByteArray& bytes)
{
    constexpr qsizetype screenSize = 6;
    Cursor screen(bytes, screenSize);
    QSize size;
    size.setWidth(static_cast<int>(screen.littleEndian(2)));
    size.setHeight(static_cast<int>(screen.littleEndian(2)));
    Cursor picture(bytes, 0);
    if (goToGifPicture(picture) != GifBlock::picture)
        return {0, 0};
    const auto left = static_cast<int>(picture.littleEndian(2));
    const auto top = static_cast<int>(picture.littleEndian(2));
    const auto width = static_cast<int>(picture.littleEndian(2));
    const auto height = static_cast<int>(picture.littleEndian(2));
    return {size.width() > 0 ? size.width() : left + width, size.height() > 0 ? size.height() : top + height};
}
} // namespace orvplatform
