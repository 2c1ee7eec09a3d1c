#include "host/orvsgutils/BBoxUtils.h"

#include "host/orvsg/SCPmi.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"

#include <algorithm>
#include <cmath>

namespace orvsgutils
{

namespace
{

using Matrix = orvmath::Tuple<double, 16>;
using Point = orvmath::Tuple<double, 3>;

Point transformed(Matrix const& m, Point const& p)
{
    return Point(m[0] * p[0] + m[4] * p[1] + m[8] * p[2] + m[12], m[1] * p[0] + m[5] * p[1] + m[9] * p[2] + m[13],
                 m[2] * p[0] + m[6] * p[1] + m[10] * p[2] + m[14]);
}

orvmath::Tuple<float, 3> narrowed(Point const& p)
{
    return {static_cast<float>(p[0]), static_cast<float>(p[1]), static_cast<float>(p[2])};
}

double columnLength(Matrix const& m, unsigned char first)
{
    auto const next = static_cast<unsigned char>(first + 1);
    auto const last = static_cast<unsigned char>(first + 2);
    return std::hypot(m[first], m[next], m[last]);
}

void addCorners(orvsg::BBox& sum, orvsg::BBox const& own, Matrix const& world)
{
    for (unsigned corner = 0; corner < 8; ++corner) {
        Point const point((corner & 1U) != 0 ? own.maximum[0] : own.minimum[0],
                          (corner & 2U) != 0 ? own.maximum[1] : own.minimum[1],
                          (corner & 4U) != 0 ? own.maximum[2] : own.minimum[2]);
        sum.add(narrowed(transformed(world, point)));
    }
}

void addSphere(orvsg::BBox& sum, orvsg::BBox const& own, Matrix const& world)
{
    orvmath::Tuple<float, 3> centre;
    float radius = 0.0F;
    BBoxUtils::getSphere(own, centre, radius);
    double const scale = std::max({columnLength(world, 0), columnLength(world, 4), columnLength(world, 8)});
    double const reach = static_cast<double>(radius) * scale;
    Point const middle = transformed(world, Point(centre[0], centre[1], centre[2]));
    sum.add(narrowed(Point(middle[0] - reach, middle[1] - reach, middle[2] - reach)));
    sum.add(narrowed(Point(middle[0] + reach, middle[1] + reach, middle[2] + reach)));
}

} // namespace

orvsg::BBox BBoxUtils::get(std::shared_ptr<orvsg::SCSceneRes>& resources, std::shared_ptr<orvsg::SCSceneTopo>& topology,
                           std::shared_ptr<orvsg::SCPmi> /*pmi*/, std::shared_ptr<orvsg::SCSceneRT>& runtime,
                           int const& /*documentKind*/, bool includeHidden, bool tight)
{
    // Parts and assemblies are boxed alike: a part is an assembly of one node.
    orvsg::BBox sum;
    if (!resources || !topology) {
        return sum;
    }
    SceneQuery const query(resources, topology, runtime);
    for (int node = 0; node < query.nodeCount(); ++node) {
        orvsg::BBox const& own = resources->boxes.getValue(node);
        if (own.isEmpty || (!includeHidden && runtime && !query.isShown(node))) {
            continue;
        }
        if (tight) {
            addCorners(sum, own, query.worldMatrix(node));
        } else {
            addSphere(sum, own, query.worldMatrix(node));
        }
    }
    return sum;
}

void BBoxUtils::getSphere(orvsg::BBox const& box, orvmath::Tuple<float, 3>& centre, float& radius)
{
    if (box.isEmpty) {
        centre = {};
        radius = 1.0F;
        return;
    }
    double extent[3];
    for (unsigned char axis = 0; axis < 3; ++axis) {
        double const low = box.minimum[axis];
        double const high = box.maximum[axis];
        centre[axis] = static_cast<float>((low + high) / 2.0);
        extent[axis] = (high - low) / 2.0;
    }
    radius = static_cast<float>(std::hypot(extent[0], extent[1], extent[2]));
}

} // namespace orvsgutils
