#pragma once

#include "host/orvsg/Mesh.h"

#include <vector>

namespace orvviewer
{

/// Gives a mesh without normals its shading: neighbouring triangles that meet at less than `creaseDegrees` are shaded
/// smoothly, others get vertices of their own along the crease.
void shadeByCrease(orvsg::Mesh& mesh, double creaseDegrees);

/// Segments (x y z, x y z) along creases and open boundaries of a triangulation.
std::vector<float> creaseSegments(orvsg::Mesh const& mesh, double creaseDegrees);

} // namespace orvviewer
