#pragma once
#include "afxbutton.h"

#include <string>

// One web link. Its address comes from the template (creation data, UTF-16) or from SetURL; without one a click only
// sends BN_CLICKED.
class CMFCLinkCtrl : public CMFCButton
{
    DECLARE_DYNAMIC(CMFCLinkCtrl)

public:
    void SetURL(LPCWSTR address);
    void SetURLPrefix(LPCWSTR prefix); // put before the address when it is opened
    CString GetURL() const;
};
