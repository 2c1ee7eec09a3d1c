#include "cloud/http/ServerState.h"

#include <utility>

namespace orvcloud
{
namespace
{
constexpr std::size_t workerCount = 4;
constexpr std::size_t hasherCount = 2;
} // namespace

ServerState::ServerState(ServerSettings serverSettings, Application& served)
    : settings(std::move(serverSettings)), application(served), workers(workerCount), hashers(hasherCount)
{
}

void ServerState::log(const std::string& line)
{
    if (!settings.log)
        return;
    const std::lock_guard guard(mutex);
    settings.log(line);
}

ServerState::Busy::Busy(ServerState& owner) : state(owner)
{
    const std::lock_guard guard(state.mutex);
    ++state.requests;
}

ServerState::Busy::~Busy()
{
    const std::lock_guard guard(state.mutex);
    if (--state.requests == 0)
        state.idle.notify_all();
}

bool ServerState::waitUntilIdle(std::chrono::milliseconds longest)
{
    std::unique_lock guard(mutex);
    return idle.wait_for(guard, longest, [this] { return requests == 0; });
}

} // namespace orvcloud
