#pragma once

namespace orvtour
{

class Driver;

/// Makes a view worth a remark, with the viewer's own commands: hides two parts, colours one, makes one transparent,
/// moves one and turns the camera. False where the model has too few parts.
bool arrangeReviewView(Driver& driver);

/// Puts everything back as the file has it and shows the whole model.
void resetView(Driver& driver);

} // namespace orvtour
