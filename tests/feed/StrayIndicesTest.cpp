// A scene whose records disagree with each other, and records of other models: every index is somebody else's.

#include "feed/SceneCapture.h"
#include "feed/ViewReplay.h"
#include "host/orvglutils/MarkupUtils.h"
#include "support/TestScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <set>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{

template <class V>
orvsg::Container<int, V> firstOf(orvsg::Container<int, V> const& all, int count)
{
    orvsg::Container<int, V> some;
    for (int i = 0; i < count; ++i) {
        some.append(all.getValue(i));
    }
    return some;
}

/// Of the six nodes the second, the fourth and the sixth stand on no transform that exists, a seventh position stands
/// on the sixth transform, and only three transforms have an initial one.
class StrayIndices : public testing::Test
{
protected:
    StrayIndices()
    {
        scene.topology->transformOfNode = orvsg::Container<int, int>({0, -1, 2, 99, 4, INT_MAX, 5});
        scene.resources->initialTransforms = firstOf(scene.resources->initialTransforms, 3);
        scene.runtime->coloredNodes = orvsg::Container<int, int>({-1, 6, INT_MAX, 1, INT_MIN});
        scene.runtime->transparentNodes = orvsg::Container<int, int>({99, -1, 3, INT_MAX});
        scene.runtime->visibility[5] = false;
    }

    std::vector<orvsg::Transform> placements() const
    {
        return {scene.resources->transforms.begin(), scene.resources->transforms.end()};
    }
    FeedObjects capture() const
    {
        SceneRecords found(scene.document);
        return captureObjects(found);
    }

    orvtest::TestScene scene;
    SceneRecords records{scene.document};
};

TEST_F(StrayIndices, AreCapturedAsTheyStand)
{
    FeedObjects const objects = capture();
    EXPECT_THAT(objects.hidden, ElementsAre(5));
    EXPECT_THAT(objects.transparent, ElementsAre(99, 3, INT_MAX));
    int const none = 0xB4B4B4; // of a node that the model doesn't have
    EXPECT_THAT(objects.nodecolor,
                ElementsAre(Pair(INT_MIN, none), Pair(1, 0x808080), Pair(6, none), Pair(INT_MAX, none)));
    ASSERT_EQ(objects.colored.size(), 6U);
    EXPECT_EQ(objects.colored[0], Vector3());
    EXPECT_NE(objects.colored[1], Vector3());
    EXPECT_THAT(objects.nodetransform, ElementsAre(Pair(4, placements()[4].matrix), Pair(6, placements()[5].matrix)))
        << "what has no initial placement counts as moved";
}

TEST_F(StrayIndices, AreReplayedWhereTheyFit)
{
    Feed feed;
    feed.comment.objects = capture();
    feed.comment.objects.colored.clear();
    feed.comment.objects.hidden = {-1, 5, 6, INT_MAX, INT_MIN};
    Matrix4 stray;
    stray[0] = 42.0F;
    for (int const node : {-1, 1, 3, 5, 7, INT_MAX, INT_MIN}) {
        feed.comment.objects.nodetransform.emplace(node, stray);
    }
    std::vector<orvsg::Transform> const before = placements();
    restoreView(scene.document, feed);
    EXPECT_EQ(placements(), before) << "no placement of the record reaches a node";
    EXPECT_EQ(scene.resources->initialTransforms.size(), 3U);
    EXPECT_EQ(scene.resources->materials.size(), 6U);
    EXPECT_EQ(scene.runtime->visibility, (std::vector<bool>{true, true, true, true, true, false}));
    FeedObjects const again = capture();
    EXPECT_THAT(again.nodecolor, ElementsAre(Pair(1, 0x808080)));
    EXPECT_THAT(again.transparent, ElementsAre(3));
}

