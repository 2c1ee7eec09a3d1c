#include "afxcmn.h"
#include "afxlinkctrl.h"
#include "afxmaskededit.h"

#include "platform/qt/Controls.h"
#include "platform/qt/Gdi.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CLinkCtrl, CWnd)
IMPLEMENT_DYNAMIC(CMFCButton, CButton)
IMPLEMENT_DYNAMIC(CMFCLinkCtrl, CMFCButton)
IMPLEMENT_DYNAMIC(CMFCMaskedEdit, CEdit)

BOOL CStatic::Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(L"Static", text, style, rect, parent, id);
}

HBITMAP CStatic::SetBitmap(HBITMAP bitmap)
{
    return reinterpret_cast<HBITMAP>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
}

HBITMAP CStatic::GetBitmap() const
{
    return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP));
}

HICON CStatic::SetIcon(HICON icon)
{
    return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
}

BOOL CButton::Create(LPCWSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(L"Button", caption, style, rect, parent, id);
}

int CButton::GetCheck() const
{
    return static_cast<int>(SendMessage(BM_GETCHECK));
}
void CButton::SetCheck(int check)
{
    SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(L"Edit", nullptr, style, rect, parent, id);
}

BOOL CEdit::SetCueBanner(LPCWSTR text, BOOL drawIfFocused)
{
    return static_cast<BOOL>(
        SendMessage(EM_SETCUEBANNER, static_cast<WPARAM>(drawIfFocused), reinterpret_cast<LPARAM>(text)));
}

void CEdit::SetSel(int start, int end)
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
}
void CEdit::SetLimitText(UINT count)
{
    SendMessage(EM_SETLIMITTEXT, count);
}
BOOL CEdit::SetReadOnly(BOOL readOnly)
{
    return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(readOnly)));
}
void CEdit::SetPasswordChar(WCHAR character)
{
    SendMessage(EM_SETPASSWORDCHAR, static_cast<WPARAM>(character));
}

BOOL CLinkCtrl::Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_LINK, text, style, rect, parent, id);
}

namespace
{
BOOL themedButtons = FALSE;
}

void CMFCButton::EnableWindowsTheming(BOOL enable)
{
    themedButtons = enable;
}
BOOL CMFCButton::IsWindowsThemingEnabled()
{
    return themedButtons;
}

void CMFCButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    applyStyle();
}

void CMFCButton::applyStyle()
{
    // A picture without a caption stands without a frame until the pointer is over it.
    const bool pictureOnly = hasPicture && GetWindowTextLength() == 0;
    orvplatform::setButtonFlat(m_hWnd, pictureOnly || m_nFlatStyle == BUTTONSTYLE_FLAT ||
                                           m_nFlatStyle == BUTTONSTYLE_NOBORDERS);
}

void CMFCButton::SetImage(UINT bitmapId, UINT, UINT)
{
    CPngImage picture;
    if (bitmapId != 0 && !picture.Load(bitmapId))
        return;
    SetImage(static_cast<HBITMAP>(picture), FALSE);
}

void CMFCButton::SetImage(HBITMAP bitmap, BOOL autoDestroy)
{
    hasPicture = bitmap != nullptr;
    orvplatform::setButtonPicture(m_hWnd, orvplatform::imageOf(bitmap));
    if (autoDestroy)
        ::DeleteObject(bitmap);
    applyStyle();
}

void CMFCButton::SetImage(HICON icon, BOOL autoDestroy)
{
    hasPicture = icon != nullptr;
    orvplatform::setButtonPicture(m_hWnd, orvplatform::imageOf(icon));
    if (autoDestroy)
        DestroyIcon(icon);
    applyStyle();
}

void CMFCButton::SetTooltip(LPCWSTR text)
{
    orvplatform::setToolTip(m_hWnd, text ? text : L"");
}
CString CMFCButton::GetTooltip() const
{
    return orvplatform::toolTip(m_hWnd);
}

void CMFCButton::SetFaceColor(COLORREF colour, BOOL)
{
    face = colour;
    orvplatform::setButtonColours(m_hWnd, face, textColour);
}

void CMFCButton::SetTextColor(COLORREF colour)
{
    textColour = colour;
    orvplatform::setButtonColours(m_hWnd, face, textColour);
}

void CMFCButton::SetMouseCursorHand()
{
    orvplatform::setHandCursor(m_hWnd);
}

void CMFCLinkCtrl::SetURL(LPCWSTR address)
{
    orvplatform::setLinkAddress(m_hWnd, address ? address : L"");
}
void CMFCLinkCtrl::SetURLPrefix(LPCWSTR prefix)
{
    orvplatform::setLinkPrefix(m_hWnd, prefix ? prefix : L"");
}
CString CMFCLinkCtrl::GetURL() const
{
    return orvplatform::linkAddress(m_hWnd);
}

void CMFCMaskedEdit::SetValidChars(LPCWSTR characters)
{
    orvplatform::setValidCharacters(m_hWnd, characters ? characters : L"");
}
