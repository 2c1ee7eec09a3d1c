#include "host/orv/Document.h"
#include "host/orvgl/ImageRenderer.h"
#include "host/orvglutils/ImageWriter.h"
#include "host/runtime/IFrameRenderer.h"
#include "support/HostSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <turbojpeg.h>

namespace
{

constexpr unsigned long mask = 0xFF00FF;

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> pixels;

    std::vector<int> at(int x, int y) const
    {
        auto const first = pixels.begin() + (y * width + x) * 3;
        return {first, first + 3};
    }
};

Picture decoded(std::filesystem::path const& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::vector<unsigned char> const bytes{std::istreambuf_iterator<char>(stream), {}};
    Picture picture;
    std::unique_ptr<void, int (*)(tjhandle)> const reader(tjInitDecompress(), tjDestroy);
    int sampling = 0;
    int space = 0;
    EXPECT_EQ(tjDecompressHeader3(reader.get(), bytes.data(), bytes.size(), &picture.width, &picture.height, &sampling,
                                  &space),
              0);
    picture.pixels.resize(static_cast<std::size_t>(picture.width * picture.height * 3));
    EXPECT_EQ(tjDecompress2(reader.get(), bytes.data(), bytes.size(), picture.pixels.data(), picture.width, 0,
                            picture.height, TJPF_RGB, 0),
              0);
    return picture;
}

bool isNear(std::vector<int> const& pixel, std::vector<int> const& expected)
{
    return std::equal(pixel.begin(), pixel.end(), expected.begin(), [](int a, int b) { return std::abs(a - b) <= 12; });
}

/// 64 x 32 pixels: the upper half red, the lower half blue.
std::vector<unsigned char> twoHalves()
{
    std::vector<unsigned char> pixels(64 * 32 * 3, 0);
    for (std::size_t i = 0; i < pixels.size(); i += 3) {
        pixels[i + (i < pixels.size() / 2 ? 0 : 2)] = 255;
    }
    return pixels;
}

TEST(ImageWriter, WritesWhatWasDrawn)
{
    orvtest::HostSession const session;
    orvglutils::ImageWriter writer(mask);
    ASSERT_TRUE(writer.write(64, 32, twoHalves().data(), session.path("image.jpeg").c_str(), false, true));
    Picture const picture = decoded(session.directory() / "image.jpeg");
    EXPECT_EQ(picture.width, 64);
    EXPECT_EQ(picture.height, 32);
    EXPECT_TRUE(isNear(picture.at(5, 3), {255, 0, 0}));
    EXPECT_TRUE(isNear(picture.at(60, 30), {0, 0, 255}));
    struct stat status {
    };
    ASSERT_EQ(::stat((session.directory() / "image.jpeg").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST(ImageWriter, TurnsRowsThatComeFromTheBottom)
{
    orvtest::HostSession const session;
    ASSERT_TRUE(orvglutils::ImageWriter(mask).write(64, 32, twoHalves().data(), session.path("image.jpeg").c_str(),
                                                    true, true));
    EXPECT_TRUE(isNear(decoded(session.directory() / "image.jpeg").at(5, 3), {0, 0, 255}));
}

TEST(ImageWriter, TheMaskColourIsDrawnOnlyInOpaquePictures)
{
    orvtest::HostSession const session;
    std::vector<unsigned char> pixels;
    for (int i = 0; i < 16 * 16; ++i) {
        pixels.insert(pixels.end(), {255, 0, 255});
    }
    std::wstring const file = session.path("image.jpeg");
    ASSERT_TRUE(orvglutils::ImageWriter(mask).write(16, 16, pixels.data(), file.c_str(), false, true));
    EXPECT_TRUE(isNear(decoded(file).at(8, 8), {255, 0, 255}));
    ASSERT_TRUE(orvglutils::ImageWriter(mask).write(16, 16, pixels.data(), file.c_str(), false, false));
    EXPECT_TRUE(isNear(decoded(file).at(8, 8), {255, 255, 255}));
}

TEST(ImageWriter, AFailureLeavesTheEarlierFile)
{
    orvtest::HostSession const session;
    std::wstring const file = session.path("image.jpeg");
    orvglutils::ImageWriter writer(mask);
    ASSERT_TRUE(writer.write(64, 32, twoHalves().data(), file.c_str(), false, true));
    EXPECT_FALSE(writer.write(0, 32, twoHalves().data(), file.c_str(), false, true));
    EXPECT_FALSE(writer.write(64, 0, twoHalves().data(), file.c_str(), false, true));
    EXPECT_FALSE(writer.write(70000, 1, twoHalves().data(), file.c_str(), false, true));
    EXPECT_FALSE(writer.write(64, 32, nullptr, file.c_str(), false, true));
    EXPECT_FALSE(writer.write(64, 32, twoHalves().data(), session.path("no/image.jpeg").c_str(), false, true));
    EXPECT_FALSE(writer.write(64, 32, twoHalves().data(), nullptr, false, true));
    EXPECT_EQ(decoded(file).width, 64);
}

class Painter final : public orvhost::IFrameRenderer
{
public:
    bool drawFrame(std::shared_ptr<orv::IDocument> const& document, unsigned int width, unsigned int height,
                   bool transparent, unsigned char* pixels) override
    {
        if (!succeeds) {
            return false;
        }
        seen = document;
        wasTransparent = transparent;
        std::fill_n(pixels, std::size_t{3} * width * height, static_cast<unsigned char>(7));
        return true;
    }

    bool succeeds = true;
    bool wasTransparent = false;
    std::shared_ptr<orv::IDocument> seen;
};

TEST(ImageRenderer, DrawsByTheViewersRenderer)
{
    auto const painter = std::make_shared<Painter>();
    auto const before = orvhost::setFrameRenderer(painter);
    auto const document = std::make_shared<orv::Document>();
    orvgl::ImageRenderer renderer(document, 20, 10, true);
    auto const frame = renderer.drawFrame();
    EXPECT_EQ(renderer.width(), 20U);
    EXPECT_EQ(renderer.height(), 10U);
    EXPECT_EQ(frame.get()[0], 7);
    EXPECT_EQ(frame.get()[599], 7);
    EXPECT_EQ(painter->seen, document);
    EXPECT_TRUE(painter->wasTransparent);
    EXPECT_EQ(orvhost::setFrameRenderer(before), painter);
}

TEST(ImageRenderer, WhatCantBeDrawnIsWhite)
{
    auto const document = std::make_shared<orv::Document>();
    auto const before = orvhost::setFrameRenderer(nullptr);
    EXPECT_EQ(orvgl::ImageRenderer(document, 2, 2, false).drawFrame().get()[11], 255);
    EXPECT_TRUE(orvgl::ImageRenderer(document, 0, 2, false).drawFrame());
    auto const painter = std::make_shared<Painter>();
    painter->succeeds = false;
    orvhost::setFrameRenderer(painter);
    EXPECT_EQ(orvgl::ImageRenderer(document, 2, 2, false).drawFrame().get()[0], 255);
    EXPECT_EQ(orvgl::ImageRenderer(nullptr, 2, 2, false).drawFrame().get()[0], 255);
    orvhost::setFrameRenderer(before);
}

} // namespace
