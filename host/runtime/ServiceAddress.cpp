#include "host/runtime/ServiceAddress.h"

#include "host/orvweb/UrlParts.h"
#include "platform/Process.h"
#include "platform/text/Text.h"

namespace orvhost
{

void announceServiceAddress(std::wstring const& url)
{
    if (auto const parts = orvweb::urlParts(orvtext::toUtf8(url))) {
        orvplatform::setServiceAddress(parts->host, parts->port);
    }
}

} // namespace orvhost
