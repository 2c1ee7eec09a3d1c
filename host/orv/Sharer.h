#pragma once

#include "host/orv/ErrorCode.h"
#include "host/orv/OmniInfo.h"

#include <string>

namespace orv
{

class IStatusUpdator;

/// Requests for invitations: POST, application/x-www-form-urlencoded.
class Sharer
{
public:
    /// `rootUrl` is the service's web address, without a closing slash.
    explicit Sharer(std::wstring const& rootUrl);
    ~Sharer();

    /// Blocks until the exchange is over. On success the response has been delivered through `updater`, one character a
    /// byte, before the call returns; on failure none is delivered. A null `updater` is allowed.
    ErrorCode share(OmniInfo const& request, IStatusUpdator* updater);

private:
    std::wstring root;
};

} // namespace orv
