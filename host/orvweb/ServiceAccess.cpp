#include "host/orvweb/APIUtils.h"
#include "host/orvweb/WebApiUtils.h"

#include "host/runtime/Runtime.h"
#include "platform/text/Text.h"

namespace orvweb
{

std::wstring APIUtils::rootUrl()
{
    return orvhost::settings().serviceUrl;
}
std::wstring APIUtils::apiId()
{
    return orvtext::fromUtf8(ORVANTA_API_ID);
}
std::wstring APIUtils::apiKey()
{
    return orvtext::fromUtf8(ORVANTA_API_KEY);
}

std::vector<std::wstring> WebApiUtils::createToken(std::wstring const& name, std::wstring const& value)
{
    std::vector<std::wstring> token; // not from a list, which would copy a long comment twice
    token.reserve(2);
    token.push_back(name);
    token.push_back(value);
    return token;
}

} // namespace orvweb
