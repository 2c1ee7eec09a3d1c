#pragma once

#include <afxcontrolbars.h>

/// The tab control of the side bar: the toolkit's, with the tabs' images kept as lists to which panes add theirs.
class COOutlookTabCtrl : public CMFCOutlookBarTabCtrl
{
    DECLARE_DYNAMIC(COOutlookTabCtrl)

public:
    int GetImageListCount() const;        ///< images for tabs held so far
    int GetToolbarImageListCount() const; ///< images for the collapsed buttons held so far

    // The operations that panes use are virtual: a viewer's own tab control may take them over.

    /// Adds the images of a list for the tabs. `size` is the side of an image in pixels, `mask` the transparent colour.
    virtual void AddImageList(_IMAGELIST* images, int size, unsigned long mask);
    /// The same for the collapsed buttons.
    virtual void AddToolbarImageList(_IMAGELIST* images, int size, unsigned long mask);
    /// The toolkit's: `image` counts in both lists, and the style is made of AFX_CBRS_FLOAT, _AUTOHIDE, _RESIZE and
    /// _CLOSE.
    virtual void AddControl(CWnd* control, wchar_t const* title, int image, BOOL detachable, DWORD style);
};
