#include "exporters/prc/PrcReader.h"
#include "exporters/prc/PrcWriter.h"
#include "exporters/prc/SectionWriter.h"
#include "exporters/prc/TestScenes.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace
{

using namespace prc;
using namespace prctest;

Scene throughAFile(Scene const& scene)
{
    auto const result = read(encode(scene));
    EXPECT_EQ(result.problem, "");
    return result.scene.value_or(Scene{});
}

TEST(RoundTrip, GivesBackABox)
{
    EXPECT_TRUE(throughAFile(oneBox()) == oneBox());
}

TEST(RoundTrip, GivesBackAnAssembly)
{
    Scene const scene = assembly();
    Scene const again = throughAFile(scene);
    EXPECT_EQ(again.name, scene.name);
    EXPECT_EQ(again.styles, scene.styles);
    EXPECT_EQ(again.parts, scene.parts);
    EXPECT_TRUE(again.meshes == scene.meshes);
    ASSERT_EQ(again.occurrences.size(), scene.occurrences.size());
    for (std::size_t i = 0; i < scene.occurrences.size(); ++i) {
        auto expected = scene.occurrences[i];
        auto const& found = again.occurrences[i];
        for (std::size_t element = 0; element < 16; ++element)
            EXPECT_NEAR(found.placement[element], expected.placement[element], 1e-12) << expected.name;
        expected.placement = found.placement;
        EXPECT_TRUE(found == expected) << expected.name;
    }
}

TEST(RoundTrip, SharesColoursBetweenStyles)
{
    auto const result = read(encode(assembly()));
    EXPECT_EQ(result.facts.colors.size(), 2U);
    EXPECT_EQ(result.scene->styles.size(), 3U);
}

TEST(RoundTrip, StatesTheTraitsOfTheFormat)
{
    auto const file = encode(oneBox());
    auto const facts = read(file).facts;
    EXPECT_EQ(facts.minimalVersion, 8137U);
    EXPECT_EQ(facts.authoringVersion, 8137U);
    EXPECT_EQ(facts.offsets[0], 107U);
    EXPECT_EQ(facts.offsets[1], 154U);
    EXPECT_EQ(facts.modelFileEnd, file.size());
    EXPECT_NE(facts.fileId, facts.fileStructureId);
    EXPECT_NE(facts.fileId, read(encode(oneBox())).facts.fileId) << "every file has an identity of its own";
}

TEST(RoundTrip, IsReproducibleWithGivenIdentities)
{
    WriteOptions options;
    options.fileId = {1, 2, 3, 4};
    options.fileStructureId = {1, 2, 3, 5};
    EXPECT_EQ(encode(assembly(), options), encode(assembly(), options));
}

struct PlacementCase {
    char const* what;
    Matrix matrix;
    std::uint32_t type;
    std::uint8_t flags;
};

class Placements : public testing::TestWithParam<PlacementCase>
{
};

TEST_P(Placements, TakeTheShortestForm)
{
    SectionWriter out;
    // The same route as in the tree, to see which form it takes.
    Scene scene = oneBox();
    scene.occurrences[0].placement = GetParam().matrix;
    auto const again = throughAFile(scene);
    for (std::size_t i = 0; i < 16; ++i)
        EXPECT_NEAR(again.occurrences[0].placement[i], GetParam().matrix[i], 1e-6);
    auto const tree = sectionOf(encode(scene), 1);

    std::string bits;
    for (std::uint8_t const byte : tree)
        for (int bit = 7; bit >= 0; --bit)
            bits += (byte >> bit) & 1 ? '1' : '0';
    out.integer(4); // load status, which stands before the placement
    out.boolean(true);
    out.unsignedInteger(GetParam().type);
    if (GetParam().type == 202)
        out.character(GetParam().flags);
    auto const length = out.length();
    auto const bytes = out.finish();
    std::string wanted;
    for (std::uint64_t i = 0; i < length; ++i)
        wanted += (bytes[i / 8] >> (7 - i % 8)) & 1 ? '1' : '0';
    EXPECT_THAT(bits, testing::HasSubstr(wanted));
}

double const h = std::sqrt(0.5);
INSTANTIATE_TEST_SUITE_P(
    RoundTrip, Placements,
    testing::Values(PlacementCase{"moved", placedAt(1, 2, 3), 202, 0x01},
                    PlacementCase{"turned", placedAt(0, 0, 0, 0.3), 202, 0x03},
                    PlacementCase{"enlarged", {3, 0, 0, 0, 0, 3, 0, 0, 0, 0, 3, 0, 7, 8, 9, 1}, 202, 0x0B},
                    PlacementCase{"single precision",
                                  {static_cast<float>(h), static_cast<float>(h), 0, 0, -static_cast<float>(h),
                                   static_cast<float>(h), 0, 0, 0, 0, 1, 0, 1, 1, 1, 1},
                                  202,
                                  0x03},
                    PlacementCase{"mirrored", {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, -1, 0, 0, 0, 0, 1}, 207, 0},
                    PlacementCase{"stretched", {1, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, 207, 0},
                    PlacementCase{"sheared", {1, 0, 0, 0, 0.5, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, 207, 0},
                    PlacementCase{"flattened", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, 207, 0}),
    [](auto const& test) {
        std::string name = test.param.what;
        std::replace(name.begin(), name.end(), ' ', '_');
        return name;
    });

TEST(RoundTrip, WritesMeshesWithoutNormals)
{
    Scene scene = oneBox();
    scene.meshes[0].normals.clear();
    scene.meshes[0].normalIndices.clear();
    EXPECT_TRUE(throughAFile(scene) == scene);
}

TEST(RoundTrip, WritesAnEmptyPart)
{
    Scene scene = oneBox();
    scene.parts[0].bodies.clear();
    scene.meshes.clear();
    EXPECT_TRUE(throughAFile(scene) == scene);
}

TEST(RoundTrip, KeepsTheUnit)
{
    Scene scene = oneBox();
    scene.unit = 25.4;
    EXPECT_EQ(throughAFile(scene).unit, 25.4);
}

struct UnsoundCase {
    char const* problem;
    void (*spoil)(Scene&);
};

TEST(RoundTrip, RefusesScenesThatDontHoldTogether)
{
    for (auto const& [problem, spoil] :
         {UnsoundCase{"no root", [](Scene& s) { s.root = 8; }},
          UnsoundCase{"unit", [](Scene& s) { s.unit = 0; }},
          UnsoundCase{"colour", [](Scene& s) { s.styles[0].color.red = 1.5; }},
          UnsoundCase{"incomplete", [](Scene& s) { s.meshes[0].points.pop_back(); }},
          UnsoundCase{"finite", [](Scene& s) { s.meshes[0].points[3] = std::numeric_limits<double>::infinity(); }},
          UnsoundCase{"corner", [](Scene& s) { s.meshes[0].pointIndices[5] = 8; }},
          UnsoundCase{"corner", [](Scene& s) { s.meshes[0].normalIndices[5] = 6; }},
          UnsoundCase{"one normal", [](Scene& s) { s.meshes[0].normalIndices.pop_back(); }},
          UnsoundCase{"cover", [](Scene& s) { s.meshes[0].faces.pop_back(); }},
          UnsoundCase{"more triangles",
                      [](Scene& s) {
                          s.meshes[0].faces.push_back({1, {}});
                      }},
          UnsoundCase{"style", [](Scene& s) { s.meshes[1].faces[0].styles = {7}; }},
          UnsoundCase{"one for each",
                      [](Scene& s) {
                          s.meshes[1].faces[0].styles = {0, 0, 0};
                      }},
          UnsoundCase{"mesh", [](Scene& s) { s.parts[0].bodies[0].mesh = 2; }},
          UnsoundCase{"style", [](Scene& s) { s.parts[0].bodies[0].style = 3; }},
          UnsoundCase{"part", [](Scene& s) { s.occurrences[3].part = 2; }},
          UnsoundCase{"prototype", [](Scene& s) { s.occurrences[1].prototype = 8; }},
          UnsoundCase{"prototype", [](Scene& s) { s.occurrences[1].prototype = 3; }},
          UnsoundCase{"child", [](Scene& s) { s.occurrences[6].children = {8}; }},
          UnsoundCase{"two parents",
                      [](Scene& s) {
                          s.occurrences[6].children = {3, 1};
                      }},
          UnsoundCase{"parent", [](Scene& s) { s.occurrences[6].children = {7}; }},
          UnsoundCase{"cycle",
                      [](Scene& s) {
                          s.occurrences[7].children = {1, 2}, s.occurrences[6].children = {6};
                      }},
          UnsoundCase{"placement", [](Scene& s) { s.occurrences[2].placement[0] = std::nan(""); }}}) {
        Scene scene = assembly();
        spoil(scene);
        auto const found = problemOf(scene);
        ASSERT_TRUE(found) << problem;
        EXPECT_THAT(*found, testing::HasSubstr(problem));
        EXPECT_THROW(encode(scene), std::invalid_argument) << problem;
    }
}

} // namespace
