#pragma once

#include "host/orvsg/Mesh.h"

#include <TopoDS_Compound.hxx>
#include <TopoDS_Face.hxx>

#include <utility>
#include <vector>

namespace orvwriter
{

/// A part as a shape without surfaces: its triangles, one shape face for each face of the mesh, and where faces meet
/// one polygon for each line. `colored` lists the faces that have a colour of their own, packed.
struct PartShape {
    TopoDS_Compound shape;
    std::vector<std::pair<TopoDS_Face, unsigned long>> colored;
};

/// Triangles with a corner outside the mesh or a coordinate that is not finite are left out.
PartShape makePartShape(orvsg::Mesh const& mesh);

} // namespace orvwriter
