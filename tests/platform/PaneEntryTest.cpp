// The keyboard comes from elsewhere into a pane of the side bar in which most windows sleep.

#include "SleepingWindows.h"

#include "platform/qt/OutlookWidget.h"

using namespace orvplatform::testing;

namespace
{
class PaneEntry : public SleepingWindows
{
protected:
    PaneEntry()
    {
        EXPECT_TRUE(sideBar.Create(L"", &frame, CRect(0, 0, 320, 380), 7, WS_CHILD | WS_VISIBLE));
        tabs = sideBar.GetUnderlyingWindow();
        dynamic_cast<CMFCOutlookBarTabCtrl*>(tabs)->AddControl(&pane, L"Feeds", -1, TRUE, AFX_CBRS_AUTOHIDE);
        EXPECT_TRUE(outside.Create(L"Outside", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 380, 50, 400), &frame, 8));
        processEvents();
        leave();
        EXPECT_TRUE(isDrawn(0));
        EXPECT_FALSE(isDrawn(last));
    }

    void leave()
    {
        outside.SetFocus();
        EXPECT_EQ(focus(), outside.m_hWnd);
    }
    void enter() { EXPECT_TRUE(orvplatform::focusPane(tabs->m_hWnd)); }
    // The first ones sleep then, whatever had the focus before.
    void scrollToTheEnd()
    {
        bar().setValue(bar().maximum() - 1);
        bar().setValue(bar().maximum());
        ASSERT_FALSE(isDrawn(0));
    }

    CMFCOutlookBar sideBar;
    CWnd* tabs = nullptr;
    CButton outside;
};
} // namespace

TEST_F(PaneEntry, GoesToTheFirstStopAlsoWhereThatSleeps)
{
    scrollToTheEnd();
    enter();
    EXPECT_EQ(focus(), buttonOf(0));
    EXPECT_TRUE(isInSight(0));
}

TEST_F(PaneEntry, GoesToTheFirstStopThatWasNeverInSight)
{
    for (int i = 0; i < last; ++i)
        switchOff(i);
    enter();
    EXPECT_EQ(focus(), buttonOf(last));
    EXPECT_TRUE(isInSight(last));
    EXPECT_TRUE(widget(20).findChildren<QPushButton*>().isEmpty()); // what has no stop isn't made for it
}

TEST_F(PaneEntry, GoesBackToTheControlThatHadTheFocusThoughItSleeps)
{
    ::SetFocus(buttonOf(1));
    leave();
    scrollToTheEnd();
    enter();
    EXPECT_EQ(focus(), buttonOf(1));
    EXPECT_TRUE(isInSight(1));
}

TEST_F(PaneEntry, GoesToTheFirstStopWhereTheControlThatHadTheFocusIsHidden)
{
    ::SetFocus(buttonOf(1));
    leave();
    scrollToTheEnd();
    ::ShowWindow(buttonOf(1), SW_HIDE);
    enter();
    EXPECT_EQ(focus(), buttonOf(0));
}
