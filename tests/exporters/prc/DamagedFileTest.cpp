#include "exporters/prc/BitWriter.h"
#include "exporters/prc/Compression.h"
#include "exporters/prc/PrcReader.h"
#include "exporters/prc/PrcWriter.h"
#include "exporters/prc/TestScenes.h"

#include <gmock/gmock.h>

#include <random>

namespace
{

using namespace prc;

// The file with one section's content replaced and the headers put right, so that the damage reaches the parsers.
std::vector<std::uint8_t> withSection(std::vector<std::uint8_t> const& file, std::size_t section,
                                      std::vector<std::uint8_t> const& content)
{
    std::size_t const table = 71;
    std::vector<std::uint8_t> result(file.begin(), file.begin() + 154);
    std::uint32_t at = 154;
    for (std::size_t i = 0; i < 6; ++i) {
        auto const packed = compressed(i == section ? content : prctest::sectionOf(file, i));
        result.insert(result.end(), packed.begin(), packed.end());
        at += static_cast<std::uint32_t>(packed.size());
        for (std::size_t byte = 0; byte < 4; ++byte)
            result[table + 4 * (i + 2) + byte] = static_cast<std::uint8_t>(at >> (8 * byte));
    }
    return result;
}

void expectProblem(std::span<std::uint8_t const> file, std::string const& what)
{
    auto const result = read(file);
    EXPECT_FALSE(result.scene) << what;
    EXPECT_THAT(result.problem, testing::StartsWith("The PRC file can't be read: ")) << what;
}

TEST(DamagedFile, IsTheSameWhenNothingIsReplaced)
{
    auto const file = encode(prctest::assembly());
    for (std::size_t section = 0; section < 6; ++section)
        EXPECT_EQ(read(withSection(file, section, prctest::sectionOf(file, section))).problem, "");
}

TEST(DamagedFile, GivesAProblemWhereverItBreaksOff)
{
    auto const file = encode(prctest::assembly());
    for (std::size_t length = 0; length < file.size(); ++length)
        expectProblem(std::span(file).first(length), "broken off at " + std::to_string(length));
}

TEST(DamagedFile, GivesAProblemForEveryDamagedHeaderByteThatMatters)
{
    auto const file = encode(prctest::oneBox());
    for (std::size_t i = 0; i < 154; ++i) {
        bool const application = (i >= 27 && i < 43) || (i >= 134 && i < 150);
        bool const fileId = i >= 11 && i < 27;
        bool const reserved = i >= 63 && i < 67;
        if (application || fileId || reserved)
            continue;
        auto damaged = file;
        damaged[i] ^= 0xFF;
        expectProblem(damaged, "header byte " + std::to_string(i));
    }
}

TEST(DamagedFile, NoticesDamagedCompression)
{
    auto const file = encode(prctest::assembly());
    for (std::size_t i = 154; i < file.size(); ++i) {
        auto damaged = file;
        damaged[i] ^= 0x10;
        // A changed byte may yield the same content only in the stream's own header.
        if (auto const result = read(damaged); result.scene) {
            EXPECT_TRUE(*result.scene == *read(file).scene) << i;
        }
    }
}

TEST(DamagedFile, SurvivesAnyChangeOfItsContent)
{
    auto const file = encode(prctest::assembly());
    int refused = 0;
    std::mt19937 random(11);
    for (std::size_t section = 0; section < 6; ++section) {
        auto const content = prctest::sectionOf(file, section);
        for (int round = 0; round < 400; ++round) {
            auto changed = content;
            for (auto changes = 1 + random() % 3; changes > 0; --changes)
                changed[random() % changed.size()] ^= static_cast<std::uint8_t>(1U << random() % 8);
            if (round % 5 == 0)
                changed.resize(random() % changed.size());
            auto const result = read(withSection(file, section, changed));
            EXPECT_NE(result.scene.has_value(), !result.problem.empty());
            if (result.scene) {
                EXPECT_FALSE(problemOf(*result.scene));
            } else {
                ++refused;
            }
        }
    }
    EXPECT_GT(refused, 1500) << "most changes must be noticed";
}

TEST(DamagedFile, RefusesWhatLiesOutsideTheSubset)
{
    auto const file = encode(prctest::oneBox());
    BitWriter schema;
    schema.unsignedInteger(1);
    EXPECT_THAT(read(withSection(file, 0, schema.finish())).problem, testing::HasSubstr("newer version"));
    BitWriter compressedMesh;
    compressedMesh.unsignedInteger(305);
    compressedMesh.unsignedInteger(0);
    compressedMesh.boolean(true);
    compressedMesh.unsignedInteger(1);
    compressedMesh.unsignedInteger(173);
    EXPECT_THAT(read(withSection(file, 2, compressedMesh.finish())).problem, testing::HasSubstr("compressed meshes"));
}

TEST(DamagedFile, RefusesANewerFormat)
{
    auto file = encode(prctest::oneBox());
    file[3] = 0x11;
    file[4] = 0x27; // 10001
    EXPECT_THAT(read(file).problem, testing::HasSubstr("newer version"));
}

TEST(DamagedFile, RefusesContentLargerThanItsLimit)
{
    auto const stream = compressed(std::vector<std::uint8_t>(100000, 0));
    EXPECT_LT(stream.size(), 1000U);
    EXPECT_EQ(decompressed(stream, 100000).size(), 100000U);
    EXPECT_ANY_THROW(decompressed(stream, 99999));
}

TEST(DamagedFile, SaysThatAFileIsMissing)
{
    EXPECT_THAT(readFile(ORV_BINARY_DIR "/no such file.prc").problem, testing::HasSubstr("no such file.prc"));
}

} // namespace
