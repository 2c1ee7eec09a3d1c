#pragma once

#include "exporters/prc/EntityTypes.h"
#include "exporters/prc/Scene.h"
#include "exporters/prc/SectionWriter.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace prc
{

using Bytes = std::vector<std::uint8_t>;

/// The uncompressed content of the sections of a sound scene. `numbers` runs on from one section to the next, in the
/// order globals, tree.
Bytes globalsSection(Scene const& scene, EntityNumbers& numbers);
Bytes treeSection(Scene const& scene, EntityNumbers& numbers);
/// `meshWritten` is called after each mesh and ends the work by returning false; the result is of no use then.
Bytes tessellationSection(Scene const& scene, std::function<bool(std::size_t)> const& meshWritten);
/// Geometry or extra geometry: this subset leaves both empty.
Bytes emptySection(Entity section);
Bytes modelFileSection(Scene const& scene, UniqueId const& fileStructure);

} // namespace prc
