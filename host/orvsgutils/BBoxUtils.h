#pragma once

#include "host/orvmath/Tuple.h"
#include "host/orvsg/BBox.h"

#include <memory>

namespace orvsg
{
class SCPmi;
class SCSceneRT;
class SCSceneRes;
class SCSceneTopo;
} // namespace orvsg

namespace orvsgutils
{

class BBoxUtils
{
public:
    /// The box of the model in its current placements, millimetres. `documentKind` is that of SCInfo. With
    /// `includeHidden` false hidden nodes are left out; `tight` turns the eight corners of each part's box, rather than
    /// its sphere.
    static orvsg::BBox get(std::shared_ptr<orvsg::SCSceneRes>& resources, std::shared_ptr<orvsg::SCSceneTopo>& topology,
                           std::shared_ptr<orvsg::SCPmi> pmi, std::shared_ptr<orvsg::SCSceneRT>& runtime,
                           int const& documentKind, bool includeHidden, bool tight);

    /// The sphere around a box. An empty box gives the origin and the radius 1.
    static void getSphere(orvsg::BBox const& box, orvmath::Tuple<float, 3>& centre, float& radius);
};

} // namespace orvsgutils
