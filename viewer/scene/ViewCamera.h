#pragma once

#include "host/orvgl/Camera.h"

#include <Graphic3d_Camera.hxx>

namespace orvviewer
{

/// Sets the drawing system's camera so that its picture is the record's. `aspect` is the picture's width to height.
void applyToCamera(orvgl::Camera const& record, double aspect, Handle(Graphic3d_Camera) const& camera);

} // namespace orvviewer
