#include "ui/feed/AddFeed.h"

#include "feed/FeedWriter.h"
#include "feed/RaiseHint.h"
#include "feed/ViewCapture.h"
#include "host/orv/SCApplication.h"
#include "host/orvexp/IDelayExporter.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
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

namespace
{

/// What a comment needs of the model, asked for in this order before anything else. Held until the comment is sent, so
/// that nothing of it goes while a request runs.
struct CommentRecords {
    explicit CommentRecords(std::shared_ptr<orv::IDocument> const& document)
        : renderer(orv::recordOf<orvgl::SCRenderer>(document)), resources(orv::recordOf<orvsg::SCSceneRes>(document)),
          topology(orv::recordOf<orvsg::SCSceneTopo>(document)),
          application(orv::recordOf<orv::SCApplication>(document)), info(orv::recordOf<orvsg::SCInfo>(document)),
          runtime(orv::recordOf<orvsg::SCSceneRT>(document))
    {
    }
    std::wstring path() const { return info ? info->file() : std::wstring(); }

    std::shared_ptr<orvgl::SCRenderer> renderer;
    std::shared_ptr<orvsg::SCSceneRes> resources;
    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orv::SCApplication> application;
    std::shared_ptr<orvsg::SCInfo> info;
    std::shared_ptr<orvsg::SCSceneRT> runtime;
};

} // namespace

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
    CommentRecords const records(document);
    if (!isConnected(records.application)) {
        return;
    }
    std::wstring const text = textOf(edit);
    if (text.empty()) {
        showStatus(records.application, pluginText(resource::text::commentEmpty));
        return;
    }
    std::wstring const path = records.path();
    std::wstring const fileName = modelName(path.c_str());
    std::wstring jobId = isFilePresent(user->username, user->userid, fileName);
    if (!isJobId(jobId)) {
        // The answer isn't tested: the comment goes out whatever came back.
        jobId = uploadModel(path, fileName, records.application ? records.application->application : nullptr);
    }
    Feed const comment = captureView(document, *user, text, jobId, imagePath);
    lastFeed = comment;
    addFeed(user->username, user->userid, fileName, comment.comment.id, FeedWriter().write(comment), jobId);
    raiseHint(document, orv::HintCode::commentAdded);
    edit.SetWindowTextW(L"");
    showStatus(records.application, pluginText(resource::text::commentAdded));
}

/// Sends a PRC copy of the model under the model's own name. The copy stays in the temporary directory.
std::wstring AddFeed::uploadModel(std::wstring const& modelPath, std::wstring const& fileName,
                                  std::shared_ptr<orv::IApplication> const& application)
{
    if (!delayExporter) {
        delayExporter = makeDeferredExporter(nullptr);
    }
    std::wstring const path = prcFilePath(modelPath.c_str());
    delayExporter->save(path.c_str(), document, nullptr, application ? application->getStatusManager() : nullptr);
    return CloudHelper::uploadInput(fileName, path, user->username, user->userid, L"prc");
}
