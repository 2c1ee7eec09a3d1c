#pragma once

#include "host/orvgl/Camera.h"
#include "host/orvsg/Schema.h"

#include <memory>

namespace orvgl
{

/// What is drawn besides the model.
struct RendererSettings {
    bool showAxisCross = true;
    bool showViewCube = true;
    bool showSelection = true;

    bool operator==(RendererSettings const&) const = default;
};

/// The view of a document, key 2.
class SCRenderer : public orvsg::Schema
{
public:
    static constexpr short key = 2;

    std::shared_ptr<Camera> camera = std::make_shared<Camera>();
    RendererSettings settings;
};

} // namespace orvgl
