#pragma once

#include <optional>
#include <string>

namespace orvweb
{

/// What matters of an address.
struct UrlParts {
    std::string scheme; ///< lower case
    std::string host;   ///< without the brackets of an IPv6 address
    unsigned short port = 0;
};

/// Empty where the text is no address with a host, or one that carries a user name or a password.
std::optional<UrlParts> urlParts(std::string const& url);

/// 127.0.0.0/8, ::1 and "localhost": what never leaves this machine.
bool isLoopback(std::string const& host);

} // namespace orvweb
