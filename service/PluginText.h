#pragma once

#include "host/orvsgutils/ResourceLoader.h"

#include <string>

/// The file name of this library, by which its resources are found.
inline constexpr wchar_t pluginLibrary[] = L"cloudplugin.dll";

/// A text of the plug-in in the current language. Fetched at each use: the language may change during a run.
inline std::wstring pluginText(int id)
{
    return orvsgutils::ResourceLoader::getString(pluginLibrary, id);
}
