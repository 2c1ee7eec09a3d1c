#pragma once
#include "afx.h"

class CMFCRibbonPanel;
class CMFCRibbonCategory;

// What stands in a ribbon's panel.
class CMFCRibbonBaseElement : public CObject
{
    DECLARE_DYNAMIC(CMFCRibbonBaseElement)

public:
    UINT GetID() const { return m_nID; }
    virtual void SetText(LPCWSTR text);
    LPCWSTR GetText() const { return m_strText; }
    virtual void SetToolTipText(LPCWSTR text);
    virtual CString GetToolTipText() const { return m_strToolTip; }
    virtual void SetDescription(LPCWSTR text);
    virtual CString GetDescription() const { return m_strDescription; }
    CMFCRibbonCategory* GetParentCategory() const { return m_pParent; } // null until it stands in a panel
    CMFCRibbonPanel* GetParentPanel() const { return m_pParentPanel; }

protected:
    CMFCRibbonBaseElement() = default;

    UINT m_nID = 0;
    CString m_strText;
    CString m_strToolTip;
    CString m_strDescription;
    CMFCRibbonCategory* m_pParent = nullptr;
    CMFCRibbonPanel* m_pParentPanel = nullptr;

private:
    friend class CMFCRibbonPanel;
};
