#pragma once

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orv/IApplication.h"
#include "host/orvui/IGUIPlugin.h"
#include "viewer/app/Barrier.h"
#include "viewer/app/ViewNotifier.h"
#include "viewer/plugins/PluginResources.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace orvviewer
{

/// Loads the plug-ins and stands between them and the windows. Every call goes through the barrier; a library that
/// can't be used is reported by a sentence and the viewer works on without it.
class PluginHost
{
public:
    struct Services {
        std::shared_ptr<Barrier> barrier;
        std::shared_ptr<ViewNotifier> notifier;
        std::shared_ptr<orv::IApplication> application;
        std::function<void(std::wstring const&)> report; ///< given a sentence
        HWND mainWindow = nullptr;
    };

    explicit PluginHost(Services services);
    ~PluginHost();
    PluginHost(PluginHost const&) = delete;
    PluginHost& operator=(PluginHost const&) = delete;

    /// The plug-ins that belong to the viewer, and whatever else lies in the folder.
    void loadAll(std::wstring const& folder);
    /// One library; false, and a sentence, where it can't be used.
    bool load(std::wstring const& path);
    std::size_t count() const { return plugins.size(); }

    void addToRibbon(HWND ribbonBar);
    void addToSideBar(HWND sideBar);
    void addToOptions(HWND sheet);
    void tabActivated(std::wstring const& title);

    bool owns(unsigned int command) const;
    bool isEnabled(unsigned int command) const;
    bool run(unsigned int command); ///< false where no plug-in has the command or it threw

private:
    struct Loaded {
        std::shared_ptr<orv::DLLFuncPtrHelper<orv::IPlugin>> library;
        orvui::IGUIPlugin* plugin = nullptr;
        std::shared_ptr<PluginResources> resources;
    };

    Loaded const* ownerOf(unsigned int command, unsigned int& local) const;
    void enrol(HWND window);

    Services services;
    int nextCommand;
    std::vector<Loaded> plugins;
};

} // namespace orvviewer