TEST_F(StrayIndices, OfMovedNodesAreFoundOnlyWhereATransformStands)
{
    std::set<int> moved;
    orvglutils::MarkupUtils::getMovedComponents(scene.resources, scene.topology, moved);
    EXPECT_THAT(moved, ElementsAre(4, 6));
    scene.resources->initialTransforms.clear();
    scene.resources->transforms.clear();
    moved.clear();
    orvglutils::MarkupUtils::getMovedComponents(scene.resources, scene.topology, moved);
    EXPECT_THAT(moved, IsEmpty());
}

TEST_F(StrayIndices, AreUpdatedOnlyWhereATransformStands)
{
    orvsg::Transform unflagged;
    unflagged.matrix[12] = 3.0F;
    for (int index = 0; index < 6; ++index) {
        scene.resources->transforms.setValue(index, unflagged);
    }
    orvglutils::MarkupUtils::updateScene({INT_MIN, -1, 1, 3, 4, 5, 6, 7, INT_MAX}, scene.resources, scene.runtime,
                                         scene.topology, scene.info);
    std::vector<bool> flags;
    for (orvsg::Transform const& placement : placements()) {
        flags.push_back(placement.isSet);
    }
    EXPECT_EQ(flags, (std::vector<bool>{false, false, false, false, true, true}));
}

TEST_F(StrayIndices, AreNotTakenForAllNodesWhereAsManyAreGiven)
{
    orvsg::Transform unflagged;
    unflagged.matrix[12] = 3.0F;
    auto const flagsAfter = [&](std::set<int> const& nodes) {
        scene.topology->transformOfNode = orvsg::Container<int, int>({0, 1, 2});
        scene.resources->transforms = orvsg::Container<int, orvsg::Transform>({unflagged, unflagged, unflagged});
        orvglutils::MarkupUtils::updateScene(nodes, scene.resources, scene.runtime, scene.topology, scene.info);
        std::vector<bool> flags;
        for (orvsg::Transform const& placement : placements()) {
            flags.push_back(placement.isSet);
        }
        return flags;
    };
    EXPECT_THAT(flagsAfter({0, 1, 2}), ElementsAre(true, true, true));
    EXPECT_THAT(flagsAfter({0, 1, 3}), ElementsAre(true, true, false));
    EXPECT_THAT(flagsAfter({-1, 1, 2}), ElementsAre(false, true, true));
    EXPECT_THAT(flagsAfter({-1, 0, 1, 2}), ElementsAre(true, true, true));
    EXPECT_THAT(flagsAfter({1, 2}), ElementsAre(false, true, true));
    EXPECT_THAT(flagsAfter({}), ElementsAre(false, false, false));
}

TEST_F(StrayIndices, ResetEveryPositionAndPutWhatHasNoInitialPlacementAtTheOrigin)
{
    orvsg::Transform const placed = placements()[1];
    EXPECT_THAT(resetTransforms(records), ElementsAre(0, 1, 2, 3, 4, 5, 6));
    auto const after = placements();
    EXPECT_EQ(after[4], orvsg::Transform());
    EXPECT_EQ(after[5], orvsg::Transform());
    EXPECT_EQ(after[2].matrix, scene.resources->initialTransforms.getValue(2).matrix);
    EXPECT_EQ(after[1], placed) << "no node stands on it";
    EXPECT_EQ(scene.resources->initialTransforms.size(), 3U);
}

TEST_F(StrayIndices, ApplyPlacementsWithoutAnInitialOne)
{
    Matrix4 matrix = orvsg::Transform().matrix;
    matrix[12] = 8.0F;
    FeedObjects objects;
    objects.nodetransform = {{4, matrix}, {INT_MAX, matrix}, {3, matrix}};
    applyTransforms(objects, records);
    auto const after = placements();
    EXPECT_EQ(after[4].matrix, matrix);
    EXPECT_TRUE(after[4].isSet);
    EXPECT_EQ(after[5], orvsg::Transform());
    EXPECT_EQ(after[2].matrix, scene.resources->initialTransforms.getValue(2).matrix);
}

} // namespace
