// Comments of the pane that are out of sight: their controls are made late, and what is set on them before counts.

#include "ui/feed/FeedPaneFixture.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QLabel>
#include <QScrollBar>

#include <set>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr int push = 271;
constexpr int share = 272;
constexpr int picture = 2001;
constexpr int content = 2002;
constexpr int date = 2004;
constexpr int deleteButton = 1037;
constexpr int count = 40;
constexpr std::size_t last = count + 1; // its group: tools and the comment box come first

class FeedPaneSleepTest : public FeedPaneTest
{
protected:
    FeedPaneSleepTest()
    {
        signIn();
        frame.ShowWindow(SW_SHOW);
        openPaneWithModel();
    }

    static std::wstring textOfNumber(int number) { return L"Comment number " + std::to_wstring(number); }
    /// Of the signed-in user, with pictures of that many pixels a side.
    static std::vector<Feed> ownComments(int width, int height)
    {
        std::vector<Feed> feeds;
        for (int i = 0; i < count; ++i) {
            feeds.push_back(comment(textOfNumber(i)));
            feeds.back().comment.publishedTime = L"Day " + std::to_wstring(i);
            feeds.back().thumbnail = dataUri(pictureBytes(width, height));
        }
        return feeds;
    }
    QScrollBar& bar() const
    {
        return *orvplatform::widgetOf(list())->findChild<QAbstractScrollArea*>()->verticalScrollBar();
    }
    void scrollToTheEnd()
    {
        bar().setValue(bar().maximum());
        processEvents();
    }
    void scrollBack()
    {
        bar().setValue(0);
        processEvents();
    }
    HWND control(std::size_t group, int id) const { return ::GetDlgItem(groups().at(group).window, id); }
    bool isMade(std::size_t group) const { return control(group, deleteButton)->madeWidget() != nullptr; }

    /// The names of what a screen reader finds on show below a window, with a star before those of buttons.
    static std::set<std::string> heard(QAccessibleInterface* window)
    {
        std::set<std::string> names;
        if (window == nullptr || window->state().invisible != 0) {
            return names;
        }
        std::string const mark = window->role() == QAccessible::Button ? "*" : "";
        names.insert(mark + window->text(QAccessible::Name).toStdString());
        for (int i = 0; i < window->childCount(); ++i) {
            names.merge(heard(window->child(i)));
        }
        return names;
    }
    std::set<std::string> heardInThePane() const
    {
        return heard(QAccessible::queryAccessibleInterface(orvplatform::widgetOf(*pane)));
    }
    static std::set<std::string> heardBelow(HWND window)
    {
        return heard(QAccessible::queryAccessibleInterface(window->widget()));
    }
};

/// A screen reader that listens while it lives.
class ScreenReader
{
public:
    ScreenReader() { QAccessible::setActive(true); }
    ~ScreenReader() { QAccessible::setActive(false); }
    ScreenReader(ScreenReader const&) = delete;
    ScreenReader& operator=(ScreenReader const&) = delete;
};

} // namespace

TEST_F(FeedPaneSleepTest, AScreenReaderFindsTheLastComment)
{
    loadRecords(ownComments(36, 18));
    processEvents();
    ASSERT_FALSE(heardInThePane().contains("Comment number 39"));
    ScreenReader const reader;
    auto const inThePane = heardInThePane();
    EXPECT_TRUE(inThePane.contains("Comment number 0"));
    EXPECT_TRUE(inThePane.contains("Comment number 39"));
    auto const inTheLast = heardBelow(groups().at(last).window);
    EXPECT_TRUE(inTheLast.contains("Comment number 39"));
    EXPECT_TRUE(inTheLast.contains("Day 39"));
    EXPECT_TRUE(inTheLast.contains("*Delete"));
    EXPECT_FALSE(inTheLast.contains("Comment number 38"));
}

TEST_F(FeedPaneSleepTest, AScreenReaderFindsWhatIsLoadedWhileItListens)
{
    ScreenReader const reader;
    loadRecords(ownComments(36, 18));
    processEvents();
    auto const inThePane = heardInThePane();
    EXPECT_TRUE(inThePane.contains("Comment number 39"));
    EXPECT_TRUE(inThePane.contains("Day 39"));
    EXPECT_TRUE(inThePane.contains("*Delete"));
    loadRecords({comment(L"the only one", L"Bob", L"bob@example.com")});
    processEvents();
    auto const later = heardInThePane();
    EXPECT_TRUE(later.contains("the only one"));
    EXPECT_FALSE(later.contains("Comment number 0")) << "its block is hidden";
    EXPECT_FALSE(later.contains("*Delete")) << "somebody else's";
}

