#pragma once

#include "cloud/http/Server.h"

#include <atomic>
#include <boost/asio/io_context.hpp>
#include <boost/asio/thread_pool.hpp>
#include <condition_variable>
#include <mutex>

namespace orvcloud
{

/// What all connections of a server share.
struct ServerState {
    ServerState(ServerSettings serverSettings, Application& served);

    ServerSettings settings;
    Application& application;
    boost::asio::thread_pool workers; ///< for what may wait: database and disk
    boost::asio::thread_pool hashers; ///< for password hashes, each of which takes 64 MiB; its threads are the cap
    std::atomic<std::size_t> waitingHashes = 0;
    std::atomic<std::size_t> connections = 0;
    std::atomic<bool> stopping = false;

    void log(const std::string& line);

    /// Counts a request under way for as long as it lives.
    class Busy
    {
    public:
        explicit Busy(ServerState& owner);
        ~Busy();
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;

    private:
        ServerState& state;
    };
    /// False if requests were still under way after the time.
    bool waitUntilIdle(std::chrono::milliseconds longest);

private:
    std::mutex mutex;
    std::condition_variable idle;
    std::size_t requests = 0;
};

} // namespace orvcloud
