#pragma once

#include "feed/Feed.h"
#include "host/orv/IHint.h"
#include "host/orvweb/UserInfo.h"

#include <afxdialogex.h>

#include <memory>
#include <string>

namespace orv
{
class IApplication;
}
namespace orvexp
{
class IDelayExporter;
}

/// The form in which a user writes a comment on the open model. Deletes itself with its window.
class AddFeed : public CDialogEx
{
public:
    AddFeed();

    static UINT templateId();

    void setUser(std::shared_ptr<orvweb::UserInfo> newUser);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override {}
    void PostNcDestroy() override;

    /// Puts the model on the service if it isn't there, captures the view, sends the comment and tells everybody by
    /// hint 37. The user reads of success whatever the service answers; the feed that is reloaded shows the truth.
    void OnSubmit();
    DECLARE_MESSAGE_MAP()

private:
    std::wstring uploadModel(std::wstring const& modelPath, std::wstring const& fileName,
                             std::shared_ptr<orv::IApplication> const& application);

    CEdit edit;
    CButton submit;
    std::shared_ptr<orv::IDocument> document;
    Feed lastFeed; ///< a copy of the last comment
    std::shared_ptr<orvweb::UserInfo> user;
    std::wstring imagePath;                                ///< the thumbnail's file, overwritten by each comment
    std::shared_ptr<orvexp::IDelayExporter> delayExporter; ///< made on first need

public:
    /// Takes the document from hint 3. Null is ignored.
    virtual void OnUpdate(orv::IHint* hint);
};
