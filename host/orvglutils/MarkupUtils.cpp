#include "host/orvglutils/MarkupUtils.h"

#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"

namespace orvglutils
{

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
    orvsg::Transform const identity;
    for (int const node : nodes) {
        int const index = topology->transformOfNode.getValue(node);
        orvsg::Transform const& placement = resources->transforms.getValue(index);
        // A flag that is already set stays: a set identity places the node as well as an unset one.
        if (!placement.isSet && !(placement.matrix == identity.matrix)) {
            orvsg::Transform flagged = placement;
            flagged.isSet = true;
            resources->transforms.setValue(index, flagged);
        }
    }
}

} // namespace orvglutils
