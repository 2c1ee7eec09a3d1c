#include "host/orvsg/NodeList.h"
#include "host/orvsgutils/BBoxUtils.h"
#include "host/orvsgutils/DepthFirstWalk.h"
#include "host/orvsgutils/SceneQuery.h"
#include "support/TreeScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <set>
#include <type_traits>
#include <vector>

using orvsg::NodeList;
using orvsgutils::BBoxUtils;
using orvsgutils::DepthFirstWalk;
using orvsgutils::Occurrence;
using orvsgutils::SceneQuery;
using orvtest::TreeScene;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

std::vector<int> nodesOf(NodeList const& list)
{
    return {list.begin(), list.end()};
}

TEST(NodeList, HoldsANodeOnce)
{
    NodeList list;
    for (int const node : {7, 3, 7, INT_MAX, INT_MIN, 3}) {
        list.enter(node);
    }
    EXPECT_THAT(nodesOf(list), ElementsAre(7, 3, INT_MAX, INT_MIN));
    EXPECT_TRUE(list.holds(3));
    EXPECT_FALSE(list.holds(4));
}

TEST(NodeList, TakesTheFirstFreePlace)
{
    NodeList list(orvsg::Container<int, int>({-1, 5, -1, 6}));
    list.leave(5);
    list.enter(9);
    EXPECT_THAT(nodesOf(list), ElementsAre(9, -1, -1, 6));
    list.enter(8);
    list.enter(7);
    list.enter(5);
    EXPECT_THAT(nodesOf(list), ElementsAre(9, 8, 7, 6, 5));
}

TEST(NodeList, TakesNoPlaceForNoNode)
{
    NodeList list;
    list.enter(-1);
    EXPECT_THAT(nodesOf(list), IsEmpty());
    list.append(-1);
    list.leave(-1);
    EXPECT_THAT(nodesOf(list), ElementsAre(-1));
    EXPECT_FALSE(list.holds(-1));
}

TEST(NodeList, LeavesTheFirstOfTwins)
{
    NodeList list(orvsg::Container<int, int>({4, 5, 4, 4}));
    list.leave(4);
    EXPECT_THAT(nodesOf(list), ElementsAre(-1, 5, 4, 4));
    EXPECT_TRUE(list.holds(4));
    list.leave(4);
    list.leave(4);
    list.leave(4);
    EXPECT_THAT(nodesOf(list), ElementsAre(-1, 5, -1, -1));
    EXPECT_FALSE(list.holds(4));
}

TEST(NodeList, StaysInStepWithPlainChanges)
{
    NodeList list;
    list.append(1);
    list.append(2);
    list.setValue(0, 2);
    list.setValue(5, 9);
    list.setValue(-1, 9);
    EXPECT_FALSE(list.holds(1));
    EXPECT_FALSE(list.holds(9));
    list.leave(2);
    EXPECT_THAT(nodesOf(list), ElementsAre(-1, 2));
    list.clear();
    EXPECT_FALSE(list.holds(2));
    list.enter(3);
    EXPECT_THAT(nodesOf(list), ElementsAre(3));
}

TEST(NodeList, IsReadAsTheContainerThatItStandsForAndChangesAlone)
{
    static_assert(!std::is_base_of_v<orvsg::Container<int, int>, NodeList>, "no change behind its back");
    NodeList list;
    list.enter(4);
    list.enter(6);
    orvsg::Container<int, int> const& container = list;
    EXPECT_EQ(container.size(), 2U);
    EXPECT_EQ(container.getValue(1), 6);
    EXPECT_EQ(container.getValue(2), -1);
    list.leave(4);
    EXPECT_EQ(container.getValue(0), -1) << "the list itself, no copy";
}

/// What a plain list with a search would do.
void enterPlainly(std::vector<int>& list, int node)
{
    if (std::find(list.begin(), list.end(), node) == list.end()) {
        auto const free = std::find(list.begin(), list.end(), -1);
        free == list.end() ? list.push_back(node) : void(*free = node);
    }
}

