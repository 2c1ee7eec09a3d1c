#pragma once

#include "host/orvsg/Mesh.h"

#include <TopTools_DataMapOfShapeInteger.hxx>
#include <TopoDS_Shape.hxx>

#include <vector>

namespace orvviewer
{

/// One part, ready to be drawn.
struct Tessellation {
    orvsg::Mesh mesh;
    std::vector<float> edgeSegments; ///< as in EdgeRecord
};

/// Triangulates a part so finely that its curves look round at usual sizes. `faceColors` gives the packed colours of
/// the faces that have one of their own. A shape without faces gives an empty mesh.
Tessellation tessellate(TopoDS_Shape const& shape, TopTools_DataMapOfShapeInteger const& faceColors);

} // namespace orvviewer
