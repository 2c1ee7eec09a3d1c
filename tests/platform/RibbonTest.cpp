#include "Form.h"

#include "platform/qt/Native.h"
#include "platform/qt/RibbonWidget.h"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <set>

using namespace orvplatform::testing;

namespace
{
class OwnCategory : public CMFCRibbonCategory
{
    DECLARE_DYNCREATE(OwnCategory)

public:
    CMFCRibbonPanel* insert(int index, LPCWSTR name) { return InsertPanelAt(index, name, nullptr, nullptr); }
};
IMPLEMENT_DYNCREATE(OwnCategory, CMFCRibbonCategory)

class Ribbon : public ::testing::Test
{
protected:
    Ribbon()
    {
        registerTestResources();
        frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 900, 400), nullptr, 0);
        EXPECT_TRUE(ribbon.Create(&frame));
        ribbon.MoveWindow(0, 0, 900, 110);
        category = dynamic_cast<OwnCategory*>(
            ribbon.AddCategory(L"Home", 0, 0, CSize(16, 16), CSize(24, 24), -1, RUNTIME_CLASS(OwnCategory)));
    }
    // Panels of seven, five and two buttons, and one that a library inserted.
    void fillPanels()
    {
        UINT id = 1;
        const auto fill = [&](CMFCRibbonPanel* panel, std::initializer_list<const wchar_t*> texts) {
            for (const wchar_t* text : texts)
                panel->Add(new CMFCRibbonButton(id++, text));
        };
        fill(category->AddPanel(L"Parts"),
             {L"Hide", L"Isolate", L"Show all", L"Colour", L"Make transparent", L"Move part", L"Reset parts"});
        fill(category->AddPanel(L"Standard views"), {L"Front", L"Left", L"Right", L"Top", L"Isometric"});
        fill(category->AddPanel(L"View"), {L"Isometric", L"Perspective"});
        fill(category->insert(2, L"Cloud"), {L"Synchronise", L"Transparency"});
        frame.ShowWindow(SW_SHOW);
        orvplatform::widgetOf(frame.m_hWnd)->activateWindow();
    }
    void setWidth(int width)
    {
        frame.MoveWindow(0, 0, width, 400);
        ribbon.MoveWindow(0, 0, width, 120);
        orvplatform::refreshRibbon(ribbon);
        processEvents();
    }
    QToolButton& button(UINT id) { return *qobject_cast<QToolButton*>(orvplatform::ribbonButton(ribbon.m_hWnd, id)); }
    CWnd frame;
    CMFCRibbonBar ribbon;
    OwnCategory* category = nullptr;
};
} // namespace

TEST_F(Ribbon, MakesCategoriesOfAClass)
{
    ASSERT_NE(category, nullptr);
    EXPECT_EQ(ribbon.GetActiveCategory(), category);
    EXPECT_EQ(ribbon.GetCategory(0), category);
    EXPECT_EQ(ribbon.GetCategory(1), nullptr);
    EXPECT_EQ(ribbon.GetCategoryIndex(category), 0);
    CMFCRibbonCategory* second = ribbon.AddCategory(L"View", 0, 0);
    EXPECT_EQ(ribbon.GetCategoryCount(), 2);
    EXPECT_TRUE(ribbon.SetActiveCategory(second));
    EXPECT_EQ(ribbon.GetActiveCategory(), second);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CMFCRibbonBar, CWnd::FromHandle(ribbon.m_hWnd)), &ribbon);
}

TEST_F(Ribbon, CountsPicturesAsTheyAreAdded)
{
    EXPECT_EQ(category->GetLargeImages().GetCount(), 0);
    EXPECT_TRUE(category->GetLargeImages().Load(5, nullptr, TRUE));
    EXPECT_EQ(category->GetLargeImages().GetCount(), 2);
    EXPECT_TRUE(category->GetSmallImages().Load(6, nullptr, TRUE));
    EXPECT_EQ(category->GetSmallImages().GetCount(), 1);
}

