#pragma once

#include "host/orv/ErrorCode.h"
#include "host/orv/OmniInfo.h"

#include <string>

namespace orv
{

class IStatusUpdator;

/// Requests for sign-in, device registration and sign-out: POST, application/x-www-form-urlencoded.
class Authenticator
{
public:
    /// `rootUrl` is the service's web address, without a closing slash.
    explicit Authenticator(std::wstring const& rootUrl);
    ~Authenticator();

    /// Blocks until the exchange is over. On success the response has been delivered through `updater`, one character a
    /// byte, before the call returns; on failure none is delivered. A null `updater` is allowed.
    ErrorCode login(OmniInfo const& request, IStatusUpdator* updater);

private:
    std::wstring root;
};

} // namespace orv
