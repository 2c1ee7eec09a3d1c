#include "exporters/prc/FormatError.h"
#include "exporters/prc/SectionParsers.h"
#include "exporters/prc/SectionWriter.h"

#include <gmock/gmock.h>

#include <cmath>

// What other producers write and our writer doesn't: sections put together by hand.
namespace
{

using namespace prc;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::uint32_t singleNormal = 0x40000000;

// A mesh of six points and two normals with one face of the given kinds.
struct HandMade {
    std::uint32_t kinds = triangulated::triangles;
    std::vector<std::uint32_t> indices;
    std::vector<std::uint32_t> sizes;
    std::uint32_t start = 0;
    bool withNormals = true;
    bool withVertexColors = false;

    std::vector<std::uint8_t> section() const
    {
        SectionWriter out;
        out.type(Entity::tessellation);
        out.base("");
        out.count(1);
        out.type(Entity::mesh);
        out.boolean(false);
        out.count(18);
        for (int i = 0; i < 18; ++i)
            out.real(i);
        out.boolean(false);
        out.boolean(false);
        out.boolean(!withNormals);
        if (!withNormals) {
            out.character(0);
            out.real(30);
        }
        out.count(withNormals ? 6 : 0);
        if (withNormals) {
            out.vector(0, 0, 1);
            out.vector(0, 1, 0);
        }
        out.count(0);
        list(out, indices);
        out.count(1);
        out.type(Entity::face);
        out.count(0);
        out.count(0);
        out.count(0);
        out.unsignedInteger(kinds);
        out.unsignedInteger(start);
        list(out, sizes);
        out.count(0);
        out.boolean(withVertexColors);
        if (withVertexColors) {
            out.boolean(true); // with alpha
            out.boolean(false);
            out.bits(0x11223344, 32);
            out.boolean(true);
            out.boolean(false);
            out.bits(0x55667788, 32);
        }
        out.count(0);
        out.noUserData();
        return out.finish();
    }

