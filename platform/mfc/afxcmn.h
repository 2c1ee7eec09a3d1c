#pragma once
// Image lists and the link control.

#include "afxctl.h"
#include "afxgdi.h"
#include "commctrl.h"

// Pictures of one size. Owns its list.
class CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    HIMAGELIST m_hImageList = nullptr;

    CImageList() = default;
    ~CImageList() override;
    static CImageList* FromHandle(HIMAGELIST list); // the toolkit's own, valid as long as the handle
    BOOL Create(int width, int height, UINT flags, int initial, int grow);
    BOOL DeleteImageList();
    BOOL Attach(HIMAGELIST list);
    HIMAGELIST Detach();
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    operator HIMAGELIST() const { return m_hImageList; }
    int GetImageCount() const;
    int Add(CBitmap* bitmap, CBitmap* mask);
    int Add(CBitmap* bitmap, COLORREF mask); // pictures are cut from the bitmap; `mask` is the transparent colour
    int Add(HICON icon);
    HICON ExtractIcon(int index); // the caller destroys it; null outside the list
};

// Text with links, written as <a href="address">text</a>. A click sends NM_CLICK with an NMLINK to the parent.
class CLinkCtrl : public CWnd
{
    DECLARE_DYNAMIC(CLinkCtrl)

public:
    BOOL Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id);
};
