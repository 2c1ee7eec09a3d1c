#include "Form.h"

#include "platform/qt/Native.h"

#include <QWidget>

using namespace orvplatform::testing;

namespace
{
class Block : public CDialogEx
{
public:
    Block() : CDialogEx(11) {}
};

class TasksPane : public ::testing::Test
{
protected:
    TasksPane()
    {
        registerTestResources();
        frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 320, 400), nullptr, 0);
        EXPECT_TRUE(static_cast<CDockablePane&>(pane).Create(L"", &frame, CRect(0, 0, 0, 0), FALSE, 202,
                                                             WS_CHILD | WS_VISIBLE));
        pane.EnableGroupCollapse(FALSE);
        pane.MoveWindow(0, -20, 320, 420);
        for (Block& block : blocks)
            EXPECT_TRUE(block.Create(11, &pane));
        frame.ShowWindow(SW_SHOW);
    }
    CRect placeOf(CWnd& window)
    {
        CRect rect;
        window.GetWindowRect(rect);
        pane.ScreenToClient(rect);
        return rect;
    }
    static CRect placeInBlock(CWnd& control)
    {
        CRect rect;
        control.GetWindowRect(rect);
        control.GetParent()->ScreenToClient(rect);
        return rect;
    }

    CWnd frame;
    CMFCTasksPane pane;
    Block blocks[3];
};
} // namespace

TEST_F(TasksPane, KeepsItsChildrenHiddenUntilTheyArePlaced)
{
    EXPECT_FALSE(blocks[0].IsWindowVisible());
    const int group = pane.AddGroup(L"Tools", FALSE, TRUE);
    EXPECT_EQ(group, 0);
    EXPECT_EQ(pane.AddWindow(group, blocks[0], 100), 0);
    EXPECT_TRUE(blocks[0].IsWindowVisible());
    EXPECT_FALSE(blocks[1].IsWindowVisible());
    EXPECT_EQ(blocks[0].GetParent(), &pane);
}

TEST_F(TasksPane, StacksGroupsOfTheGivenHeights)
{
    pane.AddWindow(pane.AddGroup(L"First", FALSE, TRUE), blocks[0], 100);
    pane.AddWindow(pane.AddGroup(L"", FALSE, TRUE), blocks[1], 40);
    EXPECT_EQ(pane.GetGroupCount(), 2);
    const CRect first = placeOf(blocks[0]);
    const CRect second = placeOf(blocks[1]);
    EXPECT_EQ(first.Height(), 100);
    EXPECT_EQ(second.Height(), 40);
    EXPECT_GT(second.top, first.bottom);
    EXPECT_EQ(first.Width(), second.Width());
    EXPECT_GT(first.Width(), 280);
    EXPECT_GE(first.top, 20 + 28); // below the caption strip and the title
    EXPECT_EQ(pane.GetTaskGroup(0)->m_strName, L"First");
    EXPECT_EQ(pane.GetTaskGroup(0)->m_lstTasks.at(0).m_hwndTask, blocks[0].m_hWnd);
    EXPECT_EQ(pane.GetTaskGroup(2), nullptr);
}

TEST_F(TasksPane, ShortensAButtonThatWouldBeCut)
{
    CButton button;
    CButton below;
    EXPECT_TRUE(button.Create(L"Share", WS_CHILD | WS_VISIBLE, CRect(6, 80, 120, 106), &blocks[0], 5));
    EXPECT_TRUE(below.Create(L"Below", WS_CHILD | WS_VISIBLE, CRect(6, 110, 120, 130), &blocks[0], 6));
    pane.AddWindow(pane.AddGroup(L"First", FALSE, TRUE), blocks[0], 100);
    CRect client;
    blocks[0].GetClientRect(client);
    EXPECT_EQ(client.Height(), 100) << "a window is as high as it was told";
    EXPECT_EQ(placeInBlock(button), CRect(6, 80, 120, 100));
    EXPECT_EQ(placeInBlock(below), CRect(6, 110, 120, 130)) << "nothing of it would be seen anyhow";
    pane.SetWindowHeight(blocks[0], 103);
    EXPECT_EQ(placeInBlock(button), CRect(6, 80, 120, 103));
    pane.SetWindowHeight(blocks[0], 82);
    EXPECT_EQ(placeInBlock(button).top, 80);
    EXPECT_GE(placeInBlock(button).Height(), orvplatform::widgetOf(button)->fontMetrics().height());
    pane.SetWindowHeight(blocks[0], 128);
    EXPECT_EQ(placeInBlock(button), CRect(6, 80, 120, 106)) << "there is room again";
    EXPECT_EQ(placeInBlock(below), CRect(6, 110, 120, 128));
}

TEST_F(TasksPane, TakesTheNewPlaceOfAButtonThatItHadShortened)
{
    CButton button;
    EXPECT_TRUE(button.Create(L"Share", WS_CHILD | WS_VISIBLE, CRect(6, 80, 120, 106), &blocks[0], 5));
    pane.AddWindow(pane.AddGroup(L"First", FALSE, TRUE), blocks[0], 100);
    button.MoveWindow(6, 70, 50, 35);
    pane.RecalcLayout();
    EXPECT_EQ(placeInBlock(button), CRect(6, 70, 56, 100));
    pane.SetWindowHeight(blocks[0], 120);
    EXPECT_EQ(placeInBlock(button), CRect(6, 70, 56, 105));
    button.DestroyWindow();
    pane.SetWindowHeight(blocks[0], 90);
}

