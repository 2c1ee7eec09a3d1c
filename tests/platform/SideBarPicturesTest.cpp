// The pictures of the side bar's tabs and of the strip that stands in their place, at the display's four steps. The
// measures that go by the display alone run once for each of its steps, which is that of QT_FONT_DPI.

#include "Form.h"

#include "platform/qt/Gdi.h"
#include "platform/qt/Native.h"
#include "platform/qt/OutlookWidget.h"

#include <QtWidgets>

#include <stdexcept>

using namespace orvplatform::testing;

namespace
{
constexpr DWORD floatHideResize = AFX_CBRS_FLOAT | AFX_CBRS_AUTOHIDE | AFX_CBRS_RESIZE;

class SideBarOfTwo : public ::testing::Test
{
protected:
    SideBarOfTwo()
    {
        ensureApplication();
        frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 600, 400), nullptr, 0);
        EXPECT_TRUE(bar.Create(L"Side bar", &frame, CRect(0, 0, 320, 400), 7, WS_CHILD | WS_VISIBLE));
        for (CWnd& pane : panes)
            pane.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &bar, 300);
        frame.ShowWindow(SW_SHOW);
    }
    CMFCOutlookBarTabCtrl& tabs() { return *bar.GetUnderlyingWindow(); }
    QWidget& widget() { return *orvplatform::widgetOf(bar.m_hWnd); }
    QTabBar& tabBar() { return *widget().findChild<QTabBar*>(); }
    QToolButton& opener(const QString& title)
    {
        for (QToolButton* each : orvplatform::widgetOf(frame.m_hWnd)->findChildren<QToolButton*>())
            if (each->accessibleName() == title)
                return *each;
        throw std::runtime_error("no such button");
    }
    void fold()
    {
        orvplatform::foldPanes(tabs().m_hWnd, true);
        processEvents();
    }

    CWnd frame;
    CMFCOutlookBar bar;
    CWnd panes[2];
};

using SideBarMeasures = SideBarOfTwo;

class SideBarPictures : public SideBarOfTwo,
                        public ::testing::WithParamInterface<int> // side of a small picture, pixels
{
protected:
    static int small() { return GetParam(); }
    static int large() { return GetParam() * 3 / 2; }

    void addLarge(QColor colour)
    {
        CImageList list;
        fill(list, large(), colour);
        EXPECT_TRUE(tabs().AddImageList(list, large(), RGB(255, 0, 255)));
    }
    void addSmall(QColor colour)
    {
        CImageList list;
        fill(list, small(), colour);
        EXPECT_TRUE(tabs().AddToolbarImageList(list, small(), RGB(255, 0, 255)));
    }
    static void fill(CImageList& list, int side, QColor colour)
    {
        ASSERT_TRUE(list.Create(side, side, ILC_COLOR32 | ILC_MASK, 1, 1));
        QImage picture(side, side, QImage::Format_ARGB32);
        picture.fill(colour);
        list.GetSafeHandle()->pictures.push_back(picture);
    }
    // The square of one colour that the widget draws, pixels; empty where it draws none.
    static QRect squareIn(QWidget& widget, QColor colour)
    {
        const QImage drawn = widget.grab().toImage();
        QRect found;
        int count = 0;
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x)
                if (drawn.pixelColor(x, y) == colour) {
                    found |= QRect(x, y, 1, 1);
                    ++count;
                }
        EXPECT_EQ(count, found.width() * found.height()) << "in one piece";
        return found;
    }
};
} // namespace

TEST_P(SideBarPictures, TheTabShowsTheLargeListAndTheStripTheSmallOneAtTheirOwnSizes)
{
    addLarge(Qt::red);
    addSmall(Qt::blue);
    tabs().AddControl(&panes[0], L"Feeds", 0, TRUE, floatHideResize);
    processEvents();
    EXPECT_EQ(squareIn(tabBar(), Qt::red).size(), QSize(large(), large()));
    EXPECT_TRUE(squareIn(tabBar(), Qt::blue).isEmpty());
    EXPECT_GE(tabBar().height(), large());
    fold();
    EXPECT_EQ(squareIn(opener("Feeds"), Qt::blue).size(), QSize(small(), small()));
    EXPECT_TRUE(squareIn(opener("Feeds"), Qt::red).isEmpty());
}

