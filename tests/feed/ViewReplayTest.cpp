#include "feed/ViewReplay.h"

#include "feed/RaiseHint.h"
#include "host/orvgl/CameraHelper.h"
#include "host/orvsgutils/BBoxUtils.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "support/ListeningDocument.h"
#include "support/RecordingApplication.h"
#include "support/TestScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <memory>
#include <set>
#include <utility>
#include <vector>

using orvsgutils::MaterialUtils;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class ViewReplay : public testing::Test
{
protected:
    ViewReplay()
    {
        scene.application->application = application;
        feed.comment.commentType = L"text";
        feed.comment.viewport = FeedViewport(Vector3(100, 0, 0), Vector3(1, 2, 3), Vector3(0, 0, 1), 1.0);
    }

    void restore() { restoreView(scene.document, feed); }

    /// Leaves nothing as the file gives it.
    void disturbScene()
    {
        scene.runtime->visibility[2] = false;
        MaterialUtils::setNodeColor(1, 0x123456, scene.resources, scene.runtime, scene.topology);
        MaterialUtils::setNodeTransparency(4, 0.8F, scene.resources, scene.runtime, scene.topology);
        scene.moveTo(3, 70, 80, 90);
    }

    orvsg::Material materialOf(int node) const { return scene.resources->materials.getValue(node); }
    orvsg::Transform placementOf(int node) const
    {
        return scene.resources->transforms.getValue(scene.topology->transformOfNode.getValue(node));
    }
    orvsg::Transform initialPlacementOf(int node) const
    {
        return scene.resources->initialTransforms.getValue(scene.topology->transformOfNode.getValue(node));
    }
    std::vector<int> hiddenNodes() const
    {
        std::vector<int> nodes;
        for (std::size_t node = 0; node < scene.runtime->visibility.size(); ++node) {
            if (!scene.runtime->visibility[node]) {
                nodes.push_back(static_cast<int>(node));
            }
        }
        return nodes;
    }

    orvtest::TestScene scene;
    std::shared_ptr<orvtest::RecordingApplication> application = std::make_shared<orvtest::RecordingApplication>();
    Feed feed;
};

TEST_F(ViewReplay, WithoutADocumentDoesNothing)
{
    EXPECT_NO_THROW(restoreView(nullptr, feed));
}

TEST_F(ViewReplay, OfAnEmptyRecordResetsTheModel)
{
    disturbScene();
    restore();
    EXPECT_THAT(hiddenNodes(), IsEmpty());
    for (int node = 0; node < 6; ++node) {
        EXPECT_FALSE(materialOf(node).isColored);
        EXPECT_FALSE(materialOf(node).isTransparent);
        EXPECT_EQ(placementOf(node).matrix, initialPlacementOf(node).matrix);
    }
    EXPECT_EQ(scene.runtime->coloredNodes.size(), 0U);
    EXPECT_EQ(scene.runtime->transparentNodes.size(), 0U);
}

TEST_F(ViewReplay, SetsTheCameraOfTheRecord)
{
    restore();
    orvgl::Camera const& camera = *scene.renderer->camera;
    EXPECT_EQ(camera.eye, Vector3(100, 0, 0));
    EXPECT_EQ(camera.target, Vector3(1, 2, 3));
    EXPECT_EQ(camera.up, Vector3(0, 0, 1));
}

TEST_F(ViewReplay, FitsTheDepthToTheWholeModelInItsInitialPlaces)
{
    orvsg::BBox const box = orvsgutils::BBoxUtils::get(scene.resources, scene.topology, scene.pmi, scene.runtime,
                                                       scene.info->documentKind, true, true);
    Vector3 centre;
    float radius = 0.0F;
    orvsgutils::BBoxUtils::getSphere(box, centre, radius);
    disturbScene();
    feed.comment.objects.hidden = {1};
    Matrix4 farAway = orvsg::Transform().matrix;
    farAway[12] = 5000.0F;
    feed.comment.objects.nodetransform = {{1, farAway}};
    restore();
    EXPECT_EQ(scene.renderer->camera->centre, centre);
    EXPECT_EQ(scene.renderer->camera->radius, radius);
}

