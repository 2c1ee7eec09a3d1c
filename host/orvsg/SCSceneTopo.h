#pragma once

#include "host/orvsg/Container.h"
#include "host/orvsg/Node.h"
#include "host/orvsg/Schema.h"

namespace orvsg
{

/// The assembly tree, key 12.
class SCSceneTopo : public Schema
{
public:
    static constexpr short key = 12;

    Container<int, Node> nodes;          ///< the tree in depth-first order
    Container<int, int> transformOfNode; ///< node to the index of its transform in SCSceneRes
};

} // namespace orvsg
