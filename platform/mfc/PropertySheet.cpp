#include "afxdlgs.h"
#include "afxpropertysheet.h"

#include "platform/qt/DialogWindow.h"
#include "platform/qt/Native.h"
#include "platform/qt/SheetWidget.h"
#include "platform/testing/ModalExpectation.h"
#include "platform/windows/Module.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)
IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)
IMPLEMENT_DYNAMIC(CMFCPropertySheet, CPropertySheet)

BEGIN_MESSAGE_MAP(CPropertyPage, CDialog)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
ON_WM_CLOSE()
END_MESSAGE_MAP()

CPropertyPage::CPropertyPage(UINT templateId, UINT caption, DWORD) : CDialog(templateId), captionId(caption) {}

CPropertyPage::~CPropertyPage()
{
    if (sheet)
        sheet->RemovePage(this);
}

BOOL CPropertyPage::CreatePage(CWnd* host)
{
    return createFromTemplate(host, true);
}

void CPropertyPage::SetModified(BOOL changed)
{
    modified = changed != FALSE;
    if (sheet && modified)
        orvplatform::enableApply(sheet->m_hWnd, true);
}

BOOL CPropertyPage::OnSetActive()
{
    return TRUE;
}
BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}
BOOL CPropertyPage::OnQueryCancel()
{
    return TRUE;
}
void CPropertyPage::OnOK() {}
void CPropertyPage::OnCancel() {}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

CString CPropertyPage::GetCaption() const
{
    CString text;
    if (captionId && text.LoadString(captionId))
        return text;
    HINSTANCE module = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
    const orvplatform::ResourceEntry* entry = orvplatform::findResource(module, RT_DIALOG, m_lpszTemplateName, 0);
    const auto source = entry ? orvplatform::readDialogTemplate(entry->data) : std::nullopt;
    return source ? source->caption : std::wstring();
}

CPropertySheet::CPropertySheet(LPCWSTR title, CWnd* parent, UINT selectedPage)
    : caption(title ? title : L""), parentWindow(parent), active(static_cast<int>(selectedPage))
{
}

CPropertySheet::~CPropertySheet()
{
    destroyPages();
    for (CPropertyPage* page : pages)
        page->sheet = nullptr;
}

CMFCPropertySheet::CMFCPropertySheet(LPCWSTR title, CWnd* parent, UINT selectedPage)
    : CPropertySheet(title, parent, selectedPage)
{
}

void CPropertySheet::AddPage(CPropertyPage* page)
{
    if (!page || page->sheet == this)
        return;
    if (page->sheet)
        page->sheet->RemovePage(page);
    page->sheet = this;
    pages.push_back(page);
    if (m_hWnd) {
        orvplatform::addSheetPage(m_hWnd, page->GetCaption().GetString());
        if (pages.size() == 1)
            showPage(0);
    }
}

void CPropertySheet::AddOwnPage(std::shared_ptr<CPropertyPage> page)
{
    AddPage(page.get());
    ownPages.push_back(std::move(page));
}

void CPropertySheet::RemovePage(CPropertyPage* page)
{
    const int index = GetPageIndex(page);
    if (index < 0)
        return;
    page->sheet = nullptr;
    page->DestroyWindow();
    orvplatform::removeSheetPage(m_hWnd, index);
    pages.erase(pages.begin() + index);
    active = std::clamp(active > index ? active - 1 : active, 0, std::max(GetPageCount() - 1, 0));
    if (m_hWnd && !pages.empty())
        showPage(active);
}

int CPropertySheet::GetPageCount() const
{
    return static_cast<int>(pages.size());
}

CPropertyPage* CPropertySheet::GetPage(int index) const
{
    return index >= 0 && index < GetPageCount() ? pages[static_cast<std::size_t>(index)] : nullptr;
}

int CPropertySheet::GetPageIndex(const CPropertyPage* page) const
{
    const auto found = std::find(pages.begin(), pages.end(), page);
    return found == pages.end() ? -1 : static_cast<int>(found - pages.begin());
}

int CPropertySheet::GetActiveIndex() const
{
    return active;
}
CPropertyPage* CPropertySheet::GetActivePage() const
{
    return GetPage(active);
}
BOOL CPropertySheet::SetActivePage(CPropertyPage* page)
{
    return SetActivePage(GetPageIndex(page));
}

BOOL CPropertySheet::SetActivePage(int index)
{
    if (!GetPage(index))
        return FALSE;
    if (!m_hWnd) {
        active = index;
        return TRUE;
    }
    return showPage(index);
}

