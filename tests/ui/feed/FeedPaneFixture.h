#pragma once

#include "ui/UiTest.h"
#include "ui/Widgets.h"
#include "ui/feed/FeedBlock.h"
#include "ui/feed/FeedPane.h"
#include "ui/feed/FeedToolbarDialog.h"
#include "ui/feed/Records.h"

#include <string>
#include <utility>
#include <vector>

namespace orvtest
{

/// One group of the list and the window in it.
struct ShownGroup {
    std::wstring title;
    HWND window = nullptr;
    int height = 0;
};

/// The feed pane in a tab of its own.
class FeedPaneTest : public UiTest
{
protected:
    FeedPaneTest()
    {
        EXPECT_TRUE(tab.Create(L"OrvTestTab", L"Feeds", WS_CHILD | WS_VISIBLE, CRect(0, 0, 320, 800), &frame, 9));
    }

    /// Makes the pane with its window, and hands it all hints that are raised.
    FeedPane& openPane()
    {
        pane = new FeedPane(user, helper);
        EXPECT_TRUE(pane->Create(CRect(0, 0, 300, 700), &tab, 201));
        application->notifier->deliver = [this](orv::IHint* hint) { pane->OnUpdate(hint); };
        return *pane;
    }
    FeedPane& openPaneWithModel()
    {
        openPane();
        sendHint(*pane, orv::HintCode::documentActivated, scene.document);
        sendHint(*pane, orv::HintCode::documentOpened, scene.document);
        return *pane;
    }
    /// The child dialog in a group, counted from the top.
    CWnd& childOf(std::size_t group) const { return *CWnd::FromHandle(groups().at(group).window); }
    void expectFeedText(std::string text)
    {
        network.expect("/api/isFilePresent/", jobIdBytes);
        network.expect("/api/CommentSync/", std::move(text));
    }
    void expectFeed(std::vector<std::string> const& authors) { expectFeedText(feedJson(authors)); }
    void loadFeed(std::vector<std::string> const& authors)
    {
        expectFeed(authors);
        pane->OnActivateChange(true);
    }
    void loadRecords(std::vector<Feed> const& feeds)
    {
        expectFeedText(feedJson(feeds));
        pane->OnActivateChange(true);
    }

    CTaskPane& list() const { return *dynamic_cast<CTaskPane*>(pane->GetDlgItem(202)); }
    std::vector<ShownGroup> groups() const
    {
        std::vector<ShownGroup> shown;
        for (int i = 0; i < list().GetGroupCount(); ++i) {
            auto const* const group = list().GetTaskGroup(i);
            auto const& task = group->m_lstTasks.at(0);
            shown.push_back({group->m_strName.GetString(), task.m_hwndTask, task.m_nWindowHeight});
        }
        return shown;
    }
    std::vector<std::wstring> titles() const
    {
        std::vector<std::wstring> found;
        for (auto const& group : groups()) {
            found.push_back(group.title);
        }
        return found;
    }
    std::wstring tabTitle() const
    {
        CString title;
        tab.GetWindowTextW(title);
        return title.GetString();
    }
    /// The list's place in the pane.
    CRect listPlace() const { return placeOf(*pane, 202); }
    int visibleBlocks() const { return shownBelow<FeedBlock>(list()); }

    CWnd tab;
    FeedPane* pane = nullptr; // goes with its window
};

} // namespace orvtest
