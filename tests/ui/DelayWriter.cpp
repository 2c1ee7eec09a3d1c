// A deferred exporter for tests: writes a few bytes that say how it was called.

#include "host/orv/IApplication.h"
#include "host/orvexp/IDelayExporter.h"

#include <filesystem>
#include <fstream>

namespace
{

class DelayWriter final : public orvexp::IDelayExporter
{
public:
    orvexp::Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const&,
                        std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status) override
    {
        std::ofstream(std::filesystem::path(path), std::ios::binary)
            << "copy " << ++copies << (preferences ? " with preferences" : " without preferences");
        if (status != nullptr) {
            status->setProgress(42, 1);
        }
        return orvexp::Status::ok;
    }

private:
    int copies = 0; // made by this exporter
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
