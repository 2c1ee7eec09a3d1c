#pragma once

#include <AIS_InteractiveContext.hxx>
#include <V3d_Viewer.hxx>

namespace orvviewer
{

/// What all views share: light that goes with the eye, and the colours of what is selected or under the pointer.
void setUpLights(Handle(V3d_Viewer) const& viewer);
void setUpHighlighting(Handle(AIS_InteractiveContext) const& context);

} // namespace orvviewer
