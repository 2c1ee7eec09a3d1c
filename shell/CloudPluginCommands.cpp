// The two commands of the ribbon, and when each is enabled.

#include "host/orvsg/SCInfo.h"
#include "service/CloudHelper.h"
#include "service/PluginText.h"
#include "shell/cloudplugin.h"
#include "ui/ResourceIds.h"
#include "ui/ResourceModule.h"
#include "ui/account/CloudLoginDlg.h"
#include "ui/account/SessionStore.h"
#include "ui/account/SettingsDlg.h"
#include "ui/feed/ShareDialog.h"

#include <wininet.h>

#include <utility>

void cloudplugin::OnCommand(HWND, unsigned int command, std::shared_ptr<orv::IApplication> host)
{
    if (!document) {
        return;
    }
    application = std::move(host);
    DWORD flags = 0;
    if (!InternetGetConnectedState(&flags, 0)) {
        if (application) {
            application->showStatus(pluginText(resource::text::noConnection).c_str(), 0);
        }
        return;
    }
    ResourceModule const module;
    if (command == pushCommand) {
        push();
    } else if (command == shareCommand) {
        sharedlg dialog(document, application, userInfo, helper);
        dialog.DoModal();
    }
}

/// Goes by the session file: an empty one counts as signed in, and the service is then asked with empty names.
void cloudplugin::push()
{
    if (!SessionFile().readTwo(*userInfo)) {
        CloudLoginDlg dialog(document, application, userInfo, helper);
        dialog.DoModal(); // pushes by itself
        return;
    }
    if (settings->uploadDirect) {
        helper->pushDirect(document, userInfo);
    } else {
        helper->pushWithPreview(document, application, userInfo);
    }
}

bool cloudplugin::isPushable() const
{
    auto const info = orv::recordOf<orvsg::SCInfo>(document);
    return !info || (info->file()[0] != L'\0' && info->pushState != orvsg::SCInfo::notPushable);
}

void cloudplugin::OnUpdateCommand(HWND, unsigned int command, bool* enabled)
{
    if (enabled == nullptr) {
        return;
    }
    *enabled = command == feedsCommand || isPushable();
    // Asked on every pass: this is how the button notices a login or a logout.
    if (command == shareCommand && !SessionFile().canOpen()) {
        *enabled = false;
    }
}
