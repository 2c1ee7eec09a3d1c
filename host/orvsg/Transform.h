#pragma once

#include "host/orvmath/Tuple.h"

namespace orvsg
{

/// The placement of a node relative to its parent. By default the identity, which counts as not set.
class Transform
{
public:
    Transform() { matrix[0] = matrix[5] = matrix[10] = matrix[15] = 1.0F; }

    /// Column by column, acting on column vectors; lengths in millimetres.
    orvmath::Tuple<float, 16> matrix;
    /// False lets readers skip the matrix: it is the identity then.
    bool isSet = false;

    bool operator==(Transform const&) const = default;
};

} // namespace orvsg
