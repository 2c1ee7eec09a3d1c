#pragma once

#include "host/orv/ErrorCode.h"
#include "host/orv/OmniInfo.h"
#include "host/orvweb/ITransport.h"

#include <string>

namespace orv
{
class IStatusUpdator;
}

namespace orvweb
{

/// What the five web classes do: builds the request, sends it through the transport in use, and delivers the answer
/// through `updater` (which may be null) if all went well. `operation` names the caller to the observer of requests.
orv::ErrorCode exchange(char const* operation, std::wstring const& root, orv::OmniInfo const& record,
                        HttpRequest::Kind kind, orv::IStatusUpdator* updater);

} // namespace orvweb
