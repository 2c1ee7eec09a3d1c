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
    for (int node = 0; topology->transformOfNode.contains(node); ++node) {
        int const index = topology->transformOfNode.getValue(node);
        // Exact on purpose: resetting copies the matrices, so a component that was put back compares equal.
        if (!(resources->transforms.getValue(index).matrix == resources->initialTransforms.getValue(index).matrix)) {
            moved.insert(node);
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
        orvsg::Transform placement = resources->transforms.getValue(index);
        // A flag that is already set stays: a set identity places the node as well as an unset one.
        if (!placement.isSet && !(placement.matrix == identity.matrix)) {
            placement.isSet = true;
            resources->transforms.setValue(index, placement);
        }
    }
}

} // namespace orvglutils
