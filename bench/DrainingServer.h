#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace orvbench
{

/// An HTTP server on a free loopback port that costs as little as it can: it reads each request to its end, keeps
/// nothing of it but its length, and gives the same answer to all. Connections stay open.
class DrainingServer
{
public:
    DrainingServer();
    ~DrainingServer();
    DrainingServer(DrainingServer const&) = delete;
    DrainingServer& operator=(DrainingServer const&) = delete;

    /// The body of every answer from here on; between requests only.
    void answerWith(std::string const& body);
    std::string url() const; ///< "http://127.0.0.1:port"
    int connections() const { return accepted; }
    std::uint64_t requests() const { return answered; }
    std::uint64_t bodyBytes() const { return drained; } ///< of all requests so far

private:
    void accept();
    void serve(int connection);

    unsigned short port = 0;
    int listener = -1;
    std::atomic<int> accepted = 0;
    std::atomic<std::uint64_t> answered = 0;
    std::atomic<std::uint64_t> drained = 0;
    std::mutex guard; ///< of what follows
    std::string response;
    std::vector<int> open;
    std::vector<std::thread> serving;
    std::thread accepting;
};

} // namespace orvbench
