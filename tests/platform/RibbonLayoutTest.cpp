// Where the ribbon's buttons stand at each width and display step, and what they show.

#include "RibbonFixture.h"

#include <QImage>
#include <QMenu>

#include <algorithm>
#include <set>

using namespace orvplatform::testing;
using ribbontest::Ribbon;

TEST_F(Ribbon, HasOneHeightWhateverItShows)
{
    fillPanels();
    std::set<int> heights;
    for (const int width : {3000, 1440, 1000, 700, 300}) {
        setWidth(width);
        heights.insert(orvplatform::widgetOf(ribbon.m_hWnd)->sizeHint().height());
    }
    for (const bool enabled : {false, true}) {
        orvplatform::setRibbonHooks(ribbon, {{}, [enabled](UINT) { return enabled; }, {}, {}});
        heights.insert(orvplatform::widgetOf(ribbon.m_hWnd)->sizeHint().height());
    }
    EXPECT_EQ(heights.size(), 1u);
    EXPECT_LE(*heights.begin(), 120);
}

TEST_F(Ribbon, ShowsLargeButtonsWithTheirWholeCaptions)
{
    fillPanels();
    setWidth(3000);
    for (UINT id = 1; id <= 16; ++id) {
        const QToolButton& each = button(id);
        EXPECT_EQ(each.toolButtonStyle(), Qt::ToolButtonTextUnderIcon) << id;
        // Every word of the caption has its room, on one of two lines.
        for (const QString& word : each.text().split(u' '))
            EXPECT_LE(each.fontMetrics().horizontalAdvance(word), each.width()) << id;
        EXPECT_LE(each.fontMetrics().horizontalAdvance(each.text()), 2 * each.width()) << id;
        EXPECT_GE(each.width(), 56) << id;
    }
}

TEST_F(Ribbon, CollapsesThePanelsWithMostButtonsFirst)
{
    fillPanels();
    const std::vector<UINT> first{1, 8, 13, 15}; // a button of each panel: seven, five, two, and the inserted one
    std::vector<UINT> collapsed;
    for (int width = 3000; width > 300 && collapsed.size() < first.size(); width -= 20) {
        setWidth(width);
        for (const UINT id : first) {
            const bool isSmall = button(id).toolButtonStyle() == Qt::ToolButtonTextBesideIcon;
            if (isSmall && std::find(collapsed.begin(), collapsed.end(), id) == collapsed.end())
                collapsed.push_back(id);
        }
    }
    EXPECT_EQ(collapsed, first);
    // Columns of three, nothing cut off.
    for (UINT id = 1; id <= 7; ++id) {
        const QToolButton& each = button(id);
        EXPECT_EQ(each.y(), button(id > 3 ? id - 3 : id).y()) << id;
        EXPECT_GE(each.width(), each.fontMetrics().horizontalAdvance(each.text()) + each.iconSize().width()) << id;
        EXPECT_LE(each.geometry().bottom(), button(3).geometry().bottom()) << id;
    }
    EXPECT_LT(button(1).geometry().bottom(), button(2).y() + 1);
}

