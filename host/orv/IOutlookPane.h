#pragma once

#include "host/orv/IHint.h"

namespace orv
{

/// A pane of the side bar.
class IOutlookPane
{
public:
    virtual ~IOutlookPane() = default;
    virtual void OnUpdate(IHint* hint) = 0;         ///< `hint` may be null
    virtual void OnActivateChange(bool active) = 0; ///< the pane's tab was activated or left

    /// The side bar's own value for its panes; copied in when the pane is added.
    int paneValue = 0;
};

} // namespace orv
