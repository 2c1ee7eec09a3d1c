#pragma once
#include "afxctl.h"

// An edit control that can restrict what is typed; without a mask it is a plain one. ES_PASSWORD hides the text.
class CMFCMaskedEdit : public CEdit
{
    DECLARE_DYNAMIC(CMFCMaskedEdit)

public:
    void SetValidChars(LPCWSTR characters); // null or empty: any
};
