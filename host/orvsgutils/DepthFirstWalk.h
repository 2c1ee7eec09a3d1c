#pragma once

#include "host/orvmath/Tuple.h"

#include <cstddef>
#include <vector>

namespace orvsg
{
class SCSceneRT;
class SCSceneRes;
class SCSceneTopo;
class Transform;
} // namespace orvsg

namespace orvsgutils
{

/// Column by column, acting on column vectors, in double precision.
using Matrix = orvmath::Tuple<double, 16>;

Matrix identityMatrix();
/// `left` times `right`.
Matrix product(Matrix const& left, Matrix const& right);
Matrix widened(orvmath::Tuple<float, 16> const& matrix);

/// Where a node stands in the model when everything above it is taken into account.
struct Occurrence {
    int node = -1;
    Matrix world = identityMatrix();
    bool isShown = true; ///< its own bit and those of all its ancestors are set
};

/// Goes through the nodes in their order and carries each one's ancestors along, so that a whole model costs no more
/// than its number of nodes. A tree whose nodes are numbered otherwise is walked as well: from the first node on whose
/// parent isn't carried along, the walk keeps every occurrence by its node, and works none out more than once again.
class DepthFirstWalk
{
public:
    /// Without run-time state every node counts as shown. The records outlive the walk and stay as they are meanwhile.
    DepthFirstWalk(orvsg::SCSceneRes const& resources, orvsg::SCSceneTopo const& topology,
                   orvsg::SCSceneRT const* runtime);

    /// The occurrence of the next node; valid until the next call.
    Occurrence const& enter(int node);

    /// How many occurrences have been worked out so far: at most two for each node of the model, whatever its tree.
    std::size_t workedOut() const { return steps; }

private:
    Occurrence below(Occurrence const& parent, int node);
    Occurrence const& kept(int node);

    orvsg::SCSceneRes const& resources;
    orvsg::SCSceneTopo const& topology;
    orvsg::SCSceneRT const* runtime;
    std::vector<Occurrence> ancestors; ///< from the root down; the last one is the node entered last
    std::vector<Occurrence> byNode;    ///< empty while the ancestors do; of node -1 where it isn't worked out yet
    std::size_t steps = 0;
};

} // namespace orvsgutils
