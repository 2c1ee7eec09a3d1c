#pragma once

#include "host/orvsg/Mesh.h"

#include <Graphic3d_ArrayOfSegments.hxx>
#include <Graphic3d_ArrayOfTriangles.hxx>

#include <optional>
#include <vector>

namespace orvviewer
{

/// A part's mesh in the drawing system's arrays, made once and shared by everything that draws or picks the part.
struct PartGeometry {
    struct Surface {
        Handle(Graphic3d_ArrayOfTriangles) triangles;
        std::optional<unsigned long> color; ///< packed; where the file colours these faces by themselves
    };
    std::vector<Surface> surfaces;           ///< one for each colour
    Handle(Graphic3d_ArrayOfSegments) edges; ///< null where there are none
};

PartGeometry makePartGeometry(orvsg::Mesh const& mesh, std::vector<float> const& edgeSegments);

} // namespace orvviewer
