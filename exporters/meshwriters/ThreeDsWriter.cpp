#include "exporters/base/EntryPoints.h"
#include "exporters/meshwriters/MeshExporter.h"

namespace
{

/// Counts are 16 bits wide in a 3DS file.
constexpr std::size_t mostInMesh = 65535;
/// Parts and meshes have places in one tree, counted in 16 bits with a sign, the root's being the first.
constexpr std::size_t mostNodes = 32767;
/// Programs of the format's time and the libraries that came after them read names of up to 63 bytes. A mesh has that
/// of its part, with a line and the mesh's number, of five digits at most, behind it.
constexpr std::size_t longestName = 63 - 1 - 5;

class ThreeDsExporter final : public meshwriters::MeshExporter
{
public:
    ThreeDsExporter()
        : MeshExporter({.library = L"3dswriter",
                        .identity = L"{8a7f0c34-55be-4f0a-9d1e-0c8ef5a1b6d2}",
                        .extension = L"3ds",
                        .assimpId = "3ds",
                        .mostInMesh = mostInMesh,
                        .mostNodes = mostNodes,
                        .names = {.isPlain = true, .longest = longestName, .areNumbered = true}})
    {
    }
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(ThreeDsExporter)