TEST_F(Ribbon, PutsPanelsWhereTheyBelong)
{
    category->AddPanel(L"File");
    category->AddPanel(L"Last");
    CMFCRibbonPanel* cloud = category->insert(1, L"Cloud");
    EXPECT_EQ(category->GetPanel(1), cloud);
    category->insert(-5, L"First");
    category->insert(99, L"End");
    std::vector<std::wstring> names;
    for (int i = 0; i < category->GetPanelCount(); ++i)
        names.emplace_back(category->GetPanel(i)->GetName());
    EXPECT_EQ(names, (std::vector<std::wstring>{L"First", L"File", L"Cloud", L"Last", L"End"}));
}

TEST_F(Ribbon, KeepsACopyOfAPanelsIcon)
{
    CImageList list;
    list.Create(20, 20, ILC_COLOR32 | ILC_MASK, 1, 1);
    CPngImage picture;
    picture.Load(6);
    list.Add(&picture, RGB(255, 0, 255));
    HICON const given = list.ExtractIcon(0);
    const QImage drawn = orvplatform::pixmapOf(given).toImage();
    ASSERT_FALSE(drawn.isNull());
    CMFCRibbonPanel* panel = category->AddPanel(L"Cloud", given);
    const CMFCRibbonPanel own(L"Own", given);
    EXPECT_TRUE(DestroyIcon(given));
    EXPECT_NE(panel->GetDefaultIcon(), given);
    EXPECT_EQ(orvplatform::pixmapOf(panel->GetDefaultIcon()).toImage(), drawn);
    EXPECT_EQ(orvplatform::pixmapOf(own.GetDefaultIcon()).toImage(), drawn);
    EXPECT_EQ(category->AddPanel(L"Plain")->GetDefaultIcon(), nullptr);
}

TEST_F(Ribbon, DestroysItsCopyWithThePanel)
{
    CImageList list;
    list.Create(20, 20, ILC_COLOR32 | ILC_MASK, 1, 1);
    CPngImage picture;
    picture.Load(6);
    list.Add(&picture, RGB(255, 0, 255));
    HICON const given = list.ExtractIcon(0);
    HICON copy = nullptr;
    {
        const CMFCRibbonPanel panel(L"Cloud", given);
        copy = panel.GetDefaultIcon();
    }
    EXPECT_FALSE(DestroyIcon(copy)); // it is gone already
    EXPECT_TRUE(DestroyIcon(given));
}

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
    EXPECT_FALSE(isInView(1));
    EXPECT_TRUE(waitFor([&] { return button(1).isActiveWindow(); }));
    button(16).setFocus(Qt::TabFocusReason);
    button(1).setFocus(Qt::TabFocusReason); // what is reached by the keyboard comes into view
    EXPECT_TRUE(waitFor([&] { return isInView(1); }));
    setWidth(3000);
    EXPECT_TRUE(isInView(1) && isInView(16));
}

TEST_F(Ribbon, ShowsToolTipsOnButtonsOfEitherSize)
{
    fillPanels();
    auto* push = new CMFCRibbonButton(20, L"Push to cloud");
    push->SetToolTipText(L"Sends the model");
    category->AddPanel(L"Tips")->Add(push);
    for (const int width : {3000, 300}) {
        setWidth(width);
        for (const UINT id : {1u, 20u}) {
            QToolButton& each = button(id);
            QHelpEvent help(QEvent::ToolTip, each.rect().center(), each.mapToGlobal(each.rect().center()));
            QApplication::sendEvent(&each, &help);
            EXPECT_EQ(QToolTip::text(), id == 20 ? "Sends the model" : each.text()) << width;
            QToolTip::hideText();
        }
    }
}

