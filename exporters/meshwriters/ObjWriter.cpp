#include "exporters/base/EntryPoints.h"
#include "exporters/meshwriters/MeshExporter.h"

namespace
{

class ObjExporter final : public meshwriters::MeshExporter
{
public:
    ObjExporter()
        : MeshExporter(
              {L"objwriter", L"{c1b9c5f7-1f3a-4c56-a2a7-6d0f2e9b7c43}", L"obj", "obj", 0, 0, {.isPlain = true}})
    {
    }
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(ObjExporter)
