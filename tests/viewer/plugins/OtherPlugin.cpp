// A plug-in of another kind: it has no windows. Built with ORV_THROWING it doesn't end well, either.

#include "host/orv/IPlugin.h"

#include <stdexcept>

namespace
{

class OtherPlugin final : public orv::IPlugin
{
public:
    OtherPlugin() : IPlugin(L"{22222222-3333-4444-5555-666666666666}") {}

    wchar_t const* getName() override { return L"other"; }
    PluginType getType() override { return guiPlugin; }
    std::shared_ptr<orv::Preferences> loadPreferences(std::shared_ptr<orv::IPreferencesRegistry>) override
    {
        return nullptr;
    }
    void savePreferences(std::shared_ptr<orv::IPreferencesRegistry>, std::shared_ptr<orv::Preferences>) override {}
};

} // namespace

extern "C" int createPlugin(orv::IPlugin** plugin)
{
    *plugin = new OtherPlugin;
    return 0;
}

extern "C" int destroyPlugin(orv::IPlugin** plugin)
{
    delete *plugin;
    *plugin = nullptr;
#ifdef ORV_THROWING
    throw std::runtime_error("ended on purpose");
#else
    return 0;
#endif
}
