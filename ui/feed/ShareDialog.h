#pragma once

#include "host/orv/IApplication.h"
#include "host/orv/IDocument.h"
#include "host/orvweb/UserInfo.h"

#include <afxwin.h>

#include <memory>
#include <string>

class CloudHelper;

/// Asks for the people to share the open model with, pushes the model and has the invitations sent. Modal; the result
/// of DoModal is always that of a cancel.
class sharedlg : public CDialog
{
public:
    sharedlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orvweb::UserInfo> user,
             std::shared_ptr<CloudHelper> cloudHelper);
    sharedlg(std::shared_ptr<orv::IDocument> model, std::shared_ptr<orv::IApplication> host,
             std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> cloudHelper);

    static UINT templateId();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    void OnShare();
    DECLARE_MESSAGE_MAP()

private:
    void send(std::wstring const& recipients, std::wstring const& text);

    CEdit to;
    CEdit message;
    CStatic error;
    std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<orv::IApplication> application; ///< of the ribbon's path; not used
    std::shared_ptr<orvweb::UserInfo> userInfo;
    std::shared_ptr<CloudHelper> helper;
};
