#pragma once

#include "host/orvsg/Mesh.h"

#include <array>
#include <vector>

namespace orvwriter
{

using Point = std::array<float, 3>;

/// The lines along which the faces of a mesh end, as chains of points; a line that two faces share comes once. A line
/// where a face meets itself is none.
std::vector<std::vector<Point>> faceBorders(orvsg::Mesh const& mesh);

} // namespace orvwriter
