#pragma once
#include "afxpropertysheetbase.h"

// The sheet that the viewer's options use. Its pages are listed at the left.
class CMFCPropertySheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CMFCPropertySheet)

public:
    CMFCPropertySheet() = default;
    explicit CMFCPropertySheet(LPCWSTR caption, CWnd* parent = nullptr, UINT selectedPage = 0);
};
