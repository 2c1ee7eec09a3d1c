#include "cloud/accounts/DailyCount.h"

namespace orvcloud
{

std::int64_t DailyCount::take(std::int64_t account, std::int64_t amount)
{
    constexpr std::int64_t dayLength = 24 * 3600;
    const std::lock_guard guard(mutex);
    const std::int64_t now = clock();
    if (now / dayLength != day) {
        day = now / dayLength;
        taken.clear();
    }
    std::int64_t& sum = taken[account];
    if (sum + amount > most)
        return dayLength - now % dayLength;
    sum += amount;
    return 0;
}

} // namespace orvcloud
