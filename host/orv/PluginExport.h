#pragma once

/// Marks the entry points of a plug-in's library; everything else in it is hidden.
#ifdef _WIN32
#define ORV_PLUGIN_EXPORT __declspec(dllexport)
#else
#define ORV_PLUGIN_EXPORT __attribute__((visibility("default")))
#endif
