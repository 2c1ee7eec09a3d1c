#include "ui/feed/TaskPane.h"

#include "host/orvsgutils/ResourceLoader.h"
#include "host/orvui/Hint.h"
#include "service/PluginText.h"
#include "ui/DocumentServices.h"
#include "ui/ResourceIds.h"
#include "ui/ResourceModule.h"
#include "ui/account/FeedLoginDlg.h"
#include "ui/feed/AddFeed.h"
#include "ui/feed/FeedBlock.h"
#include "ui/feed/FeedToolbarDialog.h"

namespace
{

constexpr std::size_t blockCount = 100;
constexpr int loginHeight = 40; // pixels, at every resolution

bool rebuilds(short code)
{
    using namespace orv::HintCode;
    return code == documentActivated || code == documentOpened || code == feedReloaded || code == signedIn ||
           code == signedOut;
}

struct GroupHeights {
    int tools;
    int addComment;
};

/// Pixels, by the display's resolution.
GroupHeights groupHeights()
{
    double const dpi = orvsgutils::ResourceLoader::m_dpi;
    if (dpi >= 192.0) {
        return {175, 210};
    }
    if (dpi >= 144.0) {
        return {150, 180};
    }
    if (dpi >= 120.0) {
        return {125, 150};
    }
    return {100, 120};
}

template <class Child>
Child* createChild(CWnd* parent)
{
    // Without a window nothing would ever delete the child. None refuses its window while that is being made, so a
    // creation that failed has left no window either.
    auto child = std::make_unique<Child>();
    return child->Create(Child::templateId(), parent) ? child.release() : nullptr; // deletes itself with its window
}

} // namespace

IMPLEMENT_DYNAMIC(CTaskPane, CMFCTasksPane)

BEGIN_MESSAGE_MAP(CTaskPane, CMFCTasksPane)
ON_WM_CREATE()
END_MESSAGE_MAP()

int CTaskPane::OnCreate(LPCREATESTRUCT creation)
{
    if (CMFCTasksPane::OnCreate(creation) == -1) {
        return -1;
    }
    login = createChild<FeedLoginDlg>(this);
    addFeed = createChild<AddFeed>(this);
    toolbar = createChild<FeedToolbarDialog>(this);
    if (login == nullptr || addFeed == nullptr || toolbar == nullptr) {
        return -1;
    }
    for (std::size_t i = 0; i < blockCount; ++i) {
        if (createBlock() == nullptr) {
            return -1;
        }
    }
    EnableGroupCollapse(FALSE);
    return 0;
}

void CTaskPane::setFeed(std::vector<Feed> const& newFeed, std::shared_ptr<orvweb::UserInfo> const& user,
                        std::shared_ptr<CloudHelper> const& cloudHelper)
{
    feed = newFeed;
    userInfo = user;
    helper = cloudHelper;
}

/// While it lives, groups come and go without a layout or a picture for each; at the end all children that found no
/// place are hidden. So a long feed is laid out once, and what stays on show doesn't go and come back.
class CTaskPane::Rebuild
{
public:
    explicit Rebuild(CTaskPane& taskPane) : pane(taskPane)
    {
        pane.placed.clear();
        pane.SetRedraw(FALSE);
    }
    ~Rebuild()
    {
        for (FeedBlock* const block : pane.blocks) {
            hideUnplaced(*block);
        }
        hideUnplaced(*pane.toolbar);
        hideUnplaced(*pane.addFeed);
        hideUnplaced(*pane.login);
        pane.SetRedraw(TRUE);
    }
    Rebuild(Rebuild const&) = delete;
    Rebuild& operator=(Rebuild const&) = delete;

private:
    void hideUnplaced(CWnd& child)
    {
        if (!pane.placed.contains(&child)) {
            child.ShowWindow(SW_HIDE);
        }
    }

    CTaskPane& pane;
};

void CTaskPane::OnUpdate(orv::IHint* hint)
{
    if (hint == nullptr || !rebuilds(hint->getCode()) || toolbar == nullptr) {
        return;
    }
    short const code = hint->getCode();
    toolbar->SetContext(userInfo, helper);
    login->SetContext(userInfo, helper);
    addFeed->setUser(userInfo);

    using namespace orv::HintCode;
    if (code == documentOpened) {
        takeDocument(*hint, openedDocument);
    }
    Rebuild const rebuild(*this);
    RemoveAllGroups();
    forward(hint);

    bool const signedIn = userInfo && !userInfo->userid.empty();
    GroupHeights const heights = groupHeights();
    addGroup(pluginText(resource::text::toolsGroup), *toolbar, heights.tools);
    if (!signedIn) {
        addGroup(L"", *login, loginHeight);
    }

    if (code != documentOpened && code != feedReloaded && code != orv::HintCode::signedIn) {
        return;
    }
    takeDocument(*hint, document);
    if (signedIn && !modelPath(document).empty()) {
        addGroup(pluginText(resource::text::addCommentGroup), *addFeed, heights.addComment);
    }
    if (code == feedReloaded) {
        addBlocks();
    }
}

void CTaskPane::forward(orv::IHint* hint)
{
    addFeed->OnUpdate(hint);
    toolbar->OnUpdate(hint);
    login->OnUpdate(hint);
    for (FeedBlock* const block : blocks) {
        block->OnUpdate(hint);
    }
}

void CTaskPane::addGroup(std::wstring const& title, CWnd& child, int height)
{
    constexpr COLORREF black = RGB(0, 0, 0);
    int const group = AddGroup(title.c_str(), FALSE, TRUE, nullptr);
    SetGroupTextColor(group, black, black);
    AddWindow(group, child.GetSafeHwnd(), height, FALSE);
    child.ShowWindow(SW_SHOW); // in its place, so that the list can leave it asleep until it is in sight
    placed.insert(&child);
}

void CTaskPane::addBlocks()
{
    for (std::size_t i = 0; i < feed.size(); ++i) {
        FeedBlock* const block = blockAt(i);
        if (block == nullptr) {
            return;
        }
        int const height = block->setFeed(feed[i], userInfo);
        addGroup(feed[i].author.name, *block, height);
    }
}

FeedBlock* CTaskPane::createBlock()
{
    auto* const block = createChild<FeedBlock>(this);
    if (block != nullptr) {
        blocks.push_back(block);
    }
    return block;
}

FeedBlock* CTaskPane::blockAt(std::size_t index)
{
    if (index < blocks.size()) {
        return blocks[index];
    }
    ResourceModule const module; // a feed can come in while the viewer's own module is set
    FeedBlock* const block = createBlock();
    if (block != nullptr) {
        // The others had their document from the hint that opened it; the list's may have come with a later one.
        orvui::Hint opened(orv::HintCode::documentOpened, openedDocument);
        block->OnUpdate(&opened);
    }
    return block;
}