TEST(NodeList, DoesWhatASearchWouldDo)
{
    std::mt19937 random(20261120);
    NodeList list;
    std::vector<int> plain;
    for (int step = 0; step < 20000; ++step) {
        auto const node = static_cast<int>(random() % 40);
        switch (random() % 5) {
        case 0:
        case 1:
            list.enter(node);
            enterPlainly(plain, node);
            break;
        case 2:
        case 3: {
            list.leave(node);
            auto const found = std::find(plain.begin(), plain.end(), node);
            found == plain.end() ? void() : void(*found = -1);
            break;
        }
        default:
            if (!plain.empty()) {
                auto const place = random() % plain.size();
                list.setValue(static_cast<int>(place), node);
                plain[place] = node;
            }
        }
        ASSERT_EQ(nodesOf(list), plain) << "step " << step;
    }
}

TEST(NodeList, CopiesWithItsPlaces)
{
    NodeList list;
    list.enter(4);
    list.enter(5);
    NodeList copy = list;
    copy.leave(4);
    EXPECT_THAT(nodesOf(list), ElementsAre(4, 5));
    EXPECT_TRUE(list.holds(4));
    copy.enter(5);
    EXPECT_THAT(nodesOf(copy), ElementsAre(-1, 5));
}

void expectTheWalkToAgree(TreeScene const& scene)
{
    SceneQuery const query(scene.document);
    DepthFirstWalk walk(*scene.resources, *scene.topology, scene.runtime.get());
    for (int node = 0; node < scene.nodeCount(); ++node) {
        Occurrence const& at = walk.enter(node);
        EXPECT_EQ(at.node, node);
        EXPECT_EQ(at.isShown, query.isShown(node)) << node;
        orvsgutils::Matrix const matrix = query.worldMatrix(node);
        for (unsigned char i = 0; i < 16; ++i) {
            EXPECT_NEAR(at.world[i], matrix[i], 1e-9) << node;
        }
    }
}

TEST(SceneWalk, GivesEachNodeWhatItsAncestorsMakeOfIt)
{
    for (unsigned seed = 0; seed < 50; ++seed) {
        TreeScene scene(60, seed);
        scene.disturb({0.2, 0, 0, 0.3});
        expectTheWalkToAgree(scene);
    }
}

TEST(SceneWalk, TakesTreesThatAreNumberedOtherwise)
{
    for (unsigned seed = 0; seed < 50; ++seed) {
        TreeScene scene(60, seed);
        scene.disturb({0.2, 0, 0, 0.3});
        for (int node = 1; node < scene.nodeCount(); ++node) {
            orvsg::Node changed = scene.topology->nodes.getValue(node);
            changed.parent = static_cast<int>(scene.below(static_cast<unsigned>(node) + 2)) - 1; // its own at times
            scene.topology->nodes.setValue(node, changed);
        }
        expectTheWalkToAgree(scene);
    }
}

constexpr int manyNodes = 100000;

/// A scene of many nodes, each `step` nodes behind its parent.
TreeScene chains(int step)
{
    TreeScene scene(manyNodes, 1);
    for (int node = 0; node < manyNodes; ++node) {
        orvsg::Node changed = scene.topology->nodes.getValue(node);
        changed.parent = std::max(node - step, -1);
        scene.topology->nodes.setValue(node, changed);
    }
    return scene;
}

/// Enters all nodes and gives how many occurrences that took.
std::size_t stepsOf(TreeScene const& scene)
{
    DepthFirstWalk walk(*scene.resources, *scene.topology, scene.runtime.get());
    for (int node = 0; node < scene.nodeCount(); ++node) {
        EXPECT_EQ(walk.enter(node).node, node);
    }
    return walk.workedOut();
}

TEST(SceneWalk, OfALongChainTakesOneStepANode)
{
    EXPECT_EQ(stepsOf(chains(1)), static_cast<std::size_t>(manyNodes));
}

