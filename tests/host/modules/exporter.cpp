// A working library: one exporter that writes its own name, and a count of what it has made and not got back.
#include "host/orvexp/IExporter.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace
{

int alive = 0;

class Exporter final : public orvexp::IExporter
{
public:
    Exporter() { ++alive; }
    ~Exporter() override { --alive; }

    wchar_t const* getName() override { return L"test exporter"; }
    PluginType getType() override { return exporterPlugin; }
    std::shared_ptr<orv::Preferences> loadPreferences(std::shared_ptr<orv::IPreferencesRegistry>) override
    {
        return std::make_shared<orv::Preferences>();
    }
    void savePreferences(std::shared_ptr<orv::IPreferencesRegistry>, std::shared_ptr<orv::Preferences>) override {}

    orvexp::Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const&, std::shared_ptr<orv::Preferences>,
                        orv::IStatusManager*) override
    {
        std::ofstream file{std::filesystem::path(path)};
        file << "test exporter";
        return file ? orvexp::Status::ok : orvexp::Status::cannotWrite;
    }
    bool takes(wchar_t const* path) override { return std::filesystem::path(path).extension() == ".orvanta"; }
};

template <class T>
int make(T** object)
{
    *object = new Exporter;
    return 0;
}

template <class T>
int unmake(T** object)
{
    delete *object;
    *object = nullptr;
    return 0;
}

} // namespace

extern "C" {

int createPlugin(orv::IPlugin** object)
{
    return make(object);
}
int destroyPlugin(orv::IPlugin** object)
{
    return unmake(object);
}
int create(orvexp::IDelayExporter** object)
{
    return make(object);
}
int destroy(orvexp::IDelayExporter** object)
{
    return unmake(object);
}
int countAlive()
{
    return alive;
}
int makeNothing(void** object)
{
    *object = nullptr;
    return 0;
}
}
