#pragma once

#include <chrono>
#include <cstdint>

namespace orvcloud
{

/// Holds a transfer to a least number of bytes a second, over each stretch of time: a client that drips keeps every
/// single deadline and would hold a connection, and what it stands for, as long as it likes.
class Pace
{
public:
    using Time = std::chrono::steady_clock::time_point;

    Pace(std::chrono::milliseconds stretchLength, std::uint64_t slowestBytesPerSecond, Time now)
        : stretch(stretchLength), slowest(slowestBytesPerSecond), began(now)
    {
    }

    /// Counts what was transferred until `now`. False if a stretch is over and too little came in it.
    bool keepsUp(std::uint64_t count, Time now)
    {
        bytes += count;
        if (now - began < stretch)
            return true;
        const double seconds = std::chrono::duration<double>(now - began).count();
        const bool enough = static_cast<double>(bytes) >= seconds * static_cast<double>(slowest);
        began = now;
        bytes = 0;
        return enough;
    }

    /// Leaves out a time that isn't the client's.
    void skip(std::chrono::steady_clock::duration time) { began += time; }

private:
    std::chrono::milliseconds stretch;
    std::uint64_t slowest;
    Time began;
    std::uint64_t bytes = 0;
};

} // namespace orvcloud
