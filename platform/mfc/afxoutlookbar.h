#pragma once
#include "afxoutlookbartabctrl.h"

#include <memory>

// The side bar: a tab control whose panes float, hide themselves and are resized as their styles allow.
class CMFCOutlookBar : public CDockablePane
{
    DECLARE_DYNAMIC(CMFCOutlookBar)
    DECLARE_MESSAGE_MAP()

public:
    CMFCOutlookBar();
    ~CMFCOutlookBar() override;

    using CDockablePane::Create;
    virtual BOOL Create(LPCWSTR caption, CWnd* parent, const RECT& rect, UINT id, DWORD style,
                        DWORD controlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE, CCreateContext* context = nullptr);
    CMFCOutlookBarTabCtrl* GetUnderlyingWindow() const { return tabControl.get(); } // null before Create

protected:
    // Makes the tab control; a side bar with a tab control of its own class returns that.
    virtual std::unique_ptr<CMFCOutlookBarTabCtrl> MakeTabCtrl();
    LPCWSTR GetWindowClass() const override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int width, int height);

private:
    std::unique_ptr<CMFCOutlookBarTabCtrl> tabControl;
};
