#include "Form.h"

#include "atlimage.h"
#include "platform/Process.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Native.h"

#include <QPixmap>
#include <QSize>

#include <cstring>

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
    CImage image;
    // Its header is there, its pixels are not: the size is known and nothing shows.
    ASSERT_EQ(load(image, whole.substr(0, whole.find("IDAT") + 6)), S_OK);
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

TEST_F(Picture, IsRefusedWhenItsHeaderAsksForTooMuch)
{
    // A PNG that says it is 30000 pixels square: 3.6 GB.
    std::string bytes = resource(5);
    for (const std::size_t at : {std::size_t{16}, std::size_t{20}})
        bytes.replace(at, 4, std::string("\x00\x00\x75\x30", 4));
    CImage image;
    EXPECT_EQ(load(image, bytes), E_FAIL);
}

TEST_F(Picture, IsRefusedWhenItIsLargerThanItsHeaderSays)
{
    // The reader says 2 by 2 pixels and makes a picture 16386 pixels high. Found by fuzzing.
    std::string gif("GIF89a\x02\x00\x02\x40\x80\x00\x00\x00\x00\x00\xFF\xFF\xFF"
                    "\x2C\x00\x00\x00\x00\x02\x00\x02\x00\x00\x02\x03\x44\x34\x05\x00\x3B",
                    36);
    CImage image;
    EXPECT_EQ(load(image, gif), E_FAIL);
    gif[9] = 0;
    EXPECT_EQ(load(image, gif), S_OK) << "of its announced size it is a picture";
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
