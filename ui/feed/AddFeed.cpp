#include "ui/feed/AddFeed.h"

#include "feed/FeedWriter.h"
#include "feed/RaiseHint.h"
#include "feed/ViewCapture.h"
#include "host/orv/SCApplication.h"
#include "host/orvexp/IDelayExporter.h"
#include "service/CloudHelper.h"
#include "service/Exporters.h"
#include "service/FeedRequests.h"
#include "service/JobId.h"
#include "service/ModelFiles.h"
#include "service/ModelName.h"
#include "service/PluginText.h"
#include "ui/ControlText.h"
#include "ui/DialogTemplate.h"
#include "ui/DocumentServices.h"
#include "ui/ResourceIds.h"

#include <utility>

BEGIN_MESSAGE_MAP(AddFeed, CDialogEx)
ON_BN_CLICKED(resource::control::submitComment, &AddFeed::OnSubmit)
END_MESSAGE_MAP()

AddFeed::AddFeed() : CDialogEx(templateId()), imagePath(thumbnailPath()) {}

UINT AddFeed::templateId()
{
    return DialogTemplate{207, 279, 280, 281, 282, 283, 284, 285}.forCurrentLanguage();
}

void AddFeed::setUser(std::shared_ptr<orvweb::UserInfo> newUser)
{
    user = std::move(newUser);
}

void AddFeed::DoDataExchange(CDataExchange* exchange)
{
    CDialogEx::DoDataExchange(exchange);
    DDX_Control(exchange, resource::control::newComment, edit);
    DDX_Control(exchange, resource::control::submitComment, submit);
}

BOOL AddFeed::OnInitDialog()
{
    CDialogEx::OnInitDialog();
    return TRUE;
}

void AddFeed::PostNcDestroy()
{
    CDialogEx::PostNcDestroy();
    delete this;
}

void AddFeed::OnUpdate(orv::IHint* hint)
{
    if (hint == nullptr || hint->getCode() != orv::HintCode::documentOpened) {
        return;
    }
    takeDocument(*hint, document);
}

void AddFeed::OnSubmit()
{
    if (!document || !user) {
        return;
    }
    auto const application = applicationOf(document);
    if (!isConnected(application)) {
        return;
    }
    std::wstring const text = textOf(edit);
    if (text.empty()) {
        showStatus(application, pluginText(resource::text::commentEmpty));
        return;
    }
    std::wstring const fileName = modelName(modelPath(document).c_str());
    std::wstring jobId = isFilePresent(user->username, user->userid, fileName);
    if (!isJobId(jobId)) {
        jobId = uploadModel(fileName); // not tested: the comment goes out whatever came back
    }
    Feed const comment = captureView(document, *user, text, jobId, imagePath);
    lastFeed = comment;
    addFeed(user->username, user->userid, fileName, comment.comment.id, FeedWriter().write(comment), jobId);
    raiseHint(document, orv::HintCode::commentAdded);
    edit.SetWindowTextW(L"");
    showStatus(application, pluginText(resource::text::commentAdded));
}

/// Sends a PRC copy of the model under the model's own name. The copy stays in the temporary directory.
std::wstring AddFeed::uploadModel(std::wstring const& fileName)
{
    if (!delayExporter) {
        delayExporter = makeDeferredExporter(nullptr);
    }
    std::wstring const path = prcFilePath(modelPath(document).c_str());
    auto const way = applicationOf(document);
    auto* const status = way && way->application ? way->application->getStatusManager() : nullptr;
    delayExporter->save(path.c_str(), document, nullptr, status);
    return CloudHelper::uploadInput(fileName, path, user->username, user->userid, L"prc");
}
