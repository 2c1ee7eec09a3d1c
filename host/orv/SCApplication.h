#pragma once

#include "host/orv/IApplication.h"
#include "host/orvsg/Schema.h"

#include <memory>

namespace orv
{

/// A text for support mails that an application supplies itself.
class ISupportText
{
public:
    virtual ~ISupportText() = default;
    virtual wchar_t const* text() = 0;
};

/// The way from a document to its application, key 19. Present in every document that the viewer hands out.
class SCApplication : public orvsg::Schema
{
public:
    static constexpr short key = 19;

    std::shared_ptr<IApplication> application;
    std::shared_ptr<ISupportText> supportText; ///< empty where the application has no text of its own
};

} // namespace orv
