#include "afxcontrolbars.h"
#include "afxwin.h"
#include "platform/Process.h"
#include "platform/qt/Native.h"
#include "platform/testing/Input.h"

#include <gtest/gtest.h>

#include <QWidget>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace orvplatform::testing;

namespace
{
const UINT registered = RegisterWindowMessageW(L"PLATFORM_TEST");

class Recorder : public CWnd
{
    DECLARE_DYNAMIC(Recorder)
    DECLARE_MESSAGE_MAP()

public:
    std::vector<std::string> log;
    int createAnswer = 0;
    bool deleteAtEnd = false;

    void OnPress() { log.emplace_back("press"); }
    void OnThrow() { throw std::runtime_error("the handler failed"); }
    void OnNumbers(UINT id) { log.push_back("number " + std::to_string(id)); }
    void OnLinkClick(NMHDR* header, LRESULT* result)
    {
        log.push_back("notify " + std::to_string(header->idFrom));
        *result = 7;
    }
    LRESULT OnUser(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }

protected:
    int OnCreate(LPCREATESTRUCT create)
    {
        log.push_back("create " + std::to_string(create->cx));
        return CWnd::OnCreate(create) == -1 ? -1 : createAnswer;
    }
    void OnDestroy()
    {
        log.emplace_back("destroy");
        CWnd::OnDestroy();
    }
    void OnSize(UINT type, int width, int height)
    {
        CWnd::OnSize(type, width, height);
        log.push_back("size " + std::to_string(width) + "x" + std::to_string(height));
    }
    void OnLButtonDown(UINT flags, CPoint point)
    {
        CWnd::OnLButtonDown(flags, point);
        log.push_back("down " + std::to_string(point.x) + "," + std::to_string(point.y));
    }
    void PostNcDestroy() override
    {
        log.emplace_back("end");
        if (deleteAtEnd)
            delete this;
    }
};

class Derived : public Recorder
{
    DECLARE_DYNAMIC(Derived)
    DECLARE_MESSAGE_MAP()

public:
    void OnOtherPress() { log.emplace_back("other press"); }
};

IMPLEMENT_DYNAMIC(Recorder, CWnd)
IMPLEMENT_DYNAMIC(Derived, Recorder)

BEGIN_MESSAGE_MAP(Recorder, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_BN_CLICKED(5, &Recorder::OnPress)
ON_COMMAND(6, &Recorder::OnPress)
ON_BN_CLICKED(9, &Recorder::OnThrow)
ON_COMMAND_RANGE(20, 22, &Recorder::OnNumbers)
ON_NOTIFY(NM_CLICK, 8, &Recorder::OnLinkClick)
ON_MESSAGE(WM_USER + 1, &Recorder::OnUser)
ON_REGISTERED_MESSAGE(registered, &Recorder::OnUser)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(Derived, Recorder)
ON_BN_CLICKED(6, &Derived::OnOtherPress)
END_MESSAGE_MAP()

class Window : public ::testing::Test
{
protected:
    Window()
    {
        ensureApplication();
        EXPECT_TRUE(frame.CreateEx(0, nullptr, L"frame", WS_POPUP, CRect(0, 0, 400, 300), nullptr, 0));
    }
    CWnd frame;
};
} // namespace

TEST_F(Window, KnowsItsClassAtRunTime)
{
    Derived derived;
    EXPECT_TRUE(derived.IsKindOf(RUNTIME_CLASS(Recorder)));
    EXPECT_TRUE(derived.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_FALSE(derived.IsKindOf(RUNTIME_CLASS(CDialog)));
    CWnd* base = &derived;
    EXPECT_EQ(DYNAMIC_DOWNCAST(Derived, base), &derived);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CMFCRibbonBar, base), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Derived, static_cast<CWnd*>(nullptr)), nullptr);
    EXPECT_STREQ(base->GetRuntimeClass()->m_lpszClassName, "Derived");
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CWnd)->CreateObject());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_EQ(RUNTIME_CLASS(Recorder)->CreateObject(), nullptr);
}

