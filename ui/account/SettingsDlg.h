#pragma once

#include "host/orv/IApplication.h"
#include "host/orv/IDocument.h"
#include "host/orvweb/UserInfo.h"
#include "service/CloudSettings.h"

#include <afxdlgs.h>
#include <afxwin.h>

#include <memory>
#include <string>

class CloudHelper;

/// The page "Cloud" of the options sheet: who is signed in, and the button to sign out or in. It goes by the session
/// file, not by `user`.
class SettingsDlg : public CPropertyPage
{
public:
    SettingsDlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orv::IApplication> host,
                std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudSettings> cloudSettings,
                std::shared_ptr<CloudHelper> cloudHelper);

    static UINT templateId();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    void OnButton();
    DECLARE_MESSAGE_MAP()

private:
    void showSignedOut();
    void signIn();
    void signOut();

    CStatic state;
    CButton button; ///< its caption is also the page's state
    std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<orv::IApplication> application; ///< maybe empty; not used
    std::shared_ptr<orvweb::UserInfo> userInfo;
    std::shared_ptr<CloudSettings> settings; ///< not used
    std::shared_ptr<CloudHelper> helper;
};
