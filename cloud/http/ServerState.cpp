#include "cloud/http/ServerState.h"

#include <utility>

namespace orvcloud
{
namespace
{
constexpr std::size_t workerCount = 4;
constexpr std::size_t hasherCount = 2;
constexpr std::size_t smallAnswer = 64 * 1024;
} // namespace

bool ConnectionCount::enter(const std::string& peer, bool isShared)
{
    const std::lock_guard guard(mutex);
    const auto found = perPeer.find(peer);
    const std::size_t ofPeer = found == perPeer.end() ? 0 : found->second;
    if (total >= most || (!isShared && ofPeer >= mostPerPeer))
        return false;
    ++total;
    ++perPeer[peer];
    return true;
}

void ConnectionCount::leave(const std::string& peer)
{
    const std::lock_guard guard(mutex);
    --total;
    const auto found = perPeer.find(peer);
    if (--found->second == 0)
        perPeer.erase(found);
}

ServerState::ServerState(ServerSettings serverSettings, Application& served)
    : settings(std::move(serverSettings)), application(served), workers(workerCount), hashers(hasherCount),
      connections(settings.limits.connections, settings.limits.connectionsPerPeer)
{
}

void ServerState::log(const std::string& line) const
{
    if (settings.log)
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

ServerState::Held::Held(ServerState& owner, std::size_t answerSize)
    : state(owner), size(answerSize > smallAnswer ? answerSize : 0)
{
    if (size == 0 || (state.answerBytes += size) <= state.settings.limits.answerBytes)
        return;
    within = false;
    state.answerBytes -= size;
    size = 0;
}

ServerState::Held::~Held()
{
    state.answerBytes -= size;
}

bool ServerState::waitUntilIdle(std::chrono::milliseconds longest)
{
    std::unique_lock guard(mutex);
    return idle.wait_for(guard, longest, [this] { return requests == 0; });
}

} // namespace orvcloud
