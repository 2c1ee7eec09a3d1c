#include "Form.h"

#include "atlimage.h"
#include "platform/Process.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Native.h"
#include "support/PictureFiles.h"

#include <QBuffer>
#include <QImageReader>
#include <QPixmap>
#include <QSize>

#include <cstring>
#include <map>
#include <utility>
#include <vector>

using namespace orvtest;

namespace
{
class Picture : public ::testing::Test
{
protected:
    Picture() { registerTestResources(); }

    static HRESULT load(CImage& image, const std::string& bytes)
    {
        HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        if (!bytes.empty())
            std::memcpy(GlobalLock(block), bytes.data(), bytes.size());
        IStream* stream = nullptr;
        CreateStreamOnHGlobal(block, FALSE, &stream);
        const HRESULT result = image.Load(stream);
        stream->Release();
        GlobalFree(block);
        return result;
    }
    static std::string resource(int id)
    {
        HMODULE module = GetModuleHandleW(L"test.dll");
        HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(id), L"PNG");
        return {static_cast<const char*>(LockResource(LoadResource(module, found))), SizeofResource(module, found)};
    }
    static QSize sizeOf(const CImage& image) { return {image.GetWidth(), image.GetHeight()}; }
    static QImage pixelsOf(const CImage& image) { return orvplatform::pixmapOf(static_cast<HBITMAP>(image)).toImage(); }
};
} // namespace

TEST_F(Picture, IsReadFromAStream)
{
    CImage image;
    EXPECT_TRUE(image.IsNull());
    EXPECT_EQ(image.GetWidth(), 0);
    ASSERT_EQ(load(image, resource(5)), S_OK);
    EXPECT_EQ(image.GetWidth(), 48);
    EXPECT_EQ(image.GetHeight(), 24);
    HBITMAP bitmap = image.Detach();
    EXPECT_TRUE(image.IsNull());
    BITMAP description{};
    EXPECT_GT(GetObjectW(bitmap, sizeof description, &description), 0);
    EXPECT_EQ(description.bmWidth, 48);
    EXPECT_TRUE(DeleteObject(bitmap));
    EXPECT_FALSE(DeleteObject(bitmap));
}

TEST_F(Picture, IsDecodedWhenItIsAboutToBeSeen)
{
    const std::string whole = resource(5);
    std::string unreadable = whole;
    const std::size_t pixels = whole.find("IDAT") + 4;
    unreadable.replace(pixels, 8, 8, '\xff');
    CImage image;
    // Its header and its end are there, its pixels are none: the size is known and nothing shows.
    ASSERT_EQ(load(image, unreadable), S_OK);
    EXPECT_EQ(image.GetWidth(), 48);
    EXPECT_EQ(image.GetHeight(), 24);
    EXPECT_TRUE(orvplatform::pixmapOf(static_cast<HBITMAP>(image)).isNull());
    ASSERT_EQ(load(image, whole), S_OK);
    EXPECT_EQ(orvplatform::pixmapOf(static_cast<HBITMAP>(image)).size(), QSize(48, 24));
    BITMAP description{};
    EXPECT_GT(GetObjectW(image, sizeof description, &description), 0);
    EXPECT_EQ(description.bmHeight, 24);
    EXPECT_EQ(description.bmBitsPixel, 32);
}

TEST_F(Picture, OfWhicheverFormatIsMeasuredByItsHeaderAlone)
{
    QImage source(36, 18, QImage::Format_RGB32);
    source.fill(Qt::darkCyan);
    constexpr char quantizationTables = '\xDB';
    std::string icon = encoded(source, "ICO");
    constexpr std::size_t bitsOfIcon = 22 + 14; // of a pixel, in the header behind the directory
    icon[bitsOfIcon] = 7;
    std::string tiff = encoded(source, "TIFF");
    constexpr std::size_t firstStrip = 8;
    tiff.replace(firstStrip, 40, 40, '\xFF');
    const std::map<std::string, std::string> files{
        {"JPEG", withoutSegments(encoded(source, "JPEG"), quantizationTables)},
        {"ICO", icon},
        {"TIFF", tiff},
        {"GIF", gifFile(QSize(36, 18), {}, 13)}};
    for (const auto& [format, unreadable] : files) {
        CImage image;
        ASSERT_EQ(load(image, unreadable), S_OK) << format;
        EXPECT_EQ(sizeOf(image), QSize(36, 18)) << format;
        EXPECT_TRUE(pixelsOf(image).isNull()) << format;
    }
    for (const char* format : {"JPEG", "ICO", "TIFF", "BMP", "PNG"}) {
        CImage image;
        ASSERT_EQ(load(image, encoded(source, format)), S_OK) << format;
        EXPECT_EQ(sizeOf(image), QSize(36, 18)) << format;
        EXPECT_EQ(pixelsOf(image).size(), QSize(36, 18)) << format;
    }
}