TEST_F(Window, HearsOfItsLifeInOrder)
{
    auto* window = new Recorder;
    ASSERT_TRUE(window->Create(nullptr, L"", 0x50000000, CRect(1, 2, 101, 52), &frame, 3));
    EXPECT_EQ(window->log, (std::vector<std::string>{"create 100", "size 100x50"}));
    EXPECT_EQ(frame.GetDlgItem(3), window);
    EXPECT_EQ(window->GetParent(), &frame);
    EXPECT_EQ(::GetAncestor(window->m_hWnd, GA_PARENT), frame.m_hWnd);
    EXPECT_EQ(::GetAncestor(frame.m_hWnd, GA_PARENT), nullptr);
    window->log.clear();
    // A hidden window hears of its size at once, and once.
    window->MoveWindow(0, -20, 80, 60);
    window->MoveWindow(5, 5, 80, 60);
    EXPECT_EQ(window->log, std::vector<std::string>{"size 80x60"});
    window->log.clear();
    HWND handle = window->m_hWnd;
    EXPECT_TRUE(window->DestroyWindow());
    EXPECT_EQ(window->log, (std::vector<std::string>{"destroy", "end"}));
    EXPECT_EQ(window->m_hWnd, nullptr);
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_FALSE(window->DestroyWindow());
    delete window;
}

TEST_F(Window, StandsWhereItIsMade)
{
    CWnd made;
    ASSERT_TRUE(made.Create(nullptr, L"", WS_CHILD, CRect(10, 20, 110, 70), &frame, 3));
    HWND other = CreateWindowExW(0, L"Static", L"", WS_CHILD, 30, 40, 100, 50, frame.m_hWnd, nullptr, nullptr, nullptr);
    EXPECT_EQ(orvplatform::widgetOf(made.m_hWnd)->geometry(), QRect(10, 20, 100, 50));
    EXPECT_EQ(orvplatform::widgetOf(other)->geometry(), QRect(30, 40, 100, 50));
}

TEST_F(Window, IsNotMadeWhenCreationIsRefused)
{
    Recorder window;
    window.createAnswer = -1;
    EXPECT_FALSE(window.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &frame, 3));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(frame.GetDlgItem(3), nullptr);
    EXPECT_FALSE(Recorder().Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), nullptr, 3)); // a child needs a parent
}

TEST_F(Window, EndsWithItsParent)
{
    auto* child = new Recorder;
    child->deleteAtEnd = true;
    Recorder parent;
    ASSERT_TRUE(parent.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 50, 50), &frame, 3));
    ASSERT_TRUE(child->Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &parent, 4));
    HWND handle = child->m_hWnd;
    parent.DestroyWindow();
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_EQ(CWnd::FromHandle(handle), nullptr);
}

TEST_F(Window, EndsWithItsObject)
{
    HWND handle = nullptr;
    {
        Recorder window;
        window.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 50, 50), &frame, 3);
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(IsWindow(handle));
}

TEST_F(Window, RoutesCommandsAndMessages)
{
    Derived window;
    window.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 50, 50), &frame, 3);
    window.log.clear();
    window.SendMessage(WM_COMMAND, MAKEWPARAM(5, BN_CLICKED));
    window.SendMessage(WM_COMMAND, MAKEWPARAM(6, BN_CLICKED)); // the derived class's entry wins
    window.SendMessage(WM_COMMAND, MAKEWPARAM(7, BN_CLICKED)); // nobody's
    window.SendMessage(WM_COMMAND, MAKEWPARAM(5, EN_CHANGE));  // another notification
    window.SendMessage(WM_COMMAND, MAKEWPARAM(21, 0));
    EXPECT_EQ(window.log, (std::vector<std::string>{"press", "other press", "number 21"}));
    EXPECT_EQ(window.SendMessage(WM_USER + 1, 30, 12), 42);
    EXPECT_EQ(window.SendMessage(registered, 30, 13), 43);
    NMHDR header{window.m_hWnd, 8, NM_CLICK};
    EXPECT_EQ(window.SendMessage(WM_NOTIFY, 8, reinterpret_cast<LPARAM>(&header)), 7);
    EXPECT_EQ(window.log.back(), "notify 8");
}

