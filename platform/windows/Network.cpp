#include "wininet.h"

#include "platform/Process.h"

#include <netdb.h>
#include <sys/socket.h>
#include <unistd.h>

#include <memory>

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
    const auto& service = orvplatform::service();
    bool connected = false;
    if (service.forced) {
        connected = *service.forced;
    } else {
        addrinfo hints{};
        hints.ai_socktype = SOCK_DGRAM;
        addrinfo* found = nullptr;
        if (getaddrinfo(service.host.c_str(), service.port.c_str(), &hints, &found) == 0) {
            const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> addresses(found, &freeaddrinfo);
            for (const addrinfo* each = found; each && !connected; each = each->ai_next)
                connected = orvplatform::hasRoute(*each);
        }
    }
    if (flags)
        *flags = connected ? INTERNET_CONNECTION_LAN : INTERNET_CONNECTION_OFFLINE;
    return connected;
}
