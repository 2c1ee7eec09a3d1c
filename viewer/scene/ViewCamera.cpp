#include "viewer/scene/ViewCamera.h"

#include "viewer/scene/CameraMotion.h"

#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>
#include <gp_Vec.hxx>

#include <algorithm>
#include <cmath>

namespace orvviewer
{

namespace
{

gp_Pnt pointOf(orvmath::Tuple<float, 3> const& record)
{
    auto const finite = [](float value) { return std::isfinite(value) ? static_cast<double>(value) : 0.0; };
    return {finite(record[0]), finite(record[1]), finite(record[2])};
}

} // namespace

void applyToCamera(orvgl::Camera const& record, double aspect, Handle(Graphic3d_Camera) const& camera)
{
    gp_Pnt const target = pointOf(record.target);
    gp_Pnt eye = pointOf(record.eye);
    if (eye.Distance(target) < 1e-6) {
        eye = target.Translated(gp_Vec(0.0, 0.0, 1.0));
    }
    gp_Vec const sight(eye, target);
    gp_Vec up(gp_Pnt(), pointOf(record.up));
    if (up.Magnitude() < 1e-9 || up.IsParallel(sight, 1e-6)) {
        up = std::abs(sight.Y()) > 0.9 * sight.Magnitude() ? gp_Vec(0.0, 0.0, 1.0) : gp_Vec(0.0, 1.0, 0.0);
    }
    camera->SetProjectionType(record.orthographic ? Graphic3d_Camera::Projection_Orthographic
                                                  : Graphic3d_Camera::Projection_Perspective);
    camera->SetAspect(aspect);
    camera->SetFOVy(std::clamp(static_cast<double>(record.fieldOfView), 1.0, 170.0));
    camera->SetUp(gp_Dir(up));
    camera->SetEyeAndCenter(eye, target);
    camera->OrthogonalizeUp();
    if (record.orthographic) {
        // The scale is the height of a wide picture and the width of a narrow one.
        camera->SetScale(pictureHeight(record) * std::min(1.0, aspect));
    }
}

} // namespace orvviewer
