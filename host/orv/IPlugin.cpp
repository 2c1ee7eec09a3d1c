#include "host/orv/IPlugin.h"

#include "host/orv/FileUtils.h"
#include "host/runtime/Runtime.h"

namespace orv
{

namespace
{

/// All libraries of the viewer lie together, whoever asks.
std::wstring libraryFolder(wchar_t const* name)
{
    return FileUtils::join(orvhost::settings().libraryDirectory, name);
}

} // namespace

std::wstring IPlugin::getDelayPluginPath(HINSTANCE /*module*/)
{
    return libraryFolder(L"delay");
}

std::wstring IPlugin::getPluginPath(HINSTANCE /*module*/, PluginType type)
{
    switch (type) {
    case importerPlugin:
        return libraryFolder(L"import");
    case exporterPlugin:
        return libraryFolder(L"export");
    case guiPlugin:
        break;
    }
    return libraryFolder(L"gui");
}

} // namespace orv
