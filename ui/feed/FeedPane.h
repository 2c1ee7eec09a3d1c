#pragma once

#include "feed/Feed.h"
#include "host/orvui/IWOutlookPane.h"
#include "host/orvweb/UserInfo.h"
#include "ui/feed/TaskPane.h"

#include <afxwin.h>

#include <memory>
#include <vector>

class CloudHelper;

/// The tab "Feeds" of the side bar. It takes the viewer's hints, owns the open model's feed, fetches it from the
/// service, and shows it in the list that fills it. Made on the heap; once its window exists, it deletes itself with
/// the window.
class FeedPane : public orvui::IWOutlookPane<CWnd>
{
public:
    /// `user` and `helper` are never empty. Makes no window yet.
    FeedPane(std::shared_ptr<orvweb::UserInfo> user, std::shared_ptr<CloudHelper> helper);
    ~FeedPane() override;

    void OnUpdate(orv::IHint* hint) override;
    void OnActivateChange(bool active) override;

    /// Fetches the feed of the open model and tells everybody by hint 40. Two requests, one after the other. Without a
    /// connection the user is told and everything stays. Throws what JsonCpp throws on a feed of the wrong shape.
    void LoadFeed();

    /// Writes the number of entries behind the title of the parent window, in place of an earlier number. Nothing when
    /// `show` is false.
    void UpdateTitle(bool show);

protected:
    void PostNcDestroy() override;

    int OnCreate(LPCREATESTRUCT creation);
    void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    void takeFeed(std::vector<Feed> newFeed);
    void handOver();

    CTaskPane list;
    std::shared_ptr<orvweb::UserInfo> userInfo;
    std::vector<Feed> feed;
    std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<CloudHelper> helper;
    bool listHasFeed = false; ///< the list's copy is this feed; copying a long one for each hint would be felt
    bool created = false;     ///< the window stood; it deletes the pane when it goes
};
