// The keyboard, the focus and the mouse among windows of which most are asleep.

#include "SleepingWindows.h"

using namespace orvplatform::testing;

TEST_F(SleepingWindows, TakeAClickAsSoonAsTheyAreAwake)
{
    bar().setValue(bar().maximum());
    const QPoint at = orvplatform::widgetOf(block(last).inside)->geometry().center();
    EXPECT_TRUE(clickAt(block(last), at.x(), at.y()));
    EXPECT_TRUE(clickAt(block(last), widget(last).width() - 3, 3));
    EXPECT_EQ(block(last).log, (std::vector<std::string>{"shown", "inside", "click"}));
}

TEST_F(SleepingWindows, WakeForTheTabKey)
{
    for (int i = 1; i < last; ++i)
        switchOff(i);
    ::SetFocus(buttonOf(0));
    ASSERT_EQ(focus(), buttonOf(0));
    pressTab();
    EXPECT_EQ(focus(), buttonOf(last));
    EXPECT_TRUE(isInSight(last));
    EXPECT_FALSE(isDrawn(0));
    pressTab(Qt::ShiftModifier);
    EXPECT_EQ(focus(), buttonOf(0));
    EXPECT_TRUE(isInSight(0));
}

TEST_F(SleepingWindows, WakeForTheTabKeyFromOutside)
{
    CButton outside;
    ASSERT_TRUE(outside.Create(L"Outside", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 380, 50, 400), &frame, 7));
    outside.SetFocus();
    pressTab(Qt::ShiftModifier);
    EXPECT_EQ(focus(), buttonOf(last));
    EXPECT_TRUE(isInSight(last));
    outside.SetFocus();
    pressTab();
    EXPECT_EQ(focus(), buttonOf(0));
    EXPECT_TRUE(isInSight(0));
}

TEST_F(SleepingWindows, AreMadeForTheTabKeyOnlyWhereItStops)
{
    for (int i = 1; i < last; ++i)
        switchOff(i);
    ::SetFocus(buttonOf(0));
    pressTab();
    EXPECT_EQ(focus(), buttonOf(last));
    EXPECT_TRUE(widget(20).findChildren<QPushButton*>().isEmpty());
}

TEST_F(SleepingWindows, ComeInTheirOrderForTheTabKeyWheneverTheyWereMade)
{
    bar().setValue(bar().maximum()); // made before those above them
    bar().setValue(0);
    std::vector<QWidget*> stops;
    QWidget* const top = orvplatform::widgetOf(frame);
    for (QWidget* at = top->nextInFocusChain(); at != top; at = at->nextInFocusChain())
        if (qobject_cast<QPushButton*>(at))
            stops.push_back(at->parentWidget());
    std::vector<QWidget*> made;
    for (int i = 0; i < count; ++i)
        if (widget(i).findChild<QPushButton*>())
            made.push_back(&widget(i));
    EXPECT_EQ(stops, made);
    EXPECT_LT(made.size(), std::size(blocks));
    ::SetFocus(buttonOf(0));
    for (int i = 1; i < count; ++i) {
        pressTab();
        ASSERT_EQ(focus(), buttonOf(i)) << i;
        ASSERT_TRUE(isInSight(i)) << i;
    }
    for (int i = last - 1; i >= 0; --i) {
        pressTab(Qt::ShiftModifier);
        ASSERT_EQ(focus(), buttonOf(i)) << i;
    }
    EXPECT_LE(drawn(), 13);
}

TEST_F(SleepingWindows, WakeForTheFocus)
{
    ::SetFocus(buttonOf(last));
    EXPECT_EQ(focus(), buttonOf(last));
    EXPECT_TRUE(isDrawn(last));
    EXPECT_TRUE(isInSight(last));
}

TEST_F(SleepingWindows, StayAwakeWhileTheyHaveTheFocus)
{
    ::SetFocus(buttonOf(0));
    bar().setValue(bar().maximum());
    EXPECT_FALSE(isInSight(0));
    EXPECT_TRUE(isDrawn(0));
    EXPECT_EQ(focus(), buttonOf(0));
    ::SetFocus(buttonOf(last));
    bar().setValue(bar().maximum() - 1);
    EXPECT_FALSE(isDrawn(0));
}

TEST_F(SleepingWindows, StayAwakeWhileTheyAreTheFocusThemselves)
{
    ::SetFocus(block(0));
    ASSERT_EQ(focus(), block(0).m_hWnd);
    bar().setValue(bar().maximum());
    EXPECT_FALSE(isInSight(0));
    EXPECT_TRUE(isDrawn(0));
    EXPECT_EQ(focus(), block(0).m_hWnd);
}

TEST_F(SleepingWindows, StayAsleepForTheTabKeyWhereTheyAreSwitchedOffAsAWhole)
{
    for (int i = 1; i < last; ++i)
        block(i).EnableWindow(FALSE);
    ::SetFocus(buttonOf(0));
    pressTab();
    EXPECT_EQ(focus(), buttonOf(last));
    EXPECT_TRUE(widget(20).findChildren<QPushButton*>().isEmpty());
}

TEST_F(SleepingWindows, WakeForTheFocusOfAControlThatIsHidden)
{
    for (int i = 1; i < last; ++i)
        switchOff(i);
    CButton outside; // where the focus would go if it passed over what sleeps
    ASSERT_TRUE(outside.Create(L"Outside", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 380, 50, 400), &frame, 7));
    ::SetFocus(buttonOf(0));
    block(0).inside.ShowWindow(SW_HIDE);
    EXPECT_EQ(focus(), buttonOf(last));
    EXPECT_TRUE(isInSight(last));
    block(0).inside.ShowWindow(SW_SHOW);
    ::SetFocus(buttonOf(0));
    block(0).ShowWindow(SW_HIDE); // with all that is in it
    EXPECT_EQ(focus(), buttonOf(last));
}
