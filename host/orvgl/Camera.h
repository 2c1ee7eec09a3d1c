#pragma once

#include "host/orvmath/Tuple.h"

namespace orvgl
{

/// From where the model is seen. The height of the picture at the target follows from the distance between eye and
/// target and the field of view, in both projections; so eye, target and up alone bring a view back.
class Camera
{
public:
    orvmath::Tuple<float, 3> eye{0.0F, 0.0F, 1.0F}; ///< millimetres
    orvmath::Tuple<float, 3> target;                ///< millimetres
    orvmath::Tuple<float, 3> up{0.0F, 1.0F, 0.0F};  ///< need not be a unit vector or perpendicular to the view
    orvmath::Tuple<float, 3> centre;                ///< of the sphere that the depth range must hold
    float radius = 1.0F;                            ///< of that sphere, millimetres
    float fieldOfView = 30.0F;                      ///< full vertical angle, degrees
    bool orthographic = false;

    bool operator==(Camera const&) const = default;
};

} // namespace orvgl
