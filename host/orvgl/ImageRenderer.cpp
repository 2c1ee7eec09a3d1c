#include "host/orvgl/ImageRenderer.h"

#include "host/runtime/IFrameRenderer.h"

#include <algorithm>
#include <utility>

namespace orvgl
{

ImageRenderer::ImageRenderer(std::shared_ptr<orv::IDocument> sceneDocument, unsigned int width, unsigned int height,
                             bool isTransparent)
    : document(std::move(sceneDocument)), frameWidth(width), frameHeight(height), transparent(isTransparent)
{
}

std::shared_ptr<unsigned char> ImageRenderer::drawFrame()
{
    constexpr unsigned char white = 255;
    std::size_t const size = std::size_t{3} * frameWidth * frameHeight;
    std::shared_ptr<unsigned char> frame(new unsigned char[std::max<std::size_t>(size, 1)],
                                         std::default_delete<unsigned char[]>());
    std::fill_n(frame.get(), std::max<std::size_t>(size, 1), white);
    auto const renderer = orvhost::frameRenderer();
    if (renderer && document && size > 0) {
        renderer->drawFrame(document, frameWidth, frameHeight, transparent, frame.get());
    }
    return frame;
}

} // namespace orvgl
