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

int placeOf(orvsg::Container<int, int> const& list, int node)
{
    auto const found = std::find(list.begin(), list.end(), node);
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

/// A node stands in its list once; a place that was given up is taken first.
void enter(orvsg::Container<int, int>& list, int node)
{
    if (placeOf(list, node) >= 0) {
        return;
    }
    int const free = placeOf(list, -1);
    if (free >= 0) {
        list.setValue(free, node);
    } else {
        list.append(node);
    }
}

void leave(orvsg::Container<int, int>& list, int node)
{
    int const place = placeOf(list, node);
    if (place >= 0) {
        list.setValue(place, -1);
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
    orvsg::Material material = resources->materials.getValue(node);
    change(material);
    resources->materials.setValue(node, material);
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
        enter(runtime->coloredNodes, node);
    }
}

void MaterialUtils::setNodeTransparency(int node, float transparency, Res& resources, RT& runtime, Topo& topology)
{
    bool const isDone = changeMaterial(node, resources, topology, [transparency](orvsg::Material& material) {
        material.isTransparent = true;
        material.transparency = std::isfinite(transparency) ? std::clamp(transparency, 0.0F, 1.0F) : 0.0F;
    });
    if (isDone && runtime) {
        enter(runtime->transparentNodes, node);
    }
}

void MaterialUtils::clearNodeColor(int node, Res& resources, RT& runtime, Topo& topology)
{
    bool const isDone = changeMaterial(node, resources, topology, [](orvsg::Material& material) {
        material.isColored = false;
        material.color = 0;
    });
    if (isDone && runtime) {
        leave(runtime->coloredNodes, node);
    }
}

void MaterialUtils::clearNodeTransparency(int node, Res& resources, RT& runtime, Topo& topology)
{
    bool const isDone = changeMaterial(node, resources, topology, [](orvsg::Material& material) {
        material.isTransparent = false;
        material.transparency = 0.0F;
    });
    if (isDone && runtime) {
        leave(runtime->transparentNodes, node);
    }
}

void MaterialUtils::resetAll(Res& resources, RT& runtime, Topo& /*topology*/)
{
    if (resources) {
        for (int node = 0; resources->materials.contains(node); ++node) {
            orvsg::Material material = resources->materials.getValue(node);
            if (material.isColored || material.isTransparent) {
                material.isColored = material.isTransparent = false;
                material.color = 0;
                material.transparency = 0.0F;
                resources->materials.setValue(node, material);
            }
        }
    }
    if (runtime) {
        runtime->coloredNodes.clear();
        runtime->transparentNodes.clear();
    }
}

} // namespace orvsgutils
