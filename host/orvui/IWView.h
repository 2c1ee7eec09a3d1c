#pragma once

#include "host/orv/IView.h"
#include "host/orvui/COOutlookTabCtrl.h"

#include <afxcontrolbars.h>

namespace orvui
{

/// A window of the viewer that is told of hints.
template <class Window>
class IWView : public Window, public orv::IView
{
};

/// The side bar. The viewer derives its own from this.
template <>
class IWView<CMFCOutlookBar> : public CMFCOutlookBar, public orv::IView
{
public:
    /// The control to which panes are added; null while the side bar has no window.
    virtual COOutlookTabCtrl* getTabCtrl() = 0;

    /// What every pane of this side bar carries in its paneValue.
    int paneValue = 0;
};

} // namespace orvui
