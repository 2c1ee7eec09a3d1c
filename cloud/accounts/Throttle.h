#pragma once

#include "cloud/base/Text.h"

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <string_view>

namespace orvcloud
{

/// Slows down guessing of passwords. Attempts are counted for an account from one address, for an account from
/// anywhere and for an address; past a number of free attempts each has to wait twice as long as the one before, up to
/// a quarter of an hour. A success clears the account's counts; a count is forgotten after a day.
class Throttle
{
public:
    explicit Throttle(Clock presentTime);

    /// To be called before the password is looked at. Zero: go ahead, and the attempt counts as failed until
    /// `succeeded` says otherwise, so that attempts at the same time don't slip through. Else the seconds to wait.
    /// An address of the machine itself isn't slowed down as such: it may be a proxy that speaks for everybody.
    std::int64_t begin(std::string_view account, std::string_view address, bool addressIsLoopback);
    void succeeded(std::string_view account, std::string_view address);

private:
    struct Count {
        std::int64_t attempts = 0;
        std::int64_t last = 0;
    };

    std::int64_t waitFor(const std::string& key, std::int64_t freeAttempts, std::int64_t now) const;
    void forgetOld(std::int64_t now);

    Clock clock;
    std::mutex mutex;
    std::map<std::string, Count> counts;
};

} // namespace orvcloud