TEST_F(ViewReplay, GivesTheSamePictureForAnyZoom)
{
    restore();
    orvgl::Camera const camera = *scene.renderer->camera;
    feed.comment.viewport.zoom = 25.0;
    restore();
    EXPECT_EQ(*scene.renderer->camera, camera);
}

TEST_F(ViewReplay, HidesTheNodesOfTheRecord)
{
    scene.runtime->visibility[2] = false;
    feed.comment.objects.hidden = {4, 1, 4};
    restore();
    EXPECT_THAT(hiddenNodes(), ElementsAre(1, 4));
}

TEST_F(ViewReplay, MakesNodesHalfTransparent)
{
    feed.comment.objects.transparent = {4, 1};
    restore();
    EXPECT_TRUE(materialOf(4).isTransparent);
    EXPECT_EQ(materialOf(4).transparency, 0.5F);
    EXPECT_EQ(materialOf(1).transparency, 0.5F);
    EXPECT_FALSE(materialOf(3).isTransparent);
    EXPECT_THAT(std::vector<int>(scene.runtime->transparentNodes.begin(), scene.runtime->transparentNodes.end()),
                ElementsAre(4, 1));
}

TEST_F(ViewReplay, ColoursByPosition)
{
    feed.comment.objects.colored = {Vector3(), Vector3(0.999F, 0.0F, 1.0F)};
    restore();
    EXPECT_TRUE(materialOf(1).isColored);
    EXPECT_EQ(materialOf(1).color, 0xFF00FEU) << "cut, not rounded";
    EXPECT_FALSE(materialOf(0).isColored);
}

TEST_F(ViewReplay, IgnoresColoursByNodeWhereThereAreColoursByPosition)
{
    feed.comment.objects.colored = {Vector3(), Vector3(1, 0, 0)};
    feed.comment.objects.nodecolor = {{0, 0x00FF00}, {1, 0x00FF00}, {3, 0x00FF00}};
    restore();
    EXPECT_FALSE(materialOf(0).isColored);
    EXPECT_EQ(materialOf(1).color, 0x0000FFU);
    EXPECT_FALSE(materialOf(3).isColored);
}

TEST_F(ViewReplay, ColoursByNode)
{
    feed.comment.objects.nodecolor = {{1, 0x00FF00}, {4, 0}};
    restore();
    EXPECT_EQ(materialOf(1).color, 0x00FF00U);
    EXPECT_TRUE(materialOf(4).isColored) << "black is a colour here";
    EXPECT_EQ(materialOf(4).color, 0U);
}

TEST_F(ViewReplay, LeavesBlackByPositionToTheModel)
{
    feed.comment.objects.colored.assign(6, Vector3());
    restore();
    EXPECT_EQ(MaterialUtils::getNodeColor(4, scene.resources, scene.topology), 0x0000FFU) << "the file's red";
    EXPECT_EQ(scene.runtime->coloredNodes.size(), 0U);
}

TEST_F(ViewReplay, KeepsTheLowBitsOfAnOddChannel)
{
    float const infinity = std::numeric_limits<float>::infinity();
    float const nan = std::numeric_limits<float>::quiet_NaN();
    feed.comment.objects.colored = {Vector3(2.0F, -1.0F, 0.0F), Vector3(infinity, nan, 1e30F)};
    restore();
    EXPECT_EQ(materialOf(0).color, 0x0001FEU) << "510 and -255 keep their low eight bits";
    EXPECT_EQ(materialOf(1).color, 0xFF00FFU) << "the largest int ends in 0xFF, and what is no number is 0";
    feed.comment.objects.colored = {Vector3(-infinity, -1e30F, 8421504.0F), Vector3(8421505.0F, 256.0F, -0.003F)};
    restore();
    EXPECT_EQ(materialOf(0).color, 0x800000U) << "the smallest int ends in 0; 2147483520 ends in 0x80";
    EXPECT_EQ(materialOf(1).color, 0x0000FFU) << "the largest int; 65280 ends in 0; -0.7 is cut to 0";
}

