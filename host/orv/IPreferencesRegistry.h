#pragma once

namespace orv
{

/// Where plug-ins may keep settings with the viewer.
class IPreferencesRegistry
{
public:
    virtual ~IPreferencesRegistry() = default;
};

} // namespace orv
