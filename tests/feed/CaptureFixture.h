#pragma once

#include "feed/ViewCapture.h"
#include "host/runtime/IFrameRenderer.h"
#include "support/PluginEnvironment.h"
#include "support/TestScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

namespace orvtest
{

/// Keeps what the picture was asked for.
class FakeRenderer final : public orvhost::IFrameRenderer
{
public:
    bool drawFrame(std::shared_ptr<orv::IDocument> const& document, unsigned int width, unsigned int height,
                   bool transparent, unsigned char* pixels) override
    {
        auto const record = orv::recordOf<orvgl::SCRenderer>(document);
        settings = record ? std::optional(record->settings) : std::nullopt;
        size = {width, height};
        wasTransparent = transparent;
        if (onDraw) {
            onDraw();
        }
        if (throws) {
            throw std::runtime_error("no picture");
        }
        std::size_t const half = std::size_t{3} * width * height / 2;
        std::fill_n(pixels, half, shade);
        std::fill_n(pixels + half, half, lowerShade.value_or(shade));
        return true;
    }

    std::optional<orvgl::RendererSettings> settings;
    std::pair<unsigned int, unsigned int> size;
    bool wasTransparent = true;
    bool throws = false;
    std::function<void()> onDraw; ///< called before the pixels are filled
    unsigned char shade = 128;
    std::optional<unsigned char> lowerShade; ///< of the lower half, where it differs
};

/// A small scene, somebody who is signed in, and a renderer that draws what the test tells it.
class CaptureTest : public testing::Test
{
protected:
    CaptureTest() : before(orvhost::setFrameRenderer(renderer))
    {
        user.userid = L"token";
        user.username = L"ada@example.com";
        user.name = L"Ada";
    }
    ~CaptureTest() override { orvhost::setFrameRenderer(before); }

    Feed capture(std::wstring const& text = L"look at this")
    {
        return captureView(scene.document, user, text, L"file-id", thumbnailPath());
    }
    std::filesystem::path picture() const { return environment.cloud("image.jpeg"); }

    PluginEnvironment environment;
    TestScene scene;
    orvweb::UserInfo user;
    std::shared_ptr<FakeRenderer> renderer = std::make_shared<FakeRenderer>();
    std::shared_ptr<orvhost::IFrameRenderer> before;
};

} // namespace orvtest
