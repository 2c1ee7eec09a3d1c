#include "FormMaps.h"

#include "platform/qt/Native.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

using namespace orvplatform::testing;

namespace
{
class Dialog : public ::testing::Test
{
protected:
    Dialog() { registerTestResources(); }
    ModalScript script{[this](const std::string& why) { failures.push_back(why); }};
    std::vector<std::string> failures;
    bool failuresExpected = false;

    void TearDown() override
    {
        if (!failuresExpected) {
            EXPECT_EQ(failures, std::vector<std::string>());
        }
    }
};

class Prompt : public CDialogEx
{
public:
    Prompt() : CDialogEx(11) {}
    bool* gone = nullptr;

protected:
    void PostNcDestroy() override
    {
        *gone = true;
        delete this;
    }
};
} // namespace

TEST_F(Dialog, IsLaidOutInUnitsOfItsFont)
{
    Form form;
    script.expectModal<Form>([](Form& dialog) {
        CRect unit(0, 0, 4, 8);
        dialog.MapDialogRect(unit);
        CClientDC context(&dialog);
        context.SelectObject(dialog.GetFont());
        TEXTMETRICW metrics{};
        context.GetTextMetrics(&metrics);
        EXPECT_EQ(unit.right, metrics.tmAveCharWidth);
        EXPECT_EQ(unit.bottom, metrics.tmHeight);
        CRect client;
        dialog.GetClientRect(client);
        EXPECT_EQ(client.Width(), MulDiv(200, unit.right, 4));
        EXPECT_EQ(client.Height(), MulDiv(160, unit.bottom, 8));
        CRect button;
        dialog.GetDlgItem(1000)->GetWindowRect(button);
        dialog.ScreenToClient(button);
        EXPECT_EQ(button.left, MulDiv(8, unit.right, 4));
        EXPECT_EQ(button.top, MulDiv(138, unit.bottom, 8));
        EXPECT_EQ(button.Width(), MulDiv(50, unit.right, 4));
        EXPECT_EQ(button.Height(), MulDiv(14, unit.bottom, 8));
        return IDCANCEL;
    });
    EXPECT_EQ(form.DoModal(), IDCANCEL);
    EXPECT_EQ(form.m_hWnd, nullptr);
}

TEST_F(Dialog, ShowsItsTemplatesTextsAndStates)
{
    Form form;
    script.expectModal<Form>([](Form& dialog) {
        CString title;
        dialog.GetWindowText(title);
        EXPECT_EQ(title, L"A form");
        EXPECT_EQ(textOf(dialog, 50), L"Name"); // the mark of a letter goes
        EXPECT_EQ(textOf(dialog, 1000), L"&Apply");
        EXPECT_FALSE(isEnabled(dialog, 1002));
        EXPECT_FALSE(isVisible(dialog, 1003));
        EXPECT_FALSE(clickButton(dialog, 1002));
        EXPECT_FALSE(clickButton(dialog, 1003));
        EXPECT_EQ(dialog.GetDefID(), 1000u);
        return IDCANCEL;
    });
    form.DoModal();
}

TEST_F(Dialog, ExchangesDataWithItsControls)
{
    Form form;
    script.expectModal<Form>([](Form& dialog) {
        EXPECT_EQ(textOf(dialog, 51), L"preset");
        EXPECT_EQ(textOf(dialog, 54), L"0");
        dialog.edit.SetWindowText(L"new");
        dialog.SetDlgItemText(54, L"no number");
        EXPECT_FALSE(dialog.UpdateData(TRUE)); // a number is refused
        dialog.SetDlgItemText(54, L" -12 ");
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED));
        return IDCANCEL;
    });
    EXPECT_EQ(form.DoModal(), IDOK);
    EXPECT_EQ(form.name, L"new");
    EXPECT_EQ(form.number, -12);
    EXPECT_EQ(form.edit.m_hWnd, nullptr); // its window went with the dialog's
}

TEST_F(Dialog, ReportsAControlThatIsNotThere)
{
    Form form;
    form.missing = 4321;
    try {
        form.DoModal();
        FAIL() << "no exception";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("4321"), std::string::npos);
    }
    EXPECT_EQ(form.m_hWnd, nullptr);
}