TEST_F(Ribbon, WorksFromTheKeyboard)
{
    fillPanels();
    setWidth(3000);
    std::vector<UINT> commands;
    orvplatform::setRibbonHooks(
        ribbon, {[&](UINT id) { commands.push_back(id); }, [](UINT id) { return id != 1 && id != 3; }, {}, {}});
    QWidget& window = *orvplatform::widgetOf(frame.m_hWnd);
    QLineEdit view(&window);
    view.show();
    view.setFocus();
    ASSERT_TRUE(waitFor([&] { return view.hasFocus(); }));
    const auto press = [](int key) {
        QWidget* focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::keyClick(focus, static_cast<Qt::Key>(key));
        processEvents();
    };
    press(Qt::Key_F10);
    EXPECT_TRUE(button(2).hasFocus()) << "the first that is enabled";
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    EXPECT_TRUE(button(4).hasFocus());
    press(Qt::Key_Space);
    press(Qt::Key_Right);
    EXPECT_TRUE(button(5).hasFocus());
    press(Qt::Key_Left);
    press(Qt::Key_Enter);
    EXPECT_EQ(commands, (std::vector<UINT>{2, 4, 4}));
    press(Qt::Key_Escape);
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(Ribbon, OpensAMenuWithTheEnterKey)
{
    fillPanels();
    setWidth(3000);
    QMenu menu;
    menu.addAction("Recent");
    orvplatform::setRibbonHooks(
        ribbon, {{}, [](UINT) { return true; }, {}, [&](UINT id) { return id == 2 ? &menu : nullptr; }});
    button(2).setFocus();
    bool wasOpen = false;
    QTimer::singleShot(0, &menu, [&] {
        wasOpen = menu.isVisible();
        menu.close();
    });
    QTest::keyClick(&button(2), Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return wasOpen; }));
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

TEST_F(Ribbon, RunsCommandsThroughTheProgram)
{
    std::vector<UINT> commands;
    bool enabled = true;
    orvplatform::setRibbonHooks(ribbon, {[&](UINT id) { commands.push_back(id); },
                                         [&](UINT id) { return enabled || id == 2; },
                                         [](UINT) { return false; },
                                         {}});
    CMFCRibbonPanel* panel = category->AddPanel(L"Cloud");
    auto* push = new CMFCRibbonButton(1, L"Push to cloud", 0, 0, FALSE);
    push->SetToolTipText(L"Push to cloud");
    panel->Add(push);
    panel->Add(new CMFCRibbonButton(2, L"Share"));
    EXPECT_EQ(panel->GetCount(), 2);
    EXPECT_EQ(push->GetParentCategory(), category);
    EXPECT_EQ(ribbon.FindByID(2)->GetText(), std::wstring(L"Share"));
    EXPECT_TRUE(clickRibbon(ribbon, 1));
    enabled = false;
    EXPECT_FALSE(isRibbonEnabled(ribbon, 1)); // the query is asked again
    EXPECT_FALSE(clickRibbon(ribbon, 1));
    EXPECT_TRUE(clickRibbon(ribbon, 2));
    EXPECT_FALSE(clickRibbon(ribbon, 3));
    EXPECT_EQ(commands, (std::vector<UINT>{1, 2}));
}

TEST_F(Ribbon, AsksWhileTheProgramIsIdle)
{
    int asked = 0;
    category->AddPanel(L"Cloud")->Add(new CMFCRibbonButton(1, L"Push"));
    orvplatform::setRibbonHooks(ribbon, {{}, [&](UINT) { return ++asked > 0; }, {}, {}});
    const int before = asked;
    EXPECT_TRUE(waitFor([&] { return asked >= before + 2; }));
}

TEST_F(Ribbon, SendsCommandsToItsParentWithoutAProgram)
{
    struct Parent : CWnd {
        WPARAM seen = 0;
        BOOL OnCommand(WPARAM wParam, LPARAM) override
        {
            seen = wParam;
            return TRUE;
        }
    } parent;
    parent.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 900, 400), nullptr, 0);
    CMFCRibbonBar own;
    own.Create(&parent);
    own.AddCategory(L"Home", 0, 0)->AddPanel(L"x")->Add(new CMFCRibbonButton(0x8001, L"Go"));
    EXPECT_TRUE(clickRibbon(own, 0x8001));
    EXPECT_EQ(parent.seen, 0x8001u);
}

TEST_F(Ribbon, SurvivesCommandsThatThrow)
{
    std::string seen;
    orvplatform::setExceptionHandler([&](const std::string& what) { seen = what; });
    orvplatform::setRibbonHooks(ribbon, {[](UINT) { throw std::runtime_error("failed"); }, {}, {}, {}});
    category->AddPanel(L"x")->Add(new CMFCRibbonButton(1, L"Go"));
    EXPECT_TRUE(clickRibbon(ribbon, 1));
    EXPECT_EQ(seen, "failed");
    orvplatform::setExceptionHandler({});
}
