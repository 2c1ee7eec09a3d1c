#pragma once
#include "afxdlg.h"

// A dialog with the toolkit's extended look; here all dialogs share one look.
class CDialogEx : public CDialog
{
    DECLARE_DYNAMIC(CDialogEx)
    DECLARE_MESSAGE_MAP()

public:
    CDialogEx() = default;
    explicit CDialogEx(UINT templateId, CWnd* parent = nullptr) : CDialog(templateId, parent) {}
    explicit CDialogEx(LPCWSTR templateName, CWnd* parent = nullptr) : CDialog(templateName, parent) {}
};
