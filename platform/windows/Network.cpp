#include "wininet.h"

#include "platform/Process.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace orvplatform
{
namespace
{
struct Service {
    std::string host = "127.0.0.1";
    std::string port = "8640";
    std::optional<bool> forced;
};
Service& service()
{
    static Service current;
    return current;
}

// Connecting a datagram socket only asks the system for a route; nothing is sent.
bool hasRoute(const addrinfo& address)
{
    const int descriptor = socket(address.ai_family, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return false;
    const bool routed = connect(descriptor, address.ai_addr, address.ai_addrlen) == 0;
    close(descriptor);
    return routed;
}

bool hasRouteToNumber(const char* number)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_DGRAM;
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    addrinfo* found = nullptr;
    if (getaddrinfo(number, service().port.c_str(), &hints, &found) != 0)
        return false;
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> addresses(found, &freeaddrinfo);
    return hasRoute(*addresses);
}

bool isNumber(const std::string& host)
{
    unsigned char bytes[sizeof(in6_addr)];
    const std::string plain = host.substr(0, host.find('%')); // without the zone
    return inet_pton(AF_INET, plain.c_str(), bytes) == 1 || inet_pton(AF_INET6, plain.c_str(), bytes) == 1;
}

bool isSameName(const char* one, const std::string& other)
{
    return strcasecmp(one, other.c_str()) == 0;
}

// The addresses that the system's own table of hosts gives to the name. Nobody else is asked.
std::vector<std::string> localAddresses(const std::string& name)
{
    std::vector<std::string> result;
    if (isSameName("localhost", name))
        result = {"127.0.0.1", "::1"};
    std::ifstream table(_PATH_HOSTS);
    for (std::string line; std::getline(table, line);) {
        std::istringstream words(line.substr(0, line.find('#')));
        std::string address;
        words >> address;
        for (std::string each; words >> each;)
            if (isSameName(each.c_str(), name))
                result.push_back(address);
    }
    return result;
}

bool isConnected()
{
    const std::string& host = service().host;
    if (isNumber(host))
        return hasRouteToNumber(host.c_str());
    const std::vector<std::string> known = localAddresses(host);
    if (!known.empty())
        return std::any_of(known.begin(), known.end(), [](const auto& each) { return hasRouteToNumber(each.c_str()); });
    // To learn any other name's address a packet would have to go out. Whoever can reach the outer world at all can
    // ask for it later; these addresses are set aside for documentation and stand for the outer world.
    return hasRouteToNumber("192.0.2.1") || hasRouteToNumber("2001:db8::1");
}
} // namespace

void setServiceAddress(const std::string& host, unsigned short port)
{
    service().host = host;
    service().port = std::to_string(port);
}

void setConnectedForTest(std::optional<bool> connected)
{
    service().forced = connected;
}
} // namespace orvplatform

BOOL InternetGetConnectedState(LPDWORD flags, DWORD)
{
    const std::optional<bool>& forced = orvplatform::service().forced;
    const bool connected = forced ? *forced : orvplatform::isConnected();
    if (flags)
        *flags = connected ? INTERNET_CONNECTION_LAN : INTERNET_CONNECTION_OFFLINE;
    return connected;
}
