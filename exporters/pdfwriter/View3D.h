#pragma once

#include "host/orvgl/Camera.h"

#include <array>
#include <string>

namespace pdfwriter
{

using Vector = std::array<double, 3>;

/// A view as a 3D view dictionary holds it (ISO 32000-1, 13.6.4), lengths in millimetres.
struct View3D {
    std::string name; ///< UTF-8
    /// Camera to world: the camera's left, up and forward as unit vectors, then its place.
    std::array<double, 12> cameraToWorld{};
    double orbit = 1;         ///< from the camera to the point that it turns about
    double fieldOfView = 30;  ///< full vertical angle, degrees
    double pictureHeight = 1; ///< at that point
    bool orthographic = false;
};

/// The view of a camera; one whose numbers make no view (eye on target, not finite) gives that of an eye above.
View3D viewOf(orvgl::Camera const& camera, std::string const& name);

/// A camera that looks from a direction at a sphere and holds all of it.
orvgl::Camera cameraFrom(Vector const& direction, Vector const& up, Vector const& centre, double radius);

} // namespace pdfwriter
