#pragma once

#include <windows.h>

namespace orvui
{

/// Given to a plug-in while it sets itself up.
class IResourceManager
{
public:
    virtual ~IResourceManager() = default;

    /// The command id under which the viewer routes a ribbon button or pane back to the plug-in, which then receives
    /// the local number again.
    virtual int getCommandId(int localNumber) = 0;
    /// Enrols the window of a pane; null is ignored.
    virtual void addWindow(HWND window) = 0;
};

} // namespace orvui
