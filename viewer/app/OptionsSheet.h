#pragma once

#include "viewer/app/Preferences.h"

#include <afxcontrolbars.h>

#include <functional>

namespace orvviewer
{

/// The options: the viewer's own page, then those of the plug-ins. Made anew each time it is opened.
class OptionsSheet : public CMFCPropertySheet
{
public:
    /// `addPages` is given the sheet's window once it stands; `apply` the preferences when the user accepts.
    OptionsSheet(CWnd* parent, ViewerPreferences preferences, std::function<void(HWND)> addPages,
                 std::function<void(ViewerPreferences const&)> apply);

    BOOL OnInitDialog() override;

private:
    ViewerPreferences preferences;
    std::function<void(HWND)> addPluginPages;
    std::function<void(ViewerPreferences const&)> applyPreferences;
};

} // namespace orvviewer
