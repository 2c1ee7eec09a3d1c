#pragma once

#include <afxcontrolbars.h>

/// The tab control of the side bar: the toolkit's, with the tabs' images kept as lists to which panes add theirs.
class COOutlookTabCtrl : public CMFCOutlookBarTabCtrl
{
    DECLARE_DYNAMIC(COOutlookTabCtrl)

public:
    int GetImageListCount() const;        ///< images for tabs held so far
    int GetToolbarImageListCount() const; ///< images for the collapsed buttons held so far

    /// Adds the images of a list for the tabs. `size` is the side of an image in pixels, `mask` the transparent colour.
    void AddImageList(_IMAGELIST* images, int size, unsigned long mask);
    /// The same for the collapsed buttons.
    void AddToolbarImageList(_IMAGELIST* images, int size, unsigned long mask);
};
