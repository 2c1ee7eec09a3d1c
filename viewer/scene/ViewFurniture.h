#pragma once

#include <AIS_ViewCube.hxx>
#include <V3d_View.hxx>

namespace orvviewer
{

/// What a view shows besides the model.
void setBackground(Handle(V3d_View) const& view, bool dark);
void setWhiteBackground(Handle(V3d_View) const& view);
void showAxisCross(Handle(V3d_View) const& view, bool shown, bool dark);

/// The cube in the upper right corner whose sides, edges and corners are views.
Handle(AIS_ViewCube) makeViewCube();

} // namespace orvviewer
