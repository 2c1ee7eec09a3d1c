#include "host/orvglutils/MarkupUtils.h"
#include "host/orvsgutils/BBoxUtils.h"
#include "host/orvsgutils/BOMUtils.h"
#include "host/orvsgutils/DepthFirstWalk.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "host/orvsgutils/SceneQuery.h"
#include "host/orvsgutils/VisibilityChanger.h"
#include "support/TestScene.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <vector>

using orvglutils::MarkupUtils;
using orvsgutils::BBoxUtils;
using orvsgutils::BOMUtils;
using orvsgutils::MaterialUtils;
using orvsgutils::SceneQuery;
using orvtest::TestScene;

namespace
{

constexpr unsigned long grey = 0x808080;
constexpr unsigned long red = 0x0000FF;
constexpr unsigned long blue = 0xFF0000;
constexpr unsigned long green = 0x00FF00;
int const strangers[] = {-1, -2, 6, 1000000, INT_MAX, INT_MIN};

class Scene : public testing::Test
{
protected:
    unsigned long colorOf(int node) { return MaterialUtils::getNodeColor(node, scene.resources, scene.topology); }
    void paint(int node, unsigned long color)
    {
        MaterialUtils::setNodeColor(node, color, scene.resources, scene.runtime, scene.topology);
    }
    void unpaint(int node) { MaterialUtils::clearNodeColor(node, scene.resources, scene.runtime, scene.topology); }
    void fade(int node, float transparency)
    {
        MaterialUtils::setNodeTransparency(node, transparency, scene.resources, scene.runtime, scene.topology);
    }
    std::vector<int> coloredNodes() const
    {
        return {scene.runtime->coloredNodes.begin(), scene.runtime->coloredNodes.end()};
    }
    std::vector<int> transparentNodes() const
    {
        return {scene.runtime->transparentNodes.begin(), scene.runtime->transparentNodes.end()};
    }
    orvsg::BBox box(bool includeHidden = true, bool tight = true)
    {
        return BBoxUtils::get(scene.resources, scene.topology, scene.pmi, scene.runtime, scene.info->documentKind,
                              includeHidden, tight);
    }
    SceneQuery query() const { return SceneQuery(scene.document); }
    std::set<int> moved() const
    {
        std::set<int> nodes;
        MarkupUtils::getMovedComponents(scene.resources, scene.topology, nodes);
        return nodes;
    }

