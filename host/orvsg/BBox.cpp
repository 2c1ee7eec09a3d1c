#include "host/orvsg/BBox.h"

#include <algorithm>
#include <cmath>

namespace orvsg
{

void BBox::add(orvmath::Tuple<float, 3> const& point)
{
    // A broken placement must not swallow the rest of the model's box.
    if (!std::isfinite(point[0]) || !std::isfinite(point[1]) || !std::isfinite(point[2])) {
        return;
    }
    if (isEmpty) {
        minimum = maximum = point;
        isEmpty = false;
        return;
    }
    for (unsigned char axis = 0; axis < 3; ++axis) {
        minimum[axis] = std::min(minimum[axis], point[axis]);
        maximum[axis] = std::max(maximum[axis], point[axis]);
    }
}

void BBox::add(BBox const& box)
{
    if (!box.isEmpty) {
        add(box.minimum);
        add(box.maximum);
    }
}

} // namespace orvsg
