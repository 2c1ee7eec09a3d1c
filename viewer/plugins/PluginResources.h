#pragma once

#include "host/orvui/IResourceManager.h"

#include <functional>
#include <map>
#include <optional>

namespace orvviewer
{

/// Hands out command numbers to one plug-in and takes its panes in.
class PluginResources final : public orvui::IResourceManager
{
public:
    using Enrol = std::function<void(HWND)>;

    /// Numbers are taken from `nextId`, which all plug-ins share.
    PluginResources(int& nextId, Enrol enrol) : next(nextId), enrolWindow(std::move(enrol)) {}

    int getCommandId(int localNumber) override;
    void addWindow(HWND window) override;

    /// The plug-in's own number of a command; empty for one that isn't its.
    std::optional<int> localNumber(int commandId) const;

private:
    int& next;
    Enrol enrolWindow;
    std::map<int, int> idOfLocal;
    std::map<int, int> localOfId;
};

} // namespace orvviewer
