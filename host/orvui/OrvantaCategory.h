#pragma once

#include <afxcontrolbars.h>

/// A ribbon category of the viewer. Plug-ins add images to its two lists and panels among its own.
class OrvantaCategory : public CMFCRibbonCategory
{
    DECLARE_DYNCREATE(OrvantaCategory)

public:
    /// Inserts a panel at `index` (0 is the first place) and returns it; the category owns it. `icon` may be null;
    /// else the panel takes it over and destroys it with itself.
    CMFCRibbonPanel* InsertPanel(int index, wchar_t const* title, HICON icon, CRuntimeClass* runtimeClass);

    /// The images of small and large buttons; both lists report how many they hold and load more from a resource id.
    using CMFCRibbonCategory::GetLargeImages;
    using CMFCRibbonCategory::GetSmallImages;
};
