// An exporter plug-in as small as they get: writes how many settings it was given and of which model, and moves the
// bar.
#include "host/orv/IDocument.h"
#include "host/orv/IStatusManager.h"
#include "host/orv/Preferences.h"
#include "host/orvexp/IExporter.h"
#include "host/orvsg/SCInfo.h"
#include "platform/text/Text.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#ifdef ORV_TEST_DEPENDENCY
extern "C" int deferredDependency();
#endif

namespace
{

class Exporter final : public orvexp::IExporter
{
public:
    wchar_t const* getName() override
    {
#ifdef ORV_TEST_DEPENDENCY
        return deferredDependency() == 11 ? ORV_TEST_NAME : L"not what it depends on";
#else
        return ORV_TEST_NAME;
#endif
    }
    PluginType getType() override
    {
        return exporterPlugin;
    }
    std::shared_ptr<orv::Preferences> loadPreferences(std::shared_ptr<orv::IPreferencesRegistry> /*registry*/) override
    {
        return nullptr;
    }
    void savePreferences(std::shared_ptr<orv::IPreferencesRegistry> /*registry*/,
                         std::shared_ptr<orv::Preferences> /*preferences*/) override
    {
    }
    orvexp::Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                        std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status) override
    {
        auto const info = orv::recordOf<orvsg::SCInfo>(document);
        std::ofstream(std::filesystem::path(path))
            << "native with " << (preferences ? preferences->entries().size() : 0) << " settings of "
            << (info ? orvtext::toUtf8(info->file()) : "no model");
        if (status != nullptr) {
            status->setProgress(42, 1);
        }
        return orvexp::Status::ok;
    }
    bool takes(wchar_t const* path) override
    {
        return std::wstring(path).ends_with(ORV_TEST_EXTENSION);
    }
};

} // namespace

extern "C" int createPlugin(orv::IPlugin** plugin)
{
    *plugin = new Exporter;
    return 0;
}

extern "C" int destroyPlugin(orv::IPlugin** plugin)
{
    delete *plugin;
    *plugin = nullptr;
    return 0;
}
