#pragma once

#include "host/orvsg/SCSceneTopo.h"

#include <cstddef>

namespace orvsgutils
{

/// The parent of a node, or -1. A parent stands before its children, so a link that doesn't is taken for none: walking
/// up always ends.
inline int parentOf(orvsg::SCSceneTopo const& topology, int node)
{
    if (!topology.nodes.contains(node)) {
        return -1;
    }
    int const parent = topology.nodes.getValue(node).parent;
    return parent >= 0 && parent < node ? parent : -1;
}

/// The node itself or its nearest ancestor for which `holds` is true; -1 where there is none or the node is unknown.
template <class Test>
int nearestWith(orvsg::SCSceneTopo const& topology, int node, Test holds)
{
    if (!topology.nodes.contains(node)) {
        return -1;
    }
    while (node >= 0 && !holds(node)) {
        node = parentOf(topology, node);
    }
    return node;
}

} // namespace orvsgutils
