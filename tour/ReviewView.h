#pragma once

namespace orvtour
{

class Driver;

/// Makes a view worth a remark, by mouse and keys: hides two parts, colours one, makes one transparent, moves one,
/// turns the camera and comes nearer. False where a step could not be done or the model has too few parts.
bool arrangeReviewView(Driver& driver);

/// Puts everything back as the file has it and shows the whole model from the usual side.
bool resetView(Driver& driver);

} // namespace orvtour
