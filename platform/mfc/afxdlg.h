#pragma once
// Dialogs, made from dialog templates of the resources, and the exchange of data with their controls.

#include "afxctl.h"

class CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)
    DECLARE_MESSAGE_MAP()

public:
    CDialog() = default;
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    explicit CDialog(LPCWSTR templateName, CWnd* parent = nullptr);
    ~CDialog() override;

    // A modeless or child dialog. False when the template is missing.
    virtual BOOL Create(LPCWSTR templateName, CWnd* parent = nullptr);
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);

    // Runs the dialog until EndDialog; the result is EndDialog's, -1 when the dialog could not be made.
    virtual INT_PTR DoModal();
    // Ends DoModal when the handler that is running returns. A modeless window is hidden; a child stays.
    void EndDialog(int result);
    void MapDialogRect(LPRECT rect) const;
    UINT GetDefID() const; // id of the default button, 0 for none
    void SetDefID(UINT id);
    void GotoDlgCtrl(CWnd* control);

    virtual BOOL OnInitDialog(); // exchanges data; TRUE: the first control gets the focus
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    virtual void OnOK();     // exchanges data and ends with IDOK
    virtual void OnCancel(); // ends with IDCANCEL
    afx_msg void OnClose();  // the close box cancels

    LPCWSTR m_lpszTemplateName = nullptr; // an id as a pointer, or a name that outlives the dialog
    CWnd* m_pParentWnd = nullptr;

private:
    friend class CPropertySheet;
    friend class CPropertyPage;
    BOOL createFromTemplate(CWnd* parent, bool child);
    INT_PTR runModal();

    bool modal = false;
    bool ended = false;
    int endResult = IDCANCEL;
};

// One pass of DoDataExchange.
class CDataExchange
{
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);
    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;

    HWND PrepareCtrl(int id);     // throws std::runtime_error when the dialog has no such control
    HWND PrepareEditCtrl(int id); // the same, for an edit control
    [[noreturn]] void Fail(); // ends the pass; UpdateData returns false, with the focus in the control last prepared

private:
    HWND lastControl = nullptr;
};

void DDX_Control(CDataExchange* exchange, int id, CWnd& control); // attaches the object to the control, once
void DDX_Text(CDataExchange* exchange, int id, CString& value);
void DDX_Text(CDataExchange* exchange, int id, int& value); // fails on anything but a whole number
void DDX_Check(CDataExchange* exchange, int id, int& value);
