#include "service/Request.h"

#include "host/orvweb/WebApiUtils.h"

void addToken(orv::OmniInfo& request, std::wstring const& name, std::wstring const& value)
{
    request.tokens.push_back(orvweb::WebApiUtils::createToken(name, value));
}

orv::OmniInfo openRequest(std::wstring const& file, std::wstring const& endpoint, std::wstring const& username)
{
    orv::OmniInfo request;
    request.file = file;
    addToken(request, endpoint, L"");
    addToken(request, L"name", orvweb::APIUtils::apiId());
    addToken(request, L"key", orvweb::APIUtils::apiKey());
    addToken(request, L"username", username);
    return request;
}
