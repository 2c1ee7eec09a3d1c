#pragma once

#include "exporters/base/PlacedParts.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

struct aiScene;

namespace meshwriters
{

/// What a format bears as a name.
struct NameRules {
    /// Lines of text: a blank ends a name, a backslash may take the next line in, and "#" begins a comment.
    bool isPlain = false;
    std::size_t longest = 200; ///< bytes
    /// A mesh is named by its part's name, a line and its number. Meshes get no names of their own then, which Assimp
    /// would put between the two, and no part's name ends like that: readers find a part's mesh by its name.
    bool areNumbered = false;
};

struct SceneOptions {
    double millimetresPerUnit = 1;
    /// A mesh with more vertices or triangles than this is cut into several; 0 knows no limit.
    std::size_t mostInMesh = 0;
    NameRules names;
    std::function<void(double)> progress; ///< called with 0 to 1; may be empty
};

/// The parts as Assimp's scene: one node a part below the root, in the order of the parts and with names that occur
/// once, that of the root included, each with a mesh for every look that it shows; vertices in the world, one material
/// a look.
std::unique_ptr<aiScene> makeScene(std::vector<orvexport::PlacedPart> const& parts, SceneOptions const& options);

} // namespace meshwriters
