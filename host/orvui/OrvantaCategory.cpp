#include "host/orvui/OrvantaCategory.h"

IMPLEMENT_DYNCREATE(OrvantaCategory, CMFCRibbonCategory)

CMFCRibbonPanel* OrvantaCategory::InsertPanel(int index, wchar_t const* title, HICON icon, CRuntimeClass* runtimeClass)
{
    return InsertPanelAt(index, title, icon, runtimeClass);
}
