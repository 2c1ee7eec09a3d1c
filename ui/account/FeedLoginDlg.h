#pragma once

#include "host/orv/IHint.h"
#include "host/orvweb/UserInfo.h"

#include <afxcontrolbars.h>
#include <afxdialogex.h>

#include <memory>

class CloudHelper;

/// The prompt in the feed pane: one big button that opens the login dialog. Deletes itself with its window.
class FeedLoginDlg : public CDialogEx
{
public:
    FeedLoginDlg();

    static UINT templateId();

    /// To be called before each hint.
    void SetContext(std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> cloudHelper);

    /// Keeps the hint's document. Null is ignored.
    virtual void OnUpdate(orv::IHint* hint);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override {}
    void PostNcDestroy() override;

    void OnLoginClick();
    DECLARE_MESSAGE_MAP()

private:
    std::shared_ptr<orvweb::UserInfo> userInfo;
    CMFCButton button;
    std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<CloudHelper> helper;
};
