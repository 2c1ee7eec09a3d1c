#pragma once

#include "host/orv/IHint.h"
#include "host/orvweb/UserInfo.h"

#include <afxcontrolbars.h>
#include <afxdialogex.h>

#include <memory>

class CloudHelper;

/// The two buttons above the feed. Deletes itself with its window.
class FeedToolbarDialog : public CDialogEx
{
public:
    FeedToolbarDialog();

    static UINT templateId();

    /// To be called before each hint.
    void SetContext(std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> cloudHelper);

    /// Keeps the hint's document. Hints 3 and 41 enable the buttons when somebody is signed in and a model is open, 42
    /// disables them, and nothing else touches them. Null is ignored.
    virtual void OnUpdate(orv::IHint* hint);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override {}
    void PostNcDestroy() override;

    void OnPushToCloud();
    void OnShare();
    DECLARE_MESSAGE_MAP()

private:
    void enableButtons(bool enable);

    std::shared_ptr<orvweb::UserInfo> userInfo;
    CMFCButton pushButton;
    CMFCButton shareButton;
    std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<CloudHelper> helper;
};
