#pragma once

#include "ui/UiTest.h"

#include <afxcontrolbars.h>

#include <functional>

namespace orvtest
{

/// Controls of the options' page.
constexpr int stateOfSession = 1029;
constexpr int loginOrLogout = 1022;

/// Opens the options with the page, as the viewer does, and leaves them by Cancel after `use`.
inline void openOptionsWith(CPropertyPage& page, orvplatform::testing::ModalScript& modals,
                            std::function<void()> const& use)
{
    CMFCPropertySheet sheet(L"Options");
    sheet.AddPage(&page);
    modals.expectModal<CMFCPropertySheet>([&](CMFCPropertySheet&) -> INT_PTR {
        use();
        return IDCANCEL;
    });
    sheet.DoModal();
}

} // namespace orvtest