TEST_F(ViewReplay, MovesTheNodesOfTheRecordAndPutsTheOthersBack)
{
    disturbScene();
    Matrix4 matrix = orvsg::Transform().matrix;
    matrix[12] = 7.0F;
    feed.comment.objects.nodetransform = {{4, matrix}};
    restore();
    EXPECT_EQ(placementOf(4).matrix, matrix);
    EXPECT_TRUE(placementOf(4).isSet);
    EXPECT_EQ(placementOf(3).matrix, initialPlacementOf(3).matrix);
}

TEST_F(ViewReplay, MarksAMovedNodeEvenWhereItsMatrixIsTheIdentity)
{
    feed.comment.objects.nodetransform = {{4, orvsg::Transform().matrix}};
    restore();
    EXPECT_EQ(placementOf(4).matrix, orvsg::Transform().matrix);
    EXPECT_TRUE(placementOf(4).isSet);
}

TEST_F(ViewReplay, OfARecordWithoutMovedNodesPutsAllBack)
{
    scene.moveTo(4, 1, 1, 1);
    restore();
    EXPECT_EQ(placementOf(4).matrix, initialPlacementOf(4).matrix);
}

TEST_F(ViewReplay, TwiceGivesTheSameState)
{
    feed.comment.objects.hidden = {1};
    feed.comment.objects.transparent = {4};
    feed.comment.objects.nodecolor = {{3, 0x00FF00}};
    Matrix4 matrix = orvsg::Transform().matrix;
    matrix[13] = 9.0F;
    feed.comment.objects.nodetransform = {{5, matrix}};
    auto const state = [this] {
        std::vector<orvsg::Material> materials;
        std::vector<orvsg::Transform> placements;
        for (int node = 0; node < 6; ++node) {
            materials.push_back(materialOf(node));
            placements.push_back(placementOf(node));
        }
        return std::tuple(scene.runtime->visibility, materials, placements, *scene.renderer->camera,
                          scene.runtime->coloredNodes.size(), scene.runtime->transparentNodes.size());
    };
    restore();
    auto const once = state();
    restore();
    EXPECT_TRUE(state() == once);
    disturbScene();
    restore();
    EXPECT_TRUE(state() == once) << "whatever was shown before";
}

TEST_F(ViewReplay, TakesNodesOutsideTheModelWithoutHarm)
{
    FeedObjects& objects = feed.comment.objects;
    objects.hidden = {-1, 6, INT_MAX, INT_MIN};
    objects.transparent = objects.hidden;
    for (int const node : objects.hidden) {
        objects.nodecolor[node] = -1;
        objects.nodetransform[node] = Matrix4();
    }
    restore();
    EXPECT_THAT(hiddenNodes(), IsEmpty());
    for (int node = 0; node < 6; ++node) {
        EXPECT_EQ(placementOf(node).matrix, initialPlacementOf(node).matrix);
    }
    objects.colored.assign(5000, Vector3(1, 0, 0));
    restore();
    EXPECT_EQ(materialOf(5).color, 0x0000FFU);
}

TEST_F(ViewReplay, DropsTheBitsAboveAPackedColour)
{
    feed.comment.objects.nodecolor = {{1, -1}, {3, 0x7F010203}};
    restore();
    EXPECT_EQ(materialOf(1).color, 0xFFFFFFU);
    EXPECT_EQ(materialOf(3).color, 0x010203U);
}

TEST_F(ViewReplay, ListsWhatItColoursInTheOrderOfNodes)
{
    feed.comment.objects.nodecolor = {{5, 1}, {1, 1}, {4, 1}};
    restore();
    EXPECT_THAT(std::vector<int>(scene.runtime->coloredNodes.begin(), scene.runtime->coloredNodes.end()),
                ElementsAre(1, 4, 5));
}

TEST_F(ViewReplay, TakesAZeroOfEitherSignForNoColour)
{
    feed.comment.objects.colored = {Vector3(-0.0F, 0.0F, -0.0F), Vector3(0.0F, 0.0F, 1e-30F)};
    restore();
    EXPECT_FALSE(materialOf(0).isColored);
    EXPECT_TRUE(materialOf(1).isColored) << "not exactly zero: black";
    EXPECT_EQ(materialOf(1).color, 0U);
}

