#pragma once
// What the container of a picture file tells by itself: whether the file has been cut, and how large a GIF is.

#include <QByteArray>
#include <QSize>

namespace orvplatform
{
// True where the file ends before its picture does. Pixels are not looked at, so a file that is whole may still hold
// none that can be read. `format` is the image reader's name of it; of a format that isn't known here nothing is said.
// Layouts: PNG (ISO/IEC 15948), JPEG (ITU-T T.81), GIF89a, and the Windows bitmap's BITMAPINFOHEADER.
bool breaksOff(const QByteArray& format, const QByteArray& bytes);

// The pixels of a GIF's screen. A side that it doesn't tell (0) reaches to the far edge of the first picture on it.
// Empty where the file holds no picture.
QSize gifSize(const QByteArray& bytes);
} // namespace orvplatform
