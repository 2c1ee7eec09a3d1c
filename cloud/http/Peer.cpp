#include "cloud/http/Peer.h"

#include <boost/asio/ip/address_v4.hpp>
#include <boost/asio/ip/address_v6.hpp>

namespace orvcloud
{
namespace ip = boost::asio::ip;

ip::address plainAddress(const ip::address& address)
{
    if (address.is_v6() && address.to_v6().is_v4_mapped())
        return ip::make_address_v4(ip::v4_mapped, address.to_v6());
    return address;
}

ip::address clientOf(const std::string& forwarded, const ip::address& proxy)
{
    boost::system::error_code error;
    const auto address = ip::make_address(forwarded, error);
    return error ? proxy : plainAddress(address);
}

} // namespace orvcloud
