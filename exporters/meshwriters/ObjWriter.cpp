#include "exporters/base/EntryPoints.h"
#include "exporters/meshwriters/MeshExporter.h"

namespace
{

class ObjExporter final : public meshwriters::MeshExporter
{
public:
    ObjExporter()
        : MeshExporter({.library = L"objwriter",
                        .identity = L"{c1b9c5f7-1f3a-4c56-a2a7-6d0f2e9b7c43}",
                        .extension = L"obj",
                        .assimpId = "obj",
                        .names = {.isPlain = true}})
    {
    }
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(ObjExporter)
