#pragma once

#include "cloud/base/Text.h"

#include <cstdint>
#include <map>
#include <mutex>

namespace orvcloud
{

/// Bounds what each account may do in a day (UTC), e.g. how many mails are sent in its name. Kept in memory alone: a
/// restart forgives the day. From any thread.
class DailyCount
{
public:
    DailyCount(Clock presentTime, std::int64_t mostInADay) : clock(std::move(presentTime)), most(mostInADay) {}

    /// Zero: go ahead, and the amount is counted. Else nothing is counted, and these are the seconds until the next
    /// day.
    std::int64_t take(std::int64_t account, std::int64_t amount);

private:
    Clock clock;
    std::int64_t most;
    std::mutex mutex;
    std::int64_t day = 0;
    std::map<std::int64_t, std::int64_t> taken;
};

} // namespace orvcloud
