#pragma once

namespace orv
{

/// How a setting shows itself in a dialog. Settings that no dialog shows carry an empty pointer.
class IPreferenceUI
{
public:
    virtual ~IPreferenceUI() = default;
};

} // namespace orv
