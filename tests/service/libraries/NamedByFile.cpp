// An exporter plug-in that takes its name from its file, so that one build serves under every name.
#include "host/orv/Preferences.h"
#include "host/orvexp/IExporter.h"

#include <filesystem>
#include <memory>
#include <string>

#include <dlfcn.h>

namespace
{

class NamedByFile final : public orvexp::IExporter
{
public:
    NamedByFile()
    {
        static char const inThisLibrary = 0;
        Dl_info library{};
        if (dladdr(&inThisLibrary, &library) != 0) {
            name = std::filesystem::path(library.dli_fname).stem().wstring();
        }
    }
    wchar_t const* getName() override { return name.c_str(); }
    PluginType getType() override { return exporterPlugin; }
    std::shared_ptr<orv::Preferences> loadPreferences(std::shared_ptr<orv::IPreferencesRegistry> /*registry*/) override
    {
        return nullptr;
    }
    void savePreferences(std::shared_ptr<orv::IPreferencesRegistry> /*registry*/,
                         std::shared_ptr<orv::Preferences> /*preferences*/) override
    {
    }
    orvexp::Status save(wchar_t const* /*path*/, std::shared_ptr<orv::IDocument> const& /*document*/,
                        std::shared_ptr<orv::Preferences> /*preferences*/, orv::IStatusManager* /*status*/) override
    {
        return orvexp::Status::ok;
    }
    bool takes(wchar_t const* /*path*/) override { return true; }

private:
    std::wstring name;
};

} // namespace

extern "C" int createPlugin(orv::IPlugin** plugin)
{
    *plugin = new NamedByFile;
    return 0;
}

extern "C" int destroyPlugin(orv::IPlugin** plugin)
{
    delete *plugin;
    *plugin = nullptr;
    return 0;
}
