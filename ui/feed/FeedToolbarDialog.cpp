#include "ui/feed/FeedToolbarDialog.h"

#include "service/CloudHelper.h"
#include "service/PluginText.h"
#include "ui/DialogTemplate.h"
#include "ui/DocumentServices.h"
#include "ui/ResourceIds.h"
#include "ui/ResourceModule.h"
#include "ui/feed/ShareDialog.h"

#include <utility>

BEGIN_MESSAGE_MAP(FeedToolbarDialog, CDialogEx)
ON_BN_CLICKED(resource::control::push, &FeedToolbarDialog::OnPushToCloud)
ON_BN_CLICKED(resource::control::share, &FeedToolbarDialog::OnShare)
END_MESSAGE_MAP()

FeedToolbarDialog::FeedToolbarDialog() : CDialogEx(templateId()) {}

UINT FeedToolbarDialog::templateId()
{
    return DialogTemplate{206, 300, 301, 302, 303, 304, 305, 306}.forCurrentLanguage();
}

void FeedToolbarDialog::SetContext(std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> cloudHelper)
{
    userInfo = std::move(user);
    helper = std::move(cloudHelper);
}

void FeedToolbarDialog::DoDataExchange(CDataExchange* exchange)
{
    CDialogEx::DoDataExchange(exchange);
    DDX_Control(exchange, resource::control::push, pushButton);
    DDX_Control(exchange, resource::control::share, shareButton);
}

BOOL FeedToolbarDialog::OnInitDialog()
{
    CDialogEx::OnInitDialog();
    pushButton.SetTooltip(pluginText(resource::text::pushTip).c_str());
    pushButton.SetImage(resource::image::push);
    shareButton.SetTooltip(pluginText(resource::text::shareTip).c_str());
    shareButton.SetImage(resource::image::share);
    enableButtons(false);
    return TRUE;
}

void FeedToolbarDialog::PostNcDestroy()
{
    CDialogEx::PostNcDestroy();
    delete this;
}

void FeedToolbarDialog::enableButtons(bool enable)
{
    pushButton.EnableWindow(enable);
    shareButton.EnableWindow(enable);
}

void FeedToolbarDialog::OnUpdate(orv::IHint* hint)
{
    if (hint == nullptr) {
        return;
    }
    takeDocument(*hint, document);
    using namespace orv::HintCode;
    short const code = hint->getCode();
    if (code == documentOpened || code == signedIn) {
        if (userInfo && !userInfo->userid.empty() && !modelPath(document).empty()) {
            enableButtons(true);
        }
    } else if (code == signedOut) {
        enableButtons(false);
    }
}

void FeedToolbarDialog::OnPushToCloud()
{
    if (!document || !helper || !isConnected(applicationOf(document))) {
        return;
    }
    helper->pushDirect(document, userInfo); // shows its own progress and messages
}

void FeedToolbarDialog::OnShare()
{
    ResourceModule::use();
    sharedlg dialog(document, userInfo, helper);
    dialog.DoModal();
}
