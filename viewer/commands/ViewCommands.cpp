#include "viewer/commands/ViewCommands.h"

#include "host/orv/IHint.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"

#include <vector>

namespace orvviewer
{

namespace
{

constexpr std::size_t manyVertices = 3'000'000; ///< above this the corners of the boxes stand in for the vertices

orvmath::Tuple<float, 3> placed(orvmath::Tuple<double, 16> const& m, float x, float y, float z)
{
    orvmath::Tuple<float, 3> point;
    for (unsigned char row = 0; row < 3; ++row) {
        point[row] =
            static_cast<float>(m[row] * x + m[static_cast<unsigned char>(4 + row)] * y +
                               m[static_cast<unsigned char>(8 + row)] * z + m[static_cast<unsigned char>(12 + row)]);
    }
    return point;
}

bool isAtOrBelow(orvsg::SCSceneTopo const& topology, int node, std::set<int> const& nodes)
{
    for (; topology.nodes.contains(node); node = topology.nodes.getValue(node).parent) {
        if (nodes.contains(node)) {
            return true;
        }
    }
    return false;
}

/// Points that a picture must hold to show the shown nodes, those at or below `only` where that isn't empty.
std::vector<orvmath::Tuple<float, 3>> outlinePoints(std::shared_ptr<orv::IDocument> const& document,
                                                    std::set<int> const& only)
{
    std::vector<orvmath::Tuple<float, 3>> points;
    orvsgutils::SceneQuery const scene(document);
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    auto const resources = orv::recordOf<orvsg::SCSceneRes>(document);
    if (!scene.isComplete()) {
        return points;
    }
    std::size_t vertices = 0;
    for (auto const& node : topology->nodes) {
        if (node.mesh >= 0 && static_cast<std::size_t>(node.mesh) < resources->meshes.size()) {
            vertices += resources->meshes[static_cast<std::size_t>(node.mesh)]->positions.size() / 3;
        }
    }
    for (int node = 0; node < scene.nodeCount(); ++node) {
        int const mesh = topology->nodes.getValue(node).mesh;
        if (mesh < 0 || static_cast<std::size_t>(mesh) >= resources->meshes.size() || !scene.isShown(node) ||
            (!only.empty() && !isAtOrBelow(*topology, node, only))) {
            continue;
        }
        auto const matrix = scene.worldMatrix(node);
        if (vertices <= manyVertices) {
            auto const& positions = resources->meshes[static_cast<std::size_t>(mesh)]->positions;
            for (std::size_t i = 0; i + 2 < positions.size(); i += 3) {
                points.push_back(placed(matrix, positions[i], positions[i + 1], positions[i + 2]));
            }
        } else {
            auto const& box = resources->boxes.getValue(node);
            for (unsigned corner = 0; corner < 8; ++corner) {
                points.push_back(placed(matrix, (corner & 1U) != 0 ? box.maximum[0] : box.minimum[0],
                                        (corner & 2U) != 0 ? box.maximum[1] : box.minimum[1],
                                        (corner & 4U) != 0 ? box.maximum[2] : box.minimum[2]));
            }
        }
    }
    return points;
}

void fitTo(CommandContext& context, std::set<int> const& only)
{
    if (auto const renderer = orv::recordOf<orvgl::SCRenderer>(context.document())) {
        fit(*renderer->camera, outlinePoints(context.document(), only), context.pictureAspect());
        context.raise(orv::HintCode::viewChanged);
    }
}

} // namespace

void fitView(CommandContext& context)
{
    fitTo(context, {});
}

void fitNodes(CommandContext& context, std::set<int> const& nodes)
{
    fitTo(context, nodes);
}

void lookFromSide(CommandContext& context, StandardView view)
{
    if (auto const renderer = orv::recordOf<orvgl::SCRenderer>(context.document())) {
        lookFrom(*renderer->camera, view);
        fitView(context);
    }
}

void lookAlong(CommandContext& context, double x, double y, double z)
{
    if (auto const renderer = orv::recordOf<orvgl::SCRenderer>(context.document())) {
        lookFrom(*renderer->camera, x, y, z);
        fitView(context);
    }
}

void zoomView(CommandContext& context, double factor)
{
    if (auto const renderer = orv::recordOf<orvgl::SCRenderer>(context.document())) {
        zoom(*renderer->camera, factor);
        context.raise(orv::HintCode::viewChanged);
    }
}

void setOrthographic(CommandContext& context, bool orthographic)
{
    if (auto const renderer = orv::recordOf<orvgl::SCRenderer>(context.document())) {
        renderer->camera->orthographic = orthographic;
        context.raise(orv::HintCode::viewChanged);
    }
}

bool isOrthographic(CommandContext const& context)
{
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(context.document());
    return renderer && renderer->camera->orthographic;
}

void fitWhole(std::shared_ptr<orv::IDocument> const& document, orvgl::Camera& camera, double aspect)
{
    fit(camera, outlinePoints(document, {}), aspect);
}

void setFirstView(std::shared_ptr<orv::IDocument> const& document, double aspect)
{
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(document);
    if (renderer && *renderer->camera == orvgl::Camera()) { // a file may bring its own view
        lookFrom(*renderer->camera, StandardView::isometric);
        fit(*renderer->camera, outlinePoints(document, {}), aspect);
    }
}

} // namespace orvviewer
