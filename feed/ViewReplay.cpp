#include "feed/ViewReplay.h"

#include "feed/RaiseHint.h"
#include "host/orv/IHint.h"
#include "host/orvgl/CameraHelper.h"
#include "host/orvglutils/MarkupUtils.h"
#include "host/orvsgutils/BBoxUtils.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "host/orvsgutils/VisibilityChanger.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

/// Records carry no degree of transparency.
constexpr float replayedTransparency = 0.5F;

void resetAppearance(SceneRecords& records)
{
    if (records.runtime) {
        auto& visibility = records.runtime->visibility;
        std::fill(visibility.begin(), visibility.end(), true);
    }
    if (records.hasTree()) {
        orvsgutils::MaterialUtils::resetAll(records.resources, records.runtime, records.topology);
    }
}

/// The depth range comes from the whole model, so this runs after the reset and before any node is hidden or moved.
void applyCamera(FeedViewport const& viewport, SceneRecords& records)
{
    if (!records.renderer || !records.renderer->camera) {
        return;
    }
    Vector3 centre;
    float radius = 1.0F;
    orvsg::BBox box;
    if (records.hasTree() && records.info && records.resources->boxes.size() != 0) {
        box = orvsgutils::BBoxUtils::get(records.resources, records.topology, records.pmi, records.runtime,
                                         records.info->documentKind, true, true);
    }
    orvsgutils::BBoxUtils::getSphere(box, centre, radius);
    orvgl::CameraHelper::init(centre, radius, records.renderer->camera);
    orvgl::CameraHelper::lookAt(viewport.eye, viewport.target, viewport.up, false, centre, records.renderer->camera);
}

void applyVisibility(FeedObjects const& objects, SceneRecords& records)
{
    if (!objects.hidden.empty() && records.runtime) {
        orvsgutils::VisibilityChanger hide(records.runtime->visibility, false);
        std::for_each(objects.hidden.begin(), objects.hidden.end(), hide);
    }
}

void applyTransparency(FeedObjects const& objects, SceneRecords& records)
{
    if (!records.hasTree()) {
        return;
    }
    for (int const node : objects.transparent) {
        orvsgutils::MaterialUtils::setNodeTransparency(node, replayedTransparency, records.resources, records.runtime,
                                                       records.topology);
    }
}

void updateScene(std::set<int> const& nodes, SceneRecords& records)
{
    orvglutils::MarkupUtils::updateScene(nodes, records.resources, records.runtime, records.topology, records.info);
}

/// A channel of a packed colour: cut to an integer, of which the low eight bits count.
unsigned long channelOf(float value)
{
    constexpr float tooLarge = 2147483648.0F; // the first float beyond int
    float const scaled = value * 255.0F;
    int channel = 0; // of what is no number
    if (scaled >= tooLarge) {
        channel = std::numeric_limits<int>::max();
    } else if (scaled < -tooLarge) {
        channel = std::numeric_limits<int>::min();
    } else if (!std::isnan(scaled)) {
        channel = static_cast<int>(scaled);
    }
    return static_cast<unsigned long>(channel & 0xFF);
}

} // namespace

void restoreView(std::shared_ptr<orv::IDocument> const& document, Feed const& feed)
{
    if (document) {
        SceneRecords records(document);
        restoreView(document, records, feed);
    }
}

void restoreView(std::shared_ptr<orv::IDocument> const& document, SceneRecords& records, Feed const& feed)
{
    FeedObjects const& objects = feed.comment.objects;
    resetAppearance(records);
    resetTransforms(records);
    applyCamera(feed.comment.viewport, records);
    applyVisibility(objects, records);
    applyTransparency(objects, records);
    applyColors(objects, records);
    applyTransforms(objects, records);
    raiseHint(document, orv::HintCode::viewRestored);
}

std::set<int> resetTransforms(SceneRecords& records)
{
    std::set<int> nodes;
    if (!records.hasTree()) {
        return nodes;
    }
    int node = 0;
    for (int const index : records.topology->transformOfNode) {
        nodes.insert(nodes.end(), node++);
        records.resources->transforms.setValue(index, records.resources->initialTransforms.getValue(index));
    }
    updateScene(nodes, records);
    return nodes;
}

void applyColors(FeedObjects const& objects, SceneRecords& records)
{
    if (!records.hasTree()) {
        return;
    }
    auto const color = [&records](int node, unsigned long packed) {
        orvsgutils::MaterialUtils::setNodeColor(node, packed, records.resources, records.runtime, records.topology);
    };
    for (std::size_t i = 0; i < objects.colored.size(); ++i) {
        Vector3 const& rgb = objects.colored[i];
        if (rgb != Vector3()) {
            color(static_cast<int>(i), channelOf(rgb[0]) | channelOf(rgb[1]) << 8U | channelOf(rgb[2]) << 16U);
        }
    }
    if (objects.colored.empty()) {
        for (auto const& [node, packed] : objects.nodecolor) {
            color(node, static_cast<unsigned int>(packed));
        }
    }
}

void applyTransforms(FeedObjects const& objects, SceneRecords& records)
{
    if (objects.nodetransform.empty() || !records.hasTree()) {
        return;
    }
    std::set<int> const nodes = resetTransforms(records);
    for (auto const& [node, matrix] : objects.nodetransform) {
        orvsg::Transform transform;
        transform.isSet = true;
        transform.matrix = matrix;
        records.resources->transforms.setValue(records.topology->transformOfNode.getValue(node), transform);
    }
    updateScene(nodes, records);
}
