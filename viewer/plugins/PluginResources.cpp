#include "viewer/plugins/PluginResources.h"

namespace orvviewer
{

int PluginResources::getCommandId(int localNumber)
{
    auto const [entry, isNew] = idOfLocal.emplace(localNumber, next);
    if (isNew) {
        localOfId[next++] = localNumber;
    }
    return entry->second;
}

void PluginResources::addWindow(HWND window)
{
    if (window != nullptr) {
        enrolWindow(window);
    }
}

std::optional<int> PluginResources::localNumber(int commandId) const
{
    auto const found = localOfId.find(commandId);
    return found == localOfId.end() ? std::nullopt : std::optional(found->second);
}

} // namespace orvviewer
