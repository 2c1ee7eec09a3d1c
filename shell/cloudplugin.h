#pragma once

#include "host/orv/IApplication.h"
#include "host/orv/IDocument.h"
#include "host/orvexp/IDelayExporter.h"
#include "host/orvui/IGUIPlugin.h"
#include "host/orvweb/UserInfo.h"
#include "service/CloudSettings.h"

#include <memory>

class COOutlookTabCtrl;
class CloudHelper;
class FeedPane;
class SettingsDlg;

/// The plug-in: who is signed in, the open model, the cloud operations and the side pane. All operations run on the
/// viewer's user-interface thread.
class cloudplugin : public orvui::IGUIPlugin
{
public:
    /// The plug-in's own command numbers.
    static constexpr unsigned int shareCommand = 102;
    static constexpr unsigned int pushCommand = 118;
    static constexpr unsigned int feedsCommand = 201; ///< names the side pane

    /// Restores the session. Touches neither the network nor a window.
    cloudplugin();
    /// Releases what it shares from the exporter up to the document. The session file stays, and with it the session.
    ~cloudplugin() override;

    wchar_t const* getName() override;
    PluginType getType() override;
    /// No preferences are kept with the viewer: always empty.
    std::shared_ptr<orv::Preferences> loadPreferences(std::shared_ptr<orv::IPreferencesRegistry> registry) override;
    void savePreferences(std::shared_ptr<orv::IPreferencesRegistry> registry,
                         std::shared_ptr<orv::Preferences> preferences) override;

    /// Each adds its piece to the window, and does nothing with a window of another class. The options page is added
    /// only while a document is known.
    void AddToRibbon(HWND ribbonBar, std::shared_ptr<orvui::IResourceManager> resources) override;
    void AddToOutlookBar(HWND outlookBar, std::shared_ptr<orvui::IResourceManager> resources) override;
    void AddToPropertySheet(HWND optionsSheet, std::shared_ptr<orvui::IResourceManager> resources) override;

    void OnCommand(HWND window, unsigned int command, std::shared_ptr<orv::IApplication> host) override;
    void OnUpdateCommand(HWND window, unsigned int command, bool* enabled) override;

    /// Takes the document from a hint that carries one, for the codes by which a document becomes current or is
    /// replaced. A closed document stays until the next one.
    void OnUpdate(orv::IHint* hint) override;

private:
    void push();
    bool isPushable() const;

    std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<orv::IApplication> application; ///< of the last command
    std::shared_ptr<void> reserved;                 ///< stays empty
    std::shared_ptr<CloudSettings> settings;
    std::shared_ptr<CloudHelper> helper;
    std::shared_ptr<SettingsDlg> settingsPage; ///< the page last added to the options sheet
    bool activateSettingsPage = false;         ///< stays false: the page never forces itself to the front
    std::shared_ptr<orvweb::UserInfo> userInfo;
    std::shared_ptr<orvexp::IDelayExporter> exporter;
    FeedPane* feedPane = nullptr; ///< its window ends it
    COOutlookTabCtrl* outlookTab = nullptr;
    bool paneWasAdded = false; ///< to a side bar
};