TEST_F(TasksPane, ShortensTheButtonOfAWindowThatSleeps)
{
    CRect const whole = placeInBlock(*blocks[1].GetDlgItem(1000));
    pane.AddWindow(pane.AddGroup(L"First", FALSE, TRUE), blocks[0], 3000);
    pane.AddWindow(pane.AddGroup(L"", FALSE, TRUE), blocks[1], whole.bottom - 4);
    EXPECT_EQ(placeInBlock(*blocks[1].GetDlgItem(1000)).Height(), whole.Height() - 4);
    EXPECT_FALSE(orvplatform::widgetOf(blocks[1])->isVisible());
    pane.SetWindowHeight(blocks[1], whole.bottom);
    EXPECT_EQ(placeInBlock(*blocks[1].GetDlgItem(1000)), whole);
}

TEST_F(TasksPane, LeavesTheWindowsOfRemovedGroups)
{
    for (Block& block : blocks)
        pane.AddWindow(pane.AddGroup(L"x", FALSE, TRUE), block, 50);
    pane.RemoveAllGroups();
    EXPECT_EQ(pane.GetGroupCount(), 0);
    EXPECT_TRUE(IsWindow(blocks[2].m_hWnd));
    EXPECT_FALSE(blocks[2].IsWindowVisible());
    pane.AddWindow(pane.AddGroup(L"again", FALSE, TRUE), blocks[2], 50);
    EXPECT_TRUE(blocks[2].IsWindowVisible());
}

TEST_F(TasksPane, DestroysWindowsThatWereGivenToIt)
{
    auto* own = new Block;
    ASSERT_TRUE(own->Create(11, &pane));
    HWND handle = own->m_hWnd;
    pane.AddWindow(pane.AddGroup(L"x"), handle, 50, TRUE);
    pane.RemoveGroup(0);
    EXPECT_FALSE(IsWindow(handle));
    delete own;
}

TEST_F(TasksPane, ScrollsWhatDoesNotFit)
{
    const CRect before = [&] {
        pane.AddWindow(pane.AddGroup(L"x", FALSE, TRUE), blocks[0], 100);
        return placeOf(blocks[0]);
    }();
    pane.AddWindow(pane.AddGroup(L"y", FALSE, TRUE), blocks[1], 800);
    EXPECT_LT(placeOf(blocks[0]).Width(), before.Width()); // the bar takes its room
    EXPECT_EQ(placeOf(blocks[1]).Height(), 800);
}

TEST_F(TasksPane, IsLaidOutOnceWhenRedrawingIsOnAgain)
{
    pane.AddWindow(pane.AddGroup(L"before", FALSE, TRUE), blocks[0], 50);
    const CRect before = placeOf(blocks[0]);
    pane.SetRedraw(FALSE);
    pane.RemoveAllGroups();
    pane.AddWindow(pane.AddGroup(L"first", FALSE, TRUE), blocks[1], 70);
    pane.AddWindow(pane.AddGroup(L"again", FALSE, TRUE), blocks[0], 60);
    EXPECT_EQ(pane.GetGroupCount(), 2);
    EXPECT_EQ(placeOf(blocks[0]), before); // neither gone nor moved so far
    EXPECT_TRUE(blocks[0].IsWindowVisible());
    EXPECT_FALSE(blocks[1].IsWindowVisible());
    pane.SetRedraw(TRUE);
    EXPECT_TRUE(blocks[0].IsWindowVisible());
    EXPECT_TRUE(blocks[1].IsWindowVisible());
    EXPECT_EQ(placeOf(blocks[1]).top, before.top);
    EXPECT_EQ(placeOf(blocks[1]).Height(), 70);
    EXPECT_GT(placeOf(blocks[0]).top, placeOf(blocks[1]).bottom);
    EXPECT_EQ(placeOf(blocks[0]).Height(), 60);
}

TEST_F(TasksPane, HidesWhatLostItsGroupWhenRedrawingIsOnAgain)
{
    for (Block& block : blocks)
        pane.AddWindow(pane.AddGroup(L"x", FALSE, TRUE), block, 50);
    pane.SetRedraw(FALSE);
    pane.RemoveGroup(1);
    pane.SetRedraw(TRUE);
    EXPECT_TRUE(blocks[0].IsWindowVisible());
    EXPECT_FALSE(blocks[1].IsWindowVisible());
    EXPECT_TRUE(blocks[2].IsWindowVisible());
    pane.RemoveGroup(0); // from here on at once, as ever
    EXPECT_FALSE(blocks[0].IsWindowVisible());
}

TEST_F(TasksPane, RefusesBadArguments)
{
    EXPECT_EQ(pane.AddWindow(5, blocks[0], 10), -1);
    EXPECT_EQ(pane.AddWindow(pane.AddGroup(L"x"), nullptr, 10), -1);
    EXPECT_FALSE(pane.SetGroupTextColor(7, 0, 0));
    EXPECT_TRUE(pane.SetGroupTextColor(0, RGB(0, 0, 0), RGB(0, 0, 0)));
    EXPECT_FALSE(pane.CollapseGroup(0)); // collapsing is off
    pane.RemoveGroup(9);
    EXPECT_EQ(pane.GetGroupCount(), 1);
}

TEST_F(TasksPane, CollapsesWhereThatIsAllowed)
{
    pane.EnableGroupCollapse(TRUE);
    pane.AddWindow(pane.AddGroup(L"x"), blocks[0], 100);
    EXPECT_TRUE(pane.CollapseGroup(0));
    EXPECT_FALSE(blocks[0].IsWindowVisible());
    pane.EnableGroupCollapse(FALSE); // opens again
    EXPECT_TRUE(blocks[0].IsWindowVisible());
}
