#include "shell/LoadedPlugin.h"

#include "host/orv/IOutlookPane.h"

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr unsigned int pushId = 40118;
constexpr unsigned int shareId = 40102;

class InterfaceTest : public UiTest
{
protected:
    ~InterfaceTest() override
    {
        // The viewer's windows go before the plug-in's library does.
        if (sideBar.GetSafeHwnd() != nullptr) {
            sideBar.DestroyWindow();
        }
    }

    OrvantaCategory& openRibbon()
    {
        EXPECT_TRUE(ribbon.Create(&frame));
        auto* const category = dynamic_cast<OrvantaCategory*>(
            ribbon.AddCategory(L"Home", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OrvantaCategory)));
        EXPECT_NE(category, nullptr);
        category->AddPanel(L"File");
        category->AddPanel(L"Help");
        return *category;
    }
    void openSideBar()
    {
        EXPECT_TRUE(sideBar.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 7, WS_CHILD | WS_VISIBLE));
    }

    LoadedPlugin plugin;
    std::shared_ptr<FakeResourceManager> resources = std::make_shared<FakeResourceManager>();
    CMFCRibbonBar ribbon;
    SideBar sideBar;
};

} // namespace

TEST_F(InterfaceTest, ThePanelStandsBeforeTheLastOne)
{
    OrvantaCategory& category = openRibbon();
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    ASSERT_EQ(category.GetPanelCount(), 3);
    CMFCRibbonPanel* const panel = category.GetPanel(1);
    EXPECT_STREQ(panel->GetName(), L"Cloud");
    EXPECT_STREQ(category.GetPanel(2)->GetName(), L"Help");
    ASSERT_EQ(panel->GetCount(), 2);
    EXPECT_EQ(panel->GetElement(0)->GetID(), pushId);
    EXPECT_STREQ(panel->GetElement(0)->GetText(), L"Push to cloud");
    EXPECT_STREQ(panel->GetElement(0)->GetToolTipText().GetString(), L"Push to cloud");
    EXPECT_EQ(panel->GetElement(1)->GetID(), shareId);
    EXPECT_STREQ(panel->GetElement(1)->GetText(), L"Share");
    EXPECT_STREQ(panel->GetElement(1)->GetToolTipText().GetString(), L"Share");
}

TEST_F(InterfaceTest, TheTwoButtonsShareOneSmallPicture)
{
    OrvantaCategory& category = openRibbon();
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    EXPECT_EQ(category.GetLargeImages().GetCount(), 2);
    EXPECT_EQ(category.GetSmallImages().GetCount(), 1);
    auto const* const push = dynamic_cast<CMFCRibbonButton*>(category.GetPanel(1)->GetElement(0));
    auto const* const share = dynamic_cast<CMFCRibbonButton*>(category.GetPanel(1)->GetElement(1));
    EXPECT_EQ(push->GetImageIndex(FALSE), 0);
    EXPECT_EQ(share->GetImageIndex(FALSE), 0);
    EXPECT_EQ(push->GetImageIndex(TRUE), 0);
    EXPECT_EQ(share->GetImageIndex(TRUE), 1);
}

TEST_F(InterfaceTest, PicturesOfTheViewerKeepTheirPlaces)
{
    OrvantaCategory& category = openRibbon();
    category.GetLargeImages().Load(501, ResourceModule::handle(), TRUE);
    category.GetLargeImages().Load(501, ResourceModule::handle(), TRUE);
    category.GetSmallImages().Load(505, ResourceModule::handle(), TRUE);
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    auto const* const share = dynamic_cast<CMFCRibbonButton*>(category.GetPanel(1)->GetElement(1));
    EXPECT_EQ(share->GetImageIndex(FALSE), 1);
    EXPECT_EQ(share->GetImageIndex(TRUE), 3);
}

TEST_F(InterfaceTest, ThePanelSpeaksTheUsersLanguage)
{
    configure(L"de");
    OrvantaCategory& category = openRibbon();
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    EXPECT_EQ(category.GetPanel(1)->GetElement(0)->GetText(), text(119));
    EXPECT_NE(text(119), L"Push to cloud");
}

TEST_F(InterfaceTest, AWindowOfAnotherClassIsLeftAlone)
{
    sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
    for (HWND const window : {static_cast<HWND>(nullptr), frame.GetSafeHwnd()}) {
        plugin->AddToRibbon(window, resources);
        plugin->AddToOutlookBar(window, resources);
        plugin->AddToPropertySheet(window, resources);
    }
    EXPECT_TRUE(resources->windows.empty());
}

TEST_F(InterfaceTest, ARibbonWithoutTheViewersCategoryIsLeftAlone)
{
    EXPECT_TRUE(ribbon.Create(&frame));
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources); // no category at all
    CMFCRibbonCategory* const plain = ribbon.AddCategory(L"Home", 0, 0);
    plain->AddPanel(L"File");
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    EXPECT_EQ(plain->GetPanelCount(), 1);
}

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
