#include "exporters/base/EntryPoints.h"
#include "exporters/meshwriters/MeshExporter.h"

namespace
{

class ColladaExporter final : public meshwriters::MeshExporter
{
public:
    ColladaExporter() : MeshExporter({L"colladawriter", L"{e4d2b8a1-7c69-4e05-8f3b-2a5c9d6e1f70}", L"dae", "collada"})
    {
    }
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(ColladaExporter)
