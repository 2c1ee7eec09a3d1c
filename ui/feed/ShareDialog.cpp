#include "ui/feed/ShareDialog.h"

#include "service/CloudHelper.h"
#include "service/EmailAddress.h"
#include "service/JobId.h"
#include "service/ModelName.h"
#include "service/PluginText.h"
#include "ui/ControlText.h"
#include "ui/DialogIcon.h"
#include "ui/DialogTemplate.h"
#include "ui/DocumentServices.h"
#include "ui/ResourceIds.h"

#include <algorithm>
#include <utility>

BEGIN_MESSAGE_MAP(sharedlg, CDialog)
ON_BN_CLICKED(IDOK, &sharedlg::OnShare)
END_MESSAGE_MAP()

sharedlg::sharedlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orvweb::UserInfo> user,
                   std::shared_ptr<CloudHelper> cloudHelper)
    : sharedlg(std::move(model), nullptr, std::move(user), std::move(cloudHelper))
{
}

sharedlg::sharedlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orv::IApplication> host,
                   std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> cloudHelper)
    : CDialog(templateId()), document(std::move(model)), application(std::move(host)), userInfo(std::move(user)),
      helper(std::move(cloudHelper))
{
}

UINT sharedlg::templateId()
{
    return DialogTemplate{108, 179, 180, 181, 182, 183, 184, 185}.forCurrentLanguage();
}

void sharedlg::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, resource::control::recipients, to);
    DDX_Control(exchange, resource::control::message, message);
    DDX_Control(exchange, resource::control::recipientsError, error);
}

BOOL sharedlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    std::wstring const recipientsPrompt = pluginText(resource::text::recipientsPrompt);
    std::wstring const messagePrompt = pluginText(resource::text::messagePrompt);
    std::wstring const share = pluginText(resource::text::share);
    to.SetCueBanner(recipientsPrompt.c_str(), TRUE);
    message.SetCueBanner(messagePrompt.c_str(), TRUE);
    error.ShowWindow(SW_HIDE);
    setDialogIcon(*this);
    SetWindowTextW((share + L" " + modelName(modelPath(document).c_str())).c_str());
    return TRUE;
}

void sharedlg::OnShare()
{
    if (!isConnected(applicationOf(document))) {
        return;
    }
    std::wstring const recipients = textOf(to);
    auto const addresses = splitAddresses(recipients);
    if (addresses.empty() || !std::all_of(addresses.begin(), addresses.end(), isValidEmail)) {
        error.ShowWindow(SW_SHOW);
        return;
    }
    send(recipients, textOf(message));
    CDialog::OnCancel();
}

void sharedlg::send(std::wstring const& recipients, std::wstring const& text)
{
    auto const way = applicationOf(document);
    std::wstring const jobId = helper->pushDirect(document, userInfo);
    if (!isJobId(jobId)) {
        showStatus(way, pluginText(resource::text::shareFailed));
        return;
    }
    // What the service answers plays no part: the user is told of success all the same.
    CloudHelper::share(userInfo->username, userInfo->userid, jobId, recipients, text);
    showStatus(way, modelName(modelPath(document).c_str()) + L" " + pluginText(resource::text::sharedSuffix));
}
