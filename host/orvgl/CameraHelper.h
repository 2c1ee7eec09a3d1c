#pragma once

#include "host/orvmath/Tuple.h"

#include <memory>

namespace orvgl
{

class Camera;

class CameraHelper
{
public:
    using Point = orvmath::Tuple<float, 3>;

    /// Fits the camera to a sphere without turning it: the depth range holds the sphere, the target is its centre and
    /// the eye stands back until all of it shows. A radius of zero or less counts as 1.
    static void init(Point const& centre, float const& radius, std::shared_ptr<Camera>& camera);

    /// Sets eye, target and up exactly as given. With `fitDepth` the depth range is also widened to the distance
    /// between eye and `centre`; without it the range of the last init stays.
    static void lookAt(Point const& eye, Point const& target, Point const& up, bool fitDepth, Point const& centre,
                       std::shared_ptr<Camera>& camera);

    /// Reads the camera. `right` is the unit vector to the right of the picture. With `orthonormal` `up` is made
    /// perpendicular to the view and of unit length, otherwise it comes back as it was set.
    static void getEyeTargetUp(std::shared_ptr<Camera> const& camera, Point& eye, Point& target, Point& right,
                               Point& up, bool orthonormal);
};

} // namespace orvgl
