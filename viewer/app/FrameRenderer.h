#pragma once

#include "host/runtime/IFrameRenderer.h"
#include "viewer/scene/SceneDisplay.h"

#include <memory>

namespace orvviewer
{

/// Draws frames for plug-ins with the display of the viewer. The display is the session's; once it is gone nothing is
/// drawn any more.
class FrameRenderer final : public orvhost::IFrameRenderer
{
public:
    explicit FrameRenderer(std::weak_ptr<SceneDisplay> display) : target(std::move(display)) {}

    bool drawFrame(std::shared_ptr<orv::IDocument> const& document, unsigned int width, unsigned int height,
                   bool transparent, unsigned char* pixels) override;

private:
    std::weak_ptr<SceneDisplay> target;
};

} // namespace orvviewer
