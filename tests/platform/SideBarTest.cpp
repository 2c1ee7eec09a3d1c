#include "Form.h"

#include "platform/qt/OutlookWidget.h"

using namespace orvplatform::testing;

namespace
{
class Tabs : public CMFCOutlookBarTabCtrl
{
public:
    std::vector<std::pair<int, int>> changes;

protected:
    void OnActiveTabChanged(int earlier, int now) override { changes.emplace_back(earlier, now); }
};

class Bar : public CMFCOutlookBar
{
protected:
    std::unique_ptr<CMFCOutlookBarTabCtrl> MakeTabCtrl() override { return std::make_unique<Tabs>(); }
};

constexpr DWORD floatHideResize = AFX_CBRS_FLOAT | AFX_CBRS_AUTOHIDE | AFX_CBRS_RESIZE;

class SideBar : public ::testing::Test
{
protected:
    SideBar()
    {
        registerTestResources();
        frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 600, 400), nullptr, 0);
        EXPECT_TRUE(bar.Create(L"Side bar", &frame, CRect(0, 0, 320, 400), 7, WS_CHILD | WS_VISIBLE));
        tabs = dynamic_cast<Tabs*>(bar.GetUnderlyingWindow());
        for (CWnd& pane : panes)
            pane.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &bar, 300);
        frame.ShowWindow(SW_SHOW);
    }
    std::wstring label(int index) const
    {
        CString text;
        tabs->GetTabLabel(index, text);
        return text.GetString();
    }
    CWnd frame;
    Bar bar;
    Tabs* tabs = nullptr;
    CWnd panes[2];
};
} // namespace

TEST_F(SideBar, ShowsPanesBehindTabs)
{
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->GetActiveTab(), -1);
    tabs->AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
    tabs->AddControl(&panes[1], L"Other", -1, TRUE, floatHideResize);
    EXPECT_EQ(tabs->GetTabsNum(), 2);
    EXPECT_EQ(tabs->GetActiveWnd(), &panes[0]);
    EXPECT_EQ(tabs->GetTabWnd(1), &panes[1]);
    EXPECT_TRUE(tabs->SetActiveTab(1));
    EXPECT_FALSE(tabs->SetActiveTab(2));
    EXPECT_EQ(tabs->changes, (std::vector<std::pair<int, int>>{{-1, 0}, {0, 1}}));
    EXPECT_TRUE(waitFor([&] { return panes[1].IsWindowVisible(); }));
    EXPECT_FALSE(panes[0].IsWindowVisible());
}

TEST_F(SideBar, TakesATabsTitleFromThePanesParent)
{
    tabs->AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
    EXPECT_EQ(label(0), L"Feeds");
    HWND parent = ::GetAncestor(panes[0].m_hWnd, GA_PARENT);
    ASSERT_NE(parent, nullptr);
    wchar_t text[32];
    GetWindowTextW(parent, text, 32);
    EXPECT_STREQ(text, L"Feeds");
    SetWindowTextW(parent, L"Feeds - 3");
    EXPECT_EQ(label(0), L"Feeds - 3");
    tabs->SetTabLabel(0, L"Feeds");
    GetWindowTextW(parent, text, 32);
    EXPECT_STREQ(text, L"Feeds");
}

TEST_F(SideBar, GivesThePaneItsWholePage)
{
    tabs->AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
    EXPECT_TRUE(waitFor([&] {
        CRect rect;
        panes[0].GetClientRect(rect);
        return rect.Width() == 320 && rect.Height() > 300;
    }));
}

TEST_F(SideBar, FloatsAPaneAndTakesItBack)
{
    tabs->AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
    orvplatform::floatPane(tabs->m_hWnd, 0, true);
    EXPECT_TRUE(orvplatform::isPaneFloating(tabs->m_hWnd, 0));
    EXPECT_TRUE(panes[0].IsWindowVisible());
    HWND parent = ::GetParent(panes[0].m_hWnd);
    SetWindowTextW(parent, L"Feeds - 1");
    EXPECT_EQ(label(0), L"Feeds - 1");
    SendMessageW(parent, WM_CLOSE, 0, 0); // its close box brings it back
    EXPECT_FALSE(orvplatform::isPaneFloating(tabs->m_hWnd, 0));
    EXPECT_TRUE(IsWindow(panes[0].m_hWnd));
    EXPECT_EQ(::GetParent(panes[0].m_hWnd), parent);
}

TEST_F(SideBar, FoldsToAStrip)
{
    tabs->AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
    orvplatform::foldPanes(tabs->m_hWnd, true);
    EXPECT_TRUE(orvplatform::arePanesFolded(tabs->m_hWnd));
    EXPECT_FALSE(panes[0].IsWindowVisible());
    orvplatform::foldPanes(tabs->m_hWnd, false);
    EXPECT_TRUE(waitFor([&] { return panes[0].IsWindowVisible(); }));
}

TEST_F(SideBar, CopiesTheListsOfPictures)
{
    EXPECT_EQ(tabs->GetImageListCount(), 0);
    for (int round = 1; round <= 2; ++round) {
        CImageList list;
        list.Create(20, 20, ILC_COLOR32 | ILC_MASK, 1, 1);
        CPngImage picture;
        picture.Load(6);
        list.Add(&picture, RGB(255, 0, 255));
        EXPECT_TRUE(tabs->AddImageList(list, 20, RGB(255, 0, 255)));
        EXPECT_TRUE(tabs->AddToolbarImageList(list, 20, RGB(255, 0, 255)));
        EXPECT_EQ(tabs->GetImageListCount(), round);
        EXPECT_EQ(tabs->GetToolbarImageListCount(), round);
    }
    EXPECT_FALSE(tabs->AddImageList(nullptr, 20, 0));
    tabs->AddControl(&panes[0], L"Feeds", 1, TRUE, floatHideResize);
    tabs->AddControl(&panes[1], L"Other", 55, TRUE, floatHideResize); // no such picture
    EXPECT_EQ(tabs->GetTabsNum(), 2);
}

TEST_F(SideBar, IgnoresAPaneWithoutAWindow)
{
    CWnd none;
    tabs->AddControl(&none, L"x");
    tabs->AddControl(nullptr, L"x");
    EXPECT_EQ(tabs->GetTabsNum(), 0);
}
