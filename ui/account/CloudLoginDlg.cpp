#include "ui/account/CloudLoginDlg.h"

#include "feed/RaiseHint.h"
#include "host/orv/IHint.h"
#include "host/orv/SCApplication.h"
#include "service/AccountName.h"
#include "service/CloudHelper.h"
#include "service/FeedRequests.h"
#include "service/JobId.h"
#include "service/ModelName.h"
#include "service/PluginText.h"
#include "ui/ControlText.h"
#include "ui/DialogIcon.h"
#include "ui/DialogTemplate.h"
#include "ui/DocumentServices.h"
#include "ui/ResourceIds.h"
#include "ui/account/BuildSettings.h"
#include "ui/account/SessionStore.h"
#include "ui/account/SupportRequest.h"

#include <shellapi.h>

#include <cwchar>
#include <utility>

BEGIN_MESSAGE_MAP(CloudLoginDlg, CDialog)
ON_BN_CLICKED(resource::control::loginButton, &CloudLoginDlg::OnLogin)
ON_BN_CLICKED(IDCANCEL, &CloudLoginDlg::OnCancel)
ON_NOTIFY(NM_CLICK, resource::control::accountOffer, &CloudLoginDlg::OnLinkClick)
END_MESSAGE_MAP()

CloudLoginDlg::CloudLoginDlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orvweb::UserInfo> user,
                             std::shared_ptr<CloudHelper> cloudHelper)
    : CloudLoginDlg(std::move(model), nullptr, std::move(user), std::move(cloudHelper))
{
}

CloudLoginDlg::CloudLoginDlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orv::IApplication> host,
                             std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> cloudHelper)
    : CDialog(templateId()), document(std::move(model)), application(std::move(host)), userInfo(std::move(user)),
      helper(std::move(cloudHelper))
{
}

UINT CloudLoginDlg::templateId()
{
    return DialogTemplate{101, 122, 123, 124, 125, 126, 127, 128}.forCurrentLanguage();
}

void CloudLoginDlg::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, resource::control::email, email);
    DDX_Control(exchange, resource::control::password, password);
    DDX_Control(exchange, resource::control::accountOffer, accountOffer);
}

BOOL CloudLoginDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    setDialogIcon(*this);
    accountOffer.SetWindowTextW(pluginText(resource::text::accountOffer).c_str());
    return TRUE;
}

void CloudLoginDlg::OnLogin()
{
    auto const way = applicationOf(document);
    if (!isConnected(way)) {
        return;
    }
    // Nothing is tested here: the service says what is valid.
    std::wstring const username = textOf(email);
    std::wstring const token = helper->login(username, textOf(password));
    if (!isLoginToken(token)) {
        showStatus(way, pluginText(resource::text::loginFailed));
        SessionFile().remove();
        return;
    }
    showStatus(way, pluginText(resource::text::loginSucceeded));
    // The rest runs before the modal loop ends, so the dialog's result is that of a cancel.
    CDialog::OnCancel();
    completeLogin(username, token);
}

void CloudLoginDlg::completeLogin(std::wstring const& username, std::wstring const& token)
{
    userInfo->username = username;
    userInfo->userid = token;
    if (readAccountName(accountInfo(username, token), userInfo->name)) {
        SessionFile().write(userInfo->username, userInfo->userid, userInfo->name);
    }
    pushNewModel();
    raiseHint(document, orv::HintCode::signedIn);
}

/// A model that the service doesn't have yet is sent without being asked for; one that it has isn't sent again.
void CloudLoginDlg::pushNewModel()
{
    std::wstring const path = modelPath(document);
    if (path.empty()) {
        return;
    }
    if (!isJobId(isFilePresent(userInfo->username, userInfo->userid, modelName(path.c_str())))) {
        helper->pushDirect(document, userInfo);
    }
}

void CloudLoginDlg::OnLinkClick(NMHDR* notification, LRESULT* result)
{
    wchar_t const* const address = reinterpret_cast<NMLINK*>(notification)->item.szUrl;
    if (std::wcscmp(address, buildSettings::serviceUrl) == 0) {
        ShellExecuteW(nullptr, L"open", address, nullptr, nullptr, SW_SHOWNORMAL);
    } else if (std::wcscmp(address, buildSettings::supportAddress) == 0) {
        sendSupportRequest(document);
    }
    *result = 0;
}
