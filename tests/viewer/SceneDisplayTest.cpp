#include "tests/viewer/ModelFixture.h"

#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "viewer/commands/ViewCommands.h"
#include "viewer/scene/SceneDisplay.h"

#include <vector>

using namespace orvtest;

namespace
{

constexpr unsigned int side = 160;
using Picture = std::vector<unsigned char>;

class SceneDisplayTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        std::wstring error;
        display = orvviewer::SceneDisplay::create(nullptr, error).release();
        ASSERT_TRUE(display) << std::filesystem::path(error).string();
        document = importFile(sampleModel()).document;
    }
    static void TearDownTestSuite()
    {
        document.reset();
        delete display;
    }

    void SetUp() override
    {
        ASSERT_TRUE(display);
        ASSERT_TRUE(document);
        topology = orv::recordOf<orvsg::SCSceneTopo>(document);
        resources = orv::recordOf<orvsg::SCSceneRes>(document);
        runtime = orv::recordOf<orvsg::SCSceneRT>(document);
        renderer = orv::recordOf<orvgl::SCRenderer>(document);
        *renderer->camera = orvgl::Camera();
        orvviewer::setFirstView(document, 1.0);
        orvsgutils::MaterialUtils::resetAll(resources, runtime, topology);
        resources->transforms = resources->initialTransforms;
        renderer->settings = {false, false, false};
        display->setDocument(document);
    }

    Picture draw(bool white = false)
    {
        Picture picture(std::size_t{3} * side * side);
        EXPECT_TRUE(display->drawFrame(side, side, white, picture.data()));
        return picture;
    }

    static std::size_t difference(Picture const& a, Picture const& b)
    {
        std::size_t count = 0;
        for (std::size_t i = 0; i < a.size(); i += 3) {
            int const distance = std::abs(a[i] - b[i]) + std::abs(a[i + 1] - b[i + 1]) + std::abs(a[i + 2] - b[i + 2]);
            count += distance > 12 ? 1 : 0;
        }
        return count;
    }

    int firstChild() const { return topology->nodes.getValue(0).children.at(0); }

    // One for all tests: importing takes longer than all of them together.
    static inline orvviewer::SceneDisplay* display = nullptr;
    static inline std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orvsg::SCSceneRes> resources;
    std::shared_ptr<orvsg::SCSceneRT> runtime;
    std::shared_ptr<orvgl::SCRenderer> renderer;
};

} // namespace

TEST_F(SceneDisplayTest, DrawsTheModelInTheMiddleOfAWhitePicture)
{
    auto const picture = draw(true);
    auto const pixel = [&picture](unsigned x, unsigned y) { return &picture[3 * (y * side + x)]; };
    EXPECT_EQ(pixel(1, 1)[0], 255);
    EXPECT_EQ(pixel(side - 2, side - 2)[2], 255);
    EXPECT_LT(pixel(side / 2, side / 2)[0] + pixel(side / 2, side / 2)[1] + pixel(side / 2, side / 2)[2], 740);
}

TEST_F(SceneDisplayTest, DrawsTheSameSceneAlike)
{
    EXPECT_EQ(difference(draw(), draw()), 0U);
}

TEST_F(SceneDisplayTest, HiddenNodesLeaveAndComeBack)
{
    auto const before = draw();
    int const count = display->displayedCount();
    runtime->visibility[0] = false;
    display->sync();
    EXPECT_EQ(display->displayedCount(), 0);
    EXPECT_GT(difference(before, draw()), 500U);
    runtime->visibility[0] = true;
    display->sync();
    EXPECT_EQ(display->displayedCount(), count);
    EXPECT_EQ(difference(before, draw()), 0U);
}

TEST_F(SceneDisplayTest, UserColoursShowAndGoAgain)
{
    auto const before = draw();
    orvsgutils::MaterialUtils::setNodeColor(0, 0x0000FF, resources, runtime, topology);
    display->sync();
    auto const coloured = draw();
    EXPECT_GT(difference(before, coloured), 500U);
    auto const* middle = &coloured[3 * (side / 2 * side + side / 2)];
    EXPECT_GT(middle[0], middle[1]);
    EXPECT_GT(middle[0], middle[2]);
    orvsgutils::MaterialUtils::resetAll(resources, runtime, topology);
    display->sync();
    EXPECT_EQ(difference(before, draw()), 0U);
}

