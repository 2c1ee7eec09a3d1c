// A deferred exporter as small as they get.
#include "host/orvexp/IDelayExporter.h"

#include <filesystem>
#include <fstream>
#include <memory>

namespace
{

class Deferred final : public orvexp::IDelayExporter
{
public:
    orvexp::Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& /*document*/,
                        std::shared_ptr<orv::Preferences> /*preferences*/, orv::IStatusManager* /*status*/) override
    {
        std::ofstream(std::filesystem::path(path)) << "deferred";
        return orvexp::Status::ok;
    }
};

} // namespace

extern "C" int create(orvexp::IDelayExporter** exporter)
{
    *exporter = new Deferred;
    return 0;
}

extern "C" int destroy(orvexp::IDelayExporter** exporter)
{
    delete *exporter;
    *exporter = nullptr;
    return 0;
}
