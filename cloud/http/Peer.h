#pragma once

#include <boost/asio/ip/address.hpp>
#include <string>

namespace orvcloud
{

/// An IPv4 address in its own form, also where it came in by a socket for IPv6.
boost::asio::ip::address plainAddress(const boost::asio::ip::address& address);

/// Whom a proxy's request comes from: the address that the proxy names, else the proxy itself.
boost::asio::ip::address clientOf(const std::string& forwarded, const boost::asio::ip::address& proxy);

} // namespace orvcloud
