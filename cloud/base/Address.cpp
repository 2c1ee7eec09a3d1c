#include "cloud/base/Address.h"

#include "cloud/base/Text.h"

#include <arpa/inet.h>
#include <netinet/in.h>

namespace orvcloud
{
namespace
{
std::string_view withoutBrackets(std::string_view host)
{
    return host.size() > 1 && host.front() == '[' && host.back() == ']' ? host.substr(1, host.size() - 2) : host;
}
} // namespace

bool isLoopbackHost(std::string_view host)
{
    const std::string name = lowerAscii(withoutBrackets(host));
    in_addr v4{};
    if (::inet_pton(AF_INET, name.c_str(), &v4) == 1)
        return ntohl(v4.s_addr) >> 24 == IN_LOOPBACKNET;
    in6_addr v6{};
    if (::inet_pton(AF_INET6, name.c_str(), &v6) == 1)
        return IN6_IS_ADDR_LOOPBACK(&v6);
    return name == "localhost";
}

std::string hostOfAddress(std::string_view address)
{
    return std::string(withoutBrackets(address.substr(0, address.rfind(':'))));
}

} // namespace orvcloud
