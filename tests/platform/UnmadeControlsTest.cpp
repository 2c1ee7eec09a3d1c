// Controls of a sleeping window that have no widget yet, beside those that have one: nobody can tell them apart.

#include "SleepingWindows.h"

#include "platform/qt/Controls.h"
#include "platform/qt/Look.h"
#include "platform/qt/UnmadeControl.h"

#include <QAccessible>

#include <tuple>

using namespace orvplatform::testing;

namespace
{
using UnmadeControls = SleepingWindows;

QImage filled(QColor colour)
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

struct Heard {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool isShown;   // at that moment
    bool isEnabled; // likewise
    CSize size;     // likewise

    bool operator==(const Heard&) const = default;
    friend void PrintTo(const Heard& heard, std::ostream* out)
    {
        *out << "message " << heard.message << " (" << heard.wParam << ", " << heard.lParam << "), "
             << (heard.isShown ? "shown, " : "hidden, ") << (heard.isEnabled ? "enabled, " : "disabled, ")
             << heard.size.cx << " by " << heard.size.cy;
    }
};

// What a control is told of its place and state while it lives.
class Ear
{
public:
    explicit Ear(HWND heardWindow) : window(heardWindow)
    {
        earlier = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(hear)));
        ears.push_back(this);
    }
    ~Ear()
    {
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(earlier));
        std::erase(ears, this);
    }
    Ear(const Ear&) = delete;
    Ear& operator=(const Ear&) = delete;

    std::vector<Heard> heard;

private:
    static LRESULT hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        Ear& ear =
            **std::find_if(ears.begin(), ears.end(), [window](const Ear* each) { return each->window == window; });
        if (message == WM_SIZE || message == WM_SHOWWINDOW || message == WM_ENABLE) {
            CRect client;
            GetClientRect(window, client);
            ear.heard.push_back({message, wParam, lParam, (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0,
                                 IsWindowEnabled(window) != FALSE, client.Size()});
        }
        return ear.earlier(window, message, wParam, lParam);
    }

    HWND window;
    WNDPROC earlier;
    static inline std::vector<Ear*> ears;
};

// Light again at the end, whatever the test has made of it.
class SystemColour
{
public:
    ~SystemColour() { use(Qt::white); }
    static void use(QColor window)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        QApplication::setPalette(palette);
    }
};
} // namespace

TEST_F(UnmadeControls, ShowThePictureAndTheTipThatWereSetLast)
{
    HWND button = buttonOf(last);
    for (const auto& [colour, tip] : {std::pair(Qt::red, L"first"), std::pair(Qt::blue, L"second")}) {
        orvplatform::setButtonPicture(button, filled(colour));
        orvplatform::setToolTip(button, tip);
    }
    ASSERT_EQ(button->madeWidget(), nullptr);
    EXPECT_EQ(button->unmade->drawn.size(), 2U); // what is replaced is gone
    bar().setValue(bar().maximum());
    auto* made = qobject_cast<QPushButton*>(button->madeWidget());
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->icon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::blue));
    EXPECT_EQ(made->toolTip(), "second");
}

