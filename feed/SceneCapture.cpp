#include "feed/SceneCapture.h"

#include "host/orvgl/CameraHelper.h"
#include "host/orvglutils/MarkupUtils.h"
#include "host/orvsgutils/MaterialUtils.h"

#include <cstddef>
#include <map>
#include <set>
#include <vector>

namespace
{

constexpr double recordedZoom = 1.0;

/// Both lists are mostly in ascending order, so the end is the place to look first.
template <class Value>
void insertLast(std::map<int, Value>& map, int node, Value const& value)
{
    map.emplace_hint(map.end(), node, value);
}

float channelOf(unsigned long color, unsigned shift)
{
    return static_cast<float>(static_cast<double>((color >> shift) & 0xFFU) / 255.0);
}

/// The packed colour of each entry of the list; of an entry without a node it means nothing.
std::vector<unsigned long> colorsOf(orvsg::NodeList const& nodes, SceneRecords& records)
{
    std::vector<unsigned long> colors;
    colors.reserve(nodes.size());
    for (int const node : nodes) {
        colors.push_back(orvsgutils::MaterialUtils::getNodeColor(node, records.resources, records.topology));
    }
    return colors;
}

void captureColors(SceneRecords& records, FeedObjects& objects)
{
    orvsg::NodeList const& colored = records.runtime->coloredNodes;
    if (colored.size() != 0) {
        objects.colored.resize(records.topology->nodes.size());
    }
    // Looked up all at once: the materials lie far apart, and a loop that does nothing else waits for many of them
    // together.
    std::vector<unsigned long> const colors = colorsOf(colored, records);
    auto color = colors.begin();
    for (int const node : colored) {
        unsigned long const packed = *color++;
        if (node == -1) {
            continue;
        }
        if (records.topology->nodes.contains(node)) {
            objects.colored[static_cast<std::size_t>(node)] =
                Vector3(channelOf(packed, 0), channelOf(packed, 8), channelOf(packed, 16));
        }
        insertLast(objects.nodecolor, node, static_cast<int>(packed));
    }
}

void captureTransparency(orvsg::SCSceneRT const& runtime, FeedObjects& objects)
{
    for (int const node : runtime.transparentNodes) {
        if (node != -1) {
            objects.transparent.push_back(node);
        }
    }
}

void captureVisibility(orvsg::SCSceneRT const& runtime, FeedObjects& objects)
{
    int node = 0;
    for (bool const isVisible : runtime.visibility) {
        if (!isVisible) {
            objects.hidden.push_back(node);
        }
        ++node;
    }
}

void captureMovedNodes(SceneRecords const& records, FeedObjects& objects)
{
    std::set<int> moved;
    orvglutils::MarkupUtils::getMovedComponents(records.resources, records.topology, moved);
    for (int const node : moved) {
        int const index = records.topology->transformOfNode.getValue(node);
        insertLast(objects.nodetransform, node, records.resources->transforms.getValue(index).matrix);
    }
}

} // namespace

FeedViewport captureViewport(SceneRecords const& records)
{
    FeedViewport viewport;
    if (records.renderer && records.renderer->camera) {
        Vector3 right;
        orvgl::CameraHelper::getEyeTargetUp(records.renderer->camera, viewport.eye, viewport.target, right, viewport.up,
                                            false);
    }
    viewport.zoom = recordedZoom;
    return viewport;
}

FeedObjects captureObjects(SceneRecords& records)
{
    FeedObjects objects;
    if (records.hasTree() && records.runtime) {
        captureColors(records, objects);
    }
    if (records.runtime) {
        captureTransparency(*records.runtime, objects);
        captureVisibility(*records.runtime, objects);
    }
    if (records.hasTree()) {
        captureMovedNodes(records, objects);
    }
    return objects;
}
