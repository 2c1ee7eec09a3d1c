#include "Form.h"

#include "platform/qt/Native.h"
#include "platform/qt/OutlookWidget.h"

#include <QtWidgets>

#include <stdexcept>

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
    void unpin()
    {
        tabs->AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
        tabs->AddControl(&panes[1], L"Other", -1, TRUE, floatHideResize);
        // At the window's right side.
        bar.MoveWindow(280, 0, 320, 400);
        processEvents();
        pin().click();
        orvplatform::widgetOf(frame.m_hWnd)->activateWindow();
        EXPECT_TRUE(waitFor([&] { return orvplatform::widgetOf(frame.m_hWnd)->isActiveWindow(); }));
    }
    QToolButton& button(const QString& name) const
    {
        for (QToolButton* each : orvplatform::widgetOf(frame.m_hWnd)->findChildren<QToolButton*>())
            if (each->objectName() == name || each->accessibleName() == name)
                return *each;
        throw std::runtime_error("no such button");
    }
    QToolButton& pin() const { return button(QStringLiteral("pin")); }
    QToolButton& opener(int index) const { return button(QString::fromStdWString(label(index))); }

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

TEST_F(SideBar, ResizesAFloatingPane)
{
    tabs->AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
    tabs->AddControl(&panes[1], L"Fixed", -1, TRUE, AFX_CBRS_FLOAT);
    orvplatform::floatPane(tabs->m_hWnd, 0, true);
    orvplatform::floatPane(tabs->m_hWnd, 1, true);
    QWidget* resizable = orvplatform::widgetOf(panes[0].m_hWnd)->window();
    resizable->resize(500, 450);
    EXPECT_TRUE(waitFor([&] {
        CRect rect;
        panes[0].GetClientRect(rect);
        return rect.Width() == 500 && rect.Height() == 450;
    }));
    const QWidget* fixed = orvplatform::widgetOf(panes[1].m_hWnd)->window();
    EXPECT_EQ(fixed->minimumSize(), fixed->maximumSize());
    orvplatform::floatPane(tabs->m_hWnd, 0, false);
    EXPECT_TRUE(waitFor([&] {
        CRect rect;
        panes[0].GetClientRect(rect);
        return rect.Width() == 320;
    }));
}

TEST_F(SideBar, AsksForAStripWhileItIsUnpinned)
{
    tabs->AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
    const QWidget& whole = *orvplatform::widgetOf(bar.m_hWnd);
    EXPECT_LE(whole.sizeHint().width(), 0); // any width
    pin().click();
    EXPECT_TRUE(orvplatform::arePanesFolded(tabs->m_hWnd));
    EXPECT_GT(whole.sizeHint().width(), 0);
    EXPECT_LT(whole.sizeHint().width(), 50);
    EXPECT_FALSE(panes[0].IsWindowVisible());
    pin().click();
    EXPECT_FALSE(orvplatform::arePanesFolded(tabs->m_hWnd));
    EXPECT_LE(whole.sizeHint().width(), 0);
    EXPECT_TRUE(waitFor([&] { return panes[0].IsWindowVisible(); }));
}

TEST_F(SideBar, SlidesAPaneOutByItsIcon)
{
    unpin();
    opener(1).click();
    EXPECT_TRUE(orvplatform::arePanesSlidOut(tabs->m_hWnd));
    EXPECT_TRUE(panes[1].IsWindowVisible());
    EXPECT_EQ(tabs->GetActiveTab(), 1);
    const QWidget& pane = *orvplatform::widgetOf(panes[1].m_hWnd);
    EXPECT_EQ(pane.window(), orvplatform::widgetOf(frame.m_hWnd));
    // It lies over the window beside the strip, which stays in view.
    const QPoint end = pane.mapTo(pane.window(), QPoint(pane.width(), 0));
    EXPECT_LE(end.x(), opener(1).mapTo(pane.window(), QPoint()).x());
    EXPECT_EQ(pane.width(), 320 - 4);
    opener(1).click();
    EXPECT_FALSE(orvplatform::arePanesSlidOut(tabs->m_hWnd));
    EXPECT_FALSE(panes[1].IsWindowVisible());
}

TEST_F(SideBar, SlidesAPaneOutUnderThePointer)
{
    unpin();
    QEnterEvent enter({4, 4}, {4, 4}, {4, 4});
    QApplication::sendEvent(&opener(0), &enter);
    EXPECT_TRUE(waitFor([&] { return orvplatform::arePanesSlidOut(tabs->m_hWnd); }));
    // The pointer goes on without having touched it.
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&opener(0), &leave);
    EXPECT_TRUE(waitFor([&] { return !orvplatform::arePanesSlidOut(tabs->m_hWnd); }));
}