TEST_F(UnmadeControls, HearTheSameAsMadeOnes)
{
    for (const int id : {insideButton, picture, label}) {
        HWND made = ::GetDlgItem(block(0), id);
        HWND unmade = ::GetDlgItem(block(last), id);
        ASSERT_NE(made->madeWidget(), nullptr);
        Ear first(made);
        Ear second(unmade);
        auto expectSame = [&, step = 0](auto change, std::size_t messages) mutable {
            SCOPED_TRACE("control " + std::to_string(id) + ", step " + std::to_string(++step));
            change(made);
            change(unmade);
            EXPECT_EQ(second.heard, first.heard);
            EXPECT_EQ(second.heard.size(), messages);
            EXPECT_EQ(unmade->madeWidget(), nullptr);
            first.heard.clear();
            second.heard.clear();
        };
        constexpr UINT stays = SWP_NOZORDER | SWP_NOMOVE;
        const auto show = [](int command) { return [command](HWND each) { ::ShowWindow(each, command); }; };
        const auto enable = [](BOOL on) { return [on](HWND each) { ::EnableWindow(each, on); }; };
        const auto place = [](int width, int height, UINT flags) {
            return [=](HWND each) { ::SetWindowPos(each, nullptr, 3, 5, width, height, flags); };
        };
        expectSame(place(31, 17, SWP_NOZORDER), 1);
        expectSame(place(31, 17, SWP_NOZORDER), 0); // as large as it was
        expectSame(place(40, 20, SWP_NOZORDER | SWP_NOSIZE), 0);
        expectSame(show(SW_HIDE), 1);
        expectSame(show(SW_HIDE), 0);
        expectSame(place(40, 20, stays), 1); // hidden ones hear of it at once
        expectSame(show(SW_SHOW), 1);
        expectSame(show(SW_SHOW), 0);
        expectSame(enable(FALSE), 1);
        expectSame(enable(FALSE), 0);
        expectSame(enable(TRUE), 1);
        expectSame(place(0, 0, stays | SWP_NOSIZE | SWP_HIDEWINDOW), 1);
        expectSame(place(0, 0, stays | SWP_NOSIZE | SWP_HIDEWINDOW), 0);
        expectSame(place(50, 25, stays | SWP_SHOWWINDOW), 2);
        expectSame(place(60, 30, stays | SWP_HIDEWINDOW), 2);
        expectSame(place(-5, -5, stays), 1); // no window is smaller than nothing
        expectSame(place(60, 30, stays | SWP_SHOWWINDOW), 2);
    }
}

TEST_F(UnmadeControls, HearNothingWhenTheyAreMade)
{
    HWND button = buttonOf(last);
    ::SetWindowPos(button, nullptr, 3, 5, 31, 17, SWP_NOZORDER);
    ::EnableWindow(button, FALSE);
    Ear ear(button);
    bar().setValue(bar().maximum());
    processEvents();
    ASSERT_NE(button->madeWidget(), nullptr);
    EXPECT_EQ(ear.heard, std::vector<Heard>{});
    bar().setValue(0);
    bar().setValue(bar().maximum());
    EXPECT_EQ(ear.heard, std::vector<Heard>{});
}

TEST_F(UnmadeControls, TakeTheColoursThatHoldWhenTheyAreMade)
{
    const SystemColour restored;
    const auto shot = [this](int index) {
        bar().setValue(bar().maximum() * index / last); // without a stop on the way
        processEvents();
        return area().grab(QRect(widget(index).mapTo(&area(), QPoint()), widget(index).size())).toImage();
    };
    const QImage light = shot(10);
    const QImage alsoLight = shot(30); // made, and it sleeps from here on
    ASSERT_EQ(alsoLight, light);
    bar().setValue(0);
    ASSERT_FALSE(isDrawn(30));
    ASSERT_NE(buttonOf(30)->madeWidget(), nullptr);
    ASSERT_EQ(buttonOf(20)->madeWidget(), nullptr);

    SystemColour::use(QColor(0x202020));
    ASSERT_TRUE(orvplatform::theme().dark);
    Block added;
    ASSERT_TRUE(added.Create(11, &pane));
    place(added);
    bar().setValue(bar().maximum());
    processEvents();
    QWidget& addedWidget = *orvplatform::widgetOf(added);
    const QImage expected = area().grab(QRect(addedWidget.mapTo(&area(), QPoint()), addedWidget.size())).toImage();
    EXPECT_NE(expected, light);
    EXPECT_EQ(expected.pixelColor(expected.width() - 1, 0), orvplatform::theme().surface);
    EXPECT_EQ(shot(30), expected) << "made before";
    EXPECT_EQ(shot(20), expected) << "made after";
    pane.RemoveGroup(count);
}

