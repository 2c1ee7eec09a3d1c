#include "afxdlg.h"

#include <cwchar>
#include <stdexcept>

namespace
{
struct ExchangeFailed {
};
} // namespace

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    CDataExchange exchange(this, saveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (const ExchangeFailed&) {
        return FALSE;
    }
}

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog)
{
}

HWND CDataExchange::PrepareCtrl(int id)
{
    lastControl = ::GetDlgItem(m_pDlgWnd->m_hWnd, id);
    if (!lastControl)
        throw std::runtime_error("The dialog has no control " + std::to_string(id) +
                                 ". The program and its resources do not belong together: reinstall it.");
    return lastControl;
}

HWND CDataExchange::PrepareEditCtrl(int id)
{
    return PrepareCtrl(id);
}

void CDataExchange::Fail()
{
    ::SetFocus(lastControl);
    throw ExchangeFailed{};
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd) // attached by an earlier pass
        return;
    if (!control.SubclassWindow(exchange->PrepareCtrl(id)))
        throw std::runtime_error("Control " + std::to_string(id) + " already belongs to another object.");
}

void DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    HWND control = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
        exchange->m_pDlgWnd->GetDlgItemText(id, value);
    else
        SetWindowTextW(control, value);
}

void DDX_Text(CDataExchange* exchange, int id, int& value)
{
    HWND control = exchange->PrepareEditCtrl(id);
    CString text;
    if (!exchange->m_bSaveAndValidate) {
        text.Format(L"%d", value);
        SetWindowTextW(control, text);
        return;
    }
    exchange->m_pDlgWnd->GetDlgItemText(id, text);
    text.Trim();
    wchar_t* end = nullptr;
    const long long number = std::wcstoll(text, &end, 10);
    if (text.IsEmpty() || *end != L'\0' || number != static_cast<int>(number))
        exchange->Fail();
    value = static_cast<int>(number);
}

void DDX_Check(CDataExchange* exchange, int id, int& value)
{
    HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = static_cast<int>(SendMessageW(control, BM_GETCHECK, 0, 0));
    else
        SendMessageW(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}
