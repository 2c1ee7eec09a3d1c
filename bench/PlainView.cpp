#include "bench/PlainView.h"

#include "host/orvgl/CameraHelper.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvbench
{

namespace
{

using Matrix = orvmath::Tuple<double, 16>;

template <class V>
std::vector<V> arrayOf(orvsg::Container<int, V> const& container)
{
    return {container.begin(), container.end()};
}

std::vector<int> arrayOf(orvsg::NodeList const& list)
{
    return {list.begin(), list.end()};
}

std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}

void place(Matrix const& parent, orvsg::Transform const& placement, Matrix& world)
{
    if (!placement.isSet) {
        world = parent;
        return;
    }
    for (unsigned column = 0; column < 4; ++column) {
        double sums[4] = {};
        for (unsigned k = 0; k < 4; ++k) {
            auto const factor = static_cast<double>(placement.matrix[static_cast<unsigned char>(column * 4 + k)]);
            for (unsigned row = 0; row < 4; ++row) {
                sums[row] += parent[static_cast<unsigned char>(k * 4 + row)] * factor;
            }
        }
        for (unsigned row = 0; row < 4; ++row) {
            world[static_cast<unsigned char>(column * 4 + row)] = sums[row];
        }
    }
}

} // namespace

PlainView::PlainView(orvtest::TreeScene const& scene)
    : visibility(scene.runtime->visibility), coloredNodes(arrayOf(scene.runtime->coloredNodes)),
      transparentNodes(arrayOf(scene.runtime->transparentNodes)),
      transformOfNode(arrayOf(scene.topology->transformOfNode)), boxes(arrayOf(scene.resources->boxes)),
      current(arrayOf(scene.resources->transforms)), initial(arrayOf(scene.resources->initialTransforms)),
      materials(arrayOf(scene.resources->materials)), camera(std::make_shared<orvgl::Camera>(*scene.renderer->camera))
{
    for (orvsg::Node const& node : scene.topology->nodes) {
        parents.push_back(node.parent);
    }
}

PlainView::State PlainView::capture() const
{
    State state;
    state.colorOfNode.resize(parents.size());
    for (int const node : coloredNodes) {
        unsigned long const color = materials[at(node)].color;
        auto const channel = [color](unsigned shift) {
            return static_cast<float>(static_cast<double>((color >> shift) & 0xFFU) / 255.0);
        };
        state.colorOfNode[at(node)] = Vector3(channel(0), channel(8), channel(16));
        state.nodecolor.emplace_back(node, static_cast<int>(color));
    }
    state.transparent = transparentNodes;
    for (std::size_t node = 0; node < parents.size(); ++node) {
        if (!visibility[node]) {
            state.hidden.push_back(static_cast<int>(node));
        }
        std::size_t const index = at(transformOfNode[node]);
        if (!(current[index].matrix == initial[index].matrix)) {
            state.nodetransform.emplace_back(static_cast<int>(node), current[index].matrix);
        }
    }
    return state;
}

void PlainView::replay(Feed const& feed)
{
    FeedObjects const& objects = feed.comment.objects;
    resetAppearance();
    std::set<int> const before = allNodes();
    resetPlacements(before);
    fitCamera(feed.comment.viewport);
    for (int const node : objects.hidden) {
        visibility[at(node)] = false;
    }
    for (int const node : objects.transparent) {
        materials[at(node)].isTransparent = true;
        materials[at(node)].transparency = 0.5F;
        transparentNodes.push_back(node);
    }
    for (auto const& [node, color] : objects.nodecolor) {
        materials[at(node)].isColored = true;
        materials[at(node)].color = static_cast<unsigned long>(color);
        coloredNodes.push_back(node);
    }
    std::set<int> const nodes = allNodes();
    resetPlacements(nodes);
    for (auto const& [node, matrix] : objects.nodetransform) {
        orvsg::Transform& placement = current[at(transformOfNode[at(node)])];
        placement.matrix = matrix;
        placement.isSet = true;
    }
    flagPlacements(nodes);
}

void PlainView::resetAppearance()
{
    std::fill(visibility.begin(), visibility.end(), true);
    for (int const node : coloredNodes) {
        materials[at(node)].isColored = false;
        materials[at(node)].color = 0;
    }
    for (int const node : transparentNodes) {
        materials[at(node)].isTransparent = false;
        materials[at(node)].transparency = 0.0F;
    }
    coloredNodes.clear();
    transparentNodes.clear();
}

void PlainView::resetPlacements(std::set<int> const& nodes)
{
    for (int const index : transformOfNode) {
        current[at(index)] = initial[at(index)];
    }
    flagPlacements(nodes);
}

void PlainView::flagPlacements(std::set<int> const& nodes)
{
    orvsg::Transform const identity;
    for (int const node : nodes) {
        orvsg::Transform& placement = current[at(transformOfNode[at(node)])];
        if (!placement.isSet && !(placement.matrix == identity.matrix)) {
            placement.isSet = true;
        }
    }
}

void PlainView::fitCamera(FeedViewport const& viewport)
{
    struct Above {
        int node;
        Matrix world;
    };
    Matrix identity;
    identity[0] = identity[5] = identity[10] = identity[15] = 1.0;
    std::vector<Above> ancestors; // from the root down
    double const infinity = std::numeric_limits<double>::infinity();
    double low[3] = {infinity, infinity, infinity};
    double high[3] = {-infinity, -infinity, -infinity};
    for (std::size_t node = 0; node < parents.size(); ++node) {
        while (!ancestors.empty() && ancestors.back().node != parents[node]) {
            ancestors.pop_back();
        }
        Matrix m;
        place(ancestors.empty() ? identity : ancestors.back().world, current[at(transformOfNode[node])], m);
        ancestors.push_back({static_cast<int>(node), m});
        orvsg::BBox const& box = boxes[node];
        if (box.isEmpty) {
            continue;
        }
        double middle[3];
        double half[3];
        for (unsigned char axis = 0; axis < 3; ++axis) {
            double const from = box.minimum[axis];
            double const to = box.maximum[axis];
            middle[axis] = (from + to) / 2.0;
            half[axis] = (to - from) / 2.0;
        }
        for (unsigned char axis = 0; axis < 3; ++axis) {
            double const x = m[axis];
            double const y = m[static_cast<unsigned char>(axis + 4)];
            double const z = m[static_cast<unsigned char>(axis + 8)];
            double const value =
                x * middle[0] + y * middle[1] + z * middle[2] + m[static_cast<unsigned char>(axis + 12)];
            double const reach = std::abs(x) * half[0] + std::abs(y) * half[1] + std::abs(z) * half[2];
            low[axis] = std::min(low[axis], value - reach);
            high[axis] = std::max(high[axis], value + reach);
        }
    }
    Vector3 centre;
    for (unsigned char axis = 0; axis < 3; ++axis) {
        centre[axis] = static_cast<float>((low[axis] + high[axis]) / 2.0);
    }
    auto const radius = static_cast<float>(std::hypot(high[0] - low[0], high[1] - low[1], high[2] - low[2]) / 2.0);
    orvgl::CameraHelper::init(centre, radius, camera);
    orvgl::CameraHelper::lookAt(viewport.eye, viewport.target, viewport.up, false, centre, camera);
}

std::set<int> PlainView::allNodes() const
{
    std::set<int> nodes;
    for (int node = 0; node < static_cast<int>(parents.size()); ++node) {
        nodes.insert(nodes.end(), node);
    }
    return nodes;
}

} // namespace orvbench
