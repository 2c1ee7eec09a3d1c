#include "exporters/prcdelaywriter/MeshBuilder.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace
{

using testing::ElementsAre;

prc::Mesh built(orvsg::Mesh const& mesh)
{
    return prcdelay::buildMesh(mesh, 1, [](unsigned long color) -> std::optional<std::size_t> { return color; });
}

// Two triangles that share an edge, with vertices of their own.
orvsg::Mesh square()
{
    return {{0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 0, 0, 1, 1, 0, 0, 1, 0},
            {0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1},
            {0, 1, 2, 3, 4, 5},
            {}};
}

TEST(MeshBuilder, StoresEqualPointsAndNormalsOnce)
{
    auto const mesh = built(square());
    EXPECT_EQ(mesh.points.size(), 12U);
    EXPECT_THAT(mesh.normals, ElementsAre(0, 0, 1));
    EXPECT_THAT(mesh.pointIndices, ElementsAre(0, 1, 2, 0, 2, 3));
    EXPECT_THAT(mesh.normalIndices, ElementsAre(0, 0, 0, 0, 0, 0));
}

TEST(MeshBuilder, TakesNegativeZeroForZero)
{
    auto source = square();
    source.positions[9] = -0.0F;
    EXPECT_EQ(built(source).points.size(), 12U);
}

TEST(MeshBuilder, LeavesOutVerticesThatNoTriangleUses)
{
    auto source = square();
    source.triangles = {0, 1, 2};
    EXPECT_EQ(built(source).points.size(), 9U);
}

TEST(MeshBuilder, JoinsFacesOfOneLook)
{
    auto source = square();
    for (int i = 0; i < 2; ++i)
        source.triangles.insert(source.triangles.end(), {0, 1, 2, 3, 4, 5});
    source.faces = {{0, 1, {}}, {1, 1, {}}, {2, 1, 7}, {3, 2, 7}, {5, 1, 8}};
    auto const& faces = built(source).faces;
    ASSERT_EQ(faces.size(), 3U);
    EXPECT_EQ(faces[0], (prc::Face{2, {}}));
    EXPECT_EQ(faces[1], (prc::Face{3, {7}}));
    EXPECT_EQ(faces[2], (prc::Face{1, {8}}));
}

TEST(MeshBuilder, IgnoresFacesThatDontCoverTheMesh)
{
    for (std::vector<orvsg::MeshFace> const& faces :
         {std::vector<orvsg::MeshFace>{{0, 1, 7}}, {{0, 3, 7}}, {{1, 1, 7}, {0, 1, 7}}, {{0, 0xFFFFFFFF, 7}}}) {
        auto source = square();
        source.faces = faces;
        EXPECT_THAT(built(source).faces, ElementsAre(prc::Face{2, {}}));
    }
}

TEST(MeshBuilder, LeavesOutTrianglesThatCannotBeDrawn)
{
    auto source = square();
    source.triangles[1] = 6;
    EXPECT_EQ(built(source).triangleCount(), 1U);
    source = square();
    source.positions[0] = std::nanf("");
    EXPECT_EQ(built(source).triangleCount(), 1U);
    source.triangles.pop_back(); // an incomplete one
    EXPECT_EQ(built(source).triangleCount(), 0U);
    EXPECT_THAT(built(source).faces, ElementsAre(prc::Face{0, {}}));
}

TEST(MeshBuilder, LeavesUnusableNormalsToTheReader)
{
    auto source = square();
    source.normals.resize(9);
    EXPECT_TRUE(built(source).normals.empty());
    source = square();
    source.normals[2] = 0;
    EXPECT_TRUE(built(source).normals.empty()) << "a normal without a direction";
    source.normals[2] = std::numeric_limits<float>::infinity();
    EXPECT_TRUE(built(source).normals.empty());
    EXPECT_TRUE(built(source).normalIndices.empty());
}

TEST(MeshBuilder, MakesNormalsUnitVectors)
{
    auto source = square();
    for (std::size_t i = 2; i < source.normals.size(); i += 3)
        source.normals[i] = 4;
    EXPECT_THAT(built(source).normals, ElementsAre(0, 0, 1));
}

} // namespace
