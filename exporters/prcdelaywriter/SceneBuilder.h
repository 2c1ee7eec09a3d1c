#pragma once

#include "exporters/prc/Scene.h"

#include <memory>
#include <optional>

namespace orv
{
class IDocument;
}

namespace prcdelay
{

/// The document as a PRC scene: the tree with its names and current placements, each part's triangles as often as they
/// look different, what each occurrence shows of colour, colours of single faces and transparency, and what is hidden.
/// Lengths are divided by `millimetresPerUnit`. What doesn't hold together in the records (a corner outside its mesh, a
/// number that is not finite) is left out. Nothing where there is no document or no tree.
std::optional<prc::Scene> buildScene(std::shared_ptr<orv::IDocument> const& document, double millimetresPerUnit);

} // namespace prcdelay
