#include "host/orvsgutils/MaterialUtils.h"

#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/TreeWalk.h"

#include <algorithm>
#include <cmath>

namespace orvsgutils
{

namespace
{

constexpr unsigned long defaultColor = 0xB4B4B4;
constexpr unsigned long colorBits = 0xFFFFFF;

void takeColorOff(orvsg::Material& material)
{
    material.isColored = false;
    material.color = 0;
}

void takeTransparencyOff(orvsg::Material& material)
{
    material.isTransparent = false;
    material.transparency = 0.0F;
}

template <class Change>
void changeExisting(int node, orvsg::SCSceneRes& resources, Change change)
{
    if (resources.materials.contains(node)) {
        orvsg::Material material = resources.materials.getValue(node);
        change(material);
        resources.materials.setValue(node, material);
    }
}

/// Applies `change` to the node's material, making room for it first. False where there is no such node.
template <class Change>
bool changeMaterial(int node, MaterialUtils::Res& resources, MaterialUtils::Topo& topology, Change change)
{
    if (!resources || !topology || !topology->nodes.contains(node)) {
        return false;
    }
    while (!resources->materials.contains(node)) {
        resources->materials.append({});
    }
    changeExisting(node, *resources, change);
    return true;
}

} // namespace

unsigned long MaterialUtils::getNodeColor(int node, Res& resources, Topo& topology)
{
    if (!resources || !topology) {
        return defaultColor;
    }
    auto const& materials = resources->materials;
    int const byUser = nearestWith(*topology, node, [&](int at) { return materials.getValue(at).isColored; });
    if (byUser >= 0) {
        return materials.getValue(byUser).color;
    }
    int const byFile = nearestWith(*topology, node, [&](int at) { return materials.getValue(at).hasOwnColor; });
    return byFile >= 0 ? materials.getValue(byFile).ownColor : defaultColor;
}

void MaterialUtils::setNodeColor(int node, unsigned long color, Res& resources, RT& runtime, Topo& topology)
{
    bool const isDone = changeMaterial(node, resources, topology, [color](orvsg::Material& material) {
        material.isColored = true;
        material.color = color & colorBits;
    });
    if (isDone && runtime) {
        runtime->coloredNodes.enter(node);
    }
}

void MaterialUtils::setNodeTransparency(int node, float transparency, Res& resources, RT& runtime, Topo& topology)
{
    bool const isDone = changeMaterial(node, resources, topology, [transparency](orvsg::Material& material) {
        material.isTransparent = true;
        material.transparency = std::isfinite(transparency) ? std::clamp(transparency, 0.0F, 1.0F) : 0.0F;
    });
    if (isDone && runtime) {
        runtime->transparentNodes.enter(node);
    }
}

void MaterialUtils::clearNodeColor(int node, Res& resources, RT& runtime, Topo& topology)
{
    if (changeMaterial(node, resources, topology, takeColorOff) && runtime) {
        runtime->coloredNodes.leave(node);
    }
}

void MaterialUtils::clearNodeTransparency(int node, Res& resources, RT& runtime, Topo& topology)
{
    if (changeMaterial(node, resources, topology, takeTransparencyOff) && runtime) {
        runtime->transparentNodes.leave(node);
    }
}

void MaterialUtils::resetAll(Res& resources, RT& runtime, Topo& /*topology*/)
{
    if (resources && runtime) {
        for (int const node : runtime->coloredNodes) {
            changeExisting(node, *resources, takeColorOff);
        }
        for (int const node : runtime->transparentNodes) {
            changeExisting(node, *resources, takeTransparencyOff);
        }
    } else if (resources) {
        for (int node = 0; resources->materials.contains(node); ++node) {
            changeExisting(node, *resources, takeColorOff);
            changeExisting(node, *resources, takeTransparencyOff);
        }
    }
    if (runtime) {
        runtime->coloredNodes.clear();
        runtime->transparentNodes.clear();
    }
}

} // namespace orvsgutils