TEST_P(SideBarPictures, TheStripGrowsWithItsPictures)
{
    addLarge(Qt::red);
    addSmall(Qt::blue);
    tabs().AddControl(&panes[0], L"Feeds", 0, TRUE, floatHideResize);
    fold();
    EXPECT_EQ(widget().sizeHint().width(), small() * 36 / 16);
    bar.MoveWindow(0, 0, widget().sizeHint().width(), 400);
    processEvents();
    QToolButton& button = opener("Feeds");
    EXPECT_EQ(button.width(), button.height());
    EXPECT_GE(button.x(), 4);
    EXPECT_EQ(button.x(), button.parentWidget()->width() - button.x() - button.width()) << "in the middle";
}

TEST_P(SideBarPictures, OneIndexCountsInBothLists)
{
    addLarge(Qt::red);
    addLarge(Qt::green);
    addSmall(Qt::blue);
    addSmall(Qt::yellow);
    tabs().AddControl(&panes[0], L"Feeds", 1, TRUE, floatHideResize);
    processEvents();
    EXPECT_FALSE(squareIn(tabBar(), Qt::green).isEmpty());
    fold();
    EXPECT_FALSE(squareIn(opener("Feeds"), Qt::yellow).isEmpty());
}

TEST_P(SideBarPictures, ATabBeyondTheShorterListShowsTheOthersPicture)
{
    addLarge(Qt::red);
    addLarge(Qt::green);
    addSmall(Qt::blue);
    tabs().AddControl(&panes[0], L"Feeds", 1, TRUE, floatHideResize);
    tabs().AddControl(&panes[1], L"Other", 2, TRUE, floatHideResize); // in neither
    processEvents();
    EXPECT_EQ(squareIn(tabBar(), Qt::green).size(), QSize(large(), large()));
    EXPECT_TRUE(tabBar().tabIcon(1).isNull());
    fold();
    EXPECT_EQ(squareIn(opener("Feeds"), Qt::green).size(), QSize(large(), large()));
    EXPECT_TRUE(opener("Other").icon().isNull());
}

TEST_P(SideBarPictures, AreShownThoughTheListsComeAfterTheTab)
{
    tabs().AddControl(&panes[0], L"Feeds", 0, TRUE, floatHideResize);
    addSmall(Qt::blue);
    addLarge(Qt::red);
    processEvents();
    EXPECT_EQ(squareIn(tabBar(), Qt::red).size(), QSize(large(), large()));
    fold();
    EXPECT_EQ(squareIn(opener("Feeds"), Qt::blue).size(), QSize(small(), small()));
}

TEST_F(SideBarMeasures, GrowWithTheDisplay)
{
    const int step = qEnvironmentVariableIntValue("QT_FONT_DPI"); // nothing stands for the plain one
    const auto grown = [step](int pixels) { return pixels * (step == 0 ? 96 : step) / 96; };
    tabs().AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
    bar.MoveWindow(200, 0, 400, 400);
    processEvents();
    const QTabBar& bars = tabBar(); // slid out it is the window's
    int own = 0;
    for (const QToolButton* each : widget().findChildren<QToolButton*>())
        if (each->isVisible() && each->parentWidget() == bars.parentWidget()) {
            EXPECT_EQ(each->iconSize(), QSize(grown(16), grown(16))) << each->toolTip().toStdString();
            ++own;
        }
    EXPECT_EQ(own, 2) << "the pin and the way to a window of its own";
    EXPECT_EQ(bars.pos(), QPoint(grown(4), grown(4)));
    fold();
    EXPECT_EQ(widget().sizeHint().width(), grown(36)) << "a strip of openers without pictures";
    EXPECT_EQ(opener("Feeds").iconSize(), QSize(grown(16), grown(16)));
    EXPECT_EQ(opener("Feeds").size(), QSize(grown(28), grown(28)));
    EXPECT_EQ(opener("Feeds").pos(), QPoint(grown(4), grown(4)));
    orvplatform::slidePaneOut(tabs().m_hWnd, 0);
    processEvents();
    EXPECT_EQ(bars.pos(), QPoint(2 * grown(4), grown(4))) << "beside the edge that is drawn to make it wider";
}

INSTANTIATE_TEST_SUITE_P(Steps, SideBarPictures, ::testing::Values(16, 20, 24, 32),
                         [](const auto& test) { return std::to_string(test.param); });
