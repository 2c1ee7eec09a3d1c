#include "tour/SceneState.h"

#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"

namespace orvtour
{

namespace
{

std::set<int> nodesOf(orvsg::Container<int, int> const& list)
{
    std::set<int> nodes(list.begin(), list.end());
    nodes.erase(-1);
    return nodes;
}

} // namespace

SceneState readScene(std::shared_ptr<orv::IDocument> const& document)
{
    SceneState state;
    auto const runtime = orv::recordOf<orvsg::SCSceneRT>(document);
    auto const resources = orv::recordOf<orvsg::SCSceneRes>(document);
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(document);
    orvsgutils::SceneQuery const query(document);
    if (!runtime || !resources || !renderer || !query.isComplete()) {
        return state;
    }
    state.visibility = runtime->visibility;
    state.coloredNodes = nodesOf(runtime->coloredNodes);
    state.transparentNodes = nodesOf(runtime->transparentNodes);
    for (int node = 0; node < query.nodeCount(); ++node) {
        state.colors.push_back(query.color(node));
        state.transparency.push_back(query.transparency(node));
    }
    for (auto const& transform : resources->transforms) {
        state.placements.push_back(transform.matrix);
    }
    state.eye = renderer->camera->eye;
    state.target = renderer->camera->target;
    state.up = renderer->camera->up;
    return state;
}

std::string difference(SceneState const& a, SceneState const& b)
{
    std::string words;
    auto const compare = [&words](bool equal, char const* what) {
        if (!equal) {
            words += words.empty() ? what : std::string(", ") + what;
        }
    };
    compare(a.visibility == b.visibility, "visibility");
    compare(a.colors == b.colors && a.coloredNodes == b.coloredNodes, "colours");
    compare(a.transparency == b.transparency && a.transparentNodes == b.transparentNodes, "transparency");
    compare(a.placements == b.placements, "placements");
    compare(a.eye == b.eye && a.target == b.target && a.up == b.up, "camera");
    return words;
}

std::vector<int> partNodes(std::shared_ptr<orv::IDocument> const& document)
{
    std::vector<int> nodes;
    if (auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document)) {
        int number = 0;
        for (auto const& node : topology->nodes) {
            if (node.mesh >= 0) {
                nodes.push_back(number);
            }
            ++number;
        }
    }
    return nodes;
}

} // namespace orvtour
