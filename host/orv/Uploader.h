#pragma once

#include "host/orv/ErrorCode.h"
#include "host/orv/OmniInfo.h"

#include <string>

namespace orv
{

class IStatusUpdator;

/// Requests for files: POST, multipart/form-data: the parameters in token order, then the part "file", streamed from
/// OmniInfo::file.
class Uploader
{
public:
    /// `rootUrl` is the service's web address, without a closing slash.
    explicit Uploader(std::wstring const& rootUrl);
    ~Uploader();

    /// Blocks until the exchange is over. On success the response has been delivered through `updater`, one character a
    /// byte, before the call returns; on failure none is delivered. A null `updater` is allowed.
    ErrorCode uploadFile(OmniInfo const& request, IStatusUpdator* updater);

private:
    std::wstring root;
};

} // namespace orv
