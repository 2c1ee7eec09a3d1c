#pragma once
#include "afxribbonpanel.h"
#include "afxtoolbarimages.h"

class CMFCRibbonBar;

// A page of the ribbon: panels in a row, and the pictures that their buttons show.
class CMFCRibbonCategory : public CObject
{
    DECLARE_DYNCREATE(CMFCRibbonCategory)

public:
    CMFCRibbonCategory();
    CMFCRibbonCategory(CMFCRibbonBar* ribbon, LPCWSTR name, UINT smallImagesId, UINT largeImagesId,
                       CSize smallSize = CSize(16, 16), CSize largeSize = CSize(32, 32));
    ~CMFCRibbonCategory() override;

    // A new panel behind the others. With a runtime class the panel is of that class. The panel
    // takes the icon over and destroys it with itself.
    CMFCRibbonPanel* AddPanel(LPCWSTR name, HICON icon = nullptr, CRuntimeClass* runtimeClass = nullptr);
    int GetPanelCount() const { return static_cast<int>(panels.size()); }
    CMFCRibbonPanel* GetPanel(int index) const; // null outside
    LPCWSTR GetName() const { return m_strName; }
    CMFCToolBarImages& GetLargeImages() { return m_LargeImages; }
    CMFCToolBarImages& GetSmallImages() { return m_SmallImages; }
    CMFCRibbonBar* GetParentRibbonBar() const { return m_pParentRibbonBar; }

protected:
    // The same at a position; one outside the panels is cut to them.
    CMFCRibbonPanel* InsertPanelAt(int index, LPCWSTR name, HICON icon, CRuntimeClass* runtimeClass);

    CString m_strName;
    CMFCToolBarImages m_SmallImages;
    CMFCToolBarImages m_LargeImages;
    CMFCRibbonBar* m_pParentRibbonBar = nullptr;

private:
    friend class CMFCRibbonBar;
    void initialise(CMFCRibbonBar* ribbon, LPCWSTR name, UINT smallImagesId, UINT largeImagesId, CSize smallSize,
                    CSize largeSize);
    std::vector<std::unique_ptr<CMFCRibbonPanel>> panels;
};
