#pragma once

#include "host/orv/ErrorCode.h"
#include "host/orv/OmniInfo.h"
#include "host/orvweb/APIUtils.h"
#include "service/StatusUpdator.h"

#include <string>
#include <utility>

/// Appends one token; their order is part of a request.
void addToken(orv::OmniInfo& request, std::wstring const& name, std::wstring const& value);

/// A record with the four tokens that open every request: the endpoint, "name", "key" and "username". `file` is the
/// file to send for an upload, else the request's own file.
orv::OmniInfo openRequest(std::wstring const& file, std::wstring const& endpoint, std::wstring const& username);

struct RequestResult {
    orv::ErrorCode code = orv::ErrorCode::none;
    std::wstring response; ///< empty where the service gave none
};

/// Sends one request through a web class made for it and waits for the answer.
template <class WebClass>
RequestResult runRequest(orv::ErrorCode (WebClass::*operation)(orv::OmniInfo const&, orv::IStatusUpdator*),
                         orv::OmniInfo const& request)
{
    StatusUpdator updator;
    WebClass web(orvweb::APIUtils::rootUrl());
    orv::ErrorCode const code = (web.*operation)(request, &updator);
    return {code, std::move(updator).getResponse()};
}
