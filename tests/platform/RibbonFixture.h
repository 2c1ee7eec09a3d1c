#pragma once
// A ribbon in a frame, with a category of a class of its own.

#include "Form.h"

#include "platform/qt/Native.h"
#include "platform/qt/RibbonWidget.h"

#include <QToolButton>

namespace ribbontest
{
class OwnCategory : public CMFCRibbonCategory
{
    DECLARE_DYNCREATE(OwnCategory)

public:
    CMFCRibbonPanel* insert(int index, LPCWSTR name) { return InsertPanelAt(index, name, nullptr, nullptr); }
};

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
        orvplatform::testing::processEvents();
    }
    QToolButton& button(UINT id) { return *qobject_cast<QToolButton*>(orvplatform::ribbonButton(ribbon.m_hWnd, id)); }
    CWnd frame;
    CMFCRibbonBar ribbon;
    OwnCategory* category = nullptr;
};
} // namespace ribbontest
