#include "host/orv/PostAPI.h"

#include "host/orvweb/Exchange.h"

namespace orv
{

PostAPI::PostAPI(std::wstring const& rootUrl) : root(rootUrl) {}

PostAPI::~PostAPI() = default;

ErrorCode PostAPI::post(OmniInfo const& request, IStatusUpdator* updater)
{
    return orvweb::exchange("PostAPI::post", root, request, orvweb::HttpRequest::Kind::form, updater);
}

} // namespace orv
