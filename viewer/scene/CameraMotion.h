#pragma once

#include "host/orvgl/Camera.h"

#include <span>

/// What a user does to a camera record. Eye, target and up alone define the picture, so every motion moves just these;
/// fitting also sets the sphere of the depth range. Angles in radians, lengths in millimetres.
namespace orvviewer
{

enum class StandardView { front, back, left, right, top, bottom, isometric };

/// Height of the picture in the plane of the target.
double pictureHeight(orvgl::Camera const& camera);

/// Turns the eye about the target: `right` about the vertical of the picture, `upwards` about its horizontal.
void orbit(orvgl::Camera& camera, double right, double upwards);

/// Turns the picture about the line of sight, clockwise as seen on the screen.
void roll(orvgl::Camera& camera, double clockwise);

/// Moves eye and target in the picture's plane, so that the model follows the pointer: fractions of the picture's
/// height, to the right and upwards.
void pan(orvgl::Camera& camera, double right, double upwards);

/// Brings the eye nearer (factor below 1) or takes it back, in such a way that the point of the target's plane at
/// (`x`, `y`) keeps its place. The two are fractions of the picture's height from its middle, right and up.
void zoom(orvgl::Camera& camera, double factor, double x = 0.0, double y = 0.0);

/// Looks from a side without changing target and distance. Z points up in the model.
void lookFrom(orvgl::Camera& camera, StandardView view);
/// The same from any direction: from the target to the eye.
void lookFrom(orvgl::Camera& camera, double x, double y, double z);

/// Puts the target to the middle of the points' box and the eye so far back that all of them show in a picture of the
/// given width-to-height ratio. No point, or one that isn't finite, changes nothing.
void fit(orvgl::Camera& camera, std::span<orvmath::Tuple<float, 3> const> points, double aspect);

} // namespace orvviewer
