#include "ui/account/FeedLoginDlg.h"

#include "service/PluginText.h"
#include "ui/DialogTemplate.h"
#include "ui/DocumentServices.h"
#include "ui/ResourceIds.h"
#include "ui/ResourceModule.h"
#include "ui/account/CloudLoginDlg.h"

#include <utility>

BEGIN_MESSAGE_MAP(FeedLoginDlg, CDialogEx)
ON_BN_CLICKED(resource::control::loginPrompt, &FeedLoginDlg::OnLoginClick)
END_MESSAGE_MAP()

FeedLoginDlg::FeedLoginDlg() : CDialogEx(templateId()) {}

UINT FeedLoginDlg::templateId()
{
    return DialogTemplate{115, 293, 294, 295, 296, 297, 298, 299}.forCurrentLanguage();
}

void FeedLoginDlg::SetContext(std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> cloudHelper)
{
    userInfo = std::move(user);
    helper = std::move(cloudHelper);
}

void FeedLoginDlg::OnUpdate(orv::IHint* hint)
{
    if (hint == nullptr) {
        return;
    }
    takeDocument(*hint, document);
}

void FeedLoginDlg::DoDataExchange(CDataExchange* exchange)
{
    CDialogEx::DoDataExchange(exchange);
    DDX_Control(exchange, resource::control::loginPrompt, button);
}

BOOL FeedLoginDlg::OnInitDialog()
{
    CDialogEx::OnInitDialog();
    CMFCButton::EnableWindowsTheming(TRUE);
    button.SetTooltip(pluginText(resource::text::loginTip).c_str());
    button.MoveWindow(0, 0, 220, 40); // pixels at every resolution
    return TRUE;
}

void FeedLoginDlg::PostNcDestroy()
{
    CDialogEx::PostNcDestroy();
    delete this;
}

void FeedLoginDlg::OnLoginClick()
{
    ResourceModule::use();
    CloudLoginDlg dialog(document, userInfo, helper);
    dialog.DoModal(); // hint 41 rebuilds the pane
}
