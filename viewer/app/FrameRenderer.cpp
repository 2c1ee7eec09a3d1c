#include "viewer/app/FrameRenderer.h"

namespace orvviewer
{

bool FrameRenderer::drawFrame(std::shared_ptr<orv::IDocument> const& document, unsigned int width, unsigned int height,
                              bool transparent, unsigned char* pixels)
{
    auto const display = target.lock();
    if (!display || !document || document != display->document()) {
        return false;
    }
    // The records may have changed since the last hint.
    display->sync();
    return display->drawFrame(width, height, transparent, pixels);
}

} // namespace orvviewer
