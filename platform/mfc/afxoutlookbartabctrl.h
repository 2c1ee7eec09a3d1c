#pragma once
#include "afxcmn.h"
#include "afxdockablepane.h"

#include <vector>

// The tabs of the side bar. Every control stands in a window of its own whose text is the tab's title; so changing the
// text of a control's parent changes the tab.
class CMFCOutlookBarTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CMFCOutlookBarTabCtrl)
    DECLARE_MESSAGE_MAP()

public:
    CMFCOutlookBarTabCtrl();
    ~CMFCOutlookBarTabCtrl() override;

    BOOL Create(const RECT& rect, CWnd* parent, UINT id);
    // A new tab for a window. `image` counts in both picture lists, -1 for none; the style is made of AFX_CBRS_FLOAT,
    // _AUTOHIDE, _RESIZE and _CLOSE. A detachable control can be floated by the user when the style has AFX_CBRS_FLOAT.
    void AddControl(CWnd* control, LPCWSTR title, int image = -1, BOOL detachable = TRUE,
                    DWORD style = AFX_CBRS_FLOAT | AFX_CBRS_CLOSE | AFX_CBRS_RESIZE | AFX_CBRS_AUTOHIDE);
    int GetTabsNum() const { return static_cast<int>(tabs.size()); }
    CWnd* GetTabWnd(int index) const; // the control itself, null outside
    BOOL GetTabLabel(int index, CString& label) const;
    BOOL SetTabLabel(int index, const CString& label);
    int GetActiveTab() const { return activeTab; } // -1: none
    CWnd* GetActiveWnd() const;
    BOOL SetActiveTab(int index);

    // Pictures for the tabs, and smaller ones for the buttons of the collapsed bar; each is shown at its own size. The
    // lists' pictures are copied; `size` is their side in pixels, `mask` a colour that is transparent in them.
    int GetImageListCount() const;
    int GetToolbarImageListCount() const;
    BOOL AddImageList(_IMAGELIST* list, int size, COLORREF mask);
    BOOL AddToolbarImageList(_IMAGELIST* list, int size, COLORREF mask);

protected:
    // Called after another tab became active (also for the first one, with an earlier index of -1).
    virtual void OnActiveTabChanged(int earlier, int now);
    afx_msg void OnDestroy();

private:
    friend class CMFCOutlookBar;
    struct Tab {
        HWND control;
        HWND wrapper;
        int image;
        DWORD style;
    };
    void activate(int index);
    void showImages() const;

    std::vector<Tab> tabs;
    int activeTab = -1;
    CImageList images;
    CImageList toolbarImages;
};
