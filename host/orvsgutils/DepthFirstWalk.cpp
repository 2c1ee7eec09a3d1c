#include "host/orvsgutils/DepthFirstWalk.h"

#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsgutils/TreeWalk.h"

#include <cstddef>
#include <vector>

namespace orvsgutils
{

Matrix identityMatrix()
{
    Matrix matrix;
    matrix[0] = matrix[5] = matrix[10] = matrix[15] = 1.0;
    return matrix;
}

Matrix product(Matrix const& left, Matrix const& right)
{
    // Column by column, so that the four rows are worked out together; each element's sum goes in the order of k.
    Matrix result;
    for (unsigned column = 0; column < 4; ++column) {
        double sums[4] = {};
        for (unsigned k = 0; k < 4; ++k) {
            double const factor = right[static_cast<unsigned char>(column * 4 + k)];
            for (unsigned row = 0; row < 4; ++row) {
                sums[row] += left[static_cast<unsigned char>(k * 4 + row)] * factor;
            }
        }
        for (unsigned row = 0; row < 4; ++row) {
            result[static_cast<unsigned char>(column * 4 + row)] = sums[row];
        }
    }
    return result;
}

Matrix widened(orvmath::Tuple<float, 16> const& matrix)
{
    Matrix result;
    for (unsigned char i = 0; i < 16; ++i) {
        result[i] = matrix[i];
    }
    return result;
}

DepthFirstWalk::DepthFirstWalk(orvsg::SCSceneRes const& res, orvsg::SCSceneTopo const& topo, orvsg::SCSceneRT const* rt)
    : resources(res), topology(topo), runtime(rt)
{
}

Occurrence const& DepthFirstWalk::enter(int node)
{
    if (!byNode.empty() && topology.nodes.contains(node)) {
        return kept(node);
    }
    int const parent = parentOf(topology, node);
    while (!ancestors.empty() && ancestors.back().node != parent) {
        ancestors.pop_back();
    }
    if (ancestors.empty() && parent >= 0) {
        byNode.resize(topology.nodes.size());
        return kept(node);
    }
    ancestors.push_back(below(ancestors.empty() ? Occurrence() : ancestors.back(), node));
    return ancestors.back();
}

Occurrence DepthFirstWalk::below(Occurrence const& parent, int node)
{
    ++steps;
    auto const bit = static_cast<std::size_t>(node);
    orvsg::Transform const& placement = resources.transforms.getValue(topology.transformOfNode.getValue(node));
    Occurrence result = parent;
    result.node = node;
    if (placement.isSet) {
        result.world = product(parent.world, widened(placement.matrix));
    }
    if (runtime != nullptr && bit < runtime->visibility.size() && !runtime->visibility[bit]) {
        result.isShown = false;
    }
    return result;
}

Occurrence const& DepthFirstWalk::kept(int node)
{
    std::vector<int> missing; // up to the nearest ancestor that is known
    int at = node;
    for (; at >= 0 && byNode[static_cast<std::size_t>(at)].node < 0; at = parentOf(topology, at)) {
        missing.push_back(at);
    }
    for (; !missing.empty(); missing.pop_back()) {
        Occurrence result = below(at >= 0 ? byNode[static_cast<std::size_t>(at)] : Occurrence(), missing.back());
        at = missing.back();
        byNode[static_cast<std::size_t>(at)] = result;
    }
    return byNode[static_cast<std::size_t>(node)];
}

} // namespace orvsgutils
