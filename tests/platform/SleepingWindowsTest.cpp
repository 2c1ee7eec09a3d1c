// Windows of a tasks pane that lie out of sight: everything that can be asked of them is as if they were on show, and
// they are there as soon as anybody looks.

#include "SleepingWindows.h"

#include <QLabel>

using namespace orvplatform::testing;

BEGIN_MESSAGE_MAP(Block, CDialogEx)
ON_BN_CLICKED(insideButton, &Block::OnInside)
ON_WM_SHOWWINDOW()
ON_WM_LBUTTONDOWN()
ON_WM_DESTROY()
END_MESSAGE_MAP()

TEST_F(SleepingWindows, AreNotDrawnOutOfSight)
{
    EXPECT_TRUE(isDrawn(0));
    EXPECT_TRUE(isInSight(0));
    EXPECT_FALSE(isDrawn(last));
    EXPECT_GE(drawn(), 4);
    EXPECT_LE(drawn(), 12); // two pages, and a block at each end
}

TEST_F(SleepingWindows, AreOnShowAsFarAsAnybodyCanTell)
{
    EXPECT_TRUE(block(last).IsWindowVisible());
    EXPECT_TRUE(block(last).GetStyle() & WS_VISIBLE);
    EXPECT_TRUE(::IsWindowVisible(buttonOf(last)));
    EXPECT_EQ(std::count(block(last).log.begin(), block(last).log.end(), "shown"), 1);
    EXPECT_EQ(block(last).GetParent(), &pane);
    EXPECT_TRUE(IsChild(pane, buttonOf(last)));
    EXPECT_TRUE(IsChild(block(last), buttonOf(last)));
    frame.ShowWindow(SW_HIDE);
    EXPECT_FALSE(block(last).IsWindowVisible());
    EXPECT_FALSE(::IsWindowVisible(buttonOf(last)));
    EXPECT_TRUE(block(last).GetStyle() & WS_VISIBLE);
}

TEST_F(SleepingWindows, HaveControlsThatCanBeAskedAndChanged)
{
    Block& asleep = block(last);
    CRect unchanged;
    ::GetWindowRect(::GetDlgItem(block(0), label), unchanged);
    block(0).ScreenToClient(unchanged);
    CRect place;
    asleep.text.GetWindowRect(place);
    asleep.ScreenToClient(place);
    EXPECT_EQ(place, unchanged);

    asleep.text.SetWindowText(L"changed");
    asleep.text.MoveWindow(7, 9, 50, 30);
    ::ShowWindow(::GetDlgItem(asleep, picture), SW_HIDE);
    asleep.inside.EnableWindow(FALSE);
    EXPECT_FALSE(isDrawn(last));
    EXPECT_TRUE(widget(last).findChildren<QWidget*>().isEmpty()); // none of it has made one
    const auto expectState = [&](const char* when) {
        SCOPED_TRACE(when);
        CString text;
        asleep.text.GetWindowText(text);
        EXPECT_EQ(text, L"changed");
        asleep.text.GetWindowRect(place);
        asleep.ScreenToClient(place);
        EXPECT_EQ(place, CRect(7, 9, 57, 39));
        CRect client;
        asleep.text.GetClientRect(client);
        EXPECT_EQ(client, CRect(0, 0, 50, 30));
        EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(asleep, picture)));
        EXPECT_TRUE(asleep.text.IsWindowVisible());
        EXPECT_FALSE(asleep.inside.IsWindowEnabled());
        EXPECT_EQ(asleep.text.GetFont(), asleep.GetFont());
    };
    expectState("asleep");
    bar().setValue(bar().maximum());
    EXPECT_TRUE(isDrawn(last));
    EXPECT_EQ(orvplatform::widgetOf(asleep.text)->geometry(), QRect(7, 9, 50, 30));
    EXPECT_FALSE(orvplatform::widgetOf(asleep.inside)->isEnabled());
    expectState("awake");
}

TEST_F(SleepingWindows, WakeWhenTheyAreScrolledIntoSight)
{
    bar().setValue(bar().maximum());
    EXPECT_TRUE(isInSight(last));
    EXPECT_TRUE(isDrawn(last));
    EXPECT_FALSE(isDrawn(0)); // and the others fall asleep
    EXPECT_LE(drawn(), 12);
    EXPECT_TRUE(block(0).IsWindowVisible());
    bar().setValue(0);
    EXPECT_TRUE(isDrawn(0));
    // Nobody was told of any of it.
    EXPECT_EQ(block(0).log, std::vector<std::string>{"shown"});
    EXPECT_EQ(block(last).log, std::vector<std::string>{"shown"});
}

TEST_F(SleepingWindows, LookLikeTheOthersRightAfterAJump)
{
    const auto shot = [this](int index) {
        return area().grab(QRect(widget(index).mapTo(&area(), QPoint()), widget(index).size())).toImage();
    };
    const QImage expected = shot(0);
    bar().setValue(bar().maximum());
    EXPECT_EQ(shot(last), expected);
    const QImage blank = [&] {
        QImage image(expected);
        image.fill(expected.pixelColor(expected.width() - 1, 0));
        return image;
    }();
    EXPECT_NE(expected, blank);
}

TEST_F(SleepingWindows, WakeWhenThePaneGrows)
{
    ASSERT_FALSE(isDrawn(20));
    frame.MoveWindow(0, 0, 320, 3000);
    pane.MoveWindow(0, -20, 320, 3020);
    EXPECT_TRUE(isInSight(20));
    EXPECT_TRUE(isDrawn(20));
}

