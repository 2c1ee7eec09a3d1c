#pragma once

namespace orv
{

/// How a setting shows itself in a dialog. Settings that no dialog shows carry an empty pointer.
class IPreferenceUI
{
public:
    virtual ~IPreferenceUI() = default;
};

/// Where plug-ins may keep settings with the viewer.
class IPreferencesRegistry
{
public:
    virtual ~IPreferencesRegistry() = default;
};

} // namespace orv
