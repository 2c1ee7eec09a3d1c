#include "exporters/base/EntryPoints.h"
#include "exporters/meshwriters/MeshExporter.h"

namespace
{

/// Counts are 16 bits wide in a 3DS file.
constexpr std::size_t mostInMesh = 65535;

class ThreeDsExporter final : public meshwriters::MeshExporter
{
public:
    ThreeDsExporter()
        : MeshExporter({L"3dswriter", L"{8a7f0c34-55be-4f0a-9d1e-0c8ef5a1b6d2}", L"3ds", "3ds", mostInMesh, true})
    {
    }
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(ThreeDsExporter)
