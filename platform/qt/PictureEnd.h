#pragma once
// Whether a picture file has been cut, told by its container alone.

#include <QByteArray>

namespace orvplatform
{
// True where the file ends before its picture does. Pixels are not looked at, so a file that is whole may still hold
// none that can be read. `format` is the image reader's name of it; of a format that isn't known here nothing is said.
// Layouts: PNG (ISO/IEC 15948), JPEG (ITU-T T.81), GIF89a, and the Windows bitmap's BITMAPINFOHEADER.
bool breaksOff(const QByteArray& format, const QByteArray& bytes);
} // namespace orvplatform
