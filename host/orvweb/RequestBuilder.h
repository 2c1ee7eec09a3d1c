#pragma once

#include "host/orv/OmniInfo.h"
#include "host/orvweb/ITransport.h"

#include <optional>
#include <string>

namespace orvweb
{

/// Turns a request record into what goes over the wire. The head token names the path below `root`; "key" and "userid"
/// are secrets and travel as headers; every other token is a parameter, in token order. Empty where the record has no
/// head token, or where a secret can't stand in a header.
std::optional<HttpRequest> buildRequest(std::wstring const& root, orv::OmniInfo const& record, HttpRequest::Kind kind);

} // namespace orvweb
