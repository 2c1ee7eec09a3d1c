#pragma once

#include "host/orvsg/NodeList.h"
#include "host/orvsg/Schema.h"

#include <vector>

namespace orvsg
{

/// Run-time state of the scene, key 1: what is visible and which nodes the user has coloured or made transparent.
class SCSceneRT : public Schema
{
public:
    static constexpr short key = 1;

    /// Indexed by node; a node shows if its own bit and all its ancestors' are set.
    std::vector<bool> visibility;
    /// Nodes in the order in which they were made transparent; -1 stands for no node.
    NodeList transparentNodes;
    /// Nodes in the order in which they were coloured; -1 stands for no node.
    NodeList coloredNodes;
};

} // namespace orvsg
