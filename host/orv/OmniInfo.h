#pragma once

#include <string>
#include <vector>

namespace orv
{

/// The record of one request.
struct OmniInfo {
    /// The file to send for an upload; the request's own file for every other request, which the web classes leave
    /// alone.
    std::wstring file;
    /// What orvweb::WebApiUtils::createToken returned, in the request's order. The first names the endpoint.
    std::vector<std::vector<std::wstring>> tokens;
};

} // namespace orv
