#pragma once

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orvui/COOutlookTabCtrl.h"
#include "host/orvui/IGUIPlugin.h"
#include "host/orvui/IResourceManager.h"
#include "host/orvui/IWView.h"
#include "host/orvui/OrvantaCategory.h"
#include "ui/UiTest.h"

#include <afxcontrolbars.h>

#include <memory>
#include <vector>

namespace orvtest
{

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

    orvui::IGUIPlugin* operator->() const { return plugin; }

private:
    orv::DLLFuncPtrHelper<orv::IPlugin> library;
    orvui::IGUIPlugin* plugin = nullptr;
};

/// Gives command ids from 40000 on and keeps the windows that are enrolled.
class FakeResourceManager final : public orvui::IResourceManager
{
public:
    int getCommandId(int localNumber) override { return 40000 + localNumber; }
    void addWindow(HWND window) override { windows.push_back(window); }

    std::vector<HWND> windows;
};

/// A side bar as the viewer has one.
class SideBar : public orvui::IWView<CMFCOutlookBar>
{
public:
    COOutlookTabCtrl* getTabCtrl() override { return dynamic_cast<COOutlookTabCtrl*>(GetUnderlyingWindow()); }
    void OnUpdate(orv::IHint*) override {}

protected:
    std::unique_ptr<CMFCOutlookBarTabCtrl> MakeTabCtrl() override { return std::make_unique<COOutlookTabCtrl>(); }
};

} // namespace orvtest
