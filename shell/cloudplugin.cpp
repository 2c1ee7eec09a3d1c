#include "shell/cloudplugin.h"

#include "service/CloudHelper.h"
#include "service/Exporters.h"
#include "ui/account/SessionStore.h"
#include "ui/account/SettingsDlg.h"
#include "ui/feed/FeedPane.h"

cloudplugin::cloudplugin()
    : IGUIPlugin(L"{a661d3e7-45cd-4e9f-8886-fd3efe39ba63}"), settings(std::make_shared<CloudSettings>()),
      userInfo(std::make_shared<orvweb::UserInfo>())
{
    SessionFile().read(*userInfo);
    exporter = makeDeferredExporter(getParent());
    helper = std::make_shared<CloudHelper>(exporter);
    feedPane = new FeedPane(userInfo, helper);
}

cloudplugin::~cloudplugin()
{
    exporter.reset();
    userInfo.reset();
    settingsPage.reset();
    helper.reset();
    settings.reset();
    reserved.reset();
    application.reset();
    document.reset();
    // The pane isn't deleted here, that is meant: its window is the side bar's and ends it.
}

wchar_t const* cloudplugin::getName()
{
    return L"cloudplugin";
}

orv::IPlugin::PluginType cloudplugin::getType()
{
    return guiPlugin;
}

std::shared_ptr<orv::Preferences> cloudplugin::loadPreferences(std::shared_ptr<orv::IPreferencesRegistry>)
{
    return nullptr;
}

void cloudplugin::savePreferences(std::shared_ptr<orv::IPreferencesRegistry>, std::shared_ptr<orv::Preferences>) {}

void cloudplugin::OnUpdate(orv::IHint* hint)
{
    if (hint == nullptr) {
        return;
    }
    auto const current = hint->getDocument();
    if (!current) {
        return;
    }
    using namespace orv::HintCode;
    switch (hint->getCode()) {
    case documentActivated:
    case documentOpened:
    case documentReloaded:
    case documentImported:
    case documentReplaced:
    case documentSaved:
        document = current;
        break;
    default:
        break;
    }
}