    Mesh read() const
    {
        auto const content = section();
        std::vector<std::uint32_t> numbers;
        SectionReader in(content, numbers);
        Scene scene;
        readTessellation(in, scene, formatVersion);
        return scene.meshes.at(0);
    }

private:
    static void list(SectionWriter& out, std::vector<std::uint32_t> const& values)
    {
        out.count(values.size());
        for (auto const value : values)
            out.unsignedInteger(value);
    }
};

TEST(ForeignFile, ReadsFlatTriangles)
{
    HandMade const made{triangulated::oneNormalTriangles, {3, 0, 3, 6, 0, 0, 6, 9}, {2}};
    Mesh const mesh = made.read();
    EXPECT_THAT(mesh.pointIndices, ElementsAre(0, 1, 2, 0, 2, 3));
    EXPECT_THAT(mesh.normalIndices, ElementsAre(1, 1, 1, 0, 0, 0));
}

TEST(ForeignFile, ReadsFans)
{
    HandMade const made{triangulated::fans, {0, 0, 0, 3, 3, 6, 3, 9}, {1, 4}};
    Mesh const mesh = made.read();
    EXPECT_THAT(mesh.pointIndices, ElementsAre(0, 1, 2, 0, 2, 3));
    EXPECT_THAT(mesh.normalIndices, ElementsAre(0, 0, 1, 0, 1, 1));
}

TEST(ForeignFile, TurnsEveryOtherTriangleOfAStrip)
{
    HandMade const made{triangulated::oneNormalStrips, {3, 0, 3, 6, 9, 12}, {1, 5 | singleNormal}};
    Mesh const mesh = made.read();
    EXPECT_THAT(mesh.pointIndices, ElementsAre(0, 1, 2, 2, 1, 3, 2, 3, 4));
    EXPECT_THAT(mesh.normalIndices, testing::Each(1));
}

TEST(ForeignFile, ReadsOneNormalKindsThatHaveMore)
{
    HandMade const made{triangulated::oneNormalFans, {0, 0, 3, 3, 0, 6}, {1, 3}};
    EXPECT_THAT(made.read().normalIndices, ElementsAre(0, 1, 0));
}

TEST(ForeignFile, ReadsSeveralKindsInOneFace)
{
    HandMade const made{triangulated::triangles | triangulated::strips | triangulated::oneNormalFans,
                        {0, 0, 0, 3, 0, 6, 0, 3, 0, 6, 0, 9, 3, 0, 3, 6},
                        {1, 1, 3, 1, 3 | singleNormal}};
    Mesh const mesh = made.read();
    EXPECT_THAT(mesh.pointIndices, ElementsAre(0, 1, 2, 1, 2, 3, 0, 1, 2));
    EXPECT_THAT(mesh.normalIndices, ElementsAre(0, 0, 0, 0, 0, 0, 1, 1, 1));
}

TEST(ForeignFile, ReadsChainsWithoutNormals)
{
    HandMade made{triangulated::strips, {0, 3, 6, 9}, {1, 4}};
    made.withNormals = false;
    EXPECT_THAT(made.read().pointIndices, ElementsAre(0, 1, 2, 2, 1, 3));
}

TEST(ForeignFile, ReadsOverVertexColours)
{
    HandMade made{triangulated::triangles, {0, 0, 0, 3, 0, 6}, {1}};
    made.withVertexColors = true;
    EXPECT_EQ(made.read().triangleCount(), 1U);
}

TEST(ForeignFile, RefusesFacesThatDontFitTheirMesh)
{
    struct Case {
        HandMade made;
        char const* problem;
    };
    HandMade const sound{triangulated::triangles, {0, 0, 0, 3, 0, 6}, {1}};
    auto const changed = [&](auto const& change) {
        HandMade made = sound;
        change(made);
        return made;
    };
    EXPECT_EQ(sound.read().triangleCount(), 1U);
    for (auto const& [made, problem] : {Case{changed([](HandMade& m) { m.sizes = {2}; }), "beyond the indices"},
                                        Case{changed([](HandMade& m) { m.sizes = {0}; }), "don't use all"},
                                        Case{changed([](HandMade& m) { m.sizes = {}; }), "lacks a size"},
                                        Case{changed([](HandMade& m) {
                                                 m.sizes = {1, 1};
                                             }),
                                             "size too many"},
                                        Case{changed([](HandMade& m) { m.indices[3] = 4; }), "start of a point"},
                                        Case{changed([](HandMade& m) { m.start = 6; }), "follow one another"},
                                        Case{changed([](HandMade& m) { m.kinds = 0x0200; }), "not read"},
                                        Case{changed([](HandMade& m) {
                                                 m.kinds = triangulated::fans;
                                                 m.sizes = {1, 0xFFFFFFFF};
                                             }),
                                             "beyond the indices"}}) {
        try {
            made.read();
            FAIL() << problem;
        } catch (FormatError const& error) {
            EXPECT_THAT(error.what(), HasSubstr(problem));
        }
    }
}

// Globals with one colour, one material and a style that uses it.
TEST(ForeignFile, TakesTheDiffuseColourOfAMaterial)
{
    EntityNumbers given;
    SectionWriter out;
    out.count(0);
    out.type(Entity::globals);
    out.base("");
    out.count(0);
    out.real(2000);
    out.real(40);
    out.string("");
    out.count(1); // a font with one key
    out.string("Sans");
    out.count(0);
    out.count(1);
    out.count(13);
    out.character(0);
    out.count(2); // colours
    out.vector(0.25, 0.5, 0.75);
    out.vector(1, 1, 1);
    out.count(0);
    out.count(0);
    out.count(1); // materials
    out.type(Entity::material);
    out.numberedBase("Brass", given);
    for (std::uint32_t const color : {4U, 1U, 0U, 4U})
        out.unsignedInteger(color);
    for (int i = 0; i < 5; ++i)
        out.real(0.5);
    out.count(0); // line patterns
    out.count(1); // styles
    out.type(Entity::style);
    out.numberedBase("Brass", given);
    out.real(1);
    out.boolean(false);
    out.reference({});
    out.boolean(true);
    out.reference(0);
    out.boolean(true);
    out.character(100);
    out.boolean(true); // an additional byte
    out.character(4);
    out.boolean(false);
    out.boolean(false);
    out.count(0);
    out.count(1); // coordinate systems
    out.type(Entity::coordinateSystem);
    out.numberedBase("", given);
    out.graphics({}, false);
    out.count(0);
    out.count(0);
    out.type(Entity::cartesianTransformation);
    out.character(cartesian::mirror | cartesian::nonUniformScale | cartesian::homogeneous);
    out.vector(1, 2, 3);
    for (double const element : {0.0, 0.0, 0.0, 1.0})
        out.real(element);
    out.noUserData();
    out.noUserData();
    auto const content = out.finish();

    std::vector<std::uint32_t> numbers;
    SectionReader in(content, numbers);
    Scene scene;
    FileFacts facts;
    readGlobals(in, scene, facts);
    EXPECT_THAT(scene.styles, ElementsAre(Style{{0.25, 0.5, 0.75}, 100}));
    EXPECT_EQ(facts.materials, 1U);
    EXPECT_EQ(facts.coordinateSystems, 1U);
    EXPECT_THAT(numbers, ElementsAre(1, 2, 3));
}

} // namespace
