// The two commands of the ribbon, and when each is enabled.

#include "host/orvsg/SCInfo.h"
#include "service/CloudHelper.h"
#include "shell/cloudplugin.h"
#include "ui/DocumentServices.h"
#include "ui/PushModel.h"
#include "ui/ResourceModule.h"
#include "ui/account/CloudLoginDlg.h"
#include "ui/account/SessionStore.h"
#include "ui/feed/ShareDialog.h"

#include <utility>

void cloudplugin::OnCommand(HWND, unsigned int command, std::shared_ptr<orv::IApplication> host)
{
    if (!document) {
        return;
    }
    application = std::move(host);
    if (!isConnected(application)) {
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
    pushModel(*settings, *helper, document, application, userInfo);
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
