#pragma once

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orv/IOutlookPane.h"
#include "host/orvui/COOutlookTabCtrl.h"
#include "host/orvui/IGUIPlugin.h"
#include "host/orvui/IResourceManager.h"
#include "host/orvui/IWView.h"
#include "host/orvui/OrvantaCategory.h"
#include "platform/qt/Gdi.h"
#include "ui/UiTest.h"

#include <afxcontrolbars.h>

#include <memory>
#include <string>
#include <vector>

namespace orvtest
{

/// Gives command ids from 40000 on and keeps the windows that are enrolled.
class FakeResourceManager final : public orvui::IResourceManager
{
public:
    int getCommandId(int localNumber) override { return 40000 + localNumber; }
    void addWindow(HWND window) override { windows.push_back(window); }

    std::vector<HWND> windows;
};

/// A tab control that keeps how panes were added.
class RecordingTabs : public COOutlookTabCtrl
{
public:
    struct Images {
        int size = 0; ///< as it was told
        int width = 0;
        int height = 0;
        int count = 0;
        unsigned long mask = 0;
        QImage first;
    };
    struct Added {
        std::wstring title;
        int image = -1;
        BOOL detachable = FALSE;
        DWORD style = 0;
    };

    void AddImageList(_IMAGELIST* list, int size, unsigned long mask) override
    {
        large.push_back(describe(list, size, mask));
        COOutlookTabCtrl::AddImageList(list, size, mask);
    }
    void AddToolbarImageList(_IMAGELIST* list, int size, unsigned long mask) override
    {
        small.push_back(describe(list, size, mask));
        COOutlookTabCtrl::AddToolbarImageList(list, size, mask);
    }
    void AddControl(CWnd* control, wchar_t const* title, int image, BOOL detachable, DWORD style) override
    {
        controls.push_back({title, image, detachable, style});
        COOutlookTabCtrl::AddControl(control, title, image, detachable, style);
    }

    std::vector<Images> large;
    std::vector<Images> small;
    std::vector<Added> controls;

private:
    static Images describe(_IMAGELIST* list, int size, unsigned long mask)
    {
        Images images;
        images.size = size;
        ImageList_GetIconSize(list, &images.width, &images.height);
        images.count = ImageList_GetImageCount(list);
        images.mask = mask;
        images.first = list->pictures.empty() ? QImage() : list->pictures.front();
        return images;
    }
};

/// A side bar as the viewer has one.
class SideBar : public orvui::IWView<CMFCOutlookBar>
{
public:
    COOutlookTabCtrl* getTabCtrl() override { return hasTabs ? &tabs() : nullptr; }
    RecordingTabs& tabs() { return dynamic_cast<RecordingTabs&>(*GetUnderlyingWindow()); }
    void OnUpdate(orv::IHint*) override {}

    bool hasTabs = true;

protected:
    std::unique_ptr<CMFCOutlookBarTabCtrl> MakeTabCtrl() override { return std::make_unique<RecordingTabs>(); }
};

/// Ends the pane of a plug-in that none of the test's side bars got: the plug-in leaves that to its window.
inline void endPane(orvui::IGUIPlugin& plugin)
{
    CWnd parent;
    EXPECT_TRUE(parent.CreateEx(0, nullptr, L"", 0, CRect(0, 0, 320, 700), nullptr, 0));
    SideBar bar;
    EXPECT_TRUE(bar.Create(L"Side bar", &parent, CRect(0, 0, 320, 700), 8, WS_CHILD));
    plugin.AddToOutlookBar(bar.GetSafeHwnd(), std::make_shared<FakeResourceManager>());
    parent.DestroyWindow();
}

/// The plug-in's library, loaded in the way of the viewer.
class LoadedPlugin
{
public:
    LoadedPlugin() : library(ORV_PLUGIN_LIBRARY, "createPlugin", "destroyPlugin")
    {
        EXPECT_TRUE(library.isValid());
        plugin = dynamic_cast<orvui::IGUIPlugin*>(library.get());
        EXPECT_NE(plugin, nullptr);
    }

    ~LoadedPlugin()
    {
        if (plugin != nullptr) {
            endPane(*plugin);
        }
    }

    orvui::IGUIPlugin* operator->() const { return plugin; }

private:
    orv::DLLFuncPtrHelper<orv::IPlugin> library;
    orvui::IGUIPlugin* plugin = nullptr;
};

/// A plug-in with its pane in a side bar of its own.
class PluginWithPane
{
public:
    explicit PluginWithPane(CWnd& frame)
    {
        EXPECT_TRUE(sideBar.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 8, WS_CHILD | WS_VISIBLE));
        plugin->AddToOutlookBar(sideBar.GetSafeHwnd(), std::make_shared<FakeResourceManager>());
        window = sideBar.tabs().GetTabWnd(0);
        pane = dynamic_cast<orv::IOutlookPane*>(window);
        EXPECT_NE(pane, nullptr);
    }
    ~PluginWithPane() { sideBar.DestroyWindow(); }

    void openModel(std::shared_ptr<orv::IDocument> const& document)
    {
        sendHint(*plugin.operator->(), orv::HintCode::documentOpened, document);
        sendHint(*pane, orv::HintCode::documentOpened, document);
    }

    /// Types a comment and sends it; false where there is no comment box.
    bool submitComment(std::wstring const& comment)
    {
        constexpr int list = 202;
        constexpr int box = 2005;
        constexpr int submit = 2006;
        auto* const groups = dynamic_cast<CMFCTasksPane*>(window->GetDlgItem(list));
        for (int i = 0; groups != nullptr && i < groups->GetGroupCount(); ++i) {
            CWnd* const form = CWnd::FromHandle(groups->GetTaskGroup(i)->m_lstTasks.at(0).m_hwndTask);
            if (form->GetDlgItem(box) != nullptr) {
                return orvplatform::testing::typeText(*form, box, comment) &&
                       orvplatform::testing::clickButton(*form, submit);
            }
        }
        return false;
    }

    LoadedPlugin plugin;
    SideBar sideBar;
    CWnd* window = nullptr;
    orv::IOutlookPane* pane = nullptr;
};

} // namespace orvtest