TEST_F(Picture, OfAGifIsAsLargeAsItsScreen)
{
    struct {
        QSize screen;
        QPoint place; // of the picture on it
        QSize size;
    } const cases[] = {{{2, 2}, {0, 0}, {2, 2}},       {{10, 7}, {3, 3}, {10, 7}},    {{0, 0}, {0, 0}, {2, 2}},
                       {{0, 0}, {3, 5}, {5, 7}},       {{9, 0}, {3, 5}, {9, 7}},      {{0, 9}, {3, 5}, {5, 9}},
                       {{3000, 2}, {0, 0}, {3000, 2}}, {{2, 3000}, {0, 0}, {2, 3000}}};
    for (const auto& [screen, place, size] : cases) {
        CImage image;
        ASSERT_EQ(load(image, gifFile(screen, place)), S_OK);
        EXPECT_EQ(sizeOf(image), size);
        EXPECT_EQ(pixelsOf(image).size(), size) << "as it is drawn";
    }
}

TEST_F(Picture, IsNotShownWhereItsPixelsComeInAnotherSize)
{
    QImage source(36, 18, QImage::Format_RGB32);
    source.fill(Qt::darkCyan);
    const std::string png = encoded(source, "PNG");
    CImage image;
    ASSERT_EQ(load(image, iconFile(png, QSize(36, 18))), S_OK);
    EXPECT_EQ(pixelsOf(image).size(), QSize(36, 18));
    ASSERT_EQ(load(image, iconFile(png, QSize(48, 18))), S_OK);
    EXPECT_EQ(sizeOf(image), QSize(48, 18));
    EXPECT_TRUE(pixelsOf(image).isNull());
}

TEST_F(Picture, IsNotTurnedAsItsCameraWasHeld)
{
    QImage source(360, 180, QImage::Format_RGB32);
    source.fill(Qt::blue);
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width() / 2; ++x)
            source.setPixelColor(x, y, Qt::red);
    for (const char orientation : {'\1', '\3', '\6', '\x8'}) {
        const std::string bytes = withOrientation(encoded(source, "JPEG"), orientation);
        QByteArray data = QByteArray::fromStdString(bytes);
        QBuffer buffer(&data);
        const QImageReader reader(&buffer);
        ASSERT_EQ(reader.transformation() != QImageIOHandler::TransformationNone, orientation != 1);
        CImage image;
        ASSERT_EQ(load(image, bytes), S_OK);
        EXPECT_EQ(sizeOf(image), QSize(360, 180));
        const QImage shown = pixelsOf(image);
        ASSERT_EQ(shown.size(), QSize(360, 180));
        EXPECT_GT(shown.pixelColor(90, 90).red(), 200) << "the left half";
        EXPECT_GT(shown.pixelColor(270, 90).blue(), 200) << "the right half";
    }
}

TEST_F(Picture, IsDrawnNoLargerThanItsRoomNeeds)
{
    CImage image;
    ASSERT_EQ(load(image, resource(5)), S_OK);
    HBITMAP bitmap = image;
    EXPECT_EQ(orvplatform::shownPicture(bitmap, QSize(24, 12)).size(), QSize(24, 12));
    EXPECT_EQ(orvplatform::shownPicture(bitmap, QSize(480, 240)).size(), QSize(48, 24));
    image.Destroy();
    EXPECT_TRUE(orvplatform::shownPicture(bitmap, QSize(24, 12)).isNull()); // the handle is bad by now
}

TEST_F(Picture, IsRefusedWhenBroken)
{
    const std::string whole = resource(5);
    CImage image;
    for (const std::string& bytes : {std::string(), std::string("no picture"), whole.substr(0, 30)}) {
        EXPECT_EQ(load(image, bytes), E_FAIL);
        EXPECT_TRUE(image.IsNull());
    }
    EXPECT_EQ(image.Load(static_cast<IStream*>(nullptr)), E_INVALIDARG);
    EXPECT_EQ(image.Load(L"/no/such/file.png"), E_FAIL);
}

