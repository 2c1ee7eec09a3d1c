#pragma once

#include "cloud/http/Server.h"

#include <atomic>
#include <boost/asio/io_context.hpp>
#include <boost/asio/thread_pool.hpp>
#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace orvcloud
{

/// Counts connections, in all and for each peer. From any thread.
class ConnectionCount
{
public:
    ConnectionCount(std::size_t mostInAll, std::size_t mostOfPeer) : most(mostInAll), mostPerPeer(mostOfPeer) {}

    /// False, and nothing counted, if there are too many. `isShared`: the peer speaks for many people, as the machine
    /// itself and a proxy do, and has no limit of its own.
    bool enter(const std::string& peer, bool isShared);
    void leave(const std::string& peer);

    /// Counts a connection for as long as it lives, if there is room for it.
    class Entry
    {
    public:
        Entry(ConnectionCount& counter, std::string address, bool isShared)
            : count(counter), peer(std::move(address)), entered(count.enter(peer, isShared))
        {
        }
        ~Entry()
        {
            if (entered)
                count.leave(peer);
        }
        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;
        bool isFree() const { return entered; }

    private:
        ConnectionCount& count;
        std::string peer;
        bool entered;
    };

private:
    std::size_t most;
    std::size_t mostPerPeer;
    std::mutex mutex;
    std::size_t total = 0;
    std::map<std::string, std::size_t> perPeer;
};

/// What all connections of a server share.
struct ServerState {
    ServerState(ServerSettings serverSettings, Application& served);

    ServerSettings settings;
    Application& application;
    boost::asio::thread_pool workers; ///< for what may wait: database and disk
    boost::asio::thread_pool hashers; ///< for password hashes, each of which takes 64 MiB; its threads are the cap
    std::atomic<std::size_t> waitingHashes = 0;
    ConnectionCount connections;
    std::atomic<bool> stopping = false;

    void log(const std::string& line) const;

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

    /// Counts the bytes of a large answer for as long as they are kept for the client.
    class Held
    {
    public:
        Held(ServerState& owner, std::size_t answerSize);
        ~Held();
        Held(const Held&) = delete;
        Held& operator=(const Held&) = delete;
        /// False if the answers under way would be more than the limit with this one.
        bool fits() const { return within; }

    private:
        ServerState& state;
        std::size_t size;
        bool within = true;
    };

    /// False if requests were still under way after the time.
    bool waitUntilIdle(std::chrono::milliseconds longest);

private:
    std::atomic<std::uint64_t> answerBytes = 0;
    std::mutex mutex;
    std::condition_variable idle;
    std::size_t requests = 0;
};

} // namespace orvcloud
