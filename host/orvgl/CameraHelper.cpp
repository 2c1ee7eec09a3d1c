#include "host/orvgl/CameraHelper.h"

#include "host/orvgl/Camera.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvgl
{

namespace
{

using Point = CameraHelper::Point;
using Vector = orvmath::Tuple<double, 3>;

Vector between(Point const& from, Point const& to)
{
    return {static_cast<double>(to[0]) - static_cast<double>(from[0]),
            static_cast<double>(to[1]) - static_cast<double>(from[1]),
            static_cast<double>(to[2]) - static_cast<double>(from[2])};
}

double length(Vector const& v)
{
    return std::hypot(v[0], v[1], v[2]);
}

Vector cross(Vector const& a, Vector const& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// The unit vector, or `otherwise` where there is no direction to speak of.
Vector unit(Vector const& v, Vector const& otherwise)
{
    double const size = length(v);
    if (!std::isfinite(size) || size < 1e-30) {
        return otherwise;
    }
    return {v[0] / size, v[1] / size, v[2] / size};
}

Point narrowed(Vector const& v)
{
    return {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])};
}

/// Some unit vector across a unit vector: across the axis to which it leans least.
Vector anyAcross(Vector const& v)
{
    Vector axis(1.0, 0.0, 0.0);
    if (std::abs(v[0]) > 0.9) {
        axis = Vector(0.0, 1.0, 0.0);
    }
    return unit(cross(v, axis), Vector(0.0, 0.0, 1.0));
}

} // namespace

void CameraHelper::init(Point const& centre, float const& radius, std::shared_ptr<Camera>& camera)
{
    if (!camera) {
        return;
    }
    double const size = std::isfinite(radius) && radius > 0.0F ? static_cast<double>(radius) : 1.0;
    double const angle = std::clamp(static_cast<double>(camera->fieldOfView), 1.0, 170.0) * std::numbers::pi / 180.0;
    // The sphere touches the picture's upper and lower edge in perspective and shows with a margin without.
    double const distance = size / std::sin(angle / 2.0);
    Vector const back = unit(between(camera->target, camera->eye), Vector(0.0, 0.0, 1.0));
    camera->centre = centre;
    camera->radius = static_cast<float>(size);
    camera->target = centre;
    camera->eye = narrowed(Vector(static_cast<double>(centre[0]) + back[0] * distance,
                                  static_cast<double>(centre[1]) + back[1] * distance,
                                  static_cast<double>(centre[2]) + back[2] * distance));
}

void CameraHelper::lookAt(Point const& eye, Point const& target, Point const& up, bool fitDepth, Point const& centre,
                          std::shared_ptr<Camera>& camera)
{
    if (!camera) {
        return;
    }
    camera->eye = eye;
    camera->target = target;
    camera->up = up;
    if (fitDepth) {
        double const distance = length(between(centre, eye));
        camera->centre = centre;
        if (std::isfinite(distance)) {
            camera->radius = std::max(camera->radius, static_cast<float>(distance));
        }
    }
}

void CameraHelper::getEyeTargetUp(std::shared_ptr<Camera> const& camera, Point& eye, Point& target, Point& right,
                                  Point& up, bool orthonormal)
{
    if (!camera) {
        return;
    }
    eye = camera->eye;
    target = camera->target;
    up = camera->up;
    Vector const forward = unit(between(camera->eye, camera->target), Vector(0.0, 0.0, -1.0));
    Vector const upward(camera->up[0], camera->up[1], camera->up[2]);
    Vector const side = unit(cross(forward, unit(upward, Vector(0.0, 1.0, 0.0))), anyAcross(forward));
    right = narrowed(side);
    if (orthonormal) {
        up = narrowed(cross(side, forward));
    }
}

} // namespace orvgl
