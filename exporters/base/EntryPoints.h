#pragma once

#include "host/orv/IPlugin.h"
#include "host/orv/PluginExport.h"

#include <new>

/// The two functions by which the viewer takes an exporter of that class out of its library and gives it back. Both
/// answer 0; where there is no memory the viewer gets null.
#define ORV_EXPORTER_ENTRY_POINTS(Class)                                                                               \
    extern "C" ORV_PLUGIN_EXPORT int createPlugin(orv::IPlugin** plugin)                                               \
    {                                                                                                                  \
        *plugin = new (std::nothrow) Class;                                                                            \
        return 0;                                                                                                      \
    }                                                                                                                  \
    extern "C" ORV_PLUGIN_EXPORT int destroyPlugin(orv::IPlugin** plugin)                                              \
    {                                                                                                                  \
        delete *plugin;                                                                                                \
        *plugin = nullptr;                                                                                             \
        return 0;                                                                                                      \
    }
