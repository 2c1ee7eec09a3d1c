#pragma once
#include "afxbaseribbonelement.h"

// A button with a large picture and a caption; a collapsed ribbon shows the small picture. The indices count in the
// category's picture lists, -1 for none.
class CMFCRibbonButton : public CMFCRibbonBaseElement
{
    DECLARE_DYNAMIC(CMFCRibbonButton)

public:
    CMFCRibbonButton(UINT id, LPCWSTR text, int smallImageIndex = -1, int largeImageIndex = -1,
                     BOOL alwaysShowDescription = FALSE);
    int GetImageIndex(BOOL large) const { return large ? m_nLargeImageIndex : m_nSmallImageIndex; }
    void SetImageIndex(int index, BOOL large);

protected:
    int m_nSmallImageIndex;
    int m_nLargeImageIndex;
    BOOL m_bAlwaysShowDescription;
};
