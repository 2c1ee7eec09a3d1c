#include "ui/account/SettingsDlg.h"

#include "feed/RaiseHint.h"
#include "host/orv/IHint.h"
#include "service/CloudHelper.h"
#include "service/PluginText.h"
#include "ui/ControlText.h"
#include "ui/DialogTemplate.h"
#include "ui/ResourceIds.h"
#include "ui/ResourceModule.h"
#include "ui/account/CloudLoginDlg.h"
#include "ui/account/SessionStore.h"

#include <utility>

BEGIN_MESSAGE_MAP(SettingsDlg, CPropertyPage)
ON_BN_CLICKED(resource::control::accountButton, &SettingsDlg::OnButton)
END_MESSAGE_MAP()

SettingsDlg::SettingsDlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orv::IApplication> host,
                         std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudSettings> cloudSettings,
                         std::shared_ptr<CloudHelper> cloudHelper)
    : CPropertyPage(templateId()), document(std::move(model)), application(std::move(host)), userInfo(std::move(user)),
      settings(std::move(cloudSettings)), helper(std::move(cloudHelper))
{
}

UINT SettingsDlg::templateId()
{
    return DialogTemplate{106, 172, 173, 174, 175, 176, 177, 178}.forCurrentLanguage();
}

void SettingsDlg::DoDataExchange(CDataExchange* exchange)
{
    CPropertyPage::DoDataExchange(exchange);
    DDX_Control(exchange, resource::control::accountState, state);
    DDX_Control(exchange, resource::control::accountButton, button);
}

BOOL SettingsDlg::OnInitDialog()
{
    CPropertyPage::OnInitDialog();
    std::wstring username;
    if (SessionFile().readFirst(username)) {
        state.SetWindowTextW((pluginText(resource::text::loggedInAs) + username).c_str());
        button.SetWindowTextW(pluginText(resource::text::logout).c_str());
    } else {
        showSignedOut();
    }
    CPropertyPage::OnInitDialog(); // a second time, now with the texts in place
    return TRUE;
}

void SettingsDlg::showSignedOut()
{
    state.SetWindowTextW(pluginText(resource::text::pleaseLogin).c_str());
    button.SetWindowTextW(pluginText(resource::text::login).c_str());
}

void SettingsDlg::OnButton()
{
    if (textOf(button) == pluginText(resource::text::logout)) {
        signOut();
    } else {
        signIn();
    }
}

/// The page's texts stay as they are until the sheet opens anew.
void SettingsDlg::signIn()
{
    {
        ResourceModule const module;
        CloudLoginDlg dialog(document, userInfo, helper);
        dialog.DoModal();
    }
    OnOK();
}

void SettingsDlg::signOut()
{
    if (helper->logout(userInfo->username) == CloudHelper::logoutFailed) {
        return;
    }
    userInfo->username.clear();
    userInfo->userid.clear();
    showSignedOut();
    raiseHint(document, orv::HintCode::signedOut);
}
