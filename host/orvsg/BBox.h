#pragma once

#include "host/orvmath/Tuple.h"

namespace orvsg
{

/// A box along the axes, in millimetres. Empty until the first point is added.
class BBox
{
public:
    orvmath::Tuple<float, 3> minimum;
    orvmath::Tuple<float, 3> maximum;
    bool isEmpty = true;

    void add(orvmath::Tuple<float, 3> const& point);
    void add(BBox const& box);

    bool operator==(BBox const&) const = default;
};

} // namespace orvsg
