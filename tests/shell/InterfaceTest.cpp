#include "shell/LoadedPlugin.h"

#include "platform/qt/Native.h"
#include "platform/qt/RibbonWidget.h"
#include "platform/qt/ToolBarPictures.h"

#include <QBuffer>
#include <QToolButton>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr unsigned int pushId = 40118;
constexpr unsigned int shareId = 40102;

/// The ribbon's active category, which nothing public sets to none.
struct Reach {
    friend CMFCRibbonCategory* CMFCRibbonBar::*activeOf(Reach);
};
template <CMFCRibbonCategory* CMFCRibbonBar::*member>
struct Reached {
    friend CMFCRibbonCategory* CMFCRibbonBar::*activeOf(Reach) { return member; }
};
template struct Reached<&CMFCRibbonBar::activeCategory>;

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

    /// A module in which these numbers are red pictures.
    HINSTANCE moduleWithPictures(std::vector<UINT> const& ids) const
    {
        QImage red(24, 24, QImage::Format_ARGB32);
        red.fill(Qt::red);
        QByteArray picture;
        QBuffer buffer(&picture);
        red.save(&buffer, "PNG");
        auto const little = [](UINT number, int bytes) {
            std::string text;
            for (int i = 0; i < bytes; ++i) {
                text += static_cast<char>(number >> (8 * i) & 0xFF);
            }
            return text;
        };
        std::string file = little(0, 4) + little(32, 4) + little(0xFFFF, 4) + little(0xFFFF, 4) + std::string(16, '\0');
        for (UINT const id : ids) {
            std::string const type("P\0N\0G\0\0\0", 8);
            std::string const header = type + little(0xFFFF, 2) + little(id, 2) + little(0, 6) + little(0x0409, 2);
            auto const size = static_cast<UINT>(picture.size());
            file += little(size, 4) + little(static_cast<UINT>(header.size()) + 16, 4) + header + little(0, 8);
            file += picture.toStdString();
            file.resize((file.size() + 3) / 4 * 4);
        }
        auto const path = dataDirectory / "viewer.res";
        std::ofstream(path, std::ios::binary) << file;
        EXPECT_TRUE(orvplatform::registerModuleFile(L"redviewer.dll", path.string()));
        return GetModuleHandleW(L"redviewer.dll");
    }

    /// True where the list's picture is the resource's.
    static bool isPicture(CMFCToolBarImages& list, int index, UINT id)
    {
        CMFCToolBarImages reference;
        reference.SetImageSize(list.GetImageSize());
        EXPECT_TRUE(reference.Load(id, ResourceModule::handle(), TRUE));
        auto const& pictures = list.pictures().pictures;
        return index < static_cast<int>(pictures.size()) &&
               pictures[static_cast<std::size_t>(index)] == reference.pictures().pictures.at(0);
    }
    /// The picture that a list of that size makes of the resource.
    static QImage paneImage(UINT id, int width, int height)
    {
        CPngImage picture;
        EXPECT_TRUE(picture.Load(id));
        CImageList list;
        EXPECT_TRUE(list.Create(width, height, ILC_COLOR32 | ILC_MASK, 1, 1));
        list.Add(&picture, 0xFF00FF);
        return list.GetSafeHandle()->pictures.at(0);
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

TEST_F(InterfaceTest, ThePanelsIconIsTheButtonsSmallPicture)
{
    OrvantaCategory& category = openRibbon();
    category.GetSmallImages().Load(206, ResourceModule::handle(), TRUE); // the viewer's
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    QImage const icon = orvplatform::pixmapOf(category.GetPanel(1)->GetDefaultIcon()).toImage();
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(icon, QPixmap::fromImage(category.GetSmallImages().pictures().pictures.at(1)).toImage());
    EXPECT_TRUE(isPicture(category.GetSmallImages(), 1, 505));
}

TEST_F(InterfaceTest, TheButtonsShowTheirDescriptionsOnlyWhenAsked)
{
    struct Opened : CMFCRibbonButton {
        using CMFCRibbonButton::m_bAlwaysShowDescription;
    };
    OrvantaCategory& category = openRibbon();
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    for (int i = 0; i < 2; ++i) {
        auto const* const button = dynamic_cast<CMFCRibbonButton*>(category.GetPanel(1)->GetElement(i));
        EXPECT_FALSE(button->*&Opened::m_bAlwaysShowDescription);
    }
}

TEST_F(InterfaceTest, ACollapsedShareButtonShowsThePictureOfPush)
{
    openRibbon();
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    frame.ShowWindow(SW_SHOW);
    ribbon.MoveWindow(0, 0, 60, 120);
    orvplatform::refreshRibbon(ribbon);
    orvplatform::testing::processEvents();
    std::vector<QImage> shown;
    for (UINT const id : {pushId, shareId}) {
        auto const* const button = qobject_cast<QToolButton*>(orvplatform::ribbonButton(ribbon.GetSafeHwnd(), id));
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(button->toolButtonStyle(), Qt::ToolButtonIconOnly);
        shown.push_back(button->icon().pixmap(button->iconSize()).toImage());
    }
    EXPECT_EQ(shown[0], shown[1]);
    EXPECT_EQ(shown[0].size(), QSize(16, 16));
}

TEST_F(InterfaceTest, AnEmptyCategoryGetsThePanelAsItsFirst)
{
    EXPECT_TRUE(ribbon.Create(&frame));
    auto* const category = dynamic_cast<OrvantaCategory*>(
        ribbon.AddCategory(L"Home", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OrvantaCategory)));
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    ASSERT_EQ(category->GetPanelCount(), 1);
    EXPECT_STREQ(category->GetPanel(0)->GetName(), L"Cloud");
}

