#pragma once
#include "afxdlg.h"

class CPropertySheet;

// One page of a property sheet, made from a dialog template when it is first shown. The template's caption is the
// page's title unless a string id is given.
class CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)
    DECLARE_MESSAGE_MAP()

public:
    explicit CPropertyPage(UINT templateId, UINT captionId = 0, DWORD size = 0);

    void SetModified(BOOL changed = TRUE); // tells the sheet that there is something to apply
    virtual BOOL OnSetActive();            // FALSE refuses the page
    virtual BOOL OnKillActive();           // exchanges data; FALSE keeps the page
    virtual BOOL OnApply();                // calls OnOK
    virtual BOOL OnQueryCancel();
    void OnOK() override;     // the sheet was accepted; the base does nothing
    void OnCancel() override; // the sheet was cancelled; the base does nothing
    virtual CString GetCaption() const;
    ~CPropertyPage() override; // leaves its sheet

protected:
    virtual BOOL CreatePage(CWnd* host); // makes the page's window; the base takes the template

private:
    friend class CPropertySheet;
    CPropertySheet* sheet = nullptr;
    UINT captionId;
    bool modified = false;
};
