#pragma once

#include "exporters/base/PlacedParts.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

struct aiScene;

namespace meshwriters
{

struct SceneOptions {
    double millimetresPerUnit = 1;
    /// A mesh with more vertices or triangles than this is cut into several; 0 knows no limit.
    std::size_t mostInMesh = 0;
    /// Names without blanks and control characters, for formats in which a blank ends a name.
    bool plainNames = false;
    std::function<void(double)> progress; ///< called with 0 to 1; may be empty
};

/// The parts as Assimp's scene: one node a part below the root, in the order of the parts and with names that occur
/// once, each with a mesh for every look that it shows; vertices in the world, one material a look.
std::unique_ptr<aiScene> makeScene(std::vector<orvexport::PlacedPart> const& parts, SceneOptions const& options);

} // namespace meshwriters
