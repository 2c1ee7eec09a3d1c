#include "platform/qt/Gdi.h"

#include "platform/Process.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

#include <memory>
#include <unordered_map>
#include <unordered_set>

namespace orvplatform
{
namespace
{
std::unordered_set<void*>& fonts()
{
    static std::unordered_set<void*> set;
    return set;
}
std::unordered_set<void*>& bitmaps()
{
    static std::unordered_set<void*> set;
    return set;
}
std::unordered_set<void*>& icons()
{
    static std::unordered_set<void*> set;
    return set;
}
} // namespace

QFont dialogFont(const QString& face, int points, bool bold, bool italic)
{
    const QFont system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    const int pixels = qRound(points * logicalDpi() / 72.0);
    // A list asks for the same one thousands of times.
    static struct {
        QFont system;
        QString face;
        int pixels = 0;
        bool bold = false;
        bool italic = false;
        QFont font;
    } last;
    if (last.pixels == pixels && last.bold == bold && last.italic == italic && last.face == face &&
        last.system == system)
        return last.font;
    QFont font = system;
    const bool standIn = face.startsWith(QLatin1String("MS Shell Dlg"), Qt::CaseInsensitive);
    if (!standIn)
        font.setFamily(face);
    font.setPixelSize(std::max(pixels, 1));
    font.setBold(bold);
    font.setItalic(italic);
    // Templates are drawn for a font whose lines are 1.2 times as high as its letters' size.
    if (standIn && QFontMetrics(font).height() > qCeil(pixels * 1.2))
        font.setFamily(QStringLiteral("DejaVu Sans"));
    last = {system, face, pixels, bold, italic, font};
    return font;
}

HFONT sharedFont(const QFont& font)
{
    static QHash<QFont, HFONT> made; // as long as the process
    HFONT& handle = made[font];
    if (!handle) {
        handle = new HFONT__{font, true};
        fonts().insert(handle);
    }
    return handle;
}

SIZE baseUnits(const QFont& font)
{
    // Each dialog asks for them, and a list makes thousands.
    static QHash<QFont, SIZE> measured;
    if (const auto known = measured.constFind(font); known != measured.constEnd())
        return *known;
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    return *measured.insert(font, {(width / 26 + 1) / 2, metrics.height()});
}

void applyFont(HWND window, HFONT font)
{
    if (!isLive(window) || !fonts().contains(font))
        return;
    window->font = font;
    if (!window->unmade)
        window->widget()->setFont(font->font);
}

void renewFont(HWND window)
{
    if (isLive(window) && fonts().contains(window->font))
        window->widget()->setFont(window->font->font);
}

void renewFonts(QWidget* root)
{
    renewFont(existingHandle(root));
    for (QWidget* child : root->findChildren<QWidget*>())
        renewFont(existingHandle(child));
}

namespace
{
HBITMAP addBitmap(QImage image, const QByteArray& encoded, QSize size)
{
    static quint64 count = 0;
    auto* bitmap = new HBITMAP__{std::move(image), encoded, size, ++count};
    bitmaps().insert(bitmap);
    return bitmap;
}
} // namespace

HBITMAP makeBitmap(QImage image)
{
    const QSize size = image.size();
    return addBitmap(std::move(image), {}, size);
}

HBITMAP makeBitmap(const QByteArray& encoded)
{
    const QSize size = pictureSize(encoded);
    return size.isEmpty() ? nullptr : addBitmap({}, encoded, size);
}

HICON makeIcon(QImage image)
{
    auto* icon = new HICON__{std::move(image)};
    icons().insert(icon);
    return icon;
}

QSize sizeOf(HBITMAP bitmap)
{
    return bitmaps().contains(bitmap) ? bitmap->size : QSize(0, 0);
}

QImage imageOf(HBITMAP bitmap)
{
    if (!bitmaps().contains(bitmap))
        return {};
    return bitmap->encoded.isEmpty() ? bitmap->image : decodePicture(bitmap->encoded);
}

QPixmap shownPicture(HBITMAP bitmap, QSize room)
{
    if (!bitmaps().contains(bitmap))
        return {};
    const QString key = QStringLiteral("orvanta-%1-%2x%3").arg(bitmap->number).arg(room.width()).arg(room.height());
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    QImage image = imageOf(bitmap);
    const QSize wanted = image.size().boundedTo(room);
    if (!image.isNull() && wanted != image.size() && !wanted.isEmpty())
        image = image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture = QPixmap::fromImage(image);
    if (!picture.isNull())
        QPixmapCache::insert(key, picture);
    return picture;
}

QImage imageOf(HICON icon)
{
    return icons().contains(icon) ? icon->image : QImage();
}

std::vector<QImage> cutPictures(const QImage& image, QSize size, COLORREF mask)
{
    QImage source = image.convertToFormat(QImage::Format_ARGB32);
    if (source.isNull() || size.isEmpty())
        return {};
    if (mask != CLR_NONE) {
        const QRgb transparent = qRgb(GetRValue(mask), GetGValue(mask), GetBValue(mask));
        for (int y = 0; y < source.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(source.scanLine(y));
            for (int x = 0; x < source.width(); ++x)
                if (line[x] == transparent)
                    line[x] = 0;
        }
    }
    std::vector<QImage> pictures;
    if (source.height() == size.height() && source.width() % size.width() == 0) {
        for (int x = 0; x < source.width(); x += size.width())
            pictures.push_back(source.copy(QRect(QPoint(x, 0), size)));
    } else {
        pictures.push_back(source);
    }
    return pictures;
}
} // namespace orvplatform