TEST_F(Ribbon, DropsTheCaptionsWhereColumnsAreStillTooWide)
{
    fillPanels();
    setWidth(320);
    for (UINT id = 1; id <= 7; ++id) {
        const QToolButton& each = button(id);
        EXPECT_EQ(each.toolButtonStyle(), Qt::ToolButtonIconOnly) << id;
        EXPECT_LT(each.width(), 32) << id;
        EXPECT_EQ(each.y(), button(id > 3 ? id - 3 : id).y()) << id;
        EXPECT_FALSE(each.toolTip().isEmpty()) << id;
        EXPECT_FALSE(each.accessibleName().isEmpty()) << id;
    }
    setWidth(3000);
    EXPECT_EQ(button(1).toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

TEST_F(Ribbon, KeepsItsMeasuresWhateverAButtonsState)
{
    fillPanels();
    setWidth(900);
    bool state = false;
    QMenu menu;
    orvplatform::setRibbonHooks(ribbon, {{},
                                         [&](UINT) { return state; },
                                         [&](UINT) { return state; },
                                         [&](UINT id) { return state && id == 1 ? &menu : nullptr; }});
    std::vector<QRect> before;
    for (UINT id = 1; id <= 16; ++id)
        before.push_back(button(id).geometry());
    state = true;
    orvplatform::refreshRibbon(ribbon);
    for (UINT id = 1; id <= 16; ++id)
        EXPECT_EQ(button(id).geometry(), before[id - 1]) << id;
    EXPECT_TRUE(button(1).isEnabled());
    EXPECT_TRUE(button(1).isChecked());
}

TEST_F(Ribbon, ScrollsARowThatIsTooLong)
{
    fillPanels();
    setWidth(200);
    const auto isInView = [this](UINT id) {
        const QWidget& row = *orvplatform::widgetOf(ribbon.m_hWnd);
        const QToolButton& each = button(id);
        return row.rect().contains(QRect(each.mapTo(&row, QPoint()), each.size()));
    };
    ASSERT_FALSE(isInView(16));
    QToolButton* forth = nullptr;
    for (QToolButton* each : orvplatform::widgetOf(ribbon.m_hWnd)->findChildren<QToolButton*>())
        if (each->arrowType() == Qt::RightArrow)
            forth = each;
    ASSERT_NE(forth, nullptr);
    for (int i = 0; i < 50 && forth->isVisible(); ++i)
        forth->click();
    EXPECT_TRUE(isInView(16));
    EXPECT_TRUE(isInView(14)) << "the last of the row";
    EXPECT_FALSE(isInView(1));
    EXPECT_TRUE(waitFor([&] { return button(1).isActiveWindow(); }));
    button(16).setFocus(Qt::TabFocusReason);
    button(1).setFocus(Qt::TabFocusReason); // what is reached by the keyboard comes into view
    EXPECT_TRUE(waitFor([&] { return isInView(1); }));
    setWidth(3000);
    EXPECT_TRUE(isInView(1) && isInView(16));
}

TEST_F(Ribbon, DrawsPicturesOfEachDisplayStepInTheirOwnSize)
{
    for (const int large : {32, 40, 48, 64}) {
        SCOPED_TRACE(large);
        CMFCRibbonBar own;
        EXPECT_TRUE(own.Create(&frame));
        CMFCRibbonCategory* page = own.AddCategory(L"Home", 0, 0, CSize(large / 2, large / 2), CSize(large, large));
        QPixmap filled(large, large);
        filled.fill(Qt::red);
        QPixmap half(large / 2, large / 2);
        half.fill(Qt::red);
        const int first = orvplatform::addPicture(page->GetLargeImages(), filled);
        const int small = orvplatform::addPicture(page->GetSmallImages(), half);
        CMFCRibbonPanel* panel = page->AddPanel(L"Cloud");
        for (UINT id = 1; id <= 3; ++id)
            panel->Add(new CMFCRibbonButton(id, L"Push to cloud", small, first));
        frame.ShowWindow(SW_SHOW);
        int height = 0;
        for (const int width : {900, 60}) {
            own.MoveWindow(0, 0, width, 200);
            orvplatform::refreshRibbon(own);
            processEvents();
            auto& each = *qobject_cast<QToolButton*>(orvplatform::ribbonButton(own.m_hWnd, 2));
            const int side = width == 900 ? large : large / 2;
            EXPECT_EQ(each.iconSize(), QSize(side, side));
            // The picture stands whole inside its button, and the caption beside or below it.
            const QImage drawn = each.grab().toImage();
            int red = 0;
            for (int y = 0; y < drawn.height(); ++y)
                for (int x = 0; x < drawn.width(); ++x)
                    red += drawn.pixelColor(x, y) == QColor(Qt::red);
            EXPECT_EQ(red, side * side);
            const int rowHeight = orvplatform::widgetOf(own.m_hWnd)->sizeHint().height();
            EXPECT_TRUE(height == 0 || height == rowHeight);
            height = rowHeight;
        }
        own.DestroyWindow();
    }
}