TEST_F(SceneDisplayTest, TransparencyShowsAndGoesAgain)
{
    auto const before = draw();
    orvsgutils::MaterialUtils::setNodeTransparency(firstChild(), 0.75F, resources, runtime, topology);
    display->sync();
    EXPECT_GT(difference(before, draw()), 100U);
    orvsgutils::MaterialUtils::resetAll(resources, runtime, topology);
    display->sync();
    EXPECT_EQ(difference(before, draw()), 0U);
}

TEST_F(SceneDisplayTest, WhatShinesThroughLooksTheSameWhateverWasShownBefore)
{
    orvsgutils::MaterialUtils::setNodeTransparency(0, 0.5F, resources, runtime, topology);
    display->sync();
    auto const before = draw();
    for (int const child : topology->nodes.getValue(0).children) {
        runtime->visibility[static_cast<std::size_t>(child)] = false;
        display->sync();
        runtime->visibility[static_cast<std::size_t>(child)] = true;
        display->sync();
        EXPECT_EQ(draw(), before) << "hidden and shown: " << child;
    }
    orvsgutils::MaterialUtils::resetAll(resources, runtime, topology);
    display->sync();
    orvsgutils::MaterialUtils::setNodeTransparency(0, 0.5F, resources, runtime, topology);
    display->sync();
    EXPECT_EQ(draw(), before) << "opaque and transparent again";
}

TEST_F(SceneDisplayTest, MovedNodesMoveWithAllBelow)
{
    auto const before = draw();
    auto const initial = resources->transforms.getValue(firstChild());
    auto moved = initial;
    moved.matrix[12] += 60.0F;
    moved.isSet = true;
    resources->transforms.setValue(firstChild(), moved);
    display->sync();
    EXPECT_GT(difference(before, draw()), 100U);
    resources->transforms.setValue(firstChild(), initial);
    display->sync();
    EXPECT_EQ(difference(before, draw()), 0U);
}

TEST_F(SceneDisplayTest, TheCameraRecordAloneDefinesThePicture)
{
    auto const before = draw();
    auto const camera = *renderer->camera;
    orvviewer::orbit(*renderer->camera, 0.4, 0.2);
    orvviewer::zoom(*renderer->camera, 0.8, 0.1, 0.0);
    auto const turned = draw();
    EXPECT_GT(difference(before, turned), 500U);
    *renderer->camera = orvgl::Camera();
    draw();
    renderer->camera->eye = camera.eye;
    renderer->camera->target = camera.target;
    renderer->camera->up = camera.up;
    EXPECT_EQ(difference(before, draw()), 0U);
}

TEST_F(SceneDisplayTest, FurnitureShowsOnlyWhereTheSettingsWantIt)
{
    auto const bare = draw();
    renderer->settings.showAxisCross = true;
    auto const withCross = draw();
    EXPECT_GT(difference(bare, withCross), 5U);
    renderer->settings = {false, true, false};
    EXPECT_GT(difference(bare, draw()), 50U);
    renderer->settings = {false, false, false};
    EXPECT_EQ(difference(bare, draw()), 0U);
}

TEST_F(SceneDisplayTest, SelectionShowsOnlyWhereTheSettingsWantIt)
{
    auto const bare = draw();
    display->setSelection({0});
    EXPECT_EQ(difference(bare, draw()), 0U);
    renderer->settings.showSelection = true;
    EXPECT_GT(difference(bare, draw()), 500U);
    display->setSelection({});
    EXPECT_EQ(difference(bare, draw()), 0U);
}

TEST_F(SceneDisplayTest, SurvivesRecordsThatMakeNoSense)
{
    auto broken = resources->transforms.getValue(firstChild());
    for (unsigned char i = 0; i < 16; ++i) {
        broken.matrix[i] = 0.0F;
    }
    broken.isSet = true;
    resources->transforms.setValue(firstChild(), broken);
    renderer->camera->eye = renderer->camera->target;
    renderer->camera->up = orvmath::Tuple<float, 3>(0.0F, 0.0F, 0.0F);
    display->sync();
    draw();
}

TEST_F(SceneDisplayTest, AFrameOfAnySizeHasItsOwnAspect)
{
    Picture picture(std::size_t{3} * 400 * 100);
    EXPECT_TRUE(display->drawFrame(400, 100, true, picture.data()));
    EXPECT_FALSE(display->drawFrame(0, 100, true, picture.data()));
    display->setDocument(nullptr);
    EXPECT_FALSE(display->drawFrame(400, 100, true, picture.data()));
}
