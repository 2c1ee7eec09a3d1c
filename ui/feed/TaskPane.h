#pragma once

#include "feed/Feed.h"
#include "host/orv/IHint.h"
#include "host/orvweb/UserInfo.h"

#include <afxcontrolbars.h>

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

class AddFeed;
class CloudHelper;
class FeedBlock;
class FeedLoginDlg;
class FeedToolbarDialog;

/// The scrolling list inside the feed pane. All its children exist from the start; a new state is shown by removing
/// every group and adding the groups of that state. The children's windows belong to the list's window.
class CTaskPane : public CMFCTasksPane
{
    DECLARE_DYNAMIC(CTaskPane)

public:
    CTaskPane() = default;

    /// Takes what the next rebuild shows; rebuilds nothing.
    void setFeed(std::vector<Feed> const& newFeed, std::shared_ptr<orvweb::UserInfo> const& user,
                 std::shared_ptr<CloudHelper> const& cloudHelper);

    /// Rebuilds the groups for codes 1, 3, 40, 41 and 42; hands these, and no other, on to the children. Null is
    /// ignored.
    virtual void OnUpdate(orv::IHint* hint);

protected:
    int OnCreate(LPCREATESTRUCT creation);
    DECLARE_MESSAGE_MAP()

private:
    class Rebuild;

    void forward(orv::IHint* hint);
    void addGroup(std::wstring const& title, CWnd& child, int height);
    void addBlocks();
    FeedBlock* blockAt(std::size_t index);
    FeedBlock* createBlock();

    std::vector<FeedBlock*> blocks; ///< reused by position; grows with the longest feed
    AddFeed* addFeed = nullptr;
    FeedToolbarDialog* toolbar = nullptr;
    FeedLoginDlg* login = nullptr;
    std::vector<Feed> feed;
    std::shared_ptr<orv::IDocument> document;
    Feed spare; ///< never read; its place is given
    std::shared_ptr<orvweb::UserInfo> userInfo;
    std::shared_ptr<CloudHelper> helper;
    std::shared_ptr<orv::IDocument> openedDocument; ///< what the blocks have, those to come as well
    std::unordered_set<CWnd const*> placed;         ///< the children that stand in a group
};
