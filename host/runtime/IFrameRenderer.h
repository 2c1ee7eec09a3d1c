#pragma once

#include <memory>

namespace orv
{
class IDocument;
}

namespace orvhost
{

/// What only a running viewer can do: draw a document's current view off the screen.
class IFrameRenderer
{
public:
    virtual ~IFrameRenderer() = default;

    /// Fills `pixels` (width x height x 3 bytes: red, green, blue, from the top row down). What the renderer settings
    /// of the document switch off isn't drawn. False leaves `pixels` as it was. The view on the screen stays as it is.
    virtual bool drawFrame(std::shared_ptr<orv::IDocument> const& document, unsigned int width, unsigned int height,
                           bool transparent, unsigned char* pixels) = 0;
};

/// Registers the viewer's renderer; an empty pointer takes it back. Returns the one before.
std::shared_ptr<IFrameRenderer> setFrameRenderer(std::shared_ptr<IFrameRenderer> renderer);
std::shared_ptr<IFrameRenderer> frameRenderer();

} // namespace orvhost
