#include "host/runtime/IFrameRenderer.h"

#include <utility>

namespace orvhost
{

namespace
{

std::shared_ptr<IFrameRenderer>& registered()
{
    static std::shared_ptr<IFrameRenderer> renderer;
    return renderer;
}

} // namespace

std::shared_ptr<IFrameRenderer> setFrameRenderer(std::shared_ptr<IFrameRenderer> renderer)
{
    return std::exchange(registered(), std::move(renderer));
}

std::shared_ptr<IFrameRenderer> frameRenderer()
{
    return registered();
}

} // namespace orvhost