TEST_F(InterfaceTest, PicturesAreThePluginsUnderTheViewersOwnModuleAndItStaysSet)
{
    HINSTANCE const own = moduleWithPictures({205, 206, 501, 505, 509});
    AfxSetResourceHandle(own);
    OrvantaCategory& category = openRibbon();
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    EXPECT_EQ(AfxGetResourceHandle(), own);
    ASSERT_EQ(category.GetLargeImages().GetCount(), 2);
    EXPECT_TRUE(isPicture(category.GetLargeImages(), 0, 501));
    EXPECT_TRUE(isPicture(category.GetLargeImages(), 1, 509));
    EXPECT_TRUE(isPicture(category.GetSmallImages(), 0, 505));
    openSideBar();
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    EXPECT_EQ(AfxGetResourceHandle(), own);
    ASSERT_EQ(sideBar.tabs().large.size(), 1U);
    EXPECT_NE(sideBar.tabs().GetTabWnd(0), nullptr);
    ResourceModule::use();
    EXPECT_EQ(sideBar.tabs().large[0].first, paneImage(205, 24, 24));
    EXPECT_EQ(sideBar.tabs().small[0].first, paneImage(206, 16, 16));
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

TEST_F(InterfaceTest, ThePanelStandsInTheActiveCategory)
{
    OrvantaCategory& first = openRibbon();
    auto* const second = dynamic_cast<OrvantaCategory*>(
        ribbon.AddCategory(L"View", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OrvantaCategory)));
    ASSERT_NE(second, nullptr);
    second->AddPanel(L"Help");
    ASSERT_TRUE(ribbon.SetActiveCategory(second));
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    EXPECT_EQ(first.GetPanelCount(), 2);
    ASSERT_EQ(second->GetPanelCount(), 2);
    EXPECT_STREQ(second->GetPanel(0)->GetName(), L"Cloud");
}

TEST_F(InterfaceTest, ThePicturesAreThoseOfTheDisplaysStep)
{
    struct {
        double dpi;
        UINT largePush, smallPush, largeShare, largePane, smallPane;
    } const steps[] = {
        {96.0, 501, 505, 509, 205, 206},
        {120.0, 502, 506, 510, 238, 241},
        {144.0, 503, 507, 511, 239, 242},
        {192.0, 504, 508, 512, 240, 243},
    };
    for (auto const& step : steps) {
        configure(L"en", step.dpi);
        SCOPED_TRACE(step.dpi);
        CMFCRibbonBar bar;
        EXPECT_TRUE(bar.Create(&frame));
        auto& category = dynamic_cast<OrvantaCategory&>(
            *bar.AddCategory(L"Home", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OrvantaCategory)));
        plugin->AddToRibbon(bar.GetSafeHwnd(), resources);
        EXPECT_TRUE(isPicture(category.GetLargeImages(), 0, step.largePush));
        EXPECT_TRUE(isPicture(category.GetLargeImages(), 1, step.largeShare));
        EXPECT_TRUE(isPicture(category.GetSmallImages(), 0, step.smallPush));

        LoadedPlugin another; // a pane goes into one side bar alone
        SideBar side;
        EXPECT_TRUE(side.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 8, WS_CHILD | WS_VISIBLE));
        another->AddToOutlookBar(side.GetSafeHwnd(), resources);
        ASSERT_EQ(side.tabs().large.size(), 1U);
        ASSERT_EQ(side.tabs().small.size(), 1U);
        RecordingTabs::Images const& large = side.tabs().large[0];
        RecordingTabs::Images const& small = side.tabs().small[0];
        orvsgutils::PIXELS const& pixels = orvsgutils::ResourceLoader::m_Pixel;
        int const largeSide = static_cast<int>(1.5 * pixels.smallWidth);
        EXPECT_EQ(large.size, largeSide);
        EXPECT_EQ(large.width, largeSide);
        EXPECT_EQ(large.height, largeSide);
        EXPECT_EQ(large.count, 1);
        EXPECT_EQ(large.mask, 0xFF00FFU);
        EXPECT_EQ(large.first, paneImage(step.largePane, largeSide, largeSide));
        EXPECT_EQ(small.size, pixels.smallWidth);
        EXPECT_EQ(small.width, pixels.smallWidth);
        EXPECT_EQ(small.height, pixels.smallHeight);
        EXPECT_EQ(small.count, 1);
        EXPECT_EQ(small.mask, 0xFF00FFU);
        EXPECT_EQ(small.first, paneImage(step.smallPane, pixels.smallWidth, pixels.smallHeight));
        side.DestroyWindow();
        bar.DestroyWindow();
    }
    EXPECT_NE(paneImage(205, 24, 24), paneImage(238, 24, 24)) << "else the comparisons above would say nothing";
}