using namespace orvplatform;

BOOL GetTextExtentPoint32W(HDC context, LPCWSTR text, int count, LPSIZE size)
{
    if (!context || !text || !size || count < 0)
        return FALSE;
    QString line = QString::fromWCharArray(text, count);
    for (QChar& character : line)
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    const QFontMetrics metrics(context->font->font);
    *size = {metrics.horizontalAdvance(line), metrics.height()};
    return TRUE;
}

BOOL GetTextMetricsW(HDC context, TEXTMETRICW* result)
{
    if (!context || !result)
        return FALSE;
    const QFontMetrics metrics(context->font->font);
    *result = {metrics.height(), metrics.ascent(), metrics.descent(), baseUnits(context->font->font).cx};
    return TRUE;
}

int GetDeviceCaps(HDC, int index)
{
    return index == LOGPIXELSX || index == LOGPIXELSY ? static_cast<int>(logicalDpi()) : 0;
}

HGDIOBJ SelectObject(HDC context, HGDIOBJ font)
{
    if (!context || !fonts().contains(font))
        return nullptr;
    return std::exchange(context->font, static_cast<HFONT>(font));
}

HDC GetDC(HWND)
{
    return new HDC__{sharedFont(dialogFont())};
}

int ReleaseDC(HWND, HDC context)
{
    delete context;
    return context != nullptr;
}

HFONT CreateFontIndirectW(const LOGFONTW* description)
{
    if (!description)
        return nullptr;
    QFont font = dialogFont(QString::fromWCharArray(description->lfFaceName));
    if (const int height = std::abs(description->lfHeight))
        font.setPixelSize(height);
    font.setBold(description->lfWeight >= FW_BOLD);
    font.setItalic(description->lfItalic != 0);
    font.setUnderline(description->lfUnderline != 0);
    auto* handle = new HFONT__{font, false};
    fonts().insert(handle);
    return handle;
}

int GetObjectW(HGDIOBJ object, int size, LPVOID result)
{
    if (!result)
        return 0;
    if (bitmaps().contains(object) && size >= static_cast<int>(sizeof(BITMAP))) {
        const auto* bitmap = static_cast<HBITMAP>(object);
        constexpr int encodedDepth = 32; // of what decodePicture gives
        const int depth = bitmap->encoded.isEmpty() ? bitmap->image.depth() : encodedDepth;
        const int line = (bitmap->size.width() * depth + 31) / 32 * 4;
        *static_cast<BITMAP*>(result) = {
            0, bitmap->size.width(), bitmap->size.height(), line, 1, static_cast<WORD>(depth), nullptr};
        return static_cast<int>(sizeof(BITMAP));
    }
    if (fonts().contains(object) && size >= static_cast<int>(sizeof(LOGFONTW))) {
        const QFont& font = static_cast<HFONT>(object)->font;
        LOGFONTW description{};
        description.lfHeight = -QFontInfo(font).pixelSize();
        description.lfWeight = font.bold() ? FW_BOLD : FW_NORMAL;
        description.lfItalic = font.italic();
        description.lfUnderline = font.underline();
        const std::wstring face = font.family().toStdWString().substr(0, LF_FACESIZE - 1);
        std::copy(face.begin(), face.end(), description.lfFaceName);
        *static_cast<LOGFONTW*>(result) = description;
        return static_cast<int>(sizeof(LOGFONTW));
    }
    return 0;
}

BOOL DeleteObject(HGDIOBJ object)
{
    if (bitmaps().erase(object)) {
        delete static_cast<HBITMAP>(object);
        return TRUE;
    }
    if (fonts().contains(object) && !static_cast<HFONT>(object)->shared) {
        fonts().erase(object);
        delete static_cast<HFONT>(object);
        return TRUE;
    }
    return FALSE;
}

HICON CopyIcon(HICON icon)
{
    return icons().contains(icon) ? orvplatform::makeIcon(icon->image) : nullptr;
}

BOOL DestroyIcon(HICON icon)
{
    if (!icons().erase(icon))
        return FALSE;
    delete icon;
    return TRUE;
}
