#pragma once
// Picture files as a test needs them: good ones, and such as say one thing and hold another.

#include "support/LittleEndian.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPoint>
#include <QSize>

#include <string>

namespace orvtest
{

/// The picture as a file of that format.
inline std::string encoded(const QImage& image, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    if (format == std::string("TIFF"))
        writer.setCompression(1); // packed: what is spoilt can't be unpacked
    EXPECT_TRUE(writer.write(image)) << format;
    return buffer.data().toStdString();
}

inline std::string twoBytes(int value)
{
    return littleEndian(static_cast<std::size_t>(value), 2);
}

/// A GIF of one picture of 2 by 2 pixels on a screen. `codeSize` above 12 makes its pixels unreadable.
inline std::string gifFile(QSize screen, QPoint place = {}, char codeSize = 2)
{
    return "GIF89a" + twoBytes(screen.width()) + twoBytes(screen.height()) +
           std::string("\x80\0\0\0\0\0\xFF\xFF\xFF,", 10) + twoBytes(place.x()) + twoBytes(place.y()) + twoBytes(2) +
           twoBytes(2) + std::string(1, '\0') + codeSize + std::string("\x03\x44\x34\x05\0;", 6);
}

/// A file of one icon, which is that PNG and is said to be of that size.
inline std::string iconFile(const std::string& png, QSize told)
{
    const std::string size{static_cast<char>(told.width()), static_cast<char>(told.height())};
    const std::size_t directory = 22;
    return twoBytes(0) + twoBytes(1) + twoBytes(1) + size + twoBytes(0) + twoBytes(1) + twoBytes(32) +
           littleEndian(png.size(), 4) + littleEndian(directory, 4) + png;
}

/// Says how a camera was held: 6 is a quarter turn.
inline std::string withOrientation(std::string jpeg, char orientation)
{
    const std::string directory =
        std::string("MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0", 19) + orientation + std::string(6, '\0');
    const std::string segment = std::string("Exif\0\0", 6) + directory;
    const auto length = static_cast<char>(segment.size() + 2);
    return jpeg.insert(2, std::string("\xFF\xE1\0", 3) + length + segment);
}

/// The file without its tables of that kind, so that no pixel can be read.
inline std::string withoutSegments(std::string jpeg, char kind)
{
    const std::string mark{'\xFF', kind};
    for (std::size_t at = jpeg.find(mark); at != std::string::npos; at = jpeg.find(mark)) {
        const auto high = static_cast<unsigned char>(jpeg[at + 2]);
        const auto low = static_cast<unsigned char>(jpeg[at + 3]);
        jpeg.erase(at, 2U + (high << 8U | low));
    }
    return jpeg;
}

} // namespace orvtest
