#include "viewer/scene/CameraMotion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace orvviewer
{

namespace
{

using Vector = std::array<double, 3>;
using Record = orvmath::Tuple<float, 3>;

constexpr double nearestDistance = 1e-3; ///< millimetres between eye and target
constexpr double farthestDistance = 1e9;
constexpr double fitMargin = 1.06;

Vector vectorOf(Record const& record)
{
    return {record[0], record[1], record[2]};
}

Record recordOf(Vector const& v)
{
    return {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])};
}

Vector operator+(Vector const& a, Vector const& b)
{
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}
Vector operator-(Vector const& a, Vector const& b)
{
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
Vector operator*(double factor, Vector const& a)
{
    return {factor * a[0], factor * a[1], factor * a[2]};
}
double dot(Vector const& a, Vector const& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
Vector cross(Vector const& a, Vector const& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
double lengthOf(Vector const& a)
{
    return std::sqrt(dot(a, a));
}
Vector unit(Vector const& a, Vector const& otherwise)
{
    double const length = lengthOf(a);
    return length > 1e-12 ? (1.0 / length) * a : otherwise;
}

Vector turned(Vector const& v, Vector const& axis, double angle)
{
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    return c * v + s * cross(axis, v) + (1.0 - c) * dot(axis, v) * axis;
}

/// The camera's axes, all unit vectors at right angles, whatever the record holds.
struct Axes {
    Vector right;
    Vector up;
    Vector forward;
    double distance;
};

Axes axesOf(orvgl::Camera const& camera)
{
    Vector const sight = vectorOf(camera.target) - vectorOf(camera.eye);
    Axes axes;
    axes.distance = std::max(lengthOf(sight), nearestDistance);
    axes.forward = unit(sight, {0.0, 0.0, -1.0});
    Vector side = cross(axes.forward, vectorOf(camera.up));
    if (lengthOf(side) < 1e-9) {
        bool const looksAlongY = std::abs(axes.forward[1]) > 0.9;
        side = cross(axes.forward, looksAlongY ? Vector{0.0, 0.0, 1.0} : Vector{0.0, 1.0, 0.0});
    }
    axes.right = unit(side, {1.0, 0.0, 0.0});
    axes.up = cross(axes.right, axes.forward);
    return axes;
}

double halfHeightAtUnitDistance(orvgl::Camera const& camera)
{
    double const degrees = std::clamp(static_cast<double>(camera.fieldOfView), 1.0, 170.0);
    return std::tan(degrees * std::numbers::pi / 360.0);
}

} // namespace

double pictureHeight(orvgl::Camera const& camera)
{
    return 2.0 * axesOf(camera).distance * halfHeightAtUnitDistance(camera);
}

void orbit(orvgl::Camera& camera, double right, double upwards)
{
    Axes const axes = axesOf(camera);
    Vector back = turned(-1.0 * axes.forward, axes.up, -right);
    Vector const side = turned(axes.right, axes.up, -right);
    back = turned(back, side, upwards);
    Vector const up = turned(axes.up, side, upwards);
    camera.eye = recordOf(vectorOf(camera.target) + axes.distance * back);
    camera.up = recordOf(up);
}

void roll(orvgl::Camera& camera, double clockwise)
{
    Axes const axes = axesOf(camera);
    camera.up = recordOf(turned(axes.up, axes.forward, -clockwise));
}

void pan(orvgl::Camera& camera, double right, double upwards)
{
    Axes const axes = axesOf(camera);
    double const height = pictureHeight(camera);
    Vector const shift = -right * height * axes.right + -upwards * height * axes.up;
    camera.eye = recordOf(vectorOf(camera.eye) + shift);
    camera.target = recordOf(vectorOf(camera.target) + shift);
}

void zoom(orvgl::Camera& camera, double factor, double x, double y)
{
    Axes const axes = axesOf(camera);
    double const height = pictureHeight(camera);
    double const distance = std::clamp(axes.distance * factor, nearestDistance, farthestDistance);
    double const change = 1.0 - distance / axes.distance;
    Vector const target = vectorOf(camera.target) + change * height * (x * axes.right + y * axes.up);
    camera.target = recordOf(target);
    camera.eye = recordOf(target - distance * axes.forward);
}

void lookFrom(orvgl::Camera& camera, double x, double y, double z)
{
    double const distance = axesOf(camera).distance;
    Vector const back = unit({x, y, z}, {0.0, -1.0, 0.0});
    camera.eye = recordOf(vectorOf(camera.target) + distance * back);
    // From above north stays at the top of the picture, from below it turns over the front edge.
    bool const isVertical = std::abs(back[2]) > 0.999;
    Vector const hint = isVertical ? Vector{0.0, back[2] > 0.0 ? 1.0 : -1.0, 0.0} : Vector{0.0, 0.0, 1.0};
    camera.up = recordOf(unit(hint - dot(hint, back) * back, hint));
}

void lookFrom(orvgl::Camera& camera, StandardView view)
{
    switch (view) {
    case StandardView::front:
        return lookFrom(camera, 0.0, -1.0, 0.0);
    case StandardView::back:
        return lookFrom(camera, 0.0, 1.0, 0.0);
    case StandardView::left:
        return lookFrom(camera, -1.0, 0.0, 0.0);
    case StandardView::right:
        return lookFrom(camera, 1.0, 0.0, 0.0);
    case StandardView::top:
        return lookFrom(camera, 0.0, 0.0, 1.0);
    case StandardView::bottom:
        return lookFrom(camera, 0.0, 0.0, -1.0);
    case StandardView::isometric:
        return lookFrom(camera, 1.0, -1.0, 1.0);
    }
}

void fit(orvgl::Camera& camera, std::span<Record const> points, double aspect)
{
    if (points.empty()) {
        return;
    }
    Axes const axes = axesOf(camera);
    Vector low = vectorOf(points.front());
    Vector high = low;
    for (auto const& point : points) {
        for (unsigned char axis = 0; axis < 3; ++axis) {
            low[axis] = std::min(low[axis], static_cast<double>(point[axis]));
            high[axis] = std::max(high[axis], static_cast<double>(point[axis]));
        }
    }
    Vector const middle = 0.5 * (low + high);
    double const radius = 0.5 * lengthOf(high - low);
    if (!std::isfinite(radius)) {
        return;
    }
    double const vertical = halfHeightAtUnitDistance(camera) / fitMargin;
    double const horizontal = vertical * std::max(aspect, 0.01);
    double distance = nearestDistance;
    for (auto const& point : points) {
        Vector const arm = vectorOf(point) - middle;
        double const nearer = camera.orthographic ? 0.0 : -dot(arm, axes.forward);
        distance = std::max({distance, std::abs(dot(arm, axes.up)) / vertical + nearer,
                             std::abs(dot(arm, axes.right)) / horizontal + nearer});
    }
    distance = std::min(distance, farthestDistance);
    camera.centre = recordOf(middle);
    camera.radius = std::max(static_cast<float>(radius), 1e-3F);
    camera.target = recordOf(middle);
    camera.eye = recordOf(middle - distance * axes.forward);
    camera.up = recordOf(axes.up);
}

} // namespace orvviewer
