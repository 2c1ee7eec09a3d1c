#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace orvcloud
{

/// What the server concedes to a client. Tests shorten the times.
struct Limits {
    std::chrono::milliseconds idle{60'000};     ///< between two requests of a connection
    std::chrono::milliseconds header{15'000};   ///< from a header's first byte to its last
    std::chrono::milliseconds transfer{30'000}; ///< for one piece of a body, in or out
    std::chrono::milliseconds linger{5'000};    ///< for a refused client to take its answer
    std::chrono::milliseconds shutdown{10'000}; ///< for requests under way when the service stops
    std::uint64_t slowestBytesPerSecond = 1024; ///< of a body, in or out, over each stretch of `transfer`
    std::chrono::seconds longestAnswer{3600};   ///< a large answer has to go out fast enough to end within this time
    std::uint32_t headerBytes = 8192;
    std::size_t connections = 1000;
    std::size_t connectionsPerPeer = 100;  ///< for one address, unless it speaks for many
    std::uint64_t answerBytes = 512 << 20; ///< of all answers above 64 KiB that wait for their clients
    std::size_t waitingHashes = 32;
    std::uint64_t uploadBytes = 4ULL << 30;
};

} // namespace orvcloud
