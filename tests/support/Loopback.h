#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace orvtest
{

/// A listening socket on a free port of 127.0.0.1, which stands in `port` then; -1 with errno where there is none.
/// `waiting` connections may queue in front of it; `flags` go to socket().
inline int listenOnLoopback(unsigned short& port, int waiting, int flags = 0)
{
    int const listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | flags, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    socklen_t size = sizeof address;
    if (listener < 0) {
        return -1;
    }
    if (::bind(listener, generic, size) != 0 || ::listen(listener, waiting) != 0 ||
        ::getsockname(listener, generic, &size) != 0) {
        ::close(listener);
        return -1;
    }
    port = ntohs(address.sin_port);
    return listener;
}

} // namespace orvtest
