#pragma once
// What the handles of fonts, pictures, device contexts and image lists point to.

#include "commctrl.h"
#include "wingdi.h"

#include <QByteArray>
#include <QFont>
#include <QImage>
#include <QPixmap>
#include <QSize>

#include <vector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

struct HFONT__ {
    QFont font;
    bool shared = false; // the system's own: DeleteObject leaves it
};
// Its pixels, or the file's bytes that they are decoded from each time that they are asked for.
struct HBITMAP__ {
    QImage image;
    QByteArray encoded;
    QSize size;
    quint64 number = 0; // never given twice
};
struct HICON__ {
    QImage image;
};
struct HDC__ {
    HFONT font;
};
struct _IMAGELIST {
    QSize size;
    std::vector<QImage> pictures;
};

namespace orvplatform
{
// The font that stands in for a dialog template's. "MS Shell Dlg" becomes the system's own font unless that is too tall
// for the rows that templates are laid out in.
QFont dialogFont(const QString& face = QStringLiteral("MS Shell Dlg"), int points = 8, bool bold = false,
                 bool italic = false);
HFONT sharedFont(const QFont& font);
// Base units of a font, after the documented rule: mean width of the 52 letters, and height.
SIZE baseUnits(const QFont& font);
void applyFont(HWND window, HFONT font);
// Gives a window its font again, and a widget and what stands in it their windows' fonts again, which a change of style
// or parent takes away.
void renewFont(HWND window);
void renewFonts(QWidget* root);

HBITMAP makeBitmap(QImage image);
// A picture of which the header alone is read for now. Null where pictureSize refuses it.
HBITMAP makeBitmap(const QByteArray& encoded);
HICON makeIcon(QImage image);
QSize sizeOf(HBITMAP bitmap);   // (0, 0) for a bad handle
QImage imageOf(HBITMAP bitmap); // empty for a bad handle, and for a picture that breaks off behind its header
// For drawing in that room: no larger than needed there, and kept among those that were drawn last.
QPixmap shownPicture(HBITMAP bitmap, QSize room);
QImage imageOf(HICON icon);

// Decodes BMP, GIF, ICO, JPEG, PNG and TIFF; of several pictures in a file the first, and none is turned. Empty when it
// is none of them, the file has been cut, a side is over 16384 pixels, it needs more than 64 MiB, or its pixels come in
// another size than its header tells.
QImage decodePicture(const QByteArray& bytes);
// The same for pictures that are asked for again and again, as a program's own are: decoded once while there is room.
QImage decodeOnce(const QByteArray& bytes);
// The size of what decodePicture gives, by the header alone; empty where the picture is refused for what stands there.
QSize pictureSize(const QByteArray& bytes);

// Cuts a row of pictures of one size; an image that is no such row is one picture. `mask` becomes transparent.
std::vector<QImage> cutPictures(const QImage& image, QSize size, COLORREF mask = CLR_NONE);
} // namespace orvplatform
