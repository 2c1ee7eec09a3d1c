#pragma once

#include <string>

namespace orvweb
{

/// How to reach the service.
class APIUtils
{
public:
    static std::wstring rootUrl(); ///< the service's web address, without a closing slash
    static std::wstring apiId();   ///< the application's id at the service
    static std::wstring apiKey();  ///< the application's key at the service
};

} // namespace orvweb