TEST_F(Window, HearsClicks)
{
    Recorder window;
    window.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &frame, 3);
    CStatic label;
    label.Create(L"text", WS_CHILD | WS_VISIBLE, CRect(10, 10, 40, 40), &window);
    window.log.clear();
    frame.ShowWindow(SW_SHOW);
    EXPECT_TRUE(clickAt(window, 3, 4));
    EXPECT_TRUE(clickAt(window, 20, 30)); // a label lets the click through
    EXPECT_EQ(window.log, (std::vector<std::string>{"down 3,4", "down 20,30"}));
}

TEST_F(Window, KeepsExceptionsAwayFromTheEventLoop)
{
    Recorder window;
    window.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &frame, 3);
    CButton button;
    button.Create(L"Throw", WS_CHILD | WS_VISIBLE, CRect(0, 0, 40, 20), &window, 9);
    std::string seen;
    orvplatform::setExceptionHandler([&](const std::string& what) { seen = what; });
    EXPECT_TRUE(clickButton(window, 9));
    EXPECT_EQ(seen, "the handler failed");
    // Code that sends the message itself gets the exception itself.
    EXPECT_THROW(window.SendMessage(WM_COMMAND, MAKEWPARAM(9, BN_CLICKED)), std::runtime_error);
    orvplatform::setExceptionHandler({});
}

TEST_F(Window, PostsMessagesForLater)
{
    Recorder window;
    window.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 50, 50), &frame, 3);
    window.log.clear();
    EXPECT_TRUE(window.PostMessage(WM_COMMAND, MAKEWPARAM(5, BN_CLICKED)));
    EXPECT_TRUE(window.log.empty());
    EXPECT_TRUE(waitFor([&] { return window.log == std::vector<std::string>{"press"}; }));
}

TEST_F(Window, ShowsAndEnables)
{
    Recorder window;
    window.Create(nullptr, L"a title", WS_CHILD, CRect(0, 0, 50, 50), &frame, 3);
    EXPECT_FALSE(window.IsWindowVisible());
    EXPECT_FALSE(window.ShowWindow(SW_SHOW)); // was hidden
    EXPECT_FALSE(window.IsWindowVisible());   // its parent still is
    frame.ShowWindow(SW_SHOW);
    EXPECT_TRUE(window.IsWindowVisible());
    EXPECT_TRUE(window.GetStyle() & WS_VISIBLE);
    EXPECT_FALSE(window.EnableWindow(FALSE)); // was not disabled
    EXPECT_FALSE(window.IsWindowEnabled());
    EXPECT_TRUE(window.EnableWindow(TRUE));
    CString text;
    window.GetWindowText(text);
    EXPECT_EQ(text, L"a title");
    wchar_t small[4];
    EXPECT_EQ(window.GetWindowText(small, 4), 3);
    EXPECT_STREQ(small, L"a t");
}

TEST_F(Window, TakesBadHandlesQuietly)
{
    HWND bad = reinterpret_cast<HWND>(0x1234);
    EXPECT_FALSE(IsWindow(bad));
    EXPECT_EQ(SendMessageW(bad, WM_SETTEXT, 0, 0), 0);
    EXPECT_FALSE(MoveWindow(bad, 0, 0, 1, 1, TRUE));
    EXPECT_EQ(GetParent(bad), nullptr);
    EXPECT_EQ(CWnd::FromHandle(bad), nullptr);
    EXPECT_FALSE(DestroyWindow(bad));
    CWnd none;
    CString text;
    none.GetWindowText(text);
    none.SetWindowText(L"x");
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(Window, ShowsTheBusyCursorInScope)
{
    EXPECT_EQ(orvplatform::waitCursorDepth(), 0);
    {
        const CWaitCursor outer;
        frame.BeginWaitCursor();
        EXPECT_EQ(orvplatform::waitCursorDepth(), 2);
        frame.RestoreWaitCursor();
        frame.EndWaitCursor();
        EXPECT_EQ(orvplatform::waitCursorDepth(), 1);
    }
    EXPECT_EQ(orvplatform::waitCursorDepth(), 0);
    frame.EndWaitCursor();
    EXPECT_EQ(orvplatform::waitCursorDepth(), 0);
}
