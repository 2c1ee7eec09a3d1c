// A plug-in that writes down what the viewer does to it. With ORV_THROWING every operation throws instead.

#include "host/orv/SCApplication.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvui/Hint.h"
#include "host/orvui/IGUIPlugin.h"
#include "host/orvui/IWOutlookPane.h"
#include "host/orvui/IWView.h"
#include "host/orvui/OrvantaCategory.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace
{

constexpr int action = 118;
constexpr int paneNumber = 201;

std::vector<std::string>& events()
{
    static std::vector<std::string> list;
    return list;
}

void note([[maybe_unused]] std::string const& event)
{
#ifdef ORV_THROWING
    throw std::runtime_error("thrown on purpose: " + event);
#else
    events().push_back(event);
#endif
}

/// Nothing for a model.
std::string kindOf(std::shared_ptr<orv::IDocument> const& document)
{
    auto const info = orv::recordOf<orvsg::SCInfo>(document);
    auto const link = orv::recordOf<orv::SCApplication>(document);
    if (!info || !link || !link->application) {
        return " without document";
    }
    return *info->file() == L'\0' ? " of no file" : "";
}

class Pane : public orvui::IWOutlookPane<CWnd>
{
public:
    void OnUpdate(orv::IHint* hint) override { note("pane hint " + std::to_string(hint->getCode())); }
    void OnActivateChange(bool active) override { note(active ? "pane activated" : "pane left"); }
};

Pane* pane = nullptr; // of the one plug-in

class RecordingPlugin : public orvui::IGUIPlugin
{
public:
    RecordingPlugin() : IGUIPlugin(L"{11111111-2222-3333-4444-555555555555}") { pane = new Pane; }

    wchar_t const* getName() override { return L"recording"; }
    PluginType getType() override { return guiPlugin; }
    std::shared_ptr<orv::Preferences> loadPreferences(std::shared_ptr<orv::IPreferencesRegistry>) override
    {
        return nullptr;
    }
    void savePreferences(std::shared_ptr<orv::IPreferencesRegistry>, std::shared_ptr<orv::Preferences>) override {}
    void setParent(HINSTANCE module) override
    {
        IGUIPlugin::setParent(module);
        note("parent");
    }

    void AddToRibbon(HWND handle, std::shared_ptr<orvui::IResourceManager> resources) override
    {
        note("ribbon");
        auto* bar = dynamic_cast<CMFCRibbonBar*>(CWnd::FromHandlePermanent(handle));
        auto* category = bar ? dynamic_cast<OrvantaCategory*>(bar->GetActiveCategory()) : nullptr;
        if (category == nullptr) {
            note("no category");
            return;
        }
        auto* panel = category->InsertPanel(category->GetPanelCount() - 1, L"Recording", nullptr, nullptr);
        panel->Add(new CMFCRibbonButton(static_cast<UINT>(resources->getCommandId(action)), L"Act"));
    }

    void AddToOutlookBar(HWND handle, std::shared_ptr<orvui::IResourceManager> resources) override
    {
        note("side bar");
        auto* bar = dynamic_cast<orvui::IWView<CMFCOutlookBar>*>(CWnd::FromHandlePermanent(handle));
        if (bar == nullptr || bar->getTabCtrl() == nullptr) {
            note("no tabs");
            return;
        }
        pane->Create(RECT{}, bar, static_cast<UINT>(resources->getCommandId(paneNumber)));
        pane->paneValue = bar->paneValue;
        resources->addWindow(pane->GetSafeHwnd());
        resources->addWindow(nullptr);
        bar->getTabCtrl()->AddControl(pane, L"Recording", -1, TRUE, 7);
    }

    void AddToPropertySheet(HWND, std::shared_ptr<orvui::IResourceManager>) override { note("options"); }

    void OnCommand(HWND, unsigned int command, std::shared_ptr<orv::IApplication> application) override
    {
        note("command " + std::to_string(command));
        application->showStatus(L"The command ran.", 0);
    }

    void OnUpdateCommand(HWND, unsigned int command, bool* enabled) override
    {
#ifdef ORV_THROWING
        note("update");
#endif
        auto const info = orv::recordOf<orvsg::SCInfo>(document);
        *enabled = command == action && info && *info->file() != L'\0';
    }

    void OnUpdate(orv::IHint* hint) override
    {
        note("hint " + std::to_string(hint->getCode()) + kindOf(hint->getDocument()));
        document = hint->getDocument();
        // On a document's opening a hint is raised from within one, as feed panes do.
        if (hint->getCode() == orv::HintCode::documentOpened) {
            auto const link = orv::recordOf<orv::SCApplication>(document);
            orvui::Hint own(orv::HintCode::feedReloaded, document);
            link->application->getViewNotifier()->notify(own);
        }
        if (hint->getCode() == orv::HintCode::documentClosed) {
            document = nullptr;
        }
    }

private:
    std::shared_ptr<orv::IDocument> document;
};

} // namespace

extern "C" int createPlugin(orv::IPlugin** plugin)
{
    *plugin = new RecordingPlugin;
    return 0;
}

extern "C" int destroyPlugin(orv::IPlugin** plugin)
{
    events().push_back("destroyed");
    delete *plugin;
    *plugin = nullptr;
#ifdef ORV_THROWING
    throw std::runtime_error("ended on purpose");
#else
    return 0;
#endif
}

/// Ends the pane's window, and the object with its second call.
extern "C" void endPane()
{
    if (!pane->DestroyWindow()) {
        delete std::exchange(pane, nullptr);
    }
}

/// The events so far; they are forgotten with that.
extern "C" void takeEvents(std::vector<std::string>* list)
{
    *list = std::move(events());
    events().clear();
}
