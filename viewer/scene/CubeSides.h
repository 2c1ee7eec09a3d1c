#pragma once

#include <array>
#include <string>

namespace orvviewer
{

/// What the view cube's sides are called, in UTF-8: front, back, left, right, top, bottom. For cubes made from now on;
/// English until then.
void nameCubeSides(std::array<std::string, 6> const& names);

} // namespace orvviewer
