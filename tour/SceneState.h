#pragma once

#include "host/orv/IDocument.h"
#include "host/orvmath/Tuple.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace orvtour
{

/// What a comment brings back of a document, read straight from the scene records.
struct SceneState {
    std::vector<bool> visibility;
    std::vector<unsigned long> colors; ///< packed, as each node shows it
    std::vector<float> transparency;   ///< as each node shows it
    std::set<int> coloredNodes;        ///< by the user
    std::set<int> transparentNodes;    ///< by the user
    std::vector<orvmath::Tuple<float, 16>> placements;
    orvmath::Tuple<float, 3> eye;
    orvmath::Tuple<float, 3> target;
    orvmath::Tuple<float, 3> up;

    bool operator==(SceneState const&) const = default;
};

SceneState readScene(std::shared_ptr<orv::IDocument> const& document);

/// What two states differ in, in words; empty where they are equal.
std::string difference(SceneState const& a, SceneState const& b);

/// Nodes that carry geometry, in the order of their numbers.
std::vector<int> partNodes(std::shared_ptr<orv::IDocument> const& document);

} // namespace orvtour
