#pragma once

#include "host/orv/IApplication.h"
#include "host/orv/IPlugin.h"
#include "host/orv/IView.h"
#include "host/orvui/IResourceManager.h"

#include <memory>
#include <string>

namespace orvui
{

/// A plug-in with a place in the viewer's windows. The handles are those of the ribbon bar, the side bar and the
/// options sheet. Command numbers are the plug-in's own; the window handle ahead of them isn't looked at.
class IGUIPlugin : public orv::IPlugin, public orv::IView
{
public:
    explicit IGUIPlugin(wchar_t const* identityText) : IPlugin(identityText) {}

    virtual void AddToRibbon(HWND ribbonBar, std::shared_ptr<IResourceManager> resources) = 0;
    virtual void AddToOutlookBar(HWND outlookBar, std::shared_ptr<IResourceManager> resources) = 0;
    virtual void AddToPropertySheet(HWND optionsSheet, std::shared_ptr<IResourceManager> resources) = 0;
    virtual void OnCommand(HWND window, unsigned int command, std::shared_ptr<orv::IApplication> application) = 0;
    virtual void OnUpdateCommand(HWND window, unsigned int command, bool* enabled) = 0;
    virtual void AddToContextMenu(HMENU, std::shared_ptr<IResourceManager>, std::shared_ptr<orv::IApplication>) {}
    virtual void OnTabActivate(std::wstring const&) {}
    virtual void getCommandName(unsigned int, std::wstring&) {}
};

} // namespace orvui
