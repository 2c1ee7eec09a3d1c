#include "viewer/scene/ScenePresentations.h"

#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"
#include "viewer/scene/EdgeRecord.h"

#include <cmath>
#include <utility>

namespace orvviewer
{

namespace
{

/// Placements of records may carry the rounding of single precision; the drawing system wants pure rotations and takes
/// the nearest. A matrix that is no placement at all counts as the identity.
gp_Trsf placementOf(orvmath::Tuple<double, 16> const& m)
{
    gp_Trsf placement;
    try {
        placement.SetValues(m[0], m[4], m[8], m[12], m[1], m[5], m[9], m[13], m[2], m[6], m[10], m[14]);
    } catch (Standard_Failure const&) {
        return {};
    }
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 4; ++column) {
            if (!std::isfinite(placement.Value(row, column))) {
                return {};
            }
        }
    }
    return placement;
}

bool isSame(gp_Trsf const& a, gp_Trsf const& b)
{
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 4; ++column) {
            if (a.Value(row, column) != b.Value(row, column)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

ScenePresentations::ScenePresentations(Handle(AIS_InteractiveContext) interactiveContext)
    : context(std::move(interactiveContext))
{
}

void ScenePresentations::setDocument(std::shared_ptr<orv::IDocument> next)
{
    for (auto const& [node, entry] : shown) {
        context->Remove(entry.instance, Standard_False);
    }
    shown.clear();
    parts.clear();
    geometries.clear();
    selection.clear();
    document = std::move(next);

    auto const resources = orv::recordOf<orvsg::SCSceneRes>(document);
    auto const edges = orv::recordOf<EdgeRecord>(document);
    if (!resources) {
        return;
    }
    for (std::size_t mesh = 0; mesh < resources->meshes.size(); ++mesh) {
        static std::vector<float> const none;
        bool const hasEdges = edges && mesh < edges->segmentsOfMesh.size();
        geometries.push_back(std::make_shared<PartGeometry const>(
            makePartGeometry(*resources->meshes[mesh], hasEdges ? edges->segmentsOfMesh[mesh] : none)));
    }
    sync();
}

Handle(SharedPart) ScenePresentations::sharedPart(Appearance const& look)
{
    auto& part = parts[look];
    if (part.IsNull()) {
        part = new SharedPart(geometries[static_cast<std::size_t>(look.mesh)], look);
    }
    return part;
}

void ScenePresentations::sync()
{
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    orvsgutils::SceneQuery const scene(document);
    if (!topology || !scene.isComplete()) {
        return;
    }
    bool looksChanged = false;
    for (int node = 0; node < scene.nodeCount(); ++node) {
        int const mesh = topology->nodes.getValue(node).mesh;
        if (mesh < 0 || static_cast<std::size_t>(mesh) >= geometries.size()) {
            continue;
        }
        Appearance const look{mesh, scene.color(node), scene.isColoredByUser(node), scene.transparency(node)};
        gp_Trsf const placement = placementOf(scene.worldMatrix(node));
        bool const isVisible = scene.isShown(node);

        auto const [found, isNew] = shown.try_emplace(node);
        auto& entry = found->second;
        if (isNew) {
            entry.instance = new PartInstance(node);
        }
        if (isNew || entry.look != look) {
            entry.look = look;
            entry.instance->setPart(sharedPart(look));
            looksChanged = true;
        }
        if (isNew || !isSame(entry.placement, placement)) {
            entry.placement = placement;
            context->SetLocation(entry.instance, placement);
        }
        if (isNew) {
            context->Display(entry.instance, 0, 0, Standard_False);
        }
        if (entry.isVisible != isVisible) {
            entry.isVisible = isVisible;
            setVisible(entry.instance, isVisible);
        }
    }
    if (looksChanged) {
        dropUnusedParts();
    }
    applySelection();
}

void ScenePresentations::setVisible(Handle(PartInstance) const& instance, bool visible)
{
    context->MainPrsMgr()->SetVisibility(instance, 0, visible);
    if (visible) {
        context->Activate(instance);
    } else {
        if (context->HasDetected() && context->DetectedInteractive() == instance) {
            context->ClearDetected(Standard_False); // else its hover colour stays until the pointer moves
        }
        context->Deactivate(instance);
    }
}

void ScenePresentations::putInOrder()
{
    for (int const priority : {PartInstance::drawingPriority - 1, PartInstance::drawingPriority}) {
        for (auto const& [node, entry] : shown) {
            context->MainPrsMgr()->Presentation(entry.instance, 0)->SetDisplayPriority(priority);
        }
    }
}

void ScenePresentations::dropUnusedParts()
{
    std::set<Appearance> used;
    for (auto const& [node, entry] : shown) {
        used.insert(entry.look);
    }
    std::erase_if(parts, [&used](auto const& part) { return !used.contains(part.first); });
}

void ScenePresentations::setSelection(std::set<int> const& nodes)
{
    selection = nodes;
    applySelection();
}

void ScenePresentations::applySelection()
{
    std::set<int> leaves;
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    for (auto const& [node, entry] : shown) {
        for (int above = node; above >= 0 && entry.isVisible; above = topology->nodes.getValue(above).parent) {
            if (selection.contains(above)) {
                leaves.insert(node);
                break;
            }
        }
    }
    for (auto const& [node, entry] : shown) {
        if (context->IsSelected(entry.instance) != leaves.contains(node)) {
            context->AddOrRemoveSelected(entry.instance, Standard_False);
        }
    }
}

int ScenePresentations::displayedCount() const
{
    int count = 0;
    for (auto const& [node, entry] : shown) {
        count += entry.isVisible ? 1 : 0;
    }
    return count;
}

} // namespace orvviewer
