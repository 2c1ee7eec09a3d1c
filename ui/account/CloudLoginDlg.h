#pragma once

#include "host/orv/IApplication.h"
#include "host/orv/IDocument.h"
#include "host/orvweb/UserInfo.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <memory>
#include <string>

class CloudHelper;

/// Asks for e-mail address and password and signs the user in. Modal; the result of DoModal is always that of a cancel,
/// and a successful login shows in `user` and by hint 41.
class CloudLoginDlg : public CDialog
{
public:
    CloudLoginDlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orvweb::UserInfo> user,
                  std::shared_ptr<CloudHelper> cloudHelper);
    CloudLoginDlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orv::IApplication> host,
                  std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> cloudHelper);

    static UINT templateId();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    void OnLogin();
    void OnLinkClick(NMHDR* notification, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    void completeLogin(std::wstring const& username, std::wstring const& token);
    void pushNewModel();

    CEdit email;
    CEdit password;
    CLinkCtrl accountOffer;
    std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<orv::IApplication> application; ///< of the ribbon's path; not used
    std::shared_ptr<orvweb::UserInfo> userInfo;
    std::shared_ptr<CloudHelper> helper;
};
