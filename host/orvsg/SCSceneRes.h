#pragma once

#include "host/orvsg/BBox.h"
#include "host/orvsg/Container.h"
#include "host/orvsg/Material.h"
#include "host/orvsg/Mesh.h"
#include "host/orvsg/Schema.h"
#include "host/orvsg/Transform.h"

#include <memory>
#include <vector>

namespace orvsg
{

/// What the nodes are made of, key 13.
class SCSceneRes : public Schema
{
public:
    static constexpr short key = 13;

    Container<int, BBox> boxes;                  ///< box of each node's own geometry, in the node's own coordinates
    Container<int, Transform> transforms;        ///< current placements, relative to the parent
    Container<int, Transform> initialTransforms; ///< placements as the file gives them
    Container<int, Material> materials;          ///< indexed by node
    std::vector<std::shared_ptr<Mesh const>> meshes;
};

} // namespace orvsg
