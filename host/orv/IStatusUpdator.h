#pragma once

#include <string>

namespace orv
{

/// The channel by which a web class talks back during a request. `kind` is zero for an upload to the service and
/// anything else for a download from it. There is no virtual destructor: the web classes never own one.
class IStatusUpdator
{
public:
    /// Called once, before a successful operation returns.
    virtual void updateResponse(int kind, std::wstring const& text) = 0;
    /// Called during a transfer; 0 to 100.
    virtual void updateProgress(int kind, int const& percent) = 0;

protected:
    ~IStatusUpdator() = default;
};

} // namespace orv