TEST_F(Picture, IsRefusedWhereverItsFileHasBeenCut)
{
    QImage source(12, 9, QImage::Format_RGB32);
    source.fill(Qt::darkCyan);
    source.setPixelColor(5, 5, Qt::red);
    std::map<std::string, std::string> files;
    for (const char* format : {"PNG", "JPEG", "BMP"})
        files[format] = encoded(source, format);
    // One with a table of colours, an extension and a picture of 2 by 2 pixels.
    files["GIF"] = std::string("GIF89a\x02\x00\x02\x00\x80\x00\x00\x00\x00\x00\xFF\xFF\xFF"
                               "\x21\xF9\x04\x00\x00\x00\x00\x00"
                               "\x2C\x00\x00\x00\x00\x02\x00\x02\x00\x00\x02\x03\x44\x34\x05\x00\x3B",
                               44);
    for (const auto& [format, whole] : files) {
        CImage image;
        ASSERT_EQ(load(image, whole), S_OK) << format;
        EXPECT_EQ(load(image, whole + "behind its end"), S_OK) << format;
        EXPECT_FALSE(orvplatform::pixmapOf(static_cast<HBITMAP>(image)).isNull()) << format;
        const std::size_t afterPicture = format == "GIF" ? 1 : 0; // its last byte only says that no other follows
        for (std::size_t length = 0; length < whole.size() - afterPicture; ++length)
            EXPECT_EQ(load(image, whole.substr(0, length)), E_FAIL) << format << " cut to " << length;
    }
}

TEST_F(Picture, IsNotWhatElseTheToolkitReads)
{
    CImage image;
    EXPECT_EQ(load(image, "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' height='9'/>"
                          "</svg>"),
              E_FAIL);
    EXPECT_EQ(load(image, "P6 1 1 255\nabc"), E_FAIL);
    EXPECT_EQ(load(image, std::string("PK\x03\x04\x14\x00\x00\x00", 8) + std::string(100, 'x')), E_FAIL);
}

TEST_F(Picture, ThatCannotBeReadIsReportedToItsDialogOnce)
{
    class Listener : public CWnd
    {
    public:
        std::vector<std::pair<WPARAM, LPARAM>> reports;
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            if (message == RegisterWindowMessageW(L"OrvPictureUnreadable"))
                reports.emplace_back(wParam, lParam);
            return CWnd::OnWndMsg(message, wParam, lParam, result);
        }
    };
    Listener window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0));
    CStatic picture;
    ASSERT_TRUE(picture.Create(L"", WS_CHILD | WS_VISIBLE | SS_BITMAP, CRect(0, 0, 48, 24), &window, 7));
    std::string unreadable = resource(5);
    unreadable.replace(unreadable.find("IDAT") + 4, 8, 8, '\xff');
    CImage image;
    ASSERT_EQ(load(image, unreadable), S_OK);
    HBITMAP bitmap = image.Detach();
    picture.SetBitmap(bitmap);
    orvplatform::testing::processEvents();
    EXPECT_TRUE(window.reports.empty()) << "nobody has looked at it yet";
    window.ShowWindow(SW_SHOW);
    for (int i = 0; i < 2; ++i) {
        picture.Invalidate();
        orvplatform::testing::processEvents();
    }
    const std::vector<std::pair<WPARAM, LPARAM>> expected{{7, reinterpret_cast<LPARAM>(bitmap)}};
    EXPECT_EQ(window.reports, expected);
    ASSERT_EQ(load(image, resource(5)), S_OK);
    DeleteObject(picture.SetBitmap(image.Detach()));
    orvplatform::testing::processEvents();
    EXPECT_EQ(window.reports, expected) << "this one can be read";
}

TEST_F(Picture, IsRefusedWhenItsHeaderAsksForTooMuch)
{
    // A PNG that says it is 30000 pixels square: 3.6 GB.
    std::string bytes = resource(5);
    for (const std::size_t at : {std::size_t{16}, std::size_t{20}})
        bytes.replace(at, 4, std::string("\x00\x00\x75\x30", 4));
    CImage image;
    EXPECT_EQ(load(image, bytes), E_FAIL);
}

TEST_F(Picture, IsShownAlsoWhereABitmapIsStoredFromTheTop)
{
    // One pixel wide and two high, 24 bits each; the height is negative.
    std::string bmp("BM\x3E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x01\0\0\0\xFE\xFF\xFF\xFF\x01\0\x18\0", 30);
    bmp.append(24, '\0').append(8, '\x40');
    CImage image;
    ASSERT_EQ(load(image, bmp), S_OK);
    EXPECT_EQ(image.GetWidth(), 1);
    EXPECT_EQ(image.GetHeight(), 2);
    EXPECT_EQ(orvplatform::pixmapOf(static_cast<HBITMAP>(image)).size(), QSize(1, 2));
    // Lines and heights whose product no number holds.
    bmp.replace(18, 8, "\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x7F");
    bmp.replace(28, 2, "\xFF\xFF");
    EXPECT_EQ(load(image, bmp), E_FAIL);
}

