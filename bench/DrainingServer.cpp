#include "bench/DrainingServer.h"

#include "tests/support/Loopback.h"

#include <netinet/tcp.h>
#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace orvbench
{

namespace
{

constexpr std::size_t bufferSize = std::size_t{256} << 10;

std::uint64_t contentLength(std::string const& head)
{
    for (std::size_t at = head.find('\n'); at != std::string::npos; at = head.find('\n', at + 1)) {
        constexpr char name[] = "content-length:";
        if (strncasecmp(head.c_str() + at + 1, name, sizeof name - 1) == 0) {
            return std::strtoull(head.c_str() + at + sizeof name, nullptr, 10);
        }
    }
    return 0;
}

} // namespace

DrainingServer::DrainingServer() : listener(orvtest::listenOnLoopback(port, 16))
{
    if (listener < 0) {
        throw std::runtime_error("no loopback port for the server");
    }
    answerWith({});
    accepting = std::thread([this] { accept(); });
}

DrainingServer::~DrainingServer()
{
    shutdown(listener, SHUT_RDWR);
    accepting.join();
    {
        std::lock_guard const lock(guard);
        for (int const connection : open) {
            shutdown(connection, SHUT_RDWR);
        }
    }
    for (std::thread& thread : serving) {
        thread.join();
    }
    for (int const connection : open) {
        close(connection);
    }
    close(listener);
}

void DrainingServer::answerWith(std::string const& body)
{
    std::lock_guard const lock(guard);
    response = "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: " + std::to_string(body.size()) +
               "\r\n\r\n" + body;
}

std::string DrainingServer::url() const
{
    return "http://127.0.0.1:" + std::to_string(port);
}

void DrainingServer::accept()
{
    for (;;) {
        int const connection = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0) {
            return;
        }
        ++accepted;
        int const on = 1;
        setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        std::lock_guard const lock(guard);
        open.push_back(connection);
        serving.emplace_back([this, connection] { serve(connection); });
    }
}

void DrainingServer::serve(int connection)
{
    std::vector<char> buffer(bufferSize);
    std::string head;
    std::uint64_t missing = 0; // of the body
    bool inBody = false;
    for (;;) {
        ssize_t const count = recv(connection, buffer.data(), buffer.size(), 0);
        if (count <= 0) {
            return;
        }
        auto taken = static_cast<std::uint64_t>(count);
        if (!inBody) {
            head.append(buffer.data(), taken);
            std::size_t const end = head.find("\r\n\r\n");
            if (end == std::string::npos) {
                continue;
            }
            taken = head.size() - (end + 4);
            missing = contentLength(head.substr(0, end));
            inBody = true;
        }
        drained += taken;
        missing -= std::min(missing, taken);
        if (missing == 0) {
            ++answered;
            inBody = false;
            head.clear();
            std::lock_guard const lock(guard);
            if (send(connection, response.data(), response.size(), MSG_NOSIGNAL) < 0) {
                return;
            }
        }
    }
}

} // namespace orvbench
