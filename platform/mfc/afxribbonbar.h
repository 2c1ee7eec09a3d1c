#pragma once
#include "afxdockablepane.h"
#include "afxribbonbutton.h"
#include "afxribboncategory.h"

// The ribbon. A button sends WM_COMMAND with its id to the ribbon's parent; the viewer may take the commands over and
// tell which are enabled (platform/qt/Native.h).
class CMFCRibbonBar : public CDockablePane
{
    DECLARE_DYNAMIC(CMFCRibbonBar)

public:
    CMFCRibbonBar();
    ~CMFCRibbonBar() override;

    using CDockablePane::Create;
    BOOL Create(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE, UINT id = 0xE806);
    // A new category; with a runtime class it is of that class. The picture resources may be 0: the lists start empty.
    CMFCRibbonCategory* AddCategory(LPCWSTR name, UINT smallImagesId, UINT largeImagesId,
                                    CSize smallSize = CSize(16, 16), CSize largeSize = CSize(32, 32), int insertAt = -1,
                                    CRuntimeClass* runtimeClass = nullptr);
    int GetCategoryCount() const { return static_cast<int>(categories.size()); }
    CMFCRibbonCategory* GetCategory(int index) const; // null outside
    int GetCategoryIndex(CMFCRibbonCategory* category) const;
    CMFCRibbonCategory* GetActiveCategory() const; // null before there is one
    BOOL SetActiveCategory(CMFCRibbonCategory* category, BOOL force = FALSE);
    CMFCRibbonBaseElement* FindByID(UINT id, BOOL visibleOnly = TRUE) const;
    void ForceRecalcLayout(); // needed only after elements were changed in place

protected:
    LPCWSTR GetWindowClass() const override;

private:
    std::vector<std::unique_ptr<CMFCRibbonCategory>> categories;
    CMFCRibbonCategory* activeCategory = nullptr;
};
