#include "host/orvsgutils/BBoxUtils.h"

#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/DepthFirstWalk.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace orvsgutils
{

namespace
{

using Point = orvmath::Tuple<double, 3>;

constexpr unsigned char axisCount = 3;

/// A box in the making. In double precision; a broken placement must not swallow the rest of the model's box, so what
/// leaves the range of float is left out.
class Sum
{
public:
    void add(Point const& point)
    {
        constexpr double largest = std::numeric_limits<float>::max();
        for (unsigned char axis = 0; axis < axisCount; ++axis) {
            if (!(std::abs(point[axis]) <= largest)) {
                return;
            }
        }
        for (unsigned char axis = 0; axis < axisCount; ++axis) {
            minimum[axis] = std::min(minimum[axis], point[axis]);
            maximum[axis] = std::max(maximum[axis], point[axis]);
        }
        isEmpty = false;
    }
    orvsg::BBox box() const
    {
        orvsg::BBox result;
        for (unsigned char axis = 0; axis < axisCount && !isEmpty; ++axis) {
            result.minimum[axis] = static_cast<float>(minimum[axis]);
            result.maximum[axis] = static_cast<float>(maximum[axis]);
        }
        result.isEmpty = isEmpty;
        return result;
    }

private:
    static constexpr double infinity = std::numeric_limits<double>::infinity();

    Point minimum{infinity, infinity, infinity};
    Point maximum{-infinity, -infinity, -infinity};
    bool isEmpty = true;
};

double element(Matrix const& m, unsigned row, unsigned column)
{
    return m[static_cast<unsigned char>(4 * column + row)];
}

Point transformed(Matrix const& m, Point const& p)
{
    return Point(m[0] * p[0] + m[4] * p[1] + m[8] * p[2] + m[12], m[1] * p[0] + m[5] * p[1] + m[9] * p[2] + m[13],
                 m[2] * p[0] + m[6] * p[1] + m[10] * p[2] + m[14]);
}

void addAround(Sum& sum, Point const& middle, Point const& reach)
{
    sum.add(Point(middle[0] - reach[0], middle[1] - reach[1], middle[2] - reach[2]));
    sum.add(Point(middle[0] + reach[0], middle[1] + reach[1], middle[2] + reach[2]));
}

/// The box around the eight turned corners: each axis of the box reaches as far as its turned halves add up to.
void addCorners(Sum& sum, orvsg::BBox const& own, Matrix const& world)
{
    Point middle;
    Point half;
    for (unsigned char axis = 0; axis < axisCount; ++axis) {
        double const low = own.minimum[axis];
        double const high = own.maximum[axis];
        middle[axis] = (low + high) / 2.0;
        half[axis] = (high - low) / 2.0;
    }
    Point reach;
    for (unsigned char row = 0; row < axisCount; ++row) {
        for (unsigned char column = 0; column < axisCount; ++column) {
            reach[row] += std::abs(element(world, row, column)) * half[column];
        }
    }
    addAround(sum, transformed(world, middle), reach);
}

double columnLength(Matrix const& m, unsigned column)
{
    return std::hypot(element(m, 0, column), element(m, 1, column), element(m, 2, column));
}

void addSphere(Sum& sum, orvsg::BBox const& own, Matrix const& world)
{
    orvmath::Tuple<float, 3> centre;
    float radius = 0.0F;
    BBoxUtils::getSphere(own, centre, radius);
    double const scale = std::max({columnLength(world, 0), columnLength(world, 1), columnLength(world, 2)});
    double const reach = static_cast<double>(radius) * scale;
    addAround(sum, transformed(world, Point(centre[0], centre[1], centre[2])), Point(reach, reach, reach));
}

} // namespace

orvsg::BBox BBoxUtils::get(std::shared_ptr<orvsg::SCSceneRes>& resources, std::shared_ptr<orvsg::SCSceneTopo>& topology,
                           std::shared_ptr<orvsg::SCPmi> /*pmi*/, std::shared_ptr<orvsg::SCSceneRT>& runtime,
                           int const& /*documentKind*/, bool includeHidden, bool tight)
{
    // Parts and assemblies are boxed alike: a part is an assembly of one node.
    Sum sum;
    if (!resources || !topology) {
        return sum.box();
    }
    DepthFirstWalk walk(*resources, *topology, runtime.get());
    for (int node = 0; topology->nodes.contains(node); ++node) {
        Occurrence const& at = walk.enter(node);
        orvsg::BBox const& own = resources->boxes.getValue(node);
        if (own.isEmpty || (!includeHidden && !at.isShown)) {
            continue;
        }
        if (tight) {
            addCorners(sum, own, at.world);
        } else {
            addSphere(sum, own, at.world);
        }
    }
    return sum.box();
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
