// The plug-in's pane in the side bar, and its page in the options.

#include "shell/InterfaceFixture.h"

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

TEST_F(InterfaceTest, ThePaneIsATabOfTheSideBar)
{
    openSideBar();
    sideBar.paneValue = 5;
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    COOutlookTabCtrl& tabs = *sideBar.getTabCtrl();
    ASSERT_EQ(tabs.GetTabsNum(), 1);
    CString label;
    tabs.GetTabLabel(0, label);
    EXPECT_STREQ(label.GetString(), L"Feeds");
    EXPECT_EQ(tabs.GetImageListCount(), 1);
    EXPECT_EQ(tabs.GetToolbarImageListCount(), 1);
    CWnd* const pane = tabs.GetTabWnd(0);
    ASSERT_NE(pane, nullptr);
    EXPECT_EQ(pane->GetDlgCtrlID(), 40201);
    EXPECT_EQ(resources->windows, std::vector<HWND>{pane->GetSafeHwnd()});
    auto* const outlookPane = dynamic_cast<orv::IOutlookPane*>(pane);
    ASSERT_NE(outlookPane, nullptr);
    EXPECT_EQ(outlookPane->paneValue, 5);
}

TEST_F(InterfaceTest, ThePaneIsEnrolledWithItsValueBeforeItsTabStands)
{
    struct NotingResources final : orvui::IResourceManager {
        int getCommandId(int localNumber) override { return 40000 + localNumber; }
        void addWindow(HWND window) override
        {
            auto* const pane = dynamic_cast<orv::IOutlookPane*>(CWnd::FromHandle(window));
            value = pane == nullptr ? -1 : pane->paneValue;
            tabsByThen = bar->tabs().GetTabsNum();
            listsByThen = bar->tabs().GetImageListCount();
        }
        SideBar* bar = nullptr;
        int value = -1;
        int tabsByThen = -1;
        int listsByThen = -1;
    };
    openSideBar();
    sideBar.paneValue = 11;
    auto const noting = std::make_shared<NotingResources>();
    noting->bar = &sideBar;
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), noting);
    EXPECT_EQ(noting->value, 11);
    EXPECT_EQ(noting->tabsByThen, 0);
    EXPECT_EQ(noting->listsByThen, 1);
    EXPECT_EQ(sideBar.tabs().GetTabsNum(), 1);
}

TEST_F(InterfaceTest, ThePaneFloatsHidesAndResizesButDoesNotClose)
{
    openSideBar();
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    ASSERT_EQ(sideBar.tabs().controls.size(), 1U);
    RecordingTabs::Added const& added = sideBar.tabs().controls[0];
    EXPECT_EQ(added.title, L"Feeds");
    EXPECT_EQ(added.image, 0);
    EXPECT_TRUE(added.detachable);
    EXPECT_EQ(added.style, 7U);
    EXPECT_EQ(added.style & AFX_CBRS_CLOSE, 0U);
}

TEST_F(InterfaceTest, ThePanesImageStandsBehindThoseOfTheBar)
{
    openSideBar();
    CImageList others;
    CPngImage picture;
    EXPECT_TRUE(picture.Load(205));
    EXPECT_TRUE(others.Create(24, 24, ILC_COLOR32 | ILC_MASK, 1, 1));
    others.Add(&picture, 0xFF00FF);
    sideBar.tabs().AddImageList(others.GetSafeHandle(), 24, 0xFF00FF);
    sideBar.tabs().AddImageList(others.GetSafeHandle(), 24, 0xFF00FF);
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    ASSERT_EQ(sideBar.tabs().controls.size(), 1U);
    EXPECT_EQ(sideBar.tabs().controls[0].image, 2); // counted in the large images
}

TEST_F(InterfaceTest, ASideBarWithoutTabsIsLeftAlone)
{
    openSideBar();
    sideBar.hasTabs = false;
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    EXPECT_TRUE(resources->windows.empty());
    EXPECT_EQ(sideBar.tabs().GetTabsNum(), 0);
    sideBar.hasTabs = true; // nothing was used up
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    EXPECT_EQ(sideBar.tabs().GetTabsNum(), 1);
}

TEST_F(InterfaceTest, ThePaneStandsInOneSideBarAlone)
{
    openSideBar();
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    EXPECT_EQ(sideBar.tabs().GetTabsNum(), 1);
    EXPECT_EQ(sideBar.tabs().large.size(), 1U);
    EXPECT_EQ(resources->windows.size(), 1U);
}

TEST_F(InterfaceTest, WithoutAWindowForThePaneTheRestGoesOnAndNothingIsAddedTwice)
{
    struct Ending final : orvui::IResourceManager {
        int getCommandId(int localNumber) override
        {
            if (bar != nullptr) {
                bar->DestroyWindow(); // the pane's window has no parent then
            }
            return 40000 + localNumber;
        }
        void addWindow(HWND window) override { windows.push_back(window); }
        SideBar* bar = nullptr;
        std::vector<HWND> windows;
    };
    openSideBar();
    auto const ending = std::make_shared<Ending>();
    ending->bar = &sideBar;
    RecordingTabs& tabs = sideBar.tabs();
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), ending);
    EXPECT_EQ(ending->windows, std::vector<HWND>{nullptr});
    ASSERT_EQ(tabs.controls.size(), 1U);
    EXPECT_EQ(tabs.controls[0].title, L"Feeds");
    EXPECT_EQ(tabs.large.size(), 1U);
    EXPECT_EQ(tabs.GetTabsNum(), 0) << "there is nothing to show";

    SideBar living; // is too late
    EXPECT_TRUE(living.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 8, WS_CHILD | WS_VISIBLE));
    for (int call = 0; call < 2; ++call) {
        plugin->AddToOutlookBar(living.GetSafeHwnd(), resources);
        plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), ending);
        EXPECT_TRUE(living.tabs().large.empty());
        EXPECT_TRUE(living.tabs().small.empty());
        EXPECT_TRUE(living.tabs().controls.empty());
        EXPECT_EQ(tabs.large.size(), 1U);
        EXPECT_EQ(tabs.small.size(), 1U);
    }
    EXPECT_TRUE(resources->windows.empty());
    living.DestroyWindow();
}

