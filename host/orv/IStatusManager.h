#pragma once

namespace orv
{

/// The progress bar of the main window.
class IStatusManager
{
public:
    virtual ~IStatusManager() = default;
    virtual void setProgress(int const& percent, int channel) = 0; ///< 0 to 100; `channel` is always 1
    virtual void showProgress(int on, int channel) = 0;            ///< 1 shows the bar, 0 hides it
};

} // namespace orv