TEST_F(Dialog, CallsItsHandlers)
{
    Form form;
    script.expectModal<Form>([](Form& dialog) {
        EXPECT_TRUE(clickButton(dialog, 1000));
        EXPECT_TRUE(clickButton(dialog, 1001));
        EXPECT_TRUE(typeText(dialog, 51, L"!"));
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(1002, BN_CLICKED),
                           reinterpret_cast<LPARAM>(dialog.GetDlgItem(1002)->m_hWnd)); // disabled
        return IDCANCEL;
    });
    form.DoModal();
    EXPECT_EQ(form.log, (std::vector<std::string>{"changed", "init", "apply", "other", "changed"}));
}

TEST_F(Dialog, PressesTheDefaultButtonWithEnter)
{
    Form form;
    script.expectModal<Form>([](Form& dialog) {
        dialog.log.clear();
        dialog.GetDlgItem(51)->SetFocus();
        pressKey(dialog, VK_RETURN);
        EXPECT_EQ(dialog.log, std::vector<std::string>{"apply"});
        dialog.GetDlgItem(1001)->SetFocus(); // a focused button is pressed itself
        pressKey(dialog, VK_RETURN);
        EXPECT_EQ(dialog.log.back(), "other");
        dialog.GetDlgItem(53)->SetFocus(); // an edit of several lines that doesn't want Enter
        pressKey(dialog, VK_RETURN);
        EXPECT_EQ(dialog.log.back(), "apply");
        EXPECT_EQ(textOf(dialog, 53), L"");
        dialog.SetDefID(1001);
        EXPECT_EQ(dialog.GetDefID(), 1001u);
        dialog.GetDlgItem(51)->SetFocus();
        pressKey(dialog, VK_RETURN);
        EXPECT_EQ(dialog.log.back(), "other");
        return IDCANCEL;
    });
    form.DoModal();
}

TEST_F(Dialog, CancelsWithEscapeAndTheCloseBox)
{
    for (const bool escape : {true, false}) {
        Form form;
        script.expectModal<Form>([escape](Form& dialog) {
            if (escape)
                pressKey(dialog, VK_ESCAPE);
            else
                dialog.SendMessage(WM_CLOSE);
            EXPECT_EQ(dialog.log.back(), "cancel");
            return 99;
        });
        EXPECT_EQ(form.DoModal(), IDCANCEL);
    }
}

TEST_F(Dialog, LetsAHandlerGoOnAfterItsEnd)
{
    Form form;
    script.expectModal<Form>([](Form& dialog) {
        dialog.EndDialog(5);
        EXPECT_TRUE(IsWindow(dialog.m_hWnd));
        EXPECT_EQ(textOf(dialog, 51), L"preset");
        return IDCANCEL;
    });
    EXPECT_EQ(form.DoModal(), 5);
}

TEST_F(Dialog, CanEndBeforeItIsShown)
{
    Form form;
    form.endAtOnce = true;
    EXPECT_EQ(form.DoModal(), 77); // no expectation is used up
}

TEST_F(Dialog, RunsAgainAfterItsEnd)
{
    Form form;
    for (int i = 0; i < 2; ++i) {
        script.expectModal<Form>([](Form&) { return IDCANCEL; });
        EXPECT_EQ(form.DoModal(), IDCANCEL);
    }
}

TEST_F(Dialog, FailsWithoutATemplate)
{
    class Nowhere : public CDialog
    {
    public:
        Nowhere() : CDialog(4000) {}
    } dialog;
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_FALSE(dialog.Create(4000, nullptr));
}

TEST_F(Dialog, FailsTheTestWhenNobodyExpectsIt)
{
    failuresExpected = true;
    Form form;
    EXPECT_EQ(form.DoModal(), IDCANCEL);
    ASSERT_EQ(failures.size(), 1u);
    EXPECT_EQ(failures[0], "A modal Form opened and none was expected.");
    script.expectModal<CFileDialog>([](CFileDialog&) { return IDOK; });
    EXPECT_EQ(form.DoModal(), IDCANCEL);
    EXPECT_EQ(failures.back(), "A modal Form opened where CFileDialog was expected.");
}

TEST_F(Dialog, FailsTheTestWhenItDoesNotOpen)
{
    std::string why;
    {
        ModalScript inner([&](const std::string& text) { why = text; });
        inner.expectModal<Form>([](Form&) { return IDCANCEL; });
        EXPECT_FALSE(inner.allSeen());
    }
    EXPECT_EQ(why, "A modal Form was expected and did not open.");
}