TEST_F(FeedPaneSleepTest, ButtonsOfPicturesAreNamedAndTold)
{
    loadRecords(ownComments(36, 18));
    processEvents();
    ASSERT_FALSE(isMade(last)); // the tip was set on what has no widget
    scrollToTheEnd();
    struct {
        std::size_t group;
        int id;
        char const* tip;
        char const* name;
    } const buttons[] = {{0, push, "Push to Orvanta Cloud", "Push to Cloud"},
                         {0, share, "Share", "Share"},
                         {2, deleteButton, "Delete", "Delete"},
                         {last, deleteButton, "Delete", "Delete"}};
    for (auto const& [group, id, tip, name] : buttons) {
        QWidget* const widget = control(group, id)->madeWidget();
        ASSERT_NE(widget, nullptr) << tip;
        EXPECT_EQ(widget->toolTip().toStdString(), tip);
        EXPECT_EQ(widget->accessibleName().toStdString(), name);
    }
    CWnd& named = *childOf(last).GetDlgItem(deleteButton);
    named.SetWindowTextW(L"&Remove");
    EXPECT_EQ(control(last, deleteButton)->widget()->accessibleName(), "Remove");
    named.SetWindowTextW(L"");
    EXPECT_EQ(control(last, deleteButton)->widget()->accessibleName(), "Delete");
}

TEST_F(FeedPaneSleepTest, ABlockThatSleepsAgainTakesAnotherRecord)
{
    loadRecords(ownComments(36, 18));
    scrollToTheEnd();
    ASSERT_TRUE(isMade(last));
    scrollBack();
    ASSERT_TRUE(IsWindowVisible(groups().at(last).window));
    ASSERT_FALSE(groups().at(last).window->widget()->isVisible()) << "it sleeps";

    std::vector<Feed> others;
    for (int i = 0; i < count; ++i) {
        others.push_back(comment(L"Another " + std::to_wstring(i), L"Bob", L"bob@example.com"));
    }
    HWND const window = groups().at(last).window;
    loadRecords(others);
    auto const expectText = [&](char const* when) {
        ASSERT_EQ(groups().at(last).window, window) << when;
        CWnd& block = childOf(last);
        EXPECT_EQ(groups().at(last).height, 55) << when;
        EXPECT_EQ(textOf(block, content), L"Another 39") << when;
        EXPECT_EQ(placeOf(block, content), CRect(15, 20, 195, 60)) << when;
        EXPECT_TRUE(::GetWindowLongPtrW(control(last, content), GWL_STYLE) & WS_VISIBLE) << when;
        for (int const id : {picture, date, deleteButton}) {
            EXPECT_FALSE(::GetWindowLongPtrW(control(last, id), GWL_STYLE) & WS_VISIBLE) << id << ' ' << when;
        }
    };
    expectText("asleep");
    scrollToTheEnd();
    ASSERT_TRUE(window->widget()->isVisible());
    expectText("awake");
    EXPECT_FALSE(control(last, picture)->widget()->isVisible());
    EXPECT_EQ(qobject_cast<QLabel*>(control(last, content)->widget())->text(), "Another 39");
    scrollBack();

    loadRecords(ownComments(36, 9)); // half as high
    ASSERT_FALSE(window->widget()->isVisible());
    EXPECT_EQ(groups().at(last).height, 45 + 55);
    EXPECT_EQ(placeOf(childOf(last), picture), CRect(15, 15, 195, 60));
    EXPECT_EQ(placeOf(childOf(last), content), CRect(15, 65, 195, 105));
    scrollToTheEnd();
    ASSERT_TRUE(window->widget()->isVisible());
    for (int const id : {picture, content, date, deleteButton}) {
        EXPECT_TRUE(control(last, id)->widget()->isVisible()) << id;
    }
    QImage const drawn = control(last, picture)->widget()->grab().toImage();
    EXPECT_EQ(drawn.size(), QSize(180, 45));
    EXPECT_EQ(drawn.pixelColor(90, 22), QColor(Qt::white));
    EXPECT_EQ(qobject_cast<QLabel*>(control(last, date)->widget())->text(), "Day 39");
}
