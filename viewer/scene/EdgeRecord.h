#pragma once

#include "host/orvsg/Schema.h"

#include <vector>

namespace orvviewer
{

/// The drawn edges of each mesh, a record of the viewer's own. Plug-ins don't know it.
class EdgeRecord : public orvsg::Schema
{
public:
    static constexpr short key = 1000;

    /// For each mesh of SCSceneRes line segments: x y z of the start and of the end, millimetres, in the part's own
    /// coordinates.
    std::vector<std::vector<float>> segmentsOfMesh;
};

} // namespace orvviewer
