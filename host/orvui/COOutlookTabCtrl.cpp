#include "host/orvui/COOutlookTabCtrl.h"

IMPLEMENT_DYNAMIC(COOutlookTabCtrl, CMFCOutlookBarTabCtrl)

int COOutlookTabCtrl::GetImageListCount() const
{
    return CMFCOutlookBarTabCtrl::GetImageListCount();
}

int COOutlookTabCtrl::GetToolbarImageListCount() const
{
    return CMFCOutlookBarTabCtrl::GetToolbarImageListCount();
}

void COOutlookTabCtrl::AddImageList(_IMAGELIST* list, int size, unsigned long mask)
{
    CMFCOutlookBarTabCtrl::AddImageList(list, size, static_cast<COLORREF>(mask));
}

void COOutlookTabCtrl::AddToolbarImageList(_IMAGELIST* list, int size, unsigned long mask)
{
    CMFCOutlookBarTabCtrl::AddToolbarImageList(list, size, static_cast<COLORREF>(mask));
}

void COOutlookTabCtrl::AddControl(CWnd* control, wchar_t const* title, int image, BOOL detachable, DWORD style)
{
    CMFCOutlookBarTabCtrl::AddControl(control, title, image, detachable, style);
}
