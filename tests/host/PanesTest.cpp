#include "host/orvui/COOutlookTabCtrl.h"
#include "host/orvui/IWOutlookPane.h"
#include "host/orvui/IWView.h"
#include "host/orvui/OrvantaCategory.h"
#include "platform/qt/Native.h"
#include "platform/testing/Input.h"

#include <gtest/gtest.h>

#include <memory>

#include <QPixmap>

namespace
{

constexpr unsigned long mask = 0xFF00FF;

/// The toolkit needs its application before the first picture or window.
class WithApplication : public testing::Test
{
protected:
    static void SetUpTestSuite() { orvplatform::testing::ensureApplication(); }
};

class Category : public WithApplication
{
protected:
    std::unique_ptr<OrvantaCategory> category{
        dynamic_cast<OrvantaCategory*>(RUNTIME_CLASS(OrvantaCategory)->CreateObject())};
};

TEST_F(Category, IsMadeByItsClassAndKnownAsOne)
{
    ASSERT_TRUE(category);
    CMFCRibbonCategory* const plain = category.get();
    EXPECT_EQ(DYNAMIC_DOWNCAST(OrvantaCategory, plain), category.get());
    CMFCRibbonCategory other;
    EXPECT_EQ(DYNAMIC_DOWNCAST(OrvantaCategory, &other), nullptr);
}

TEST_F(Category, APanelIsInsertedBeforeTheLast)
{
    CMFCRibbonPanel* const first = category->InsertPanel(0, L"File", nullptr, nullptr);
    CMFCRibbonPanel* const last = category->InsertPanel(1, L"Help", nullptr, nullptr);
    CMFCRibbonPanel* const between = category->InsertPanel(category->GetPanelCount() - 1, L"Cloud", nullptr, nullptr);
    ASSERT_EQ(category->GetPanelCount(), 3);
    EXPECT_EQ(category->GetPanel(0), first);
    EXPECT_EQ(category->GetPanel(1), between);
    EXPECT_EQ(category->GetPanel(2), last);
    EXPECT_STREQ(between->GetName(), L"Cloud");
}

TEST_F(Category, APlaceOutsideThePanelsIsTheNearestOne)
{
    CMFCRibbonPanel* const only = category->InsertPanel(-1, L"A", nullptr, nullptr);
    CMFCRibbonPanel* const behind = category->InsertPanel(99, L"B", nullptr, nullptr);
    EXPECT_EQ(category->GetPanel(0), only);
    EXPECT_EQ(category->GetPanel(1), behind);
}

TEST_F(Category, BothPictureListsStartEmpty)
{
    EXPECT_EQ(category->GetSmallImages().GetCount(), 0);
    EXPECT_EQ(category->GetLargeImages().GetCount(), 0);
    EXPECT_FALSE(category->GetLargeImages().Load(1, nullptr, TRUE));
}

/// A side bar with its tab control, as the viewer makes it.
class SideBar final : public orvui::IWView<CMFCOutlookBar>
{
public:
    COOutlookTabCtrl* getTabCtrl() override { return &tabs; }
    void OnUpdate(orv::IHint*) override { ++hints; }

    COOutlookTabCtrl tabs;
    int hints = 0;
};

class Pane final : public orvui::IWOutlookPane<CWnd>
{
public:
    void OnUpdate(orv::IHint*) override {}
    void OnActivateChange(bool) override {}
};

class Tabs : public WithApplication
{
protected:
    /// A list of two pictures of 24 x 24 pixels.
    static void fill(CImageList& list)
    {
        ASSERT_TRUE(list.Create(24, 24, ILC_COLOR32 | ILC_MASK, 1, 1));
        QPixmap picture(48, 24);
        picture.fill(Qt::red);
        CBitmap bitmap;
        ASSERT_TRUE(bitmap.Attach(orvplatform::bitmapOf(picture)));
        ASSERT_EQ(list.Add(&bitmap, static_cast<COLORREF>(mask)), 0);
        ASSERT_EQ(list.GetImageCount(), 2);
    }

    SideBar bar;
};

TEST_F(Tabs, CountTheImagesThatPanesAdd)
{
    EXPECT_EQ(bar.getTabCtrl()->GetImageListCount(), 0);
    EXPECT_EQ(bar.getTabCtrl()->GetToolbarImageListCount(), 0);
    CImageList images;
    fill(images);
    bar.tabs.AddImageList(images.GetSafeHandle(), 24, mask);
    EXPECT_EQ(bar.tabs.GetImageListCount(), 2);
    EXPECT_EQ(bar.tabs.GetToolbarImageListCount(), 0);
    bar.tabs.AddToolbarImageList(images.GetSafeHandle(), 24, mask);
    bar.tabs.AddImageList(images.GetSafeHandle(), 24, mask);
    EXPECT_EQ(bar.tabs.GetImageListCount(), 4);
    EXPECT_EQ(bar.tabs.GetToolbarImageListCount(), 2);
    bar.tabs.AddImageList(nullptr, 24, mask);
    EXPECT_EQ(bar.tabs.GetImageListCount(), 4);
}

TEST_F(Tabs, AreKnownByTheirClass)
{
    CWnd* const window = bar.getTabCtrl();
    EXPECT_NE(DYNAMIC_DOWNCAST(COOutlookTabCtrl, window), nullptr);
    EXPECT_NE(DYNAMIC_DOWNCAST(CMFCOutlookBarTabCtrl, window), nullptr);
    CWnd* const outer = &bar;
    EXPECT_NE(dynamic_cast<orvui::IWView<CMFCOutlookBar>*>(outer), nullptr);
}

TEST_F(Tabs, APaneIsAVisibleChildWithoutATitle)
{
    CWnd frame;
    ASSERT_TRUE(frame.CreateEx(0, L"", L"frame", WS_OVERLAPPED, 0, 0, 300, 200, nullptr, 0));
    Pane pane;
    ASSERT_TRUE(pane.Create(RECT{0, 0, 0, 0}, &frame, 1201));
    EXPECT_EQ(pane.GetDlgCtrlID(), 1201);
    EXPECT_EQ(pane.GetParent(), &frame);
    CString title;
    pane.GetWindowText(title);
    EXPECT_EQ(title.GetLength(), 0);
    EXPECT_EQ(pane.paneValue, 0);
    pane.DestroyWindow();
    frame.DestroyWindow();
}

} // namespace
