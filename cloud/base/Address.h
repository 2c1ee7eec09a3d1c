#pragma once

#include <string>
#include <string_view>

namespace orvcloud
{

/// True for a host that is this machine itself: "localhost", an IPv4 address in 127.0.0.0/8 or the IPv6 address ::1,
/// with brackets or without. A name that merely begins like such an address is none.
bool isLoopbackHost(std::string_view host);

/// The host of "host:port" or "[v6]:port", without brackets; the whole text where there is no port.
std::string hostOfAddress(std::string_view address);

} // namespace orvcloud