TEST_F(InterfaceTest, TheTabCountsTheEntriesOfTheFeed)
{
    signIn();
    openSideBar();
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    COOutlookTabCtrl& tabs = *sideBar.getTabCtrl();
    auto* const pane = dynamic_cast<orv::IOutlookPane*>(tabs.GetTabWnd(0));
    application->notifier->deliver = [pane](orv::IHint* hint) { pane->OnUpdate(hint); };
    sendHint(*pane, codes::documentOpened, scene.document);
    pane->OnActivateChange(true); // signed out in this plug-in, which was made before the session
    EXPECT_TRUE(network.sent().empty());

    LoadedPlugin restored;
    SideBar other;
    EXPECT_TRUE(other.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 8, WS_CHILD | WS_VISIBLE));
    restored->AddToOutlookBar(other.GetSafeHwnd(), resources);
    auto* const signedIn = dynamic_cast<orv::IOutlookPane*>(other.getTabCtrl()->GetTabWnd(0));
    sendHint(*signedIn, codes::documentOpened, scene.document);
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", R"([{"Content":"{}"},{"Content":"{}"}])");
    signedIn->OnActivateChange(true); // the session came back with the constructor
    CString label;
    other.getTabCtrl()->GetTabLabel(0, label);
    EXPECT_STREQ(label.GetString(), L"Feeds - 2");
    EXPECT_EQ(network.sent().at(0).field("username"), "ann@example.com");
    other.DestroyWindow();
}

TEST_F(InterfaceTest, TheSideBarTakesThePaneAndAllItHoldsWithIt)
{
    signIn();
    long const before = scene.document.use_count();
    {
        LoadedPlugin restored;
        SideBar bar;
        EXPECT_TRUE(bar.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 8, WS_CHILD | WS_VISIBLE));
        restored->AddToOutlookBar(bar.GetSafeHwnd(), resources);
        auto* const pane = dynamic_cast<orv::IOutlookPane*>(bar.getTabCtrl()->GetTabWnd(0));
        sendHint(*pane, codes::documentOpened, scene.document);
        EXPECT_GT(scene.document.use_count(), before + 100); // each block has it
        bar.DestroyWindow();
        EXPECT_EQ(scene.document.use_count(), before);
    }
    EXPECT_EQ(scene.document.use_count(), before);
}

TEST_F(InterfaceTest, WithoutADocumentTheOptionsGetNoPage)
{
    CMFCPropertySheet sheet(L"Options");
    EXPECT_TRUE(sheet.Create(&frame));
    plugin->AddToPropertySheet(sheet.GetSafeHwnd(), resources);
    EXPECT_EQ(sheet.GetPageCount(), 0);
    sheet.DestroyWindow();
}

TEST_F(InterfaceTest, ASideBarOrASheetOfAnotherClassIsLeftAlone)
{
    sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
    long const before = scene.document.use_count();
    CMFCOutlookBar plain; // the toolkit's own, which is no view of the viewer
    EXPECT_TRUE(plain.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 7, WS_CHILD | WS_VISIBLE));
    plugin->AddToOutlookBar(plain.GetSafeHwnd(), resources);
    EXPECT_EQ(plain.GetUnderlyingWindow()->GetTabsNum(), 0);
    EXPECT_EQ(plain.GetUnderlyingWindow()->GetImageListCount(), 0);
    EXPECT_TRUE(resources->windows.empty());
    plain.DestroyWindow();

    CPropertySheet sheet(L"Options");
    EXPECT_TRUE(sheet.Create(&frame));
    plugin->AddToPropertySheet(sheet.GetSafeHwnd(), resources);
    EXPECT_EQ(sheet.GetPageCount(), 0);
    EXPECT_EQ(scene.document.use_count(), before);
    sheet.DestroyWindow();

    openSideBar(); // nothing was used up
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    EXPECT_EQ(sideBar.tabs().GetTabsNum(), 1);
}

TEST_F(InterfaceTest, EachSheetGetsAPageOfItsOwn)
{
    sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
    long const before = scene.document.use_count();
    for (int i = 0; i < 2; ++i) {
        CMFCPropertySheet sheet(L"Options");
        EXPECT_TRUE(sheet.Create(&frame));
        CPropertyPage general(106);
        sheet.AddPage(&general);
        plugin->AddToPropertySheet(sheet.GetSafeHwnd(), resources);
        ASSERT_EQ(sheet.GetPageCount(), 2);
        EXPECT_STREQ(sheet.GetPage(1)->GetCaption().GetString(), L"Cloud");
        EXPECT_EQ(sheet.GetActiveIndex(), 0);              // never forced to the front
        EXPECT_EQ(scene.document.use_count(), before + 1); // the earlier page is released
        sheet.DestroyWindow();
    }
    CMFCPropertySheet sheet(L"Options");
    plugin->AddToPropertySheet(sheet.GetSafeHwnd(), resources); // has no window
    EXPECT_EQ(scene.document.use_count(), before + 1);
}
