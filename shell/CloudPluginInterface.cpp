// What the plug-in adds to the viewer's windows: a panel of the ribbon, a tab of the side bar, a page of the options.

#include "host/orvsgutils/ResourceLoader.h"
#include "host/orvui/COOutlookTabCtrl.h"
#include "host/orvui/IWView.h"
#include "host/orvui/OrvantaCategory.h"
#include "service/PluginText.h"
#include "shell/cloudplugin.h"
#include "ui/ResourceIds.h"
#include "ui/ResourceModule.h"
#include "ui/account/SettingsDlg.h"
#include "ui/feed/FeedPane.h"

#include <afxcontrolbars.h>

#include <algorithm>

namespace
{

constexpr COLORREF maskColor = 0xFF00FF;

UINT largePushImage()
{
    return static_cast<UINT>(orvsgutils::ResourceLoader::getImage(501, 502, 503, 504));
}

UINT smallPushImage()
{
    return static_cast<UINT>(orvsgutils::ResourceLoader::getImage(505, 506, 507, 508));
}

UINT largeShareImage()
{
    return static_cast<UINT>(orvsgutils::ResourceLoader::getImage(509, 510, 511, 512));
}

CMFCRibbonButton* makeButton(int commandId, int label, int smallImage, int largeImage)
{
    std::wstring const text = pluginText(label);
    auto* const button =
        new CMFCRibbonButton(static_cast<UINT>(commandId), text.c_str(), smallImage, largeImage, FALSE);
    button->SetToolTipText(text.c_str());
    return button;
}

/// Index of the category to stand in: the active one, else the second.
int chooseCategory(CMFCRibbonBar& ribbon)
{
    CMFCRibbonCategory* const active = ribbon.GetActiveCategory();
    return active != nullptr ? ribbon.GetCategoryIndex(active) : 1;
}

/// One picture in a list of its own.
void fillImageList(CImageList& list, int width, int height, UINT imageId)
{
    CPngImage picture;
    picture.Load(imageId);
    list.Create(width, height, ILC_COLOR32 | ILC_MASK, 1, 1);
    list.Add(&picture, maskColor);
}

} // namespace

void cloudplugin::AddToRibbon(HWND ribbonBar, std::shared_ptr<orvui::IResourceManager> resources)
{
    ResourceModule const module;
    auto* const ribbon = DYNAMIC_DOWNCAST(CMFCRibbonBar, CWnd::FromHandle(ribbonBar));
    if (ribbon == nullptr || !resources) {
        return;
    }
    int const index = chooseCategory(*ribbon);
    // Fetched and applied to nothing: the category goes by its index alone. That is meant.
    [[maybe_unused]] std::wstring const categoryTitle = pluginText(resource::text::tools);
    auto* const category = DYNAMIC_DOWNCAST(OrvantaCategory, ribbon->GetCategory(index));
    if (category == nullptr) {
        return;
    }
    CMFCToolBarImages& large = category->GetLargeImages();
    CMFCToolBarImages& small = category->GetSmallImages();
    int const largePush = large.GetCount();
    int const smallPush = small.GetCount();
    large.Load(largePushImage(), nullptr, TRUE);
    small.Load(smallPushImage(), nullptr, TRUE);
    // The English label goes unused; that is meant.
    [[maybe_unused]] std::wstring const englishLabel =
        orvsgutils::ResourceLoader::getEngString(pluginLibrary, resource::text::pushToCloud);
    int const pushId = resources->getCommandId(static_cast<int>(pushCommand));
    CMFCRibbonButton* const push = makeButton(pushId, resource::text::pushToCloud, smallPush, largePush);

    // The second button has no small picture of its own: a collapsed ribbon shows the first one's. That is meant.
    int const largeShare = large.GetCount();
    large.Load(largeShareImage(), nullptr, TRUE);
    int const shareId = resources->getCommandId(static_cast<int>(shareCommand));
    CMFCRibbonButton* const share = makeButton(shareId, resource::text::share, smallPush, largeShare);

    std::wstring const title = pluginText(resource::text::panelTitle);
    HICON const icon = small.ExtractIcon(smallPush); // the panel's from then on
    CMFCRibbonPanel* const panel =
        category->InsertPanel(std::max(0, category->GetPanelCount() - 1), title.c_str(), icon, nullptr);
    panel->Add(push);
    panel->Add(share);
}

void cloudplugin::AddToOutlookBar(HWND outlookBar, std::shared_ptr<orvui::IResourceManager> resources)
{
    ResourceModule const module;
    auto* const bar = dynamic_cast<orvui::IWView<CMFCOutlookBar>*>(CWnd::FromHandle(outlookBar));
    if (bar == nullptr || !resources) {
        return;
    }
    outlookTab = bar->getTabCtrl();
    if (outlookTab == nullptr || paneWasAdded) { // the pane stands in one side bar; it can't be made a second time
        return;
    }
    int const imageIndex = outlookTab->GetImageListCount();
    // Asked for and unused: the one index stands for both lists. That is meant.
    [[maybe_unused]] int const toolbarImageIndex = outlookTab->GetToolbarImageListCount();
    using orvsgutils::ResourceLoader;
    orvsgutils::PIXELS const& pixels = ResourceLoader::m_Pixel;
    int const side = static_cast<int>(pixels.smallWidth * 1.5);
    CImageList tabImage;
    fillImageList(tabImage, side, side, static_cast<UINT>(ResourceLoader::getImage(205, 238, 239, 240)));
    CImageList buttonImage;
    fillImageList(buttonImage, pixels.smallWidth, pixels.smallHeight,
                  static_cast<UINT>(ResourceLoader::getImage(206, 241, 242, 243)));
    outlookTab->AddImageList(tabImage.GetSafeHandle(), side, maskColor);
    outlookTab->AddToolbarImageList(buttonImage.GetSafeHandle(), pixels.smallWidth, maskColor);

    int const paneId = resources->getCommandId(static_cast<int>(feedsCommand));
    paneWasAdded = true;
    // Where no window could be made everything goes on with a null one; the tab stays empty. That is meant.
    feedPane->Create(CRect(0, 0, 0, 0), bar, static_cast<UINT>(paneId));
    feedPane->paneValue = bar->paneValue;
    resources->addWindow(feedPane->GetSafeHwnd());
    constexpr DWORD floatsHidesAndResizes = AFX_CBRS_FLOAT | AFX_CBRS_AUTOHIDE | AFX_CBRS_RESIZE; // but doesn't close
    outlookTab->AddControl(feedPane, pluginText(resource::text::feeds).c_str(), imageIndex, TRUE,
                           floatsHidesAndResizes);
}

void cloudplugin::AddToPropertySheet(HWND optionsSheet, std::shared_ptr<orvui::IResourceManager>)
{
    ResourceModule const module;
    auto* const sheet = DYNAMIC_DOWNCAST(CMFCPropertySheet, CWnd::FromHandle(optionsSheet));
    if (sheet == nullptr || !document) {
        return;
    }
    settingsPage = std::make_shared<SettingsDlg>(document, application, userInfo, settings, helper);
    sheet->AddPage(settingsPage.get());
    if (activateSettingsPage) {
        sheet->SetActivePage(settingsPage.get());
        activateSettingsPage = !activateSettingsPage;
    }
}
