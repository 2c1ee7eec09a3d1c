#include "host/orv/Authenticator.h"

#include "host/orvweb/Exchange.h"

namespace orv
{

Authenticator::Authenticator(std::wstring const& rootUrl) : root(rootUrl) {}

Authenticator::~Authenticator() = default;

ErrorCode Authenticator::login(OmniInfo const& request, IStatusUpdator* updater)
{
    return orvweb::exchange("Authenticator::login", root, request, orvweb::HttpRequest::Kind::formOnce, updater);
}

} // namespace orv
