#include "exporters/base/EntryPoints.h"
#include "exporters/meshwriters/MeshExporter.h"

namespace
{

class StlExporter final : public meshwriters::MeshExporter
{
public:
    StlExporter() : MeshExporter({L"stlwriter", L"{3e6f1a90-8c2d-4b7e-b5f4-91d7a8c0e265}", L"stl", "stlb"}) {}
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(StlExporter)
