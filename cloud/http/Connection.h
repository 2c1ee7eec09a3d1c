#pragma once

#include "cloud/http/ServerState.h"

#include <boost/asio/awaitable.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/context.hpp>

namespace orvcloud
{

/// Serves one connection until either side ends it. Nothing leaves it but std::bad_alloc while its frame is made.
/// `tls` is null for plain HTTP and outlives the connection.
boost::asio::awaitable<void> serveConnection(boost::asio::ip::tcp::socket socket, ServerState& state,
                                             boost::asio::ssl::context* tls);

} // namespace orvcloud
