#pragma once

#include "cloud/http/Exchange.h"

#include <boost/beast/http/fields.hpp>
#include <boost/beast/http/message.hpp>
#include <optional>
#include <string>

namespace orvcloud
{

using HttpHeader = boost::beast::http::header<true, boost::beast::http::fields>;

/// Why a header is refused. The connection ends with it, since what follows can't be told apart reliably.
struct HeadRefusal {
    unsigned status = 400;
    std::string sentence;
};

/// Holds a request's header against the server's profile of HTTP: version 1.1, a path for target, exactly one Host, at
/// most one Content-Length, no Transfer-Encoding, a length for whatever has a body. What is left open by the profile
/// is what two HTTP programs in a row can disagree about.
std::optional<HeadRefusal> checkHead(const HttpHeader& header);

/// The refusal of any Transfer-Encoding, for the reader of headers to use as well.
HeadRefusal transferEncodingRefusal();

/// Reads what the application needs from a header that passed.
RequestHead readHead(const HttpHeader& header);

/// True if the client waits for "100 Continue" before it sends the body.
bool expectsContinue(const HttpHeader& header);

} // namespace orvcloud
