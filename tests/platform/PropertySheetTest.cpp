#include "Form.h"

#include "afxpropertysheet.h"
#include "platform/qt/Native.h"

#include <QLabel>
#include <QListWidget>
#include <QScrollBar>

using namespace orvplatform::testing;

namespace
{
class Page : public CPropertyPage
{
    DECLARE_MESSAGE_MAP()

public:
    explicit Page(UINT id = 13) : CPropertyPage(id) {}
    std::vector<std::string> log;
    bool mayLeave = true;

    BOOL OnInitDialog() override
    {
        CPropertyPage::OnInitDialog();
        CPropertyPage::OnInitDialog(); // a second pass does no harm
        log.emplace_back("init");
        return TRUE;
    }
    BOOL OnSetActive() override
    {
        log.emplace_back("active");
        return CPropertyPage::OnSetActive();
    }
    BOOL OnKillActive() override { return mayLeave && CPropertyPage::OnKillActive(); }
    void OnOK() override
    {
        log.emplace_back("ok");
        CPropertyPage::OnOK();
    }
    void OnCancel() override { log.emplace_back("cancel"); }

protected:
    void OnAct()
    {
        log.emplace_back("act");
        SetModified();
    }
};
BEGIN_MESSAGE_MAP(Page, CPropertyPage)
ON_BN_CLICKED(81, &Page::OnAct)
END_MESSAGE_MAP()

class PropertySheet : public ::testing::Test
{
protected:
    PropertySheet() { registerTestResources(); }
    ModalScript script{[](const std::string& why) { ADD_FAILURE() << why; }};
};
} // namespace

TEST_F(PropertySheet, ShowsPagesAsTheyAreChosen)
{
    Page first;
    Page second;
    CMFCPropertySheet sheet(L"Options");
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    EXPECT_EQ(first.GetCaption(), L"Second page");
    script.expectModal<CMFCPropertySheet>([&](CMFCPropertySheet& shown) {
        EXPECT_EQ(shown.GetActivePage(), &first);
        EXPECT_NE(first.m_hWnd, nullptr);
        EXPECT_EQ(second.m_hWnd, nullptr); // made when it is first shown
        EXPECT_TRUE(clickButton(first, 81));
        EXPECT_TRUE(shown.SetActivePage(&second));
        EXPECT_TRUE(second.IsWindowVisible());
        EXPECT_FALSE(first.IsWindowVisible());
        second.mayLeave = false;
        EXPECT_FALSE(shown.SetActivePage(0));
        second.mayLeave = true;
        shown.SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED));
        return IDCANCEL;
    });
    EXPECT_EQ(sheet.DoModal(), IDOK);
    EXPECT_EQ(first.log, (std::vector<std::string>{"init", "active", "act", "ok"}));
    EXPECT_EQ(second.log, (std::vector<std::string>{"init", "active", "ok"}));
    EXPECT_EQ(first.m_hWnd, nullptr);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(PropertySheet, TakesPagesWhileItsWindowStands)
{
    Page early;
    Page late;
    class LateSheet : public CMFCPropertySheet
    {
    public:
        Page* late = nullptr;
        BOOL OnInitDialog() override
        {
            CMFCPropertySheet::OnInitDialog();
            auto* self = DYNAMIC_DOWNCAST(CMFCPropertySheet, CWnd::FromHandle(m_hWnd));
            EXPECT_NE(self, nullptr);
            self->AddPage(late);
            return TRUE;
        }
    } sheet;
    sheet.late = &late;
    sheet.AddPage(&early);
    script.expectModal<LateSheet>([&](LateSheet& shown) {
        EXPECT_EQ(shown.GetPageCount(), 2);
        EXPECT_EQ(shown.GetPageIndex(&late), 1);
        EXPECT_TRUE(shown.SetActivePage(&late));
        return IDCANCEL;
    });
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
}

TEST_F(PropertySheet, ForgetsAPageThatIsDeleted)
{
    CMFCPropertySheet sheet(L"Options");
    Page stays;
    sheet.AddPage(&stays);
    {
        Page goes;
        sheet.AddPage(&goes);
        EXPECT_TRUE(sheet.Create());
        EXPECT_TRUE(sheet.SetActivePage(&goes));
    }
    EXPECT_EQ(sheet.GetPageCount(), 1);
    EXPECT_EQ(sheet.GetActivePage(), &stays);
    EXPECT_NE(stays.m_hWnd, nullptr);
}

TEST_F(PropertySheet, CancelsWithEscapeFromAPage)
{
    Page page;
    CMFCPropertySheet sheet(L"Options");
    sheet.AddPage(&page);
    script.expectModal<CMFCPropertySheet>([&](CMFCPropertySheet&) {
        page.GetDlgItem(81)->SetFocus();
        pressKey(page, VK_ESCAPE);
        return IDOK;
    });
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(page.log.back(), "cancel");
}

TEST_F(PropertySheet, HoldsWidgetsOfTheProgram)
{
    int applied = 0;
    CMFCPropertySheet sheet(L"Options");
    orvplatform::addWidgetPage(sheet, new QLabel("settings"), "View", [&] { ++applied; });
    Page page;
    sheet.AddPage(&page);
    script.expectModal<CMFCPropertySheet>([](CMFCPropertySheet& shown) {
        EXPECT_EQ(shown.GetPage(0)->GetCaption(), L"View");
        EXPECT_EQ(shown.GetPageCount(), 2);
        shown.SendMessage(WM_COMMAND, MAKEWPARAM(ID_APPLY_NOW, BN_CLICKED));
        return IDOK;
    });
    EXPECT_EQ(sheet.DoModal(), IDOK);
    EXPECT_EQ(applied, 1);
}

TEST_F(PropertySheet, CanBeShownWithoutPages)
{
    CMFCPropertySheet sheet(L"Options");
    script.expectModal<CMFCPropertySheet>([](CMFCPropertySheet& shown) {
        EXPECT_EQ(shown.GetActivePage(), nullptr);
        EXPECT_FALSE(shown.SetActivePage(0));
        return IDCANCEL;
    });
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
}

TEST_F(PropertySheet, ShowsLongTitlesWhole)
{
    CMFCPropertySheet sheet(L"Options");
    ASSERT_TRUE(sheet.Create());
    const auto* list = orvplatform::widgetOf(sheet.m_hWnd)->findChild<QListWidget*>();
    ASSERT_NE(list, nullptr);
    const int usual = list->width();
    orvplatform::addWidgetPage(sheet, new QLabel(QStringLiteral("x")), QStringLiteral("General"));
    EXPECT_EQ(list->width(), usual);
    orvplatform::addWidgetPage(sheet, new QLabel(QStringLiteral("x")),
                               QStringLiteral("Service de collaboration et commentaires"));
    sheet.ShowWindow(SW_SHOW);
    processEvents();
    EXPECT_GT(list->width(), usual);
    EXPECT_GE(list->viewport()->width(), list->sizeHintForColumn(0));
    EXPECT_FALSE(list->horizontalScrollBar()->isVisible());
    sheet.DestroyWindow();
}
