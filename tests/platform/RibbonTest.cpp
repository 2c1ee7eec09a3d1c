#include "Form.h"

#include "platform/qt/Native.h"

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
