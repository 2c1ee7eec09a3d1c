#include "resources/Expected.h"

#include <gtest/gtest.h>

using namespace restest;

namespace
{

const Name png{u"PNG"};

// Side in pixels of every picture.
const std::map<unsigned, unsigned> sides{
    {205, 24}, {238, 30}, {239, 36}, {240, 48}, {206, 16}, {241, 20}, {242, 24}, {243, 32}, {501, 32}, {502, 40},
    {503, 48}, {504, 64}, {505, 16}, {506, 20}, {507, 24}, {508, 32}, {509, 32}, {510, 40}, {511, 48}, {512, 64},
    {513, 16}, {514, 20}, {515, 24}, {516, 32}, {274, 24}, {275, 24}, {276, 24}, {277, 24}, {278, 20},
};

unsigned bigEndian(const Bytes& data, std::size_t at)
{
    return static_cast<unsigned>(data.at(at)) << 24 | static_cast<unsigned>(data.at(at + 1)) << 16 |
           static_cast<unsigned>(data.at(at + 2)) << 8 | data.at(at + 3);
}

void expectSquarePng(const Bytes& data, unsigned side)
{
    const Bytes signature{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
    ASSERT_GT(data.size(), 33U);
    EXPECT_EQ(Bytes(data.begin(), data.begin() + 8), signature);
    EXPECT_EQ(bigEndian(data, 16), side);
    EXPECT_EQ(bigEndian(data, 20), side);
    EXPECT_EQ(data[25], 6) << "true colour with alpha";
}

class ImagesTest : public testing::TestWithParam<Language>
{
};

} // namespace

TEST_P(ImagesTest, AreSquareWithTheGivenSides)
{
    for (const auto& [id, side] : sides) {
        SCOPED_TRACE(id);
        const Resource* picture = find(resources(), png, id, GetParam().tag);
        ASSERT_NE(picture, nullptr);
        expectSquarePng(picture->data, side);
    }
}

TEST_P(ImagesTest, AreTheSameInEveryLanguage)
{
    for (const auto& [id, side] : sides) {
        EXPECT_EQ(find(resources(), png, id, GetParam().tag)->data, find(resources(), png, id, english)->data) << id;
    }
}

TEST_P(ImagesTest, AreNoOthers)
{
    std::size_t count = 0;
    for (const Resource& resource : resources()) {
        count += resource.type == png && resource.language == GetParam().tag;
    }
    EXPECT_EQ(count, sides.size());
}

TEST_P(ImagesTest, MakeAnIconOfSevenSizes)
{
    const Resource* group = find(resources(), typeIconGroup, 1038, GetParam().tag);
    ASSERT_NE(group, nullptr);
    std::vector<unsigned> found;
    for (const IconEntry& entry : readIconGroup(group->data)) {
        EXPECT_EQ(entry.width, entry.height);
        EXPECT_EQ(entry.bitsPerPixel, 32U);
        const Resource* picture = find(resources(), typeIcon, entry.id, GetParam().tag);
        ASSERT_NE(picture, nullptr) << entry.id;
        EXPECT_EQ(picture->data.size(), entry.size);
        expectSquarePng(picture->data, entry.width);
        found.push_back(entry.width);
    }
    EXPECT_EQ(found, (std::vector<unsigned>{16, 24, 32, 48, 52, 64, 128}));
}

TEST(Manifest, AsksForPixelsAndNoRights)
{
    const Resource* manifest = find(resources(), typeManifest, 2, english);
    ASSERT_NE(manifest, nullptr);
    const std::string text(manifest->data.begin(), manifest->data.end());
    EXPECT_NE(text.find(">true</dpiAware>"), std::string::npos);
    EXPECT_NE(text.find("level=\"asInvoker\""), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Languages, ImagesTest, testing::ValuesIn(languages),
                         [](const auto& test) { return std::string(test.param.code); });
