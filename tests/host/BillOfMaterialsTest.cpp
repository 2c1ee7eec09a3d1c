#include "host/orvsgutils/BOMUtils.h"
#include "support/TestScene.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

using orvsgutils::BOMUtils;

namespace
{

class BillOfMaterials : public testing::Test
{
protected:
    orvtest::TestScene scene;
};

/// A tree whose nodes are given as name, parent and geometry; a part of every name has a geometry of its own.
std::shared_ptr<orvsg::SCSceneTopo> treeOf(std::vector<orvsg::Node> nodes)
{
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        nodes[static_cast<std::size_t>(nodes[i].parent)].children.push_back(static_cast<int>(i));
    }
    auto topology = std::make_shared<orvsg::SCSceneTopo>();
    topology->nodes = orvsg::Container<int, orvsg::Node>(std::move(nodes));
    return topology;
}

/// How often each part occurs in the whole model, from the rows of the tree: an item's quantity counts once for each
/// of those that hold it.
std::map<std::wstring, int> totalsOfTree(std::vector<orvsg::BomItem> const& rows)
{
    std::map<std::wstring, int> totals;
    std::vector<int> above{1};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        above.resize(static_cast<std::size_t>(rows[i].level) + 1);
        above.push_back(above.back() * rows[i].quantity);
        if (i + 1 == rows.size() || rows[i + 1].level <= rows[i].level) {
            totals[rows[i].name] += above.back();
        }
    }
    return totals;
}

std::map<std::wstring, int> totalsOfParts(std::vector<orvsg::BomItem> const& rows)
{
    std::map<std::wstring, int> totals;
    for (auto const& row : rows) {
        totals[row.name] += row.quantity;
    }
    return totals;
}

TEST_F(BillOfMaterials, CountsUnderEachParent)
{
    BOMUtils::createBOM(scene.topology, scene.bom, 1);
    EXPECT_EQ(scene.bom->reportLevel, 1);
    std::vector<orvsg::BomItem> const tree{
        {L"housing", 0, 1}, {L"shaft assembly", 0, 1}, {L"shaft", 1, 1}, {L"gear", 1, 2}};
    EXPECT_EQ(scene.bom->items, tree);
}

TEST_F(BillOfMaterials, ListsPartsAloneAtPartLevel)
{
    BOMUtils::createBOM(scene.topology, scene.bom, 0);
    EXPECT_EQ(scene.bom->reportLevel, 0);
    std::vector<orvsg::BomItem> const parts{{L"housing", 0, 1}, {L"shaft", 0, 1}, {L"gear", 0, 2}};
    EXPECT_EQ(scene.bom->items, parts);
}

TEST_F(BillOfMaterials, UnlikeAssembliesOfOneNameAreRowsOfTheirOwn)
{
    auto const topology = treeOf({{L"table", -1, {}, -1},
                                  {L"leg", 0, {}, -1}, // two bolts
                                  {L"bolt", 1, {}, 0},
                                  {L"bolt", 1, {}, 0},
                                  {L"leg", 0, {}, -1}, // a bolt and a nut
                                  {L"bolt", 4, {}, 0},
                                  {L"nut", 4, {}, 1},
                                  {L"leg", 0, {}, -1}, // the same in another order
                                  {L"nut", 7, {}, 1},
                                  {L"bolt", 7, {}, 0}});
    BOMUtils::createBOM(topology, scene.bom, 1);
    std::vector<orvsg::BomItem> const tree{
        {L"leg", 0, 1}, {L"bolt", 1, 2}, {L"leg", 0, 2}, {L"bolt", 1, 1}, {L"nut", 1, 1}};
    EXPECT_EQ(scene.bom->items, tree);
    auto const byLevel = totalsOfTree(scene.bom->items);
    BOMUtils::createBOM(topology, scene.bom, 0);
    EXPECT_EQ(byLevel, totalsOfParts(scene.bom->items));
}

TEST_F(BillOfMaterials, AssembliesThatDifferFarBelowAreRowsOfTheirOwn)
{
    // Two frames of one name with one corner each; one corner holds a bolt of another size by the same name.
    auto const topology = treeOf({{L"gate", -1, {}, -1},
                                  {L"frame", 0, {}, -1},
                                  {L"corner", 1, {}, -1},
                                  {L"bolt", 2, {}, 0},
                                  {L"frame", 0, {}, -1},
                                  {L"corner", 4, {}, -1},
                                  {L"bolt", 5, {}, 1}});
    BOMUtils::createBOM(topology, scene.bom, 1);
    ASSERT_EQ(scene.bom->items.size(), 6U);
    for (auto const& row : scene.bom->items) {
        EXPECT_EQ(row.quantity, 1);
    }
}

TEST_F(BillOfMaterials, PartsAddUpTheSameByLevelAsByPart)
{
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        // Few names, so that many assemblies share one.
        std::vector<orvsg::Node> nodes{{L"model", -1, {}, -1}};
        std::vector<int> open{0};
        for (int i = 1; i < 60; ++i) {
            while (open.size() > 1 && random() % 3 == 0) {
                open.pop_back();
            }
            nodes.push_back({std::wstring(1, static_cast<wchar_t>(L'A' + random() % 3)), open.back(), {}, -1});
            open.push_back(i);
        }
        std::set<int> parents;
        for (auto const& node : nodes) {
            parents.insert(node.parent);
        }
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            if (!parents.contains(static_cast<int>(i))) {
                nodes[i].mesh = static_cast<int>(random() % 2);
                nodes[i].name = L"part " + std::to_wstring(nodes[i].mesh);
            }
        }
        auto const topology = treeOf(std::move(nodes));
        BOMUtils::createBOM(topology, scene.bom, 1);
        auto const byLevel = totalsOfTree(scene.bom->items);
        BOMUtils::createBOM(topology, scene.bom, 0);
        ASSERT_EQ(byLevel, totalsOfParts(scene.bom->items)) << round;
    }
}

TEST_F(BillOfMaterials, ASinglePartIsItsOwnBillOfMaterials)
{
    auto topology = std::make_shared<orvsg::SCSceneTopo>();
    topology->nodes.append({L"bracket", -1, {}, 0});
    for (int const level : {0, 1}) {
        BOMUtils::createBOM(topology, scene.bom, level);
        EXPECT_EQ(scene.bom->items, (std::vector<orvsg::BomItem>{{L"bracket", 0, 1}}));
    }
    BOMUtils::createBOM(nullptr, scene.bom, 1);
    EXPECT_TRUE(scene.bom->items.empty());
    BOMUtils::createBOM(topology, nullptr, 0); // nothing to fill
}

} // namespace
