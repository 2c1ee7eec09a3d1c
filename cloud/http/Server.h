#pragma once

#include "cloud/http/Exchange.h"
#include "cloud/http/Limits.h"

#include <functional>
#include <memory>
#include <string>

namespace orvcloud
{

struct ServerSettings {
    std::string listen;         ///< "host:port" or "[v6]:port"; port 0 picks a free one
    std::string tlsCertificate; ///< a PEM file with the chain; both empty for plain HTTP
    std::string tlsKey;
    Limits limits;
    bool behindProxy = false;                    ///< a proxy stands in front and names the client in X-Forwarded-For
    std::function<void(const std::string&)> log; ///< one line each; called from any thread, also at the same time
    std::function<std::int64_t()> clock;
};

/// Speaks HTTP/1.1 on one address, from few threads, and hands every request to the application. A client that is slow
/// or sends nonsense costs nobody else anything, and no exception of the application leaves it.
class Server
{
public:
    /// Listens from here on; connections are served once `start` was called. Throws std::runtime_error with a sentence
    /// if the address or the certificate can't be used.
    Server(ServerSettings settings, Application& application);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    void start();
    /// Takes no more connections, gives requests under way their time to end, and returns when all threads are gone.
    void stop();
    /// The address with the actual port, e.g. "127.0.0.1:8640".
    std::string address() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace orvcloud