TEST_F(Picture, IsRefusedWhenItIsLargerThanItsHeaderSays)
{
    // The reader says 2 by 2 pixels and makes a picture 16386 pixels high. Found by fuzzing.
    CImage image;
    EXPECT_EQ(load(image, gifFile(QSize(2, 16386))), E_FAIL);
    EXPECT_EQ(load(image, gifFile(QSize(2, 2))), S_OK) << "of its announced size it is a picture";
}

TEST_F(Picture, ComesFromAPngResource)
{
    CPngImage image;
    EXPECT_TRUE(image.Load(6));
    BITMAP description{};
    image.GetBitmap(&description);
    EXPECT_EQ(description.bmWidth, 20);
    EXPECT_FALSE(image.Load(8)); // not a PNG in spite of its type; the earlier picture stays
    EXPECT_NE(image.m_hObject, nullptr);
    EXPECT_FALSE(image.Load(9999));
}

TEST_F(Picture, OfAResourceIsDecodedOnce)
{
    CPngImage first;
    CPngImage second;
    CPngImage other;
    ASSERT_TRUE(first.Load(6) && second.Load(6) && other.Load(5));
    const auto pixelsOf = [](const CPngImage& image) {
        return orvplatform::imageOf(static_cast<HBITMAP>(image.m_hObject)).constBits();
    };
    EXPECT_EQ(pixelsOf(first), pixelsOf(second)) << "both share their pixels";
    EXPECT_NE(pixelsOf(first), pixelsOf(other));
}

TEST_F(Picture, IsCutIntoAList)
{
    CImageList list;
    ASSERT_TRUE(list.Create(24, 24, ILC_COLOR32 | ILC_MASK, 1, 1));
    EXPECT_EQ(list.GetImageCount(), 0);
    CPngImage row;
    row.Load(5);
    EXPECT_EQ(list.Add(&row, RGB(255, 0, 255)), 0);
    EXPECT_EQ(list.GetImageCount(), 2);
    CPngImage single;
    single.Load(6); // of another size: one picture
    EXPECT_EQ(ImageList_AddMasked(list, single, RGB(255, 0, 255)), 2);
    HICON icon = list.ExtractIcon(1);
    EXPECT_NE(icon, nullptr);
    EXPECT_TRUE(DestroyIcon(icon));
    EXPECT_FALSE(DestroyIcon(icon));
    EXPECT_EQ(list.ExtractIcon(3), nullptr);
    EXPECT_EQ(list.Add(static_cast<CBitmap*>(nullptr), 0u), -1);
    HIMAGELIST detached = list.Detach();
    EXPECT_EQ(list.GetImageCount(), 0);
    EXPECT_EQ(ImageList_GetImageCount(detached), 3);
    EXPECT_TRUE(ImageList_Destroy(detached));
    EXPECT_EQ(ImageList_GetImageCount(detached), 0);
}

TEST_F(Picture, IsChosenFromAnIconGroupBySize)
{
    HMODULE module = GetModuleHandleW(L"test.dll");
    for (const int size : {16, 32, 24, 64}) {
        auto* icon = static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(7), IMAGE_ICON, size, size, 0));
        ASSERT_NE(icon, nullptr);
        CImageList list;
        list.Create(size, size, ILC_COLOR32, 0, 1);
        EXPECT_EQ(list.Add(icon), 0);
        DestroyIcon(icon);
    }
    EXPECT_NE(LoadIconW(module, MAKEINTRESOURCEW(7)), nullptr);
    EXPECT_EQ(LoadIconW(module, MAKEINTRESOURCEW(7)), LoadIconW(module, MAKEINTRESOURCEW(7)));
    EXPECT_EQ(LoadIconW(module, MAKEINTRESOURCEW(70)), nullptr);
    EXPECT_EQ(LoadImageW(module, MAKEINTRESOURCEW(7), IMAGE_BITMAP, 16, 16, 0), nullptr);
}

TEST_F(Picture, GrowsAListForRibbons)
{
    CMFCToolBarImages images;
    images.SetImageSize(CSize(24, 24));
    EXPECT_TRUE(images.Load(5));
    EXPECT_EQ(images.GetCount(), 2);
    EXPECT_TRUE(images.Load(6, nullptr, TRUE));
    EXPECT_EQ(images.GetCount(), 3);
    EXPECT_FALSE(images.Load(9999, nullptr, TRUE));
    EXPECT_EQ(images.GetCount(), 3);
    EXPECT_TRUE(images.Load(6)); // in place of what was there
    EXPECT_EQ(images.GetCount(), 1);
    EXPECT_EQ(images.ExtractIcon(-1), nullptr);
}
