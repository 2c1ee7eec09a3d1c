#include "viewer/plugins/PluginHost.h"

#include "host/orv/FileUtils.h"
#include "host/orv/IOutlookPane.h"
#include "host/runtime/Files.h"
#include "platform/qt/WindowCreation.h"
#include "platform/text/Text.h"
#include "viewer/commands/CommandId.h"

#include <afxwin.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

namespace orvviewer
{

namespace
{

constexpr wchar_t const* ownPlugin = L"cloudplugin.dll";
constexpr wchar_t const* advice = L" The viewer works on without it; install the plug-in again to get it back.";

std::wstring named(std::wstring const& path)
{
    auto file = orvhost::nativePath(path);
    if (file.extension() == ".dll") {
        file.replace_extension(".so");
    }
    return L"The library \"" + orvtext::fromUtf8(file.filename().string()) + L"\"";
}

} // namespace

PluginHost::PluginHost(Services initial) : services(std::move(initial)), nextCommand(firstPluginCommand) {}

PluginHost::~PluginHost()
{
    for (auto& loaded : plugins) {
        services.notifier->remove(loaded.plugin);
        if (auto const sentence = loaded.library->release(); !sentence.empty()) {
            services.report(sentence);
        }
    }
}

void PluginHost::loadAll(std::wstring const& folder)
{
    std::set<std::filesystem::path> others;
    std::error_code failure;
    for (auto const& entry : std::filesystem::directory_iterator(orvhost::nativePath(folder), failure)) {
        if (entry.path().extension() == ".so" && entry.path().stem() != std::filesystem::path(ownPlugin).stem()) {
            others.insert(entry.path());
        }
    }
    load(orv::FileUtils::join(folder, ownPlugin));
    for (auto const& path : others) {
        load(orvtext::fromUtf8(path.string())); // a name that is no UTF-8 can only fail to load
    }
}

bool PluginHost::load(std::wstring const& path)
{
    Loaded loaded;
    loaded.library =
        std::make_shared<orv::DLLFuncPtrHelper<orv::IPlugin>>(path.c_str(), "createPlugin", "destroyPlugin");
    if (loaded.library->failure() == orv::LibraryEntry::Failure::madeNothing) {
        services.report(named(path) + L" made no plug-in." + advice);
        return false;
    }
    if (!loaded.library->isValid()) {
        services.report(loaded.library->errorText());
        return false;
    }
    loaded.plugin = dynamic_cast<orvui::IGUIPlugin*>(loaded.library->get());
    if (loaded.plugin == nullptr) {
        services.report(named(path) + L" is no plug-in for the viewer's windows. Move it out of the folder \"gui\".");
        if (auto const sentence = loaded.library->release(); !sentence.empty()) {
            services.report(sentence);
        }
        return false;
    }
    loaded.resources = std::make_shared<PluginResources>(nextCommand, [this](HWND window) { enrol(window); });
    services.barrier->run([&] { loaded.plugin->setParent(GetModuleHandleW(nullptr)); });
    services.notifier->add(loaded.plugin, [plugin = loaded.plugin](orv::IHint* hint) { plugin->OnUpdate(hint); });
    plugins.push_back(std::move(loaded));
    return true;
}

void PluginHost::enrol(HWND window)
{
    if (auto* pane = dynamic_cast<orv::IOutlookPane*>(CWnd::FromHandlePermanent(window))) {
        services.notifier->add(pane, [pane](orv::IHint* hint) { pane->OnUpdate(hint); });
        // A pane may end before the viewer does, and nothing is left then to take a hint.
        orvplatform::whenGone(window, [pane, notifier = std::weak_ptr(services.notifier)] {
            if (auto const list = notifier.lock()) {
                list->remove(pane);
            }
        });
    }
}

void PluginHost::addToRibbon(HWND ribbonBar)
{
    for (auto const& loaded : plugins) {
        services.barrier->run([&] { loaded.plugin->AddToRibbon(ribbonBar, loaded.resources); });
    }
}

void PluginHost::addToSideBar(HWND sideBar)
{
    for (auto const& loaded : plugins) {
        services.barrier->run([&] { loaded.plugin->AddToOutlookBar(sideBar, loaded.resources); });
    }
}

void PluginHost::addToOptions(HWND sheet)
{
    for (auto const& loaded : plugins) {
        services.barrier->run([&] { loaded.plugin->AddToPropertySheet(sheet, loaded.resources); });
    }
}

void PluginHost::tabActivated(std::wstring const& title)
{
    for (auto const& loaded : plugins) {
        services.barrier->run([&] { loaded.plugin->OnTabActivate(title); });
    }
}

PluginHost::Loaded const* PluginHost::ownerOf(unsigned int command, unsigned int& local) const
{
    for (auto const& loaded : plugins) {
        if (auto const number = loaded.resources->localNumber(static_cast<int>(command))) {
            local = static_cast<unsigned int>(*number);
            return &loaded;
        }
    }
    return nullptr;
}

bool PluginHost::owns(unsigned int command) const
{
    unsigned int local = 0;
    return ownerOf(command, local) != nullptr;
}

bool PluginHost::isEnabled(unsigned int command) const
{
    unsigned int local = 0;
    auto const* owner = ownerOf(command, local);
    bool enabled = false;
    return owner != nullptr &&
           services.barrier->run([&] { owner->plugin->OnUpdateCommand(services.mainWindow, local, &enabled); }) &&
           enabled;
}

bool PluginHost::run(unsigned int command)
{
    unsigned int local = 0;
    auto const* owner = ownerOf(command, local);
    return owner != nullptr &&
           services.barrier->run([&] { owner->plugin->OnCommand(services.mainWindow, local, services.application); });
}

} // namespace orvviewer
