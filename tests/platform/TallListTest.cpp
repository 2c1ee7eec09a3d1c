// Lists that are higher than a widget can be, and than an int counts pixels: whatever stands in them can be reached.

#include "SleepingWindows.h"

#include "platform/qt/Gdi.h"

#include <limits>
#include <numeric>

using namespace orvplatform::testing;

namespace
{
constexpr int tallest = 2'949'120; // of a block, with a picture 1 pixel wide and 16,384 high

class TallList : public SleepingWindows
{
protected:
    // All but the last are as high as a block can be.
    void makeTall(int further)
    {
        pane.SetRedraw(FALSE);
        pane.RemoveGroup(last);
        for (int i = 0; i < last; ++i)
            pane.SetWindowHeight(block(i), tallest);
        for (int i = 0; i < further; ++i) {
            more.push_back(std::make_unique<Block>());
            ASSERT_TRUE(more.back()->Create(11, &pane));
            pane.AddWindow(pane.AddGroup(L"x", FALSE, TRUE), *more.back(), tallest);
        }
        place(block(last));
        pane.SetRedraw(TRUE);
        processEvents();
    }
    int topInView(int index) { return widget(index).mapTo(area().viewport(), QPoint()).y(); }
    // The pane as it is drawn, where the window stands.
    QImage shot(int index)
    {
        return area().grab(QRect(widget(index).mapTo(&area(), QPoint()), widget(index).size())).toImage();
    }
    void expectLastAtTheEnd()
    {
        bar().setValue(bar().maximum());
        EXPECT_TRUE(isDrawn(last));
        EXPECT_TRUE(isInSight(last));
        EXPECT_EQ(widget(last).height(), 80);
        // The whole of it, its card and the gap below.
        EXPECT_EQ(topInView(last) + 80 + 4 + 8, area().viewport()->height());
        block(last).log.clear();
        const QPoint at = orvplatform::widgetOf(block(last).inside)->geometry().center();
        QWidget* const hit = area().viewport()->childAt(widget(last).mapTo(area().viewport(), at));
        EXPECT_EQ(hit, orvplatform::widgetOf(block(last).inside)) << "nothing lies over it";
        EXPECT_TRUE(clickAt(block(last), at.x(), at.y()));
        EXPECT_TRUE(clickAt(block(last), widget(last).width() - 3, 3));
        EXPECT_EQ(block(last).log, (std::vector<std::string>{"inside", "click"}));
    }

    std::vector<std::unique_ptr<Block>> more; // between the others and the last
};
} // namespace

TEST_F(TallList, ShowsItsEndBeyondWhatAWidgetCanBe)
{
    const QImage expected = shot(0);
    makeTall(0);
    EXPECT_EQ(pane.GetTaskGroup(last)->m_rectGroup.Height(), 80);
    EXPECT_GT(pane.GetTaskGroup(last)->m_rect.top, last * tallest);
    expectLastAtTheEnd();
    EXPECT_EQ(shot(last), expected) << "it looks like any other";
    EXPECT_FALSE(isDrawn(0));
    bar().setValue(0);
    EXPECT_TRUE(isDrawn(0));
    EXPECT_EQ(topInView(0), 8 + pane.GetTaskGroup(0)->m_rectGroup.top - pane.GetTaskGroup(0)->m_rect.top);
}

TEST_F(TallList, ShowsItsEndBeyondWhatAnIntCounts)
{
    constexpr int further = 800 - last;
    makeTall(further);
    expectLastAtTheEnd();
    const auto& end = *pane.GetTaskGroup(800);
    EXPECT_EQ(end.m_rect.bottom, std::numeric_limits<int>::max());
    EXPECT_GT(end.place.top, std::int64_t{800} * tallest);
    EXPECT_EQ(end.place.bottom - end.place.body, 84);
    bar().setValue(0);
    EXPECT_TRUE(isInSight(0));
    EXPECT_TRUE(isDrawn(0));
    EXPECT_FALSE(isDrawn(last));
}

TEST_F(TallList, BringsEachWindowIntoSightInTurn)
{
    makeTall(800 - last);
    // Over the whole bar in steps of half a window.
    std::vector<int> seen;
    const int step = bar().maximum() / 1600;
    for (int value = 0; value < bar().maximum(); value += step) {
        bar().setValue(value);
        for (int i = 0; i <= last; ++i)
            if (isDrawn(i) && isInSight(i) && (seen.empty() || seen.back() != i))
                seen.push_back(i);
    }
    bar().setValue(bar().maximum());
    if (isInSight(last))
        seen.push_back(last);
    std::vector<int> all(count);
    std::iota(all.begin(), all.end(), 0);
    EXPECT_EQ(seen, all);
}

TEST_F(TallList, ScrollsByAPixelAtATimeAndByAPage)
{
    makeTall(0);
    EXPECT_EQ(bar().pageStep(), area().viewport()->height());
    EXPECT_EQ(bar().singleStep(), 20);
    bar().setValue(bar().maximum());
    const int before = topInView(last);
    bar().setValue(bar().value() - 1);
    EXPECT_EQ(topInView(last), before + 1);
    bar().triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(topInView(last), before + 21);
}

TEST_F(TallList, IsPassedThroughWithTheTabKey)
{
    makeTall(800 - last);
    for (int i = 1; i < last; ++i)
        switchOff(i);
    for (const auto& each : more)
        each->inside.EnableWindow(FALSE);
    ::SetFocus(buttonOf(0));
    pressTab();
    EXPECT_EQ(focus(), buttonOf(last));
    EXPECT_TRUE(isInSight(last));
    EXPECT_TRUE(isDrawn(0) || !isInSight(0));
    pressTab(Qt::ShiftModifier);
    EXPECT_EQ(focus(), buttonOf(0));
    EXPECT_TRUE(isInSight(0));
    ::SetFocus(buttonOf(last));
    EXPECT_TRUE(isInSight(last));
    bar().setValue(0);
    EXPECT_TRUE(isDrawn(last)) << "it has the focus";
    EXPECT_FALSE(isInSight(last));
}

TEST_F(TallList, KeepsItsPlaceWhereItGrowsAndShrinks)
{
    makeTall(800 - last);
    bar().setValue(bar().maximum());
    for (const auto& each : more)
        pane.SetWindowHeight(*each, 80); // one after the other, with a layout for each
    EXPECT_EQ(bar().value(), bar().maximum());
    EXPECT_TRUE(isInSight(last));
    pane.SetRedraw(FALSE);
    while (pane.GetGroupCount() > 1)
        pane.RemoveGroup(pane.GetGroupCount() - 1);
    pane.SetWindowHeight(block(0), 80);
    pane.SetRedraw(TRUE);
    EXPECT_EQ(bar().maximum(), 0);
    EXPECT_TRUE(isInSight(0));
}

TEST_F(TallList, TakesAClickOnATitleFarBelow)
{
    makeTall(800 - last);
    bar().setValue(bar().maximum());
    QWidget* const column = widget(last).parentWidget();
    const QPoint title = widget(last).pos() - QPoint(0, 10);
    QTest::mouseClick(column, Qt::LeftButton, Qt::NoModifier, title);
    EXPECT_TRUE(pane.GetTaskGroup(800)->m_bIsCollapsed);
    EXPECT_FALSE(block(last).IsWindowVisible());
}
