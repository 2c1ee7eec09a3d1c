// PRC files by the exporter list. The deferred exporter writes the same files by a library of its own.

#include "exporters/base/EntryPoints.h"
#include "exporters/base/Exporter.h"
#include "exporters/base/Units.h"
#include "exporters/prc/PrcWriter.h"
#include "exporters/prcdelaywriter/SceneBuilder.h"

namespace
{

class PrcExporter final : public orvexport::Exporter
{
public:
    PrcExporter() : Exporter(L"prcwriter", L"{0f6e6a8e-6d5f-4c3b-9b46-2f2a1c8d7e10}", {L"prc"}) {}

private:
    void write(orvexport::Job const& job) override
    {
        auto const scene = prcdelay::buildScene(job.document, orvexport::millimetresPerUnit(job.preferences));
        if (!scene) {
            throw orvexport::NothingToWrite();
        }
        constexpr double builtPart = 0.2;
        prc::WriteOptions options;
        options.progress = [&](double done) {
            job.progress.set(builtPart + (1 - builtPart) * done);
            return true;
        };
        auto const content = prc::encode(*scene, options);
        job.file.write(content.data(), content.size());
    }
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(PrcExporter)
