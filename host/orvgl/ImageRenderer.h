#pragma once

#include "host/orv/IDocument.h"

#include <memory>

namespace orvgl
{

/// Draws the current view of a document off the screen, by the frame renderer that the viewer has registered.
class ImageRenderer
{
public:
    /// Width and height in pixels. With `transparent` the background is left out of the frame (drawn white).
    ImageRenderer(std::shared_ptr<orv::IDocument> document, unsigned int width, unsigned int height, bool transparent);

    unsigned int width() const { return frameWidth; }
    unsigned int height() const { return frameHeight; }

    /// The frame: red, green and blue, a byte each, row by row from the top, without padding. A frame that can't be
    /// drawn comes back white; the pointer is never empty.
    std::shared_ptr<unsigned char> drawFrame();

private:
    std::shared_ptr<orv::IDocument> document;
    unsigned int frameWidth;
    unsigned int frameHeight;
    bool transparent;
};

} // namespace orvgl