TEST_F(UnmadeControls, AreMadeAndShownWhileAScreenReaderListens)
{
    ASSERT_FALSE(isDrawn(last));
    QAccessible::setActive(true);
    EXPECT_EQ(drawn(), count);
    EXPECT_EQ(block(last).log, std::vector<std::string>{"shown"}); // as it was
    for (int i = 0; i < count; ++i)
        ASSERT_NE(buttonOf(i)->madeWidget(), nullptr) << i;
    bar().setValue(bar().maximum());
    bar().setValue(0);
    EXPECT_EQ(drawn(), count); // and none falls asleep again
    block(last).ShowWindow(SW_HIDE);
    EXPECT_FALSE(isDrawn(last));
    block(last).ShowWindow(SW_SHOW);
    EXPECT_TRUE(isDrawn(last));
    Block added;
    ASSERT_TRUE(added.Create(11, &pane));
    place(added);
    EXPECT_TRUE(orvplatform::widgetOf(added)->isVisible());
    EXPECT_FALSE(isInSight(last));
    pane.RemoveGroup(count);
    QAccessible::setActive(false);
    pane.CollapseGroup(last);
    pane.CollapseGroup(last, FALSE);
    EXPECT_FALSE(isDrawn(last));
}

TEST_F(UnmadeControls, BelongToNoListAnyMoreWhenTheirWindowIsTakenElsewhere)
{
    Block& taken = block(last);
    taken.SetParent(&frame);
    taken.MoveWindow(10, 20, 100, 50);
    const auto expectUntouched = [&](const char* after) {
        CRect place;
        taken.GetWindowRect(place);
        frame.ScreenToClient(place);
        EXPECT_EQ(place, CRect(10, 20, 110, 70)) << after;
        EXPECT_TRUE(isDrawn(last)) << after;
        EXPECT_TRUE(orvplatform::widgetOf(taken.inside)->isVisible()) << after;
    };
    expectUntouched("the move");
    pane.MoveWindow(0, -20, 300, 400);
    pane.RecalcLayout();
    expectUntouched("a layout");
    bar().setValue(bar().maximum());
    bar().setValue(0);
    expectUntouched("scrolling");
    for (int i = 1; i < last; ++i)
        switchOff(i);
    ::SetFocus(buttonOf(0));
    pressTab();
    EXPECT_EQ(focus(), buttonOf(last)); // the window's next stop, beside the list
    EXPECT_EQ(bar().value(), 0);
    expectUntouched("the Tab key");
    pane.CollapseGroup(last);
    expectUntouched("its group's fall");
    pane.RemoveGroup(last);
    expectUntouched("its group's end");
}

TEST_F(UnmadeControls, ObeyTheListTheyWereTakenTo)
{
    CMFCTasksPane other;
    ASSERT_TRUE(
        static_cast<CDockablePane&>(other).Create(L"", &frame, CRect(0, 0, 0, 0), FALSE, 203, WS_CHILD | WS_VISIBLE));
    other.MoveWindow(0, 200, 320, 200);
    std::vector<std::unique_ptr<Block>> above(20);
    for (auto& each : above) {
        each = std::make_unique<Block>();
        ASSERT_TRUE(each->Create(11, &other));
        other.AddWindow(other.AddGroup(L"y", FALSE, TRUE), *each, 80);
    }
    bar().setValue(bar().maximum());
    ASSERT_TRUE(isDrawn(last));
    block(last).SetParent(&other);
    block(last).ShowWindow(SW_HIDE);
    other.AddWindow(other.AddGroup(L"y", FALSE, TRUE), block(last), 80);
    auto& otherBar = *orvplatform::widgetOf(other)->findChild<QAbstractScrollArea*>()->verticalScrollBar();
    otherBar.setValue(1);
    ASSERT_FALSE(isDrawn(last));
    bar().setValue(0);
    bar().setValue(bar().maximum());
    EXPECT_FALSE(isDrawn(last)); // far down there
    otherBar.setValue(otherBar.maximum());
    EXPECT_TRUE(isDrawn(last));
    bar().setValue(0);
    pane.RemoveGroup(last);
    EXPECT_TRUE(isDrawn(last));
    other.DestroyWindow();
}
