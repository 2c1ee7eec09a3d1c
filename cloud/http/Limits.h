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
    std::uint64_t slowestBytesPerSecond = 1024; ///< of a body, over each stretch of `transfer`
    std::uint32_t headerBytes = 8192;
    std::size_t connections = 1000;
    std::size_t waitingHashes = 32;
    std::uint64_t uploadBytes = 4ULL << 30;
};

} // namespace orvcloud