TEST_F(Dialog, LivesInsideAnotherWindow)
{
    CWnd frame;
    frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 400, 300), nullptr, 0);
    bool gone = false;
    auto* child = new Prompt;
    child->gone = &gone;
    ASSERT_TRUE(child->Create(11, &frame));
    EXPECT_FALSE(child->GetStyle() & WS_VISIBLE);
    EXPECT_TRUE(child->GetStyle() & WS_CHILD);
    EXPECT_EQ(child->GetParent(), &frame);
    child->ShowWindow(SW_SHOW);
    child->SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED)); // a child stays
    EXPECT_TRUE(child->GetStyle() & WS_VISIBLE);
    frame.DestroyWindow();
    EXPECT_TRUE(gone);
}

TEST(DialogLoop, WaitsForTheUserWithoutAScript)
{
    registerTestResources();
    Form form;
    std::string order;
    struct Later : CWnd {
        Form* form = nullptr;
        std::string* order = nullptr;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_USER) {
                EXPECT_TRUE(form->IsWindowVisible());
                form->EndDialog(12);
                *order += "after end, ";
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } later;
    later.form = &form;
    later.order = &order;
    later.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    later.PostMessage(WM_USER);
    EXPECT_EQ(form.DoModal(), 12);
    order += "after DoModal";
    EXPECT_EQ(order, "after end, after DoModal");
}

constexpr int frame = 4; // pixels that the system may put around a window

TEST_F(Dialog, OpensOverTheMainWindow)
{
    QWidget main;
    main.setGeometry(200, 120, 500, 400);
    main.show();
    orvplatform::setMainWindow(&main);
    for (int round = 0; round < 2; ++round) {
        Form form;
        script.expectModal<Form>([&](Form& dialog) {
            const QWidget& widget = *orvplatform::widgetOf(dialog.m_hWnd);
            EXPECT_EQ(widget.parentWidget(), &main);
            EXPECT_TRUE(widget.isModal());
            EXPECT_NEAR(widget.geometry().center().x(), main.geometry().center().x(), frame);
            EXPECT_NEAR(widget.geometry().center().y(), main.geometry().center().y(), frame);
            return IDCANCEL;
        });
        EXPECT_EQ(form.DoModal(), IDCANCEL);
    }
    orvplatform::setMainWindow(nullptr);
}

TEST_F(Dialog, StaysWholeOnTheScreen)
{
    QWidget main;
    const QRect screen = main.screen()->availableGeometry();
    orvplatform::setMainWindow(&main);
    for (const QPoint corner : {screen.topLeft(), screen.bottomRight() - QPoint(60, 40)}) {
        main.setGeometry(QRect(corner, QSize(60, 40)));
        main.show();
        Form form;
        script.expectModal<Form>([&](Form& dialog) {
            const QRect place = orvplatform::widgetOf(dialog.m_hWnd)->geometry();
            EXPECT_TRUE(screen.adjusted(0, 0, frame, frame).contains(place)) << place.x() << ", " << place.y();
            return IDCANCEL;
        });
        form.DoModal();
    }
    orvplatform::setMainWindow(nullptr);
}

TEST_F(Dialog, KeepsItsFontInAnotherWindow)
{
    CWnd first, second;
    for (CWnd* each : {&first, &second})
        each->CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 600, 400), nullptr, 0);
    Form form;
    ASSERT_TRUE(form.Create(10, &first));
    const QFont wanted = orvplatform::widgetOf(form.m_hWnd)->font();
    ::SetParent(form.m_hWnd, second.m_hWnd);
    second.ShowWindow(SW_SHOW);
    form.ShowWindow(SW_SHOW);
    processEvents();
    const QString sheet = qApp->styleSheet();
    for (int round = 0; round < 2; ++round) {
        for (const int id : {50, 51, 53, 56, 57, 1000}) {
            const QWidget* control = orvplatform::widgetOf(form.GetDlgItem(id)->m_hWnd);
            EXPECT_EQ(control->font().family(), wanted.family()) << id;
            EXPECT_EQ(control->fontMetrics().height(), QFontMetrics(wanted).height()) << id;
        }
        qApp->setStyleSheet(sheet + QStringLiteral(" QPushButton { margin: 0; }")); // as a change of the look does
    }
    qApp->setStyleSheet(sheet);
}