void CPropertySheet::SetTitle(LPCWSTR text)
{
    caption = text ? text : L"";
    SetWindowText(caption.c_str());
}

BOOL CPropertySheet::showPage(int index)
{
    CPropertyPage* now = GetPage(index);
    CPropertyPage* earlier = GetActivePage();
    if (!now || (index != active && earlier && earlier->m_hWnd && !earlier->OnKillActive()))
        return FALSE;
    if (!now->m_hWnd) {
        if (!now->CreatePage(this))
            return FALSE;
        orvplatform::placeSheetPage(m_hWnd, index, orvplatform::widgetOf(now->m_hWnd));
    }
    active = index;
    orvplatform::showSheetPage(m_hWnd, index);
    return now->OnSetActive();
}

BOOL CPropertySheet::createWindow(CWnd* owner)
{
    orvplatform::SheetActions actions;
    actions.show = [this](int page) { return showPage(page) != FALSE; };
    actions.press = [this](int command) { SendMessage(WM_COMMAND, MAKEWPARAM(command, BN_CLICKED)); };
    HWND window = orvplatform::createSheetWindow(owner ? owner->m_hWnd : nullptr, caption, actions, [this](HWND made) {
        attachPermanently(made);
        PreSubclassWindow();
    });
    for (const CPropertyPage* page : pages)
        orvplatform::addSheetPage(window, page->GetCaption().GetString());
    OnInitDialog();
    if (!pages.empty())
        showPage(std::clamp(active, 0, GetPageCount() - 1));
    return m_hWnd != nullptr;
}

BOOL CPropertySheet::Create(CWnd* parent, DWORD, DWORD)
{
    if (m_hWnd || !createWindow(parent ? parent : parentWindow))
        return FALSE;
    return TRUE;
}

INT_PTR CPropertySheet::DoModal()
{
    using orvplatform::testing::ModalScript;
    struct End {
        CPropertySheet& sheet;
        ~End()
        {
            sheet.modal = false;
            sheet.destroyPages();
            ::DestroyWindow(sheet.m_hWnd);
        }
    } end{*this};
    modal = true;
    ended = false;
    endResult = IDCANCEL;
    if (!m_hWnd && !createWindow(parentWindow ? parentWindow : CWnd::FromHandle(GetActiveWindow())))
        return -1;
    if (ended)
        return endResult;
    if (ModalScript::isRunning()) {
        const INT_PTR result = ModalScript::play(*this);
        return ended ? endResult : result;
    }
    orvplatform::runModal(m_hWnd);
    return endResult;
}

void CPropertySheet::destroyPages()
{
    // Pages belong to others: their windows go, the objects stay.
    for (CPropertyPage* page : pages)
        if (m_hWnd && page->m_hWnd && IsChild(m_hWnd, page->m_hWnd))
            page->DestroyWindow();
}

void CPropertySheet::EndDialog(int result)
{
    endResult = result;
    ended = true;
    if (modal)
        orvplatform::endModal(m_hWnd);
    else
        ShowWindow(SW_HIDE);
}

BOOL CPropertySheet::PressButton(int button)
{
    const int command = button == PSBTN_OK         ? IDOK
                        : button == PSBTN_CANCEL   ? IDCANCEL
                        : button == PSBTN_APPLYNOW ? ID_APPLY_NOW
                                                   : 0;
    return m_hWnd && command && PostMessage(WM_COMMAND, MAKEWPARAM(command, BN_CLICKED));
}

BOOL CPropertySheet::OnInitDialog()
{
    return TRUE;
}

bool CPropertySheet::apply()
{
    CPropertyPage* current = GetActivePage();
    if (current && current->m_hWnd && !current->OnKillActive())
        return false;
    for (CPropertyPage* page : pages)
        if (page->m_hWnd && !page->OnApply())
            return false;
    for (CPropertyPage* page : pages)
        page->modified = false;
    orvplatform::enableApply(m_hWnd, false);
    return true;
}

void CPropertySheet::cancel()
{
    for (CPropertyPage* page : pages)
        if (page->m_hWnd && !page->OnQueryCancel())
            return;
    for (CPropertyPage* page : pages)
        if (page->m_hWnd)
            page->OnCancel();
    EndDialog(IDCANCEL);
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    switch (LOWORD(wParam)) {
    case IDOK:
        if (apply())
            EndDialog(IDOK);
        return TRUE;
    case IDCANCEL:
        cancel();
        return TRUE;
    case ID_APPLY_NOW:
        apply();
        return TRUE;
    default:
        return CWnd::OnCommand(wParam, lParam);
    }
}

void CPropertySheet::OnClose()
{
    SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED));
}
