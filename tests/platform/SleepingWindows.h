#pragma once
// A pane of blocks of which a few are in sight; the others sleep.

#include "Form.h"

#include "afxtaskspane.h"
#include "platform/qt/Native.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <algorithm>
#include <memory>

constexpr int insideButton = 1000;
constexpr int picture = 60;
constexpr int label = 61;

class Block : public CDialogEx
{
public:
    Block() : CDialogEx(11) {}

    std::vector<std::string> log;
    CButton inside;
    CStatic text;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CDialogEx::DoDataExchange(exchange);
        DDX_Control(exchange, insideButton, inside);
        DDX_Control(exchange, label, text);
    }
    void OnInside() { log.emplace_back("inside"); }
    void OnShowWindow(BOOL shown, UINT) { log.emplace_back(shown ? "shown" : "hidden"); }
    void OnLButtonDown(UINT, CPoint) { log.emplace_back("click"); }
    void OnDestroy() { log.emplace_back("destroyed"); }
    DECLARE_MESSAGE_MAP()
};

// A pane in which three or four of forty blocks are in sight.
class SleepingWindows : public ::testing::Test
{
protected:
    static constexpr int count = 40;
    static constexpr int last = count - 1;

    SleepingWindows()
    {
        registerTestResources();
        frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 320, 400), nullptr, 0);
        EXPECT_TRUE(static_cast<CDockablePane&>(pane).Create(L"", &frame, CRect(0, 0, 0, 0), FALSE, 202,
                                                             WS_CHILD | WS_VISIBLE));
        pane.MoveWindow(0, -20, 320, 420);
        for (auto& each : blocks) {
            each = std::make_unique<Block>();
            EXPECT_TRUE(each->Create(11, &pane));
        }
        for (auto& each : blocks)
            place(*each);
        frame.ShowWindow(SW_SHOW);
        orvplatform::testing::processEvents();
        orvplatform::widgetOf(frame)->activateWindow();
        EXPECT_TRUE(orvplatform::testing::waitFor([this] { return orvplatform::widgetOf(frame)->isActiveWindow(); }));
        if (QWidget* const first = QApplication::focusWidget())
            first->clearFocus();
    }

    void place(Block& block) { pane.AddWindow(pane.AddGroup(L"x", FALSE, TRUE), block, 80); }
    Block& block(int index) { return *blocks[static_cast<std::size_t>(index)]; }
    QWidget& widget(int index) { return *orvplatform::widgetOf(block(index)); }
    bool isDrawn(int index) { return widget(index).isVisible(); }
    int drawn()
    {
        int found = 0;
        for (int i = 0; i < count; ++i)
            found += isDrawn(i) ? 1 : 0;
        return found;
    }
    QAbstractScrollArea& area() { return *orvplatform::widgetOf(pane)->findChild<QAbstractScrollArea*>(); }
    QScrollBar& bar() { return *area().verticalScrollBar(); }
    bool isInSight(int index)
    {
        const QRect place(widget(index).mapTo(area().viewport(), QPoint()), widget(index).size());
        return area().viewport()->rect().intersects(place);
    }
    static HWND focus() { return GetFocus(); }
    HWND buttonOf(int index) { return ::GetDlgItem(block(index), insideButton); }
    void pressTab(Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
    }
    // Its button is off, and so it is no stop of the Tab key.
    void switchOff(int index) { ::EnableWindow(buttonOf(index), FALSE); }

    CWnd frame;
    CMFCTasksPane pane;
    std::unique_ptr<Block> blocks[count];
};