    TestScene scene;
    MaterialUtils::Res noResources;
    MaterialUtils::RT noRuntime;
    MaterialUtils::Topo noTopology;
};

TEST_F(Scene, ANodeShowsItsColourFromTheFile)
{
    EXPECT_EQ(colorOf(1), grey);
    EXPECT_EQ(colorOf(4), red);
    EXPECT_EQ(colorOf(3), colorOf(0)); // neither has one: the default
    EXPECT_NE(colorOf(3), 0U);
}

TEST_F(Scene, AColourFromTheFileReachesWhatHasNoneOfItsOwn)
{
    orvsg::Material material;
    material.hasOwnColor = true;
    material.ownColor = green;
    scene.resources->materials.setValue(2, material);
    EXPECT_EQ(colorOf(3), green);
    EXPECT_EQ(colorOf(4), red);
}

TEST_F(Scene, TheUsersColourOfANodeOrAnAncestorWinsOverTheFile)
{
    paint(2, blue);
    EXPECT_EQ(colorOf(2), blue);
    EXPECT_EQ(colorOf(4), blue);
    EXPECT_EQ(colorOf(1), grey);
    paint(4, green);
    EXPECT_EQ(colorOf(4), green);
    EXPECT_EQ(colorOf(5), blue);
    EXPECT_EQ(query().color(5), blue);
    EXPECT_TRUE(query().isColoredByUser(3));
    EXPECT_FALSE(query().isColoredByUser(1));
}

TEST_F(Scene, BlackIsAColour)
{
    paint(4, 0);
    EXPECT_EQ(colorOf(4), 0U);
    EXPECT_EQ(coloredNodes(), std::vector<int>{4});
}

TEST_F(Scene, BitsAboveThePackedColourAreDropped)
{
    paint(4, 0xAB00FF00UL);
    EXPECT_EQ(colorOf(4), green);
}

TEST_F(Scene, ANodeIsListedOnceHoweverOftenItIsColoured)
{
    paint(4, blue);
    paint(1, green);
    paint(4, green);
    EXPECT_EQ(coloredNodes(), (std::vector<int>{4, 1}));
    EXPECT_EQ(colorOf(4), green);
}

TEST_F(Scene, AClearedNodeLeavesMinusOneAndTheNextTakesItsPlace)
{
    paint(1, blue);
    paint(4, blue);
    paint(5, blue);
    unpaint(1);
    unpaint(4);
    EXPECT_EQ(coloredNodes(), (std::vector<int>{-1, -1, 5}));
    EXPECT_EQ(colorOf(4), red);
    paint(3, blue);
    EXPECT_EQ(coloredNodes(), (std::vector<int>{3, -1, 5}));
}

TEST_F(Scene, ClearingANodeThatIsNotListedChangesNothing)
{
    paint(1, blue);
    unpaint(4);
    EXPECT_EQ(coloredNodes(), std::vector<int>{1});
}

TEST_F(Scene, TransparencyIsListedAndReachesWhatIsBelow)
{
    fade(2, 0.5F);
    EXPECT_EQ(transparentNodes(), std::vector<int>{2});
    EXPECT_FLOAT_EQ(query().transparency(5), 0.5F);
    EXPECT_FLOAT_EQ(query().transparency(1), 0.0F);
    MaterialUtils::clearNodeTransparency(2, scene.resources, scene.runtime, scene.topology);
    EXPECT_EQ(transparentNodes(), std::vector<int>{-1});
    EXPECT_FLOAT_EQ(query().transparency(5), 0.0F);
}

TEST_F(Scene, TransparencyStaysBetweenOpaqueAndInvisible)
{
    fade(1, 7.0F);
    EXPECT_FLOAT_EQ(query().transparency(1), 1.0F);
    fade(1, -3.0F);
    EXPECT_FLOAT_EQ(query().transparency(1), 0.0F);
    fade(1, std::numeric_limits<float>::quiet_NaN());
    EXPECT_FLOAT_EQ(query().transparency(1), 0.0F);
}

TEST_F(Scene, ANodeMadeOpaqueByTheUserIsOpaqueWhateverTheFileSays)
{
    orvsg::Material material;
    material.ownTransparency = 0.7F;
    scene.resources->materials.setValue(3, material);
    EXPECT_FLOAT_EQ(query().transparency(3), 0.7F);
    fade(3, 0.0F);
    EXPECT_FLOAT_EQ(query().transparency(3), 0.0F);
}

TEST_F(Scene, ResettingTakesTheUsersColoursOffAndLeavesTheFiles)
{
    paint(2, blue);
    paint(4, green);
    fade(1, 0.5F);
    MaterialUtils::resetAll(scene.resources, scene.runtime, scene.topology);
    EXPECT_EQ(colorOf(4), red);
    EXPECT_EQ(colorOf(1), grey);
    EXPECT_FLOAT_EQ(query().transparency(1), 0.0F);
    EXPECT_EQ(scene.runtime->coloredNodes.size(), 0U);
    EXPECT_EQ(scene.runtime->transparentNodes.size(), 0U);
}

TEST_F(Scene, NodesOutsideTheModelAreIgnored)
{
    orvsgutils::VisibilityChanger hide(scene.runtime->visibility, false);
    for (int const node : strangers) {
        paint(node, blue);
        unpaint(node);
        fade(node, 0.5F);
        MaterialUtils::clearNodeTransparency(node, scene.resources, scene.runtime, scene.topology);
        hide(node);
        EXPECT_EQ(colorOf(node), colorOf(0)) << "the default";
        EXPECT_EQ(query().worldMatrix(node), orvsgutils::identityMatrix());
        EXPECT_FALSE(query().isShown(node));
        EXPECT_FALSE(query().isColoredByUser(node));
        EXPECT_FLOAT_EQ(query().transparency(node), 0.0F);
    }
    EXPECT_EQ(scene.runtime->coloredNodes.size(), 0U);
    EXPECT_EQ(scene.runtime->transparentNodes.size(), 0U);
    EXPECT_EQ(scene.resources->materials.size(), 6U);
    EXPECT_EQ(scene.runtime->visibility, std::vector<bool>(6, true));
}

TEST_F(Scene, MissingRecordsChangeNothing)
{
    MaterialUtils::setNodeColor(1, blue, noResources, noRuntime, noTopology);
    MaterialUtils::setNodeTransparency(1, 0.5F, noResources, noRuntime, noTopology);
    MaterialUtils::clearNodeColor(1, noResources, noRuntime, noTopology);
    MaterialUtils::clearNodeTransparency(1, noResources, noRuntime, noTopology);
    MaterialUtils::resetAll(noResources, noRuntime, noTopology);
    EXPECT_EQ(MaterialUtils::getNodeColor(1, noResources, noTopology), colorOf(0));
    std::set<int> nodes;
    MarkupUtils::getMovedComponents(noResources, noTopology, nodes);
    MarkupUtils::updateScene({0, 1}, noResources, noRuntime, noTopology, nullptr);
    EXPECT_TRUE(nodes.empty());
    EXPECT_TRUE(BBoxUtils::get(noResources, noTopology, nullptr, noRuntime, 0, true, true).isEmpty);
    EXPECT_FALSE(SceneQuery(std::shared_ptr<orv::IDocument>()).isComplete());
    EXPECT_EQ(SceneQuery(std::shared_ptr<orv::IDocument>()).nodeCount(), 0);
    EXPECT_FALSE(SceneQuery(std::shared_ptr<orv::IDocument>()).isShown(0));
}

TEST_F(Scene, ANodeShowsOnlyIfAllAboveItDo)
{
    orvsgutils::VisibilityChanger hide(scene.runtime->visibility, false);
    orvsgutils::VisibilityChanger show(scene.runtime->visibility, true);
    hide(2);
    EXPECT_FALSE(query().isShown(2));
    EXPECT_FALSE(query().isShown(4));
    EXPECT_TRUE(query().isShown(1));
    show(2);
    EXPECT_TRUE(query().isShown(4));
}

TEST_F(Scene, PlacementsMultiplyFromTheRootDown)
{
    auto const matrix = query().worldMatrix(4);
    EXPECT_DOUBLE_EQ(matrix[12], 10.0);
    EXPECT_DOUBLE_EQ(matrix[13], 0.0);
    EXPECT_DOUBLE_EQ(matrix[14], 3.0);
    // A quarter turn of the assembly about z turns what stands inside it, too.
    orvsg::Transform turn;
    turn.matrix[0] = turn.matrix[5] = 0.0F;
    turn.matrix[1] = 1.0F;
    turn.matrix[4] = -1.0F;
    turn.isSet = true;
    scene.resources->transforms.setValue(2, turn);
    auto const shaft = query().worldMatrix(3);
    EXPECT_DOUBLE_EQ(shaft[12], -5.0);
    EXPECT_DOUBLE_EQ(shaft[13], 0.0);
}

TEST_F(Scene, APlacementThatIsNotSetIsSkipped)
{
    orvsg::Transform unset;
    unset.matrix[12] = 99.0F;
    scene.resources->transforms.setValue(2, unset);
    EXPECT_DOUBLE_EQ(query().worldMatrix(3)[12], 0.0);
}

TEST_F(Scene, ALoopInTheTreeEndsTheWalk)
{
    orvsg::Node node = scene.topology->nodes.getValue(0);
    node.parent = 5;
    scene.topology->nodes.setValue(0, node);
    EXPECT_TRUE(query().isShown(5));
    EXPECT_EQ(colorOf(3), colorOf(0));
    BOMUtils::createBOM(scene.topology, scene.bom, 1);
    EXPECT_EQ(scene.bom->items.size(), 4U);
}

TEST_F(Scene, TheBoxFollowsCurrentPlacements)
{
    EXPECT_EQ(box().minimum, (orvmath::Tuple<float, 3>{0, 0, 0}));
    EXPECT_EQ(box().maximum, (orvmath::Tuple<float, 3>{40, 20, 10}));
    scene.moveTo(2, 100, 0, 0);
    EXPECT_EQ(box().maximum, (orvmath::Tuple<float, 3>{110, 20, 10}));
}

TEST_F(Scene, TheBoxLeavesHiddenNodesOutWhenAsked)
{
    scene.runtime->visibility[1] = false;
    EXPECT_EQ(box(false).maximum, (orvmath::Tuple<float, 3>{20, 7, 7}));
    EXPECT_EQ(box(true).maximum, (orvmath::Tuple<float, 3>{40, 20, 10}));
}

TEST_F(Scene, TheLooseBoxHoldsTheTightOne)
{
    orvsg::BBox const tight = box(true, true);
    orvsg::BBox const loose = box(true, false);
    for (unsigned char axis = 0; axis < 3; ++axis) {
        EXPECT_LE(loose.minimum[axis], tight.minimum[axis]);
        EXPECT_GE(loose.maximum[axis], tight.maximum[axis]);
    }
}

TEST_F(Scene, ABrokenPlacementDoesNotSwallowTheBox)
{
    scene.moveTo(4, std::numeric_limits<float>::infinity(), 0, 0);
    EXPECT_EQ(box().maximum, (orvmath::Tuple<float, 3>{40, 20, 10}));
}

TEST_F(Scene, TheSphereHoldsTheBox)
{
    orvmath::Tuple<float, 3> centre;
    float radius = 0;
    BBoxUtils::getSphere(box(), centre, radius);
    EXPECT_EQ(centre, (orvmath::Tuple<float, 3>{20, 10, 5}));
    EXPECT_FLOAT_EQ(radius, 22.912878F); // half the diagonal of 40 x 20 x 10
}

TEST_F(Scene, AnEmptyBoxHasASphereOfRadiusOneAtTheOrigin)
{
    orvmath::Tuple<float, 3> centre{7, 7, 7};
    float radius = 0;
    BBoxUtils::getSphere({}, centre, radius);
    EXPECT_EQ(centre, (orvmath::Tuple<float, 3>{}));
    EXPECT_FLOAT_EQ(radius, 1.0F);
}

TEST_F(Scene, MovedComponentsAreThoseWhosePlacementDiffersAtAll)
{
    EXPECT_TRUE(moved().empty());
    scene.moveTo(4, 0, 0, std::nextafter(3.0F, 4.0F));
    scene.moveTo(2, 11, 0, 0);
    EXPECT_EQ(moved(), (std::set<int>{2, 4}));
    scene.moveTo(2, 10, 0, 0);
    EXPECT_EQ(moved(), std::set<int>{4});
}

TEST_F(Scene, UpdatingMakesTheFlagAgreeWithTheMatrix)
{
    orvsg::Transform changed;
    changed.matrix[12] = 5.0F;
    scene.resources->transforms.setValue(1, changed);
    orvsg::Transform replayed; // the identity, and meant to be
    replayed.isSet = true;
    scene.resources->transforms.setValue(3, replayed);
    MarkupUtils::updateScene({-1, 0, 1, 3, 99}, scene.resources, scene.runtime, scene.topology, scene.info);
    EXPECT_FALSE(scene.resources->transforms.getValue(0).isSet);
    EXPECT_TRUE(scene.resources->transforms.getValue(1).isSet);
    EXPECT_TRUE(scene.resources->transforms.getValue(3).isSet);
}

TEST_F(Scene, AContainerAnswersEveryInteger)
{
    for (int const key : strangers) {
        EXPECT_EQ(scene.topology->transformOfNode.getValue(key), -1);
        EXPECT_EQ(scene.resources->transforms.getValue(key), orvsg::Transform());
        scene.resources->transforms.setValue(key, {});
    }
    EXPECT_EQ(scene.resources->transforms.size(), 6U);
}

} // namespace