TEST_F(ViewReplay, TakesAnyMatrixAsItStands)
{
    feed.comment.objects.nodetransform = {{2, Matrix4()}};
    restore();
    EXPECT_EQ(placementOf(2).matrix, Matrix4()) << "all zero, though it flattens the assembly";
    EXPECT_TRUE(placementOf(2).isSet);
}

TEST_F(ViewReplay, LeavesTheRecordAlone)
{
    feed.comment.objects.hidden = {4, 1, 4};
    feed.comment.objects.nodecolor = {{1, 5}};
    Feed const before = feed;
    restore();
    EXPECT_EQ(feed, before);
}

TEST_F(ViewReplay, AsksForTheRecordsInTheirOrder)
{
    auto const document = std::make_shared<orvtest::ListeningDocument>(scene.document);
    restoreView(document, feed);
    EXPECT_THAT(document->keys, ElementsAre(orvsg::SCSceneRes::key, orvsg::SCSceneTopo::key, orvsg::SCPmi::key,
                                            orvsg::SCSceneRT::key, orvsg::SCInfo::key, orvgl::SCRenderer::key,
                                            orv::SCApplication::key, orvsg::SCBom::BOM, orv::SCApplication::key))
        << "the last one for the hint";
}

TEST_F(ViewReplay, TellsAllViewsAtItsEnd)
{
    feed.comment.objects.hidden = {1};
    application->onHint = [this](orvui::Hint& hint) {
        EXPECT_EQ(hint.getDocument(), scene.document);
        EXPECT_THAT(hiddenNodes(), ElementsAre(1)) << "the scene is complete by then";
    };
    restore();
    EXPECT_THAT(application->events, ElementsAre("hint 20"));
}

TEST_F(ViewReplay, WithoutANotifierRestoresAllTheSame)
{
    application->hasNotifier = false;
    feed.comment.objects.hidden = {1};
    restore();
    EXPECT_THAT(hiddenNodes(), ElementsAre(1));
    EXPECT_THAT(application->events, IsEmpty());
}

TEST_F(ViewReplay, DoesWhatItCanWithoutRecords)
{
    feed.comment.objects.hidden = {1};
    feed.comment.objects.transparent = {1};
    feed.comment.objects.colored = {Vector3(1, 0, 0)};
    feed.comment.objects.nodetransform = {{1, Matrix4()}};
    for (short const key : {orvsg::SCPmi::key, orvsg::SCInfo::key, orvsg::SCSceneTopo::key, orvsg::SCSceneRes::key}) {
        scene.document->setSchema(key, nullptr);
        restore();
        EXPECT_THAT(hiddenNodes(), ElementsAre(1)) << "without record " << key;
        EXPECT_EQ(scene.renderer->camera->eye, Vector3(100, 0, 0));
    }
    scene.document->setSchema(orvsg::SCSceneRT::key, nullptr);
    scene.document->setSchema(orvgl::SCRenderer::key, nullptr);
    scene.document->setSchema(orv::SCApplication::key, nullptr);
    EXPECT_NO_THROW(restore());
}

TEST_F(ViewReplay, WithoutBoxesFitsASphereOfOne)
{
    scene.resources->boxes.clear();
    restore();
    EXPECT_EQ(scene.renderer->camera->radius, 1.0F);
    EXPECT_EQ(scene.renderer->camera->eye, Vector3(100, 0, 0));
}

TEST_F(ViewReplay, ResetGivesAllNodes)
{
    SceneRecords records(scene.document);
    scene.moveTo(3, 7, 7, 7);
    EXPECT_EQ(resetTransforms(records), (std::set<int>{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(placementOf(3).matrix, initialPlacementOf(3).matrix);
}

TEST_F(ViewReplay, AppliesNoTransformsWithoutAny)
{
    SceneRecords records(scene.document);
    scene.moveTo(3, 7, 7, 7);
    orvsg::Transform const moved = placementOf(3);
    applyTransforms(FeedObjects(), records);
    EXPECT_EQ(placementOf(3), moved);
}

TEST(RaiseHint, NeedsAnApplication)
{
    orvtest::TestScene const scene;
    EXPECT_NO_THROW(raiseHint(scene.document, 37));
    EXPECT_NO_THROW(raiseHint(nullptr, 37));
}

} // namespace
