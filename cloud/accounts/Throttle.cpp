#include "cloud/accounts/Throttle.h"

#include <algorithm>

namespace orvcloud
{
namespace
{
constexpr std::int64_t freePerPair = 5;
constexpr std::int64_t freePerAccount = 50;
constexpr std::int64_t freePerAddress = 20;
constexpr std::int64_t longestWait = 15 * 60;
constexpr std::int64_t forgottenAfter = 24 * 3600;
constexpr std::size_t mostCounts = 100'000;

std::string pairKey(std::string_view account, std::string_view address)
{
    return lowerAscii(account).append("\n").append(address);
}

std::string accountKey(std::string_view account)
{
    return lowerAscii(account).append("\n*");
}

std::string addressKey(std::string_view address)
{
    return std::string("*\n").append(address);
}
} // namespace

Throttle::Throttle(Clock presentTime) : clock(std::move(presentTime)) {}

std::int64_t Throttle::begin(std::string_view account, std::string_view address, bool addressIsLoopback)
{
    const std::lock_guard guard(mutex);
    const std::int64_t now = clock();
    const std::string pair = pairKey(account, address);
    const std::string everywhere = accountKey(account);
    const std::string anybody = addressKey(address);
    std::int64_t wait = std::max(waitFor(pair, freePerPair, now), waitFor(everywhere, freePerAccount, now));
    if (!addressIsLoopback)
        wait = std::max(wait, waitFor(anybody, freePerAddress, now));
    if (wait > 0)
        return wait;
    if (counts.size() >= mostCounts)
        forgetOld(now);
    for (const std::string& key : {pair, everywhere, anybody}) {
        Count& count = counts[key];
        count.attempts = now - count.last > forgottenAfter ? 1 : count.attempts + 1;
        count.last = now;
    }
    return 0;
}

void Throttle::succeeded(std::string_view account, std::string_view address)
{
    const std::lock_guard guard(mutex);
    counts.erase(pairKey(account, address));
    counts.erase(accountKey(account));
    const auto anybody = counts.find(addressKey(address));
    if (anybody != counts.end() && --anybody->second.attempts <= 0)
        counts.erase(anybody);
}

std::int64_t Throttle::waitFor(const std::string& key, std::int64_t freeAttempts, std::int64_t now) const
{
    const auto found = counts.find(key);
    if (found == counts.end() || found->second.attempts < freeAttempts)
        return 0;
    const std::int64_t doublings = std::min<std::int64_t>(found->second.attempts - freeAttempts, 10);
    const std::int64_t delay = std::min(longestWait, std::int64_t{2} << doublings);
    return std::max<std::int64_t>(0, found->second.last + delay - now);
}

void Throttle::forgetOld(std::int64_t now)
{
    std::erase_if(counts, [&](const auto& entry) { return now - entry.second.last > longestWait; });
    // Under attack from very many sides, room for new counts matters more than the old ones.
    if (counts.size() >= mostCounts)
        counts.clear();
}

} // namespace orvcloud