TEST_F(InterfaceTest, TheLargeSideIsCutToAWholeNumber)
{
    openSideBar();
    orvsgutils::PIXELS const before = orvsgutils::ResourceLoader::m_Pixel;
    orvsgutils::ResourceLoader::m_Pixel.smallWidth = 21;
    orvsgutils::ResourceLoader::m_Pixel.smallHeight = 18;
    plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), resources);
    orvsgutils::ResourceLoader::m_Pixel = before;
    ASSERT_EQ(sideBar.tabs().large.size(), 1U);
    EXPECT_EQ(sideBar.tabs().large[0].size, 31); // of 31.5
    EXPECT_EQ(sideBar.tabs().small[0].width, 21);
    EXPECT_EQ(sideBar.tabs().small[0].height, 18);
}

TEST_F(InterfaceTest, PanelTabAndPageSpeakTheUsersLanguage)
{
    sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
    for (wchar_t const* const language : {L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"}) {
        SCOPED_TRACE(language);
        configure(language);
        CMFCRibbonBar bar;
        EXPECT_TRUE(bar.Create(&frame));
        auto& category = dynamic_cast<OrvantaCategory&>(
            *bar.AddCategory(L"Home", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OrvantaCategory)));
        plugin->AddToRibbon(bar.GetSafeHwnd(), resources);
        EXPECT_EQ(category.GetPanel(0)->GetName(), text(112));
        EXPECT_EQ(category.GetPanel(0)->GetElement(0)->GetText(), text(119));
        EXPECT_EQ(category.GetPanel(0)->GetElement(0)->GetToolTipText().GetString(), text(119));
        EXPECT_EQ(category.GetPanel(0)->GetElement(1)->GetText(), text(103));
        EXPECT_EQ(category.GetPanel(0)->GetElement(1)->GetToolTipText().GetString(), text(103));
        EXPECT_NE(text(119), L"Push to cloud");
        bar.DestroyWindow();

        LoadedPlugin another; // a pane goes into one side bar alone
        SideBar side;
        EXPECT_TRUE(side.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 8, WS_CHILD | WS_VISIBLE));
        another->AddToOutlookBar(side.GetSafeHwnd(), resources);
        ASSERT_EQ(side.tabs().controls.size(), 1U);
        EXPECT_EQ(side.tabs().controls[0].title, text(217));
        side.DestroyWindow();

        CMFCPropertySheet sheet(L"Options");
        EXPECT_TRUE(sheet.Create(&frame));
        plugin->AddToPropertySheet(sheet.GetSafeHwnd(), resources);
        ASSERT_EQ(sheet.GetPageCount(), 1);
        EXPECT_EQ(sheet.GetPage(0)->GetCaption().GetString(), text(112)); // the template's title is the same word
        sheet.DestroyWindow();
    }
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
}

TEST_F(InterfaceTest, WithoutAnActiveCategoryThePanelStandsInTheSecond)
{
    OrvantaCategory& first = openRibbon();
    auto* const second = dynamic_cast<OrvantaCategory*>(
        ribbon.AddCategory(L"View", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OrvantaCategory)));
    ASSERT_NE(second, nullptr);
    ribbon.*activeOf(Reach()) = nullptr; // a ribbon that has pages makes one active by itself
    ASSERT_EQ(ribbon.GetActiveCategory(), nullptr);
    plugin->AddToRibbon(ribbon.GetSafeHwnd(), resources);
    EXPECT_EQ(first.GetPanelCount(), 2);
    ASSERT_EQ(second->GetPanelCount(), 1);
    EXPECT_STREQ(second->GetPanel(0)->GetName(), L"Cloud");
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
