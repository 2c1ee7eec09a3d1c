#pragma once
#include "afxctl.h"

// A button with a picture and a tool tip, drawn flat until the pointer is over it when it has a picture.
class CMFCButton : public CButton
{
    DECLARE_DYNAMIC(CMFCButton)

public:
    enum FlatStyle { BUTTONSTYLE_3D, BUTTONSTYLE_FLAT, BUTTONSTYLE_SEMIFLAT, BUTTONSTYLE_NOBORDERS };

    // With the themed look off or on the button keeps the system's frame around its picture.
    static void EnableWindowsTheming(BOOL enable = TRUE);
    static BOOL IsWindowsThemingEnabled();

    FlatStyle m_nFlatStyle = BUTTONSTYLE_3D;
    BOOL m_bTransparent = FALSE;
    BOOL m_bDrawFocus = TRUE;

    void SetImage(UINT bitmapId, UINT hotBitmapId = 0, UINT disabledBitmapId = 0); // PNG resources
    void SetImage(HBITMAP bitmap, BOOL autoDestroy = TRUE);
    void SetImage(HICON icon, BOOL autoDestroy = TRUE);
    void SetTooltip(LPCWSTR text);
    CString GetTooltip() const;
    void SetFaceColor(COLORREF colour, BOOL redraw = TRUE); // CLR_DEFAULT: the look's own
    void SetTextColor(COLORREF colour);
    void SetMouseCursorHand();

protected:
    void PreSubclassWindow() override;

private:
    void applyStyle();

    COLORREF face = CLR_DEFAULT;
    COLORREF textColour = CLR_DEFAULT;
    bool hasPicture = false;
};
