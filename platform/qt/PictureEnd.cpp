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

// The first picture counts; others that follow it are never shown.
bool gifBreaksOff(const QByteArray& bytes)
{
    constexpr quint8 extension = 0x21;
    constexpr quint8 picture = 0x2C;
    const auto skipColours = [](Cursor& cursor, quint8 flags) {
        if (flags & 0x80)
            cursor.skip(qsizetype{3} << ((flags & 7) + 1));
    };
    const auto skipParts = [](Cursor& cursor) {
        while (const quint8 length = cursor.byte())
            cursor.skip(length);
    };
    constexpr qsizetype screenFlags = 10;
    Cursor blocks(bytes, screenFlags);
    const quint8 flags = blocks.byte();
    blocks.skip(2);
    skipColours(blocks, flags);
    while (!blocks.isAtEnd()) {
        const quint8 kind = blocks.byte();
        if (kind == extension) {
            blocks.skip(1);
            skipParts(blocks);
        } else if (kind == picture) {
            constexpr qsizetype placeAndSize = 8;
            blocks.skip(placeAndSize);
            skipColours(blocks, blocks.byte());
            constexpr qsizetype codeSize = 1;
            blocks.skip(codeSize);
            skipParts(blocks);
            return blocks.isBehindEnd();
        } else {
            return false; // not as it should be; that is the decoder's to judge
        }
    }
    return true;
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
} // namespace orvplatform
