// The ribbon as a plug-in and the program see it: categories, panels, pictures, commands, keys.

#include "RibbonFixture.h"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolTip>

using namespace orvplatform::testing;
using ribbontest::Ribbon;

namespace ribbontest
{
IMPLEMENT_DYNCREATE(OwnCategory, CMFCRibbonCategory)
}

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

TEST_F(Ribbon, TakesAPanelsIconOver)
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
    EXPECT_EQ(panel->GetDefaultIcon(), given);
    EXPECT_EQ(orvplatform::pixmapOf(panel->GetDefaultIcon()).toImage(), drawn);
    EXPECT_EQ(category->AddPanel(L"Plain")->GetDefaultIcon(), nullptr);
}

TEST_F(Ribbon, DestroysAPanelsIconWithThePanel)
{
    CImageList list;
    list.Create(20, 20, ILC_COLOR32 | ILC_MASK, 1, 1);
    CPngImage picture;
    picture.Load(6);
    list.Add(&picture, RGB(255, 0, 255));
    HICON const given = list.ExtractIcon(0);
    {
        const CMFCRibbonPanel panel(L"Cloud", given);
        EXPECT_EQ(panel.GetDefaultIcon(), given);
    }
    EXPECT_FALSE(DestroyIcon(given)); // it is gone already
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
