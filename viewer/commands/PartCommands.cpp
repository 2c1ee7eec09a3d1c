#include "viewer/commands/PartCommands.h"

#include "host/orv/IHint.h"
#include "host/orvglutils/MarkupUtils.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "host/orvsgutils/SceneQuery.h"

#include <algorithm>
#include <vector>

namespace orvviewer
{

namespace
{

struct Scene {
    explicit Scene(CommandContext const& context)
        : topology(orv::recordOf<orvsg::SCSceneTopo>(context.document())),
          resources(orv::recordOf<orvsg::SCSceneRes>(context.document())),
          runtime(orv::recordOf<orvsg::SCSceneRT>(context.document()))
    {
    }
    bool isComplete() const { return topology && resources && runtime; }
    bool has(int node) const { return topology->nodes.contains(node); }
    void setVisible(int node, bool visible)
    {
        if (node >= 0 && static_cast<std::size_t>(node) < runtime->visibility.size()) {
            runtime->visibility[static_cast<std::size_t>(node)] = visible;
        }
    }
    void setVisibleBelow(int node, bool visible)
    {
        setVisible(node, visible);
        for (int const child : topology->nodes.getValue(node).children) {
            setVisibleBelow(child, visible);
        }
    }
    std::set<int> withAllBelow(std::set<int> const& nodes) const
    {
        std::set<int> result;
        for (int node = 0; has(node); ++node) {
            // A parent stands before its children, so its own membership is settled already.
            if (nodes.contains(node) || result.contains(topology->nodes.getValue(node).parent)) {
                result.insert(node);
            }
        }
        return result;
    }
    void setVisibleAbove(int node, bool visible)
    {
        for (; has(node); node = topology->nodes.getValue(node).parent) {
            setVisible(node, visible);
        }
    }

    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orvsg::SCSceneRes> resources;
    std::shared_ptr<orvsg::SCSceneRT> runtime;
};

/// The nodes of the set that exist and have no other of the set above them.
std::vector<int> topmost(Scene const& scene, std::set<int> const& nodes)
{
    std::vector<int> result;
    for (int const node : nodes) {
        bool isBelow = false;
        for (int above = scene.topology->nodes.getValue(node).parent; scene.has(above) && !isBelow;
             above = scene.topology->nodes.getValue(above).parent) {
            isBelow = nodes.contains(above);
        }
        if (scene.has(node) && !isBelow) {
            result.push_back(node);
        }
    }
    return result;
}

/// The shift along the model's axes in the axes of the node's parent: placements are relative to it. They are rotations
/// and translations, so the transposed rotation turns back.
orvmath::Tuple<float, 3> shiftInParent(Scene const& scene, int node, double x, double y, double z)
{
    orvsgutils::SceneQuery const query(scene.resources, scene.topology, scene.runtime);
    int const parent = scene.topology->nodes.getValue(node).parent;
    if (!scene.has(parent)) {
        return {static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)};
    }
    auto const m = query.worldMatrix(parent);
    return {static_cast<float>(m[0] * x + m[1] * y + m[2] * z), static_cast<float>(m[4] * x + m[5] * y + m[6] * z),
            static_cast<float>(m[8] * x + m[9] * y + m[10] * z)};
}

} // namespace

void hideNodes(CommandContext& context, std::set<int> const& nodes)
{
    Scene scene(context);
    if (scene.isComplete() && !nodes.empty()) {
        for (int const node : nodes) {
            scene.setVisible(node, false);
        }
        context.raise(orv::HintCode::visibilityChanged);
    }
}

void showNodes(CommandContext& context, std::set<int> const& nodes)
{
    Scene scene(context);
    if (scene.isComplete() && !nodes.empty()) {
        for (int const node : nodes) {
            scene.setVisibleBelow(node, true);
            scene.setVisibleAbove(node, true);
        }
        context.raise(orv::HintCode::visibilityChanged);
    }
}

