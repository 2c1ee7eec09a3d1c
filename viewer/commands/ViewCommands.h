#pragma once

#include "viewer/commands/CommandContext.h"
#include "viewer/scene/CameraMotion.h"

/// What moves the camera of the open document. Each raises the hint of a changed view.
namespace orvviewer
{

void fitView(CommandContext& context);
/// Fits to some nodes; changes nothing where none of them shows.
void fitNodes(CommandContext& context, std::set<int> const& nodes);
void lookFromSide(CommandContext& context, StandardView view);
void lookAlong(CommandContext& context, double x, double y, double z); ///< direction from the target to the eye
void zoomView(CommandContext& context, double factor);                 ///< below 1 brings the eye nearer
void setOrthographic(CommandContext& context, bool orthographic);
bool isOrthographic(CommandContext const& context);

/// Fits any camera to the whole model, for a picture of that width-to-height ratio; its direction stays.
void fitWhole(std::shared_ptr<orv::IDocument> const& document, orvgl::Camera& camera, double aspect);

/// The view in which a model opens: the one that its file brings, else isometric, fitted.
void setFirstView(std::shared_ptr<orv::IDocument> const& document, double aspect);

} // namespace orvviewer
