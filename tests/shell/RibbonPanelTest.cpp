// The plug-in's panel in the ribbon: its place, its buttons and their pictures, its language.

#include "shell/InterfaceFixture.h"

#include <QTabBar>
#include <QToolButton>

#include <algorithm>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr unsigned int pushId = 40118;
constexpr unsigned int shareId = 40102;

/// Expects the picture in the tab, and the smaller one in the strip that stands there while the bar is collapsed.
void expectShown(SideBar& bar, QImage const& inTab, QImage const& inStrip)
{
    auto const pixels = [](QIcon const& icon, QSize const& size) { return icon.pixmap(size).toImage(); };
    auto const asShown = [](QImage const& picture) { return QPixmap::fromImage(picture).toImage(); };
    QWidget const& widget = *orvplatform::widgetOf(bar.GetSafeHwnd());
    auto const* const tabs = widget.findChild<QTabBar*>();
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->iconSize(), inTab.size());
    EXPECT_EQ(pixels(tabs->tabIcon(0), tabs->iconSize()), asShown(inTab));
    auto const buttons = widget.findChildren<QToolButton*>();
    auto const opener = std::find_if(buttons.begin(), buttons.end(), [&](QToolButton const* button) {
        return button->accessibleName() == tabs->tabText(0);
    });
    ASSERT_NE(opener, buttons.end());
    EXPECT_EQ((*opener)->iconSize(), inStrip.size());
    EXPECT_EQ(pixels((*opener)->icon(), (*opener)->iconSize()), asShown(inStrip));
}

/// The ribbon's active category, which nothing public sets to none.
struct Reach {
    friend CMFCRibbonCategory* CMFCRibbonBar::*activeOf(Reach);
};
template <CMFCRibbonCategory* CMFCRibbonBar::*member>
struct Reached {
    friend CMFCRibbonCategory* CMFCRibbonBar::*activeOf(Reach) { return member; }
};
template struct Reached<&CMFCRibbonBar::activeCategory>;

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
        expectShown(side, large.first, small.first);
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
