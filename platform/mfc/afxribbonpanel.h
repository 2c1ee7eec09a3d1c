#pragma once
#include "afxbaseribbonelement.h"

#include <memory>
#include <vector>

// A titled group of a category's elements, which it owns.
class CMFCRibbonPanel : public CObject
{
    DECLARE_DYNCREATE(CMFCRibbonPanel)

public:
    explicit CMFCRibbonPanel(LPCWSTR name = nullptr, HICON icon = nullptr); // takes the icon over
    ~CMFCRibbonPanel() override;

    virtual void Add(CMFCRibbonBaseElement* element); // the panel owns it from now on
    int GetCount() const { return static_cast<int>(elements.size()); }
    CMFCRibbonBaseElement* GetElement(int index) const; // null outside
    LPCWSTR GetName() const { return m_strName; }
    HICON GetDefaultIcon() const { return icon.get(); } // the panel's; null when it was given none
    CMFCRibbonCategory* GetParentCategory() const { return category; }

protected:
    CString m_strName;

private:
    friend class CMFCRibbonBar;
    friend class CMFCRibbonCategory;
    struct IconEnd {
        void operator()(HICON handle) const { DestroyIcon(handle); }
    };
    std::unique_ptr<HICON__, IconEnd> icon;
    bool inserted = false; // by somebody else than the ribbon's program
    CMFCRibbonCategory* category = nullptr;
    std::vector<std::unique_ptr<CMFCRibbonBaseElement>> elements;
};