TEST_F(SideBar, HidesThePaneWhenAnotherWindowIsUsed)
{
    CEdit inside, beside;
    unpin();
    inside.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 50, 20), &panes[0], 1);
    beside.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 50, 20), &frame, 2);
    orvplatform::slidePaneOut(tabs->m_hWnd, 0);
    clickAt(panes[0], 10, 10);
    EXPECT_TRUE(orvplatform::arePanesSlidOut(tabs->m_hWnd));
    clickAt(beside, 3, 3);
    EXPECT_FALSE(orvplatform::arePanesSlidOut(tabs->m_hWnd));

    orvplatform::slidePaneOut(tabs->m_hWnd, 0);
    EXPECT_TRUE(waitFor([&] { return ::GetFocus() == inside.m_hWnd; }));
    beside.SetFocus();
    EXPECT_TRUE(waitFor([&] { return !orvplatform::arePanesSlidOut(tabs->m_hWnd); }));

    orvplatform::slidePaneOut(tabs->m_hWnd, 0);
    pressKey(inside, VK_ESCAPE);
    EXPECT_FALSE(orvplatform::arePanesSlidOut(tabs->m_hWnd));
}

TEST_F(SideBar, DocksASlidOutPaneByItsPin)
{
    unpin();
    orvplatform::slidePaneOut(tabs->m_hWnd, 0);
    pin().click();
    EXPECT_FALSE(orvplatform::arePanesFolded(tabs->m_hWnd));
    EXPECT_TRUE(panes[0].IsWindowVisible());
    EXPECT_TRUE(orvplatform::widgetOf(bar.m_hWnd)->isAncestorOf(orvplatform::widgetOf(panes[0].m_hWnd)));
    CWnd beside;
    beside.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(400, 0, 450, 20), &frame, 2);
    clickAt(beside, 3, 3); // pinned, it stays
    EXPECT_TRUE(panes[0].IsWindowVisible());
}

TEST_F(SideBar, MakesASlidOutPaneWiderByItsEdge)
{
    unpin();
    frame.MoveWindow(0, 0, 1200, 400);
    bar.MoveWindow(1200 - 36, 0, 36, 400);
    orvplatform::slidePaneOut(tabs->m_hWnd, 0);
    QWidget& pane = *orvplatform::widgetOf(panes[0].m_hWnd);
    const int before = pane.width();
    QWidget* edge = nullptr;
    for (QWidget* each : pane.window()->findChildren<QWidget*>())
        if (each->isVisible() && each->cursor().shape() == Qt::SplitHCursor)
            edge = each;
    ASSERT_NE(edge, nullptr);
    const QPoint to = edge->mapToGlobal(QPoint(-60, 10));
    QMouseEvent move(QEvent::MouseMove, edge->mapFromGlobal(to), to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(edge, &move);
    EXPECT_TRUE(waitFor([&] { return pane.width() == before + 60; }));
}

TEST_F(SideBar, EndsWhileAPaneIsSlidOut)
{
    unpin();
    orvplatform::slidePaneOut(tabs->m_hWnd, 0);
    frame.DestroyWindow();
    EXPECT_EQ(bar.m_hWnd, nullptr);
    EXPECT_EQ(panes[0].m_hWnd, nullptr);
}

TEST_F(SideBar, TakesAPaneThatIsNotInItWithIt)
{
    tabs->AddControl(&panes[0], L"Feeds", -1, TRUE, floatHideResize);
    tabs->AddControl(&panes[1], L"Other", -1, TRUE, floatHideResize);
    orvplatform::floatPane(tabs->m_hWnd, 0, true);
    EXPECT_EQ(orvplatform::widgetOf(panes[0].m_hWnd)->window()->parentWidget(), orvplatform::widgetOf(frame.m_hWnd));
    bar.DestroyWindow(); // the frame stays
    EXPECT_EQ(panes[0].m_hWnd, nullptr);
    EXPECT_EQ(panes[1].m_hWnd, nullptr);
}

TEST_F(SideBar, TakesAPaneThatIsSlidOutWithIt)
{
    unpin();
    orvplatform::slidePaneOut(tabs->m_hWnd, 0);
    bar.DestroyWindow();
    EXPECT_EQ(panes[0].m_hWnd, nullptr);
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
