#include "host/orvsgutils/DepthFirstWalk.h"

#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsgutils/TreeWalk.h"

#include <cstddef>

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
    Matrix result;
    for (unsigned column = 0; column < 4; ++column) {
        for (unsigned row = 0; row < 4; ++row) {
            double sum = 0.0;
            for (unsigned k = 0; k < 4; ++k) {
                sum +=
                    left[static_cast<unsigned char>(k * 4 + row)] * right[static_cast<unsigned char>(column * 4 + k)];
            }
            result[static_cast<unsigned char>(column * 4 + row)] = sum;
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
    int const parent = parentOf(topology, node);
    while (!ancestors.empty() && ancestors.back().node != parent) {
        ancestors.pop_back();
    }
    if (!ancestors.empty()) {
        ancestors.push_back(below(ancestors.back(), node));
    } else {
        ancestors.push_back(parent < 0 ? below(Occurrence(), node) : fromTheRoot(node));
    }
    return ancestors.back();
}

Occurrence DepthFirstWalk::below(Occurrence const& parent, int node) const
{
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

Occurrence DepthFirstWalk::fromTheRoot(int node) const
{
    std::vector<int> chain;
    for (int at = node; at >= 0; at = parentOf(topology, at)) {
        chain.push_back(at);
    }
    Occurrence result;
    for (auto at = chain.rbegin(); at != chain.rend(); ++at) {
        result = below(result, *at);
    }
    return result;
}

} // namespace orvsgutils
