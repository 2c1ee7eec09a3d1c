#include "ui/feed/FeedPane.h"

#include "feed/FeedReader.h"
#include "feed/RaiseHint.h"
#include "host/orv/SCApplication.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/ResourceLoader.h"
#include "service/FeedRequests.h"
#include "service/JobId.h"
#include "service/ModelName.h"
#include "ui/DocumentServices.h"

#include <utility>

namespace
{

constexpr UINT listId = 202;

bool keepsDocument(short code)
{
    using namespace orv::HintCode;
    switch (code) {
    case documentActivated:
    case documentOpened:
    case documentClosed:
    case documentChanged:
    case commentAdded:
    case unitsChanged:
    case commentDeleted:
    case feedReloaded:
    case signedIn:
    case signedOut:
        return true;
    default:
        return false;
    }
}

bool changesView(short code)
{
    using namespace orv::HintCode;
    return code == viewChanged || code == selectionChanged || code == sceneChanged;
}

} // namespace

BEGIN_MESSAGE_MAP(FeedPane, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
END_MESSAGE_MAP()

FeedPane::FeedPane(std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> cloudHelper)
    : userInfo(std::move(user)), helper(std::move(cloudHelper))
{
}

FeedPane::~FeedPane()
{
    helper.reset();
    document.reset();
    feed.clear();
    userInfo.reset();
}

void FeedPane::PostNcDestroy()
{
    IWOutlookPane<CWnd>::PostNcDestroy();
    if (created) {
        delete this;
    }
}

int FeedPane::OnCreate(LPCREATESTRUCT creation)
{
    if (CWnd::OnCreate(creation) == -1) {
        return -1;
    }
    DWORD const style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    created = list.Create(L"", this, CRect(0, 0, 0, 0), FALSE, listId, style) != FALSE;
    return created ? 0 : -1;
}

void FeedPane::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    if (list.GetSafeHwnd() == nullptr) {
        return;
    }
    // The list's caption is moved out of sight. Displays between the two resolutions, and below the first, get no
    // sizing at all; that is meant.
    double const dpi = orvsgutils::ResourceLoader::m_dpi;
    if (dpi == 96.0) {
        list.MoveWindow(0, -20, width, height + 20);
    } else if (dpi >= 120.0) {
        list.MoveWindow(0, -40, width, height + 40);
    }
}

void FeedPane::OnUpdate(orv::IHint* hint)
{
    if (hint == nullptr) {
        return;
    }
    // The list is rebuilt from the feed as it stands; what the hint makes of the feed shows with the hint that follows.
    if (!listHasFeed) {
        handOver();
    }
    list.OnUpdate(hint);

    short const code = hint->getCode();
    if (keepsDocument(code)) {
        takeDocument(*hint, document);
        if (orv::recordOf<orvsg::SCSceneTopo>(document)) {
            Invalidate();
        }
        using namespace orv::HintCode;
        if (code == commentAdded || code == commentDeleted || code == signedIn) {
            LoadFeed();
            Invalidate();
        } else if (code == documentClosed || code == signedOut) {
            takeFeed({});
            UpdateTitle(true);
        }
    }
    if (changesView(code)) {
        Invalidate();
    }
}

void FeedPane::OnActivateChange(bool active)
{
    if (active && !userInfo->username.empty()) {
        LoadFeed();
    }
}

void FeedPane::takeFeed(std::vector<Feed> newFeed)
{
    listHasFeed = false;
    feed = std::move(newFeed);
    handOver();
}

void FeedPane::handOver()
{
    list.setFeed(feed, userInfo, helper);
    listHasFeed = true;
}

void FeedPane::LoadFeed()
{
    auto const info = orv::recordOf<orvsg::SCInfo>(document);
    auto const application = applicationOf(document);
    if (!info || !application || !isConnected(application)) {
        return;
    }
    std::wstring const path = info->file();
    if (path.empty()) {
        return;
    }
    std::wstring const jobId = isFilePresent(userInfo->username, userInfo->userid, modelName(path.c_str()));
    if (!isJobId(jobId)) {
        takeFeed({});
    } else {
        takeFeed(FeedReader().read(getFeed(userInfo->username, userInfo->userid, path, jobId)));
    }
    UpdateTitle(true);
    raiseHint(document, orv::HintCode::feedReloaded);
}

void FeedPane::UpdateTitle(bool show)
{
    if (!show) {
        return;
    }
    CWnd* const parent = CWnd::FromHandle(::GetAncestor(GetSafeHwnd(), GA_PARENT));
    if (parent == nullptr) {
        return;
    }
    CString title;
    parent->GetWindowTextW(title);
    int const hyphen = title.Find(L'-');
    if (hyphen > 0) {
        title = title.Left(hyphen - 1); // the blank before the hyphen goes as well
    }
    CString counted;
    counted.Format(L"%s - %d", title.GetString(), static_cast<int>(feed.size()));
    parent->SetWindowTextW(counted);
}
