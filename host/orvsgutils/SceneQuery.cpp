#include "host/orvsgutils/SceneQuery.h"

#include "host/orv/IDocument.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsgutils/DepthFirstWalk.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "host/orvsgutils/TreeWalk.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvsgutils
{

namespace
{

float unitRange(float value)
{
    return std::isfinite(value) ? std::clamp(value, 0.0F, 1.0F) : 0.0F;
}

} // namespace

SceneQuery::SceneQuery(std::shared_ptr<orvsg::SCSceneRes> resources, std::shared_ptr<orvsg::SCSceneTopo> topology,
                       std::shared_ptr<orvsg::SCSceneRT> runtime)
    : res(std::move(resources)), topo(std::move(topology)), rt(std::move(runtime))
{
}

SceneQuery::SceneQuery(std::shared_ptr<orv::IDocument> const& document)
    : res(orv::recordOf<orvsg::SCSceneRes>(document)), topo(orv::recordOf<orvsg::SCSceneTopo>(document)),
      rt(orv::recordOf<orvsg::SCSceneRT>(document))
{
}

bool SceneQuery::isComplete() const
{
    return res != nullptr && topo != nullptr && rt != nullptr;
}

int SceneQuery::nodeCount() const
{
    return topo ? static_cast<int>(topo->nodes.size()) : 0;
}

orvmath::Tuple<double, 16> SceneQuery::worldMatrix(int node) const
{
    Matrix world = identityMatrix();
    if (!res || !topo || !topo->nodes.contains(node)) {
        return world;
    }
    for (; node >= 0; node = parentOf(*topo, node)) {
        orvsg::Transform const& placement = res->transforms.getValue(topo->transformOfNode.getValue(node));
        if (placement.isSet) {
            world = product(widened(placement.matrix), world);
        }
    }
    return world;
}

bool SceneQuery::isShown(int node) const
{
    if (!topo || !rt || !topo->nodes.contains(node)) {
        return false;
    }
    auto const isHidden = [this](int at) {
        auto const index = static_cast<std::size_t>(at);
        return index < rt->visibility.size() && !rt->visibility[index];
    };
    return nearestWith(*topo, node, isHidden) < 0;
}

unsigned long SceneQuery::color(int node) const
{
    auto resources = res;
    auto topology = topo;
    return MaterialUtils::getNodeColor(node, resources, topology);
}

bool SceneQuery::isColoredByUser(int node) const
{
    return res && topo &&
           nearestWith(*topo, node, [this](int at) { return res->materials.getValue(at).isColored; }) >= 0;
}

float SceneQuery::transparency(int node) const
{
    if (!res || !topo || !topo->nodes.contains(node)) {
        return 0.0F;
    }
    int const source = nearestWith(*topo, node, [this](int at) { return res->materials.getValue(at).isTransparent; });
    return source >= 0 ? unitRange(res->materials.getValue(source).transparency)
                       : unitRange(res->materials.getValue(node).ownTransparency);
}

} // namespace orvsgutils
