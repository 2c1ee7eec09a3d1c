#pragma once

#include "exporters/prc/Scene.h"

#include <array>
#include <cstddef>
#include <functional>

namespace orvtest
{

/// Calls for each instance of a part below the root, in the order of the tree, with its placement in the world.
void eachInstance(prc::Scene const& scene,
                  std::function<void(prc::Occurrence const&, prc::Part const&, prc::Matrix const&)> const& call);

/// Where a point of a part (x y z) stands in the world.
std::array<double, 3> pointIn(prc::Matrix const& world, double const* point);

} // namespace orvtest
