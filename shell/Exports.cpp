// The two functions by which the viewer makes and destroys the plug-in.

#include "host/orv/PluginExport.h"
#include "shell/cloudplugin.h"

#include <new>

extern "C" {

/// Stores a new plug-in, or null where there is no memory for one. Always 0.
ORV_PLUGIN_EXPORT int createPlugin(orv::IPlugin** plugin)
{
    *plugin = new (std::nothrow) cloudplugin;
    return 0;
}

/// Deletes the plug-in and stores null. A null plug-in is left alone. Always 0.
ORV_PLUGIN_EXPORT int destroyPlugin(orv::IPlugin** plugin)
{
    if (*plugin != nullptr) {
        delete *plugin;
        *plugin = nullptr;
    }
    return 0;
}

} // extern "C"
