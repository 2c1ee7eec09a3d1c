#include "host/orv/GetAPI.h"

#include "host/orvweb/Exchange.h"

namespace orv
{

GetAPI::GetAPI(std::wstring const& rootUrl) : root(rootUrl) {}

GetAPI::~GetAPI() = default;

ErrorCode GetAPI::get(OmniInfo const& request, IStatusUpdator* updater)
{
    return orvweb::exchange("GetAPI::get", root, request, orvweb::HttpRequest::Kind::get, updater);
}

} // namespace orv
