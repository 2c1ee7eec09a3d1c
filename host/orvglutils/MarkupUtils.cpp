#include "host/orvglutils/MarkupUtils.h"

#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"

#include <cstddef>

namespace orvglutils
{

namespace
{

using Transforms = orvsg::Container<int, orvsg::Transform>;

void settle(Transforms& transforms, int index)
{
    static orvsg::Transform const identity;
    orvsg::Transform const& placement = transforms.getValue(index);
    // A flag that is already set stays: a set identity places the node as well as an unset one.
    if (!placement.isSet && !(placement.matrix == identity.matrix)) {
        orvsg::Transform flagged = placement;
        flagged.isSet = true;
        transforms.setValue(index, flagged);
    }
}

/// So many different numbers between 0 and the last node are all of them. To know it saves the way through the set,
/// which costs more than the placements.
bool isAll(std::set<int> const& nodes, std::size_t count)
{
    return count > 0 && nodes.size() == count && *nodes.begin() == 0 &&
           static_cast<std::size_t>(*nodes.rbegin()) == count - 1;
}

} // namespace

void MarkupUtils::getMovedComponents(std::shared_ptr<orvsg::SCSceneRes> resources,
                                     std::shared_ptr<orvsg::SCSceneTopo> topology, std::set<int>& moved)
{
    if (!resources || !topology) {
        return;
    }
    int node = -1;
    for (int const index : topology->transformOfNode) {
        ++node;
        // Exact on purpose: resetting copies the matrices, so a component that was put back compares equal.
        if (!(resources->transforms.getValue(index).matrix == resources->initialTransforms.getValue(index).matrix)) {
            moved.insert(moved.end(), node);
        }
    }
}

void MarkupUtils::updateScene(std::set<int> const& nodes, std::shared_ptr<orvsg::SCSceneRes>& resources,
                              std::shared_ptr<orvsg::SCSceneRT> /*runtime*/,
                              std::shared_ptr<orvsg::SCSceneTopo>& topology, std::shared_ptr<orvsg::SCInfo> /*info*/)
{
    if (!resources || !topology) {
        return;
    }
    if (isAll(nodes, topology->transformOfNode.size())) {
        for (int const index : topology->transformOfNode) {
            settle(resources->transforms, index);
        }
        return;
    }
    for (int const node : nodes) {
        settle(resources->transforms, topology->transformOfNode.getValue(node));
    }
}

} // namespace orvglutils
