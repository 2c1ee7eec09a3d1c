// A deferred exporter for tests: writes a few bytes that say how it was called.

#include "host/orvexp/IDelayExporter.h"

#include <filesystem>
#include <fstream>

namespace
{

class DelayWriter final : public orvexp::IDelayExporter
{
public:
    orvexp::Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const&,
                        std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager*) override
    {
        std::ofstream(std::filesystem::path(path), std::ios::binary)
            << (preferences ? "PRC of the tests" : "PRC of the tests, without preferences");
        return orvexp::Status::ok;
    }
};

} // namespace

extern "C" {

int create(orvexp::IDelayExporter** exporter)
{
    *exporter = new DelayWriter;
    return 0;
}

int destroy(orvexp::IDelayExporter** exporter)
{
    delete *exporter;
    *exporter = nullptr;
    return 0;
}
}
