#pragma once

#include "host/orv/ErrorCode.h"
#include "host/orv/OmniInfo.h"

#include <string>

namespace orv
{

class IStatusUpdator;

/// Requests for writing: POST, application/x-www-form-urlencoded.
class PostAPI
{
public:
    /// `rootUrl` is the service's web address, without a closing slash.
    explicit PostAPI(std::wstring const& rootUrl);
    ~PostAPI();

    /// Blocks until the exchange is over. On success the response has been delivered through `updater`, one character a
    /// byte, before the call returns; on failure none is delivered. A null `updater` is allowed.
    ErrorCode post(OmniInfo const& request, IStatusUpdator* updater);

private:
    std::wstring root;
};

} // namespace orv
