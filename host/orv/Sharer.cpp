#include "host/orv/Sharer.h"

#include "host/orvweb/Exchange.h"

namespace orv
{

Sharer::Sharer(std::wstring const& rootUrl) : root(rootUrl) {}

Sharer::~Sharer() = default;

ErrorCode Sharer::share(OmniInfo const& request, IStatusUpdator* updater)
{
    return orvweb::exchange("Sharer::share", root, request, orvweb::HttpRequest::Kind::formOnce, updater);
}

} // namespace orv