TEST_F(SleepingWindows, AreHiddenWithTheirGroup)
{
    pane.RemoveGroup(last);
    EXPECT_FALSE(block(last).IsWindowVisible());
    EXPECT_FALSE(block(last).GetStyle() & WS_VISIBLE);
    EXPECT_EQ(block(last).log, (std::vector<std::string>{"shown", "hidden"}));
    bar().setValue(bar().maximum());
    EXPECT_FALSE(isDrawn(last));
    place(block(last));
    EXPECT_TRUE(block(last).IsWindowVisible());
    bar().setValue(bar().maximum());
    EXPECT_TRUE(isDrawn(last));
}

TEST_F(SleepingWindows, GoToTheTopWhenTheListIsBuiltAnew)
{
    pane.SetRedraw(FALSE);
    pane.RemoveAllGroups();
    place(block(last));
    EXPECT_TRUE(block(last).IsWindowVisible()); // neither gone nor moved so far
    pane.SetRedraw(TRUE);
    EXPECT_TRUE(isDrawn(last));
    EXPECT_FALSE(block(0).IsWindowVisible());
    EXPECT_FALSE(block(20).IsWindowVisible());
    EXPECT_EQ(block(last).log, std::vector<std::string>{"shown"});
    EXPECT_EQ(block(20).log, (std::vector<std::string>{"shown", "hidden"}));
}

TEST_F(SleepingWindows, AreHiddenAndShownInTheirPlace)
{
    block(last).ShowWindow(SW_HIDE);
    EXPECT_FALSE(block(last).IsWindowVisible());
    EXPECT_TRUE(::GetWindowLongPtrW(buttonOf(last), GWL_STYLE) & WS_VISIBLE); // its own state
    bar().setValue(bar().maximum());
    EXPECT_FALSE(isDrawn(last));
    block(last).ShowWindow(SW_SHOW);
    EXPECT_TRUE(isDrawn(last)); // in sight already
}

TEST_F(SleepingWindows, FallWithTheirGroupAndComeBackWithIt)
{
    EXPECT_TRUE(pane.CollapseGroup(last));
    EXPECT_FALSE(block(last).IsWindowVisible());
    EXPECT_TRUE(pane.CollapseGroup(last, FALSE));
    EXPECT_TRUE(block(last).IsWindowVisible());
    EXPECT_FALSE(isDrawn(last));
}

TEST_F(SleepingWindows, AreShownOnceTheyStandInNoGroup)
{
    pane.SetRedraw(FALSE);
    pane.RemoveGroup(last);
    block(last).ShowWindow(SW_SHOW); // outside of the list nothing wakes it later
    EXPECT_TRUE(isDrawn(last));
    pane.SetRedraw(TRUE);
}

TEST_F(SleepingWindows, AreDestroyedInTheirSleep)
{
    HWND window = block(last);
    HWND button = buttonOf(last);
    EXPECT_TRUE(block(last).DestroyWindow());
    EXPECT_FALSE(IsWindow(window));
    EXPECT_FALSE(IsWindow(button));
    EXPECT_EQ(block(last).inside.m_hWnd, nullptr);
    EXPECT_EQ(block(last).log.back(), "destroyed");
    bar().setValue(bar().maximum()); // the list still has its group
    ::SetFocus(buttonOf(0));
    pressTab(Qt::ShiftModifier);
    processEvents();
    EXPECT_EQ(block(last).m_hWnd, nullptr);
}

TEST_F(SleepingWindows, LoseAControlInTheirSleep)
{
    HWND button = buttonOf(last);
    EXPECT_TRUE(::DestroyWindow(button));
    EXPECT_FALSE(IsWindow(button));
    EXPECT_EQ(::GetDlgItem(block(last), insideButton), nullptr);
    bar().setValue(bar().maximum());
    processEvents();
    EXPECT_TRUE(isDrawn(last));
    EXPECT_EQ(widget(last).findChildren<QPushButton*>().size(), 0);
    EXPECT_TRUE(block(last).text.IsWindowVisible());
}

TEST_F(SleepingWindows, LeaveNothingOfAControlThatAskedForItsWidgetAtItsEnd)
{
    static bool asked;
    asked = false;
    HWND text = ::GetDlgItem(block(last), label);
    ::SetWindowLongPtrW(text, GWLP_WNDPROC,
                        reinterpret_cast<LONG_PTR>(+[](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
                            if (message == WM_DESTROY)
                                asked = orvplatform::widgetOf(window) != nullptr;
                            return DefWindowProcW(window, message, wParam, lParam);
                        }));
    const auto labels = widget(0).findChildren<QLabel*>().size();
    EXPECT_TRUE(::DestroyWindow(text));
    EXPECT_TRUE(asked);
    EXPECT_FALSE(IsWindow(text));
    processEvents();
    bar().setValue(bar().maximum());
    EXPECT_TRUE(isDrawn(last));
    EXPECT_EQ(widget(last).findChildren<QLabel*>().size(), labels - 1);
    EXPECT_EQ(::GetDlgItem(block(last), label), nullptr);
}

TEST_F(SleepingWindows, GoWithTheirPane)
{
    EXPECT_TRUE(pane.DestroyWindow());
    for (const auto& each : blocks) {
        EXPECT_EQ(each->m_hWnd, nullptr);
        EXPECT_EQ(each->text.m_hWnd, nullptr);
        EXPECT_EQ(each->log.back(), "destroyed");
    }
}

TEST_F(SleepingWindows, WakeWhereTheyAreTakenElsewhere)
{
    block(last).SetParent(&frame);
    EXPECT_TRUE(isDrawn(last));
    EXPECT_TRUE(orvplatform::widgetOf(block(last).inside)->isVisible());
    EXPECT_EQ(block(last).GetParent(), &frame);
}
