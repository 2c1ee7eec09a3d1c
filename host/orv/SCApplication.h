#pragma once

#include "host/orv/IApplication.h"
#include "host/orv/ISupportText.h"
#include "host/orvsg/Schema.h"

#include <memory>

namespace orv
{

/// The way from a document to its application, key 19. Present in every document that the viewer hands out.
class SCApplication : public orvsg::Schema
{
public:
    static constexpr short key = 19;

    std::shared_ptr<IApplication> application;
    std::shared_ptr<ISupportText> supportText; ///< empty where the application has no text of its own
};

} // namespace orv
