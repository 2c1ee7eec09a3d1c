#include "afxdialogex.h"

#include "platform/qt/Controls.h"
#include "platform/qt/DialogWindow.h"
#include "platform/qt/WindowCreation.h"
#include "platform/testing/ModalExpectation.h"
#include "platform/windows/Module.h"

#include <stdexcept>

IMPLEMENT_DYNAMIC(CDialog, CWnd)
IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
ON_WM_CLOSE()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
END_MESSAGE_MAP()

CDialog::CDialog(UINT templateId, CWnd* parent) : m_lpszTemplateName(MAKEINTRESOURCEW(templateId)), m_pParentWnd(parent)
{
}

CDialog::CDialog(LPCWSTR templateName, CWnd* parent) : m_lpszTemplateName(templateName), m_pParentWnd(parent) {}

CDialog::~CDialog() = default;

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return Create(MAKEINTRESOURCEW(templateId), parent);
}

BOOL CDialog::Create(LPCWSTR templateName, CWnd* parent)
{
    m_lpszTemplateName = templateName;
    m_pParentWnd = parent;
    return createFromTemplate(parent, false);
}

BOOL CDialog::createFromTemplate(CWnd* parent, bool child)
{
    HINSTANCE module = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
    const orvplatform::ResourceEntry* entry = orvplatform::findResource(module, RT_DIALOG, m_lpszTemplateName, 0);
    const auto source = entry ? orvplatform::readDialogTemplate(entry->data) : std::nullopt;
    if (!source || m_hWnd)
        return FALSE;
    child = child || (source->style & WS_CHILD);
    HWND window = orvplatform::createDialogWindow(*source, parent ? parent->m_hWnd : nullptr, child, [this](HWND made) {
        attachPermanently(made);
        PreSubclassWindow();
    });
    if (!window)
        return FALSE;
    if (OnInitDialog() && !child)
        orvplatform::focusFirstControl(m_hWnd);
    if (m_hWnd && (source->style & WS_VISIBLE))
        ShowWindow(SW_SHOW);
    return m_hWnd != nullptr;
}

INT_PTR CDialog::DoModal()
{
    CWnd* parent = m_pParentWnd ? m_pParentWnd : CWnd::FromHandle(GetActiveWindow());
    // The window goes whatever happens; the object stays its owner's.
    struct End {
        CDialog& dialog;
        ~End()
        {
            dialog.modal = false;
            HWND window = dialog.m_hWnd;
            ::DestroyWindow(window);
        }
    } end{*this};
    modal = true;
    ended = false;
    endResult = IDCANCEL;
    if (!createFromTemplate(parent, false))
        return -1;
    return runModal();
}

INT_PTR CDialog::runModal()
{
    using orvplatform::testing::ModalScript;
    if (ended)
        return endResult;
    if (!ModalScript::isRunning()) {
        orvplatform::runModal(m_hWnd);
        return endResult;
    }
    const INT_PTR result = ModalScript::play(*this);
    return ended ? endResult : result;
}

void CDialog::EndDialog(int result)
{
    if (modal) {
        endResult = result;
        ended = true;
        orvplatform::endModal(m_hWnd);
    } else if (!(GetStyle() & WS_CHILD)) {
        ShowWindow(SW_HIDE);
    }
}

BOOL CDialog::OnInitDialog()
{
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

void CDialog::OnClose()
{
    SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
}

BOOL CDialog::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    if (CWnd::OnCmdMsg(id, code, extra, info))
        return TRUE;
    // Commands of menus and ribbons (ids from 0x8000 on) are the parent's as well; a dialog's own controls are not.
    CWnd* parent = id >= 0x8000 && id < 0xF000 && code == 0 ? GetParent() : nullptr;
    return parent && parent->OnCmdMsg(id, code, extra, info);
}

void CDialog::MapDialogRect(LPRECT rect) const
{
    ::MapDialogRect(m_hWnd, rect);
}

UINT CDialog::GetDefID() const
{
    return static_cast<UINT>(orvplatform::defaultButtonId(m_hWnd));
}

void CDialog::SetDefID(UINT id)
{
    orvplatform::setDefaultButton(::GetDlgItem(m_hWnd, static_cast<int>(GetDefID())), false);
    orvplatform::setDefaultButton(::GetDlgItem(m_hWnd, static_cast<int>(id)), true);
}

void CDialog::GotoDlgCtrl(CWnd* control)
{
    if (control)
        control->SetFocus();
}
