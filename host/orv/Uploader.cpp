#include "host/orv/Uploader.h"

#include "host/orvweb/Exchange.h"

namespace orv
{

Uploader::Uploader(std::wstring const& rootUrl) : root(rootUrl) {}

Uploader::~Uploader() = default;

ErrorCode Uploader::uploadFile(OmniInfo const& request, IStatusUpdator* updater)
{
    return orvweb::exchange("Uploader::uploadFile", root, request, orvweb::HttpRequest::Kind::multipart, updater);
}

} // namespace orv