void isolateNodes(CommandContext& context, std::set<int> const& nodes)
{
    Scene scene(context);
    if (scene.isComplete() && !nodes.empty()) {
        std::fill(scene.runtime->visibility.begin(), scene.runtime->visibility.end(), false);
        for (int const node : nodes) {
            scene.setVisibleBelow(node, true);
            scene.setVisibleAbove(node, true);
        }
        context.raise(orv::HintCode::visibilityChanged);
    }
}

void showAllNodes(CommandContext& context)
{
    Scene scene(context);
    if (scene.isComplete()) {
        std::fill(scene.runtime->visibility.begin(), scene.runtime->visibility.end(), true);
        context.raise(orv::HintCode::visibilityChanged);
    }
}

void colourNodes(CommandContext& context, std::set<int> const& nodes, unsigned long packedColor)
{
    Scene scene(context);
    if (scene.isComplete() && !nodes.empty()) {
        for (int const node : scene.withAllBelow(nodes)) {
            orvsgutils::MaterialUtils::clearNodeColor(node, scene.resources, scene.runtime, scene.topology);
        }
        for (int const node : nodes) {
            orvsgutils::MaterialUtils::setNodeColor(node, packedColor, scene.resources, scene.runtime, scene.topology);
        }
        context.raise(orv::HintCode::appearanceChanged);
    }
}

void uncolourNodes(CommandContext& context, std::set<int> const& nodes)
{
    Scene scene(context);
    if (scene.isComplete() && !nodes.empty()) {
        for (int const node : scene.withAllBelow(nodes)) {
            orvsgutils::MaterialUtils::clearNodeColor(node, scene.resources, scene.runtime, scene.topology);
        }
        context.raise(orv::HintCode::appearanceChanged);
    }
}

void makeTransparent(CommandContext& context, std::set<int> const& nodes, float transparency)
{
    using orvsgutils::MaterialUtils;
    Scene scene(context);
    if (scene.isComplete() && !nodes.empty()) {
        for (int const node : scene.withAllBelow(nodes)) {
            MaterialUtils::clearNodeTransparency(node, scene.resources, scene.runtime, scene.topology);
        }
        orvsgutils::SceneQuery const query(context.document());
        float const value = std::clamp(transparency, 0.0F, 1.0F);
        for (int const node : nodes) {
            // What shines through from above or from the file is overruled by a value of the node's own.
            if (query.transparency(node) != value) {
                MaterialUtils::setNodeTransparency(node, value, scene.resources, scene.runtime, scene.topology);
            }
        }
        context.raise(orv::HintCode::appearanceChanged);
    }
}

void moveNodes(CommandContext& context, std::set<int> const& nodes, double x, double y, double z)
{
    Scene scene(context);
    if (!scene.isComplete()) {
        return;
    }
    auto const moving = topmost(scene, nodes);
    for (int const node : moving) {
        int const index = scene.topology->transformOfNode.getValue(node);
        auto transform = scene.resources->transforms.getValue(index);
        auto const shift = shiftInParent(scene, node, x, y, z);
        for (unsigned char axis = 0; axis < 3; ++axis) {
            auto const entry = static_cast<unsigned char>(12 + axis);
            transform.matrix[entry] += shift[axis];
        }
        transform.isSet = true;
        scene.resources->transforms.setValue(index, transform);
    }
    if (!moving.empty()) {
        orvglutils::MarkupUtils::updateScene(std::set<int>(moving.begin(), moving.end()), scene.resources,
                                             scene.runtime, scene.topology,
                                             orv::recordOf<orvsg::SCInfo>(context.document()));
        context.raise(orv::HintCode::sceneChanged);
    }
}

void resetNodes(CommandContext& context)
{
    Scene scene(context);
    if (scene.isComplete()) {
        orvsgutils::MaterialUtils::resetAll(scene.resources, scene.runtime, scene.topology);
        scene.resources->transforms = scene.resources->initialTransforms;
        std::fill(scene.runtime->visibility.begin(), scene.runtime->visibility.end(), true);
        context.raise(orv::HintCode::sceneChanged);
    }
}

} // namespace orvviewer