TEST(SceneWalk, OfInterleavedChainsTakesTwoStepsANodeAtMost)
{
    for (int const step : {2, 3, 1000}) {
        EXPECT_LE(stepsOf(chains(step)), std::size_t{2} * manyNodes) << step << " chains";
    }
}

TEST(SceneWalk, OfAnyOtherTreeTakesTwoStepsANodeAtMost)
{
    TreeScene scene(manyNodes, 2);
    for (int node = 1; node < manyNodes; ++node) {
        orvsg::Node changed = scene.topology->nodes.getValue(node);
        changed.parent = node - 1 - static_cast<int>(scene.below(std::min(static_cast<std::uint32_t>(node), 20U)));
        scene.topology->nodes.setValue(node, changed);
    }
    EXPECT_LE(stepsOf(scene), std::size_t{2} * manyNodes);
}

TEST(SceneWalk, StraightToTheLastNodeOfAChainKeepsTheOthers)
{
    TreeScene scene = chains(1);
    scene.runtime->visibility[manyNodes / 2] = false;
    DepthFirstWalk walk(*scene.resources, *scene.topology, scene.runtime.get());
    EXPECT_FALSE(walk.enter(manyNodes - 1).isShown);
    EXPECT_TRUE(walk.enter(0).isShown);
    EXPECT_TRUE(walk.enter(manyNodes / 2 - 1).isShown);
    EXPECT_EQ(walk.workedOut(), static_cast<std::size_t>(manyNodes));
}

TEST(SceneWalk, TakesNodesOutsideTheModelForRoots)
{
    TreeScene scene = chains(2);
    DepthFirstWalk walk(*scene.resources, *scene.topology, scene.runtime.get());
    for (int const before : {0, 5}) { // 5 stands below nodes that were not entered
        walk.enter(before);
        for (int const node : {-1, manyNodes, INT_MAX, INT_MIN}) {
            Occurrence const& at = walk.enter(node);
            EXPECT_EQ(at.node, node);
            EXPECT_TRUE(at.isShown);
            EXPECT_EQ(at.world, orvsgutils::identityMatrix());
        }
    }
}

TEST(SceneBox, IsTheBoxOfAllTurnedCorners)
{
    for (unsigned seed = 0; seed < 50; ++seed) {
        TreeScene scene(40, seed);
        scene.disturb({0.2, 0, 0, 0.3});
        for (bool const includeHidden : {true, false}) {
            SceneQuery const query(scene.document);
            orvsg::BBox expected;
            for (int node = 0; node < scene.nodeCount(); ++node) {
                orvsg::BBox const& own = scene.resources->boxes.getValue(node);
                if (own.isEmpty || (!includeHidden && !query.isShown(node))) {
                    continue;
                }
                auto const m = query.worldMatrix(node);
                for (unsigned corner = 0; corner < 8; ++corner) {
                    double const p[3] = {(corner & 1U) != 0 ? own.maximum[0] : own.minimum[0],
                                         (corner & 2U) != 0 ? own.maximum[1] : own.minimum[1],
                                         (corner & 4U) != 0 ? own.maximum[2] : own.minimum[2]};
                    orvmath::Tuple<float, 3> point;
                    for (unsigned char row = 0; row < 3; ++row) {
                        auto const at = [&](int column) { return m[static_cast<unsigned char>(4 * column + row)]; };
                        point[row] = static_cast<float>(at(0) * p[0] + at(1) * p[1] + at(2) * p[2] + at(3));
                    }
                    expected.add(point);
                }
            }
            orvsg::BBox const box = BBoxUtils::get(scene.resources, scene.topology, scene.pmi, scene.runtime,
                                                   scene.info->documentKind, includeHidden, true);
            ASSERT_EQ(box.isEmpty, expected.isEmpty);
            for (unsigned char axis = 0; axis < 3; ++axis) {
                EXPECT_NEAR(box.minimum[axis], expected.minimum[axis], 1e-4);
                EXPECT_NEAR(box.maximum[axis], expected.maximum[axis], 1e-4);
            }
        }
    }
}

} // namespace
