// A library whose plug-in is no exporter.
#include "host/orv/IPlugin.h"

namespace
{

class Importer final : public orv::IPlugin
{
public:
    wchar_t const* getName() override { return L"test importer"; }
    PluginType getType() override { return importerPlugin; }
    std::shared_ptr<orv::Preferences> loadPreferences(std::shared_ptr<orv::IPreferencesRegistry>) override
    {
        return {};
    }
    void savePreferences(std::shared_ptr<orv::IPreferencesRegistry>, std::shared_ptr<orv::Preferences>) override {}
};

} // namespace

extern "C" int createPlugin(orv::IPlugin** object)
{
    *object = new Importer;
    return 0;
}

extern "C" int destroyPlugin(orv::IPlugin** object)
{
    delete *object;
    *object = nullptr;
    return 0;
}
