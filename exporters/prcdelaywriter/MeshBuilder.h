#pragma once

#include "exporters/prc/Scene.h"
#include "host/orvsg/Mesh.h"

#include <cstddef>
#include <functional>
#include <optional>

namespace prcdelay
{

/// Gives the style of a face of that packed colour, or nothing where the face looks like the rest of its body.
using FaceStyle = std::function<std::optional<std::size_t>(unsigned long)>;

/// A tessellation for PRC: points and normals that coincide exactly are stored once, coordinates are multiplied by
/// `scale`, neighbouring faces of one look are joined. Triangles with a corner outside the mesh or a coordinate that
/// is not finite are left out; without a usable normal for each vertex, normals are left to the reader.
prc::Mesh buildMesh(orvsg::Mesh const& mesh, double scale, FaceStyle const& styleOf);

} // namespace prcdelay
