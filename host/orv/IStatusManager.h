#pragma once

namespace orv
{

/// The progress bar of the main window.
class IStatusManager
{
public:
    virtual ~IStatusManager() = default;
    /// 0 to 100. `channel` tells whose course it is: 1 for a plug-in's work, orvexp::exportChannel for what an exporter
    /// reports. The bar moves with the channel that it was shown for, and no other.
    virtual void setProgress(int const& percent, int channel) = 0;
    virtual void showProgress(int on, int channel) = 0; ///< 1 shows the bar, 0 hides it
};

} // namespace orv
