#include "exporters/pdfwriter/View3D.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace pdfwriter
{

namespace
{

Vector vectorOf(orvmath::Tuple<float, 3> const& tuple)
{
    return {tuple[0], tuple[1], tuple[2]};
}

orvmath::Tuple<float, 3> tupleOf(Vector const& v)
{
    return {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])};
}

Vector sum(Vector const& a, Vector const& b, double factor)
{
    return {a[0] + factor * b[0], a[1] + factor * b[1], a[2] + factor * b[2]};
}

double dot(Vector const& a, Vector const& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector cross(Vector const& a, Vector const& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// A unit vector, or `otherwise` for one without a direction.
Vector direction(Vector const& v, Vector const& otherwise)
{
    double const length = std::sqrt(dot(v, v));
    constexpr double least = 1e-9;
    return std::isfinite(length) && length > least ? Vector{v[0] / length, v[1] / length, v[2] / length} : otherwise;
}

Vector finite(Vector const& v)
{
    return std::all_of(v.begin(), v.end(), [](double x) { return std::isfinite(x); }) ? v : Vector{};
}

double halfAngle(double fieldOfView)
{
    return fieldOfView * std::numbers::pi / 360.0;
}

} // namespace

View3D viewOf(orvgl::Camera const& camera, std::string const& name)
{
    View3D view;
    view.name = name;
    Vector const target = finite(vectorOf(camera.target));
    Vector eye = finite(vectorOf(camera.eye));
    view.orbit = std::sqrt(dot(sum(target, eye, -1), sum(target, eye, -1)));
    if (!(view.orbit > 0)) {
        view.orbit = 1;
        eye = sum(target, {0, 0, 1}, 1);
    }
    Vector const forward = direction(sum(target, eye, -1), {0, 0, -1});
    Vector const wanted = finite(vectorOf(camera.up));
    // An up along the view says nothing: the axis that the view follows least stands in.
    auto const least = static_cast<std::size_t>(
        std::min_element(forward.begin(), forward.end(), [](double a, double b) { return std::abs(a) < std::abs(b); }) -
        forward.begin());
    Vector axis{};
    axis[least] = 1;
    Vector const instead = direction(sum(axis, forward, -dot(axis, forward)), axis);
    Vector const up = direction(sum(wanted, forward, -dot(wanted, forward)), instead);
    Vector const left = cross(up, forward);
    auto out = view.cameraToWorld.begin();
    for (auto const* v : {&left, &up, &forward, static_cast<Vector const*>(&eye)}) {
        out = std::copy(v->begin(), v->end(), out);
    }
    constexpr double widest = 170;
    view.fieldOfView = std::isfinite(camera.fieldOfView) ? std::clamp<double>(camera.fieldOfView, 1, widest) : 30;
    view.pictureHeight = 2 * view.orbit * std::tan(halfAngle(view.fieldOfView));
    view.orthographic = camera.orthographic;
    return view;
}

orvgl::Camera cameraFrom(Vector const& from, Vector const& up, Vector const& centre, double radius)
{
    orvgl::Camera camera;
    double const distance = std::max(radius, 1e-3) / std::sin(halfAngle(camera.fieldOfView));
    camera.target = tupleOf(centre);
    camera.eye = tupleOf(sum(centre, direction(from, {0, 0, 1}), distance));
    camera.up = tupleOf(up);
    camera.centre = camera.target;
    camera.radius = static_cast<float>(radius);
    return camera;
}

} // namespace pdfwriter
