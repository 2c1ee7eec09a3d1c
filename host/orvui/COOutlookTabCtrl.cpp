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

void COOutlookTabCtrl::AddImageList(_IMAGELIST* images, int size, unsigned long mask)
{
    CMFCOutlookBarTabCtrl::AddImageList(images, size, static_cast<COLORREF>(mask));
}

void COOutlookTabCtrl::AddToolbarImageList(_IMAGELIST* images, int size, unsigned long mask)
{
    CMFCOutlookBarTabCtrl::AddToolbarImageList(images, size, static_cast<COLORREF>(mask));
}
