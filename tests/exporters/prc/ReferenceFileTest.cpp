#include "exporters/prc/PrcReader.h"
#include "exporters/prc/PrcWriter.h"
#include "exporters/prc/TestScenes.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>

namespace
{

using namespace prc;

std::string const sampleFile = ORV_SHARED_DIR "/reference/prc-sample.prc";

// A file of another producer, whose content is known.
class ReferenceFile : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(sampleFile))
            GTEST_SKIP() << "skipped: the sample file is not there";
        result = readFile(sampleFile);
        ASSERT_TRUE(result.scene) << result.problem;
    }
    ReadResult result;
};

TEST_F(ReferenceFile, HasTheLayoutThatItShows)
{
    auto const& facts = result.facts;
    EXPECT_EQ(facts.minimalVersion, 8137U);
    EXPECT_EQ(facts.authoringVersion, 8137U);
    EXPECT_THAT(facts.offsets, testing::ElementsAre(107, 154, 287, 722, 1460, 1471));
    EXPECT_EQ(facts.modelFileStart, 1482U);
    EXPECT_EQ(facts.modelFileEnd, 1577U);
    EXPECT_THAT(facts.unpackedSizes, testing::ElementsAre(128, 424, 855, 3, 3, 84));
    EXPECT_EQ(facts.colors.size(), 3U);
    EXPECT_EQ(facts.linePatterns, 1U);
    EXPECT_EQ(facts.materials, 0U);
    EXPECT_EQ(facts.coordinateSystems, 0U);
    EXPECT_EQ(facts.nextEntityNumber, 18U);
}

TEST_F(ReferenceFile, HasItsStylesPartsAndMeshes)
{
    Scene const& scene = *result.scene;
    EXPECT_EQ(scene.name, "Sample assembly");
    EXPECT_EQ(scene.unit, 1.0);
    EXPECT_THAT(scene.styles, testing::ElementsAre(Style{{0.8, 0.1, 0.1}, 255}, Style{{0.1, 0.3, 0.9}, 128},
                                                   Style{{0.2, 0.7, 0.25}, 255}));
    ASSERT_EQ(scene.meshes.size(), 2U);
    EXPECT_EQ(scene.meshes[0].points.size(), 24U);
    EXPECT_EQ(scene.meshes[0].normals.size(), 18U);
    EXPECT_EQ(scene.meshes[0].triangleCount(), 12U);
    EXPECT_EQ(scene.meshes[1].points.size(), 72U);
    EXPECT_EQ(scene.meshes[1].normals.size(), 42U);
    EXPECT_EQ(scene.meshes[1].triangleCount(), 44U);

    ASSERT_EQ(scene.parts.size(), 3U);
    EXPECT_EQ(scene.parts[0].name, "Plate");
    EXPECT_THAT(scene.parts[0].attributes,
                testing::ElementsAre(Attribute{"Info", {{"Material", "Steel"}, {"Mass", 0.031}, {"Revision", -3}}}));
    EXPECT_EQ(scene.parts[2].name, "Pin green");
    EXPECT_EQ(scene.parts[2].bodies.at(0).name, "Pin body");
    EXPECT_EQ(scene.parts[2].bodies.at(0).mesh, 1U);
    EXPECT_EQ(scene.parts[2].bodies.at(0).style, 2U);
    Box const pin = boxOf(scene.parts[1], scene.meshes);
    EXPECT_THAT(pin.minimum, testing::ElementsAre(-4, -4, 0));
    EXPECT_THAT(pin.maximum, testing::ElementsAre(4, 4, 30));
}

TEST_F(ReferenceFile, HasItsTree)
{
    Scene const& scene = *result.scene;
    ASSERT_EQ(scene.occurrences.size(), 7U);
    EXPECT_EQ(scene.root, 6U);
    EXPECT_THAT(scene.occurrences[6].children, testing::ElementsAre(1, 2, 5));
    EXPECT_THAT(scene.occurrences[5].children, testing::ElementsAre(3, 4));
    EXPECT_EQ(scene.occurrences[1].prototype, 0U);
    EXPECT_EQ(scene.occurrences[0].part, 0U);
    EXPECT_EQ(scene.occurrences[2].placement, (Matrix{0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 100.5, -20.25, 7, 1}));
    EXPECT_EQ(scene.occurrences[4].name, "Pièce n°2 – vert");
    double const c = 0.5 * std::numbers::sqrt3 / 2;
    Matrix const turned{c, 0.25, 0, 0, -0.25, c, 0, 0, 0, 0, 0.5, 0, -12.75, 0.1, 0, 1};
    for (std::size_t i = 0; i < 16; ++i)
        EXPECT_NEAR(scene.occurrences[4].placement[i], turned[i], 1e-15) << i;
}

// Writing what was read gives the same bits, section by section: the encoding leaves no choices that differ.
TEST_F(ReferenceFile, IsWrittenAgainBitForBit)
{
    std::ifstream stream(sampleFile, std::ios::binary);
    std::vector<std::uint8_t> const original{std::istreambuf_iterator<char>(stream), {}};
    WriteOptions options;
    options.fileId = result.facts.fileId;
    options.fileStructureId = result.facts.fileStructureId;
    auto const again = encode(*result.scene, options);
    for (std::size_t section = 0; section < 6; ++section)
        EXPECT_EQ(prctest::sectionOf(again, section), prctest::sectionOf(original, section)) << section;
}

} // namespace
