// What a format can't count is cut up or refused, and normals stand on their triangles.

#include "exporters/ExportLibraries.h"
#include "exporters/mesh/PartsScene.h"
#include "exporters/mesh/ThreeDsFile.h"
#include "viewer/ModelFixture.h"

#include <assimp/Importer.hpp>
#include <assimp/scene.h>

#include <algorithm>
#include <cmath>

using namespace orvtest;
using orvexp::Status;

namespace
{

class MeshLimits : public testing::Test
{
protected:
    Status save(TestScene const& scene, char const* library = "3dswriter", char const* extension = "3ds")
    {
        file = folder.path / (std::string("a.") + extension);
        return loadExporter(library)->save(file.wstring().c_str(), scene.document, nullptr, nullptr);
    }
    /// A model of one part with so many vertices and triangles; no two vertices stand in one place.
    static PartsScene oneMesh(std::uint32_t vertices, std::uint32_t triangles)
    {
        PartsScene scene({L"part"});
        auto mesh = std::make_shared<orvsg::Mesh>();
        for (std::uint32_t i = 0; i < vertices; ++i) {
            mesh->positions.insert(mesh->positions.end(),
                                   {static_cast<float>(i), static_cast<float>(i % 7), static_cast<float>(i % 3)});
        }
        for (std::uint32_t i = 0; i < triangles; ++i) { // a strip over all vertices, and again from its beginning
            std::uint32_t const first = i % (vertices - 2);
            mesh->triangles.insert(mesh->triangles.end(), {first, first + 1, first + 2});
        }
        mesh->faces = {{0, triangles, {}}};
        scene.resources->meshes[2] = mesh;
        return scene;
    }
    static std::vector<std::wstring> numbered(std::size_t count)
    {
        std::vector<std::wstring> names(count);
        for (std::size_t i = 0; i < count; ++i) {
            names[i] = L"p" + std::to_wstring(i);
        }
        return names;
    }

    TemporaryFolder folder;
    std::filesystem::path file;
};

TEST_F(MeshLimits, MeshOfA3dsFileHas65535VerticesAndTrianglesAtMost)
{
    struct Case {
        std::uint32_t vertices;
        std::uint32_t triangles;
        std::size_t meshes;
    };
    for (auto const& [vertices, triangles, meshes] :
         {Case{65535, 65533, 1}, Case{65536, 65534, 2}, Case{65535, 65535, 1}, Case{3000, 65535, 1},
          Case{3000, 65536, 2}}) {
        ASSERT_EQ(save(oneMesh(vertices, triangles)), Status::ok);
        ThreeDsFile const found(contentOf(file));
        EXPECT_EQ(found.meshes.size(), meshes) << vertices << ' ' << triangles;
        std::size_t all = 0;
        for (auto const& mesh : found.meshes) {
            EXPECT_LE(mesh.vertices, 65535U);
            EXPECT_LE(mesh.faces, 65535U);
            EXPECT_GT(mesh.faces, 0U);
            all += mesh.faces;
        }
        EXPECT_EQ(all, triangles);
        Assimp::Importer reader;
        auto const* const scene = reader.ReadFile(file.string(), 0);
        ASSERT_NE(scene, nullptr) << reader.GetErrorString();
        std::size_t read = 0;
        for (unsigned i = 0; i < scene->mNumMeshes; ++i) {
            read += scene->mMeshes[i]->mNumFaces;
        }
        EXPECT_EQ(read, triangles);
    }
}

TEST_F(MeshLimits, TreeOfA3dsFileHasAPlaceForEachPart)
{
    constexpr std::size_t most = 16383; // a place for the part and one for its mesh
    ASSERT_EQ(save(PartsScene(numbered(most))), Status::ok);
    ThreeDsFile const found(contentOf(file));
    EXPECT_EQ(found.meshes.size(), most);
    EXPECT_EQ(found.tree.size(), 2 * most + 1);
    for (std::size_t i = 1; i < found.tree.size(); ++i) {
        ASSERT_GE(found.tree[i].parent, -1) << found.tree[i].name;
    }
    writeFile(file, "earlier");
    EXPECT_EQ(save(PartsScene(numbered(most + 1))), Status::modelTooLarge);
    EXPECT_TRUE(contentOf(file) == "earlier");
}

TEST_F(MeshLimits, OtherFormatsKnowNoSuchLimit)
{
    PartsScene const scene(numbered(16384));
    EXPECT_EQ(save(scene, "objwriter", "obj"), Status::ok);
    EXPECT_EQ(save(scene, "stlwriter", "stl"), Status::ok);
}

TEST_F(MeshLimits, CourseOfManyPartsIsShownStepByStep)
{
    PartsScene const scene(numbered(10000));
    for (auto const& [library, extension] : {std::pair{"3dswriter", "3ds"}, std::pair{"objwriter", "obj"},
                                             std::pair{"stlwriter", "stl"}, std::pair{"colladawriter", "dae"}}) {
        ProgressBar bar;
        file = folder.path / (std::string("a.") + extension);
        ASSERT_EQ(loadExporter(library)->save(file.wstring().c_str(), scene.document, nullptr, &bar), Status::ok);
        auto const& percents = bar.percents;
        // The making of the meshes comes percent by percent, the library's writing as the library tells it.
        ASSERT_GT(percents.size(), 40U) << extension;
        for (int i = 0; i < 40; ++i) {
            ASSERT_EQ(percents[static_cast<std::size_t>(i)], i + 1) << extension;
        }
        EXPECT_TRUE(std::adjacent_find(percents.begin(), percents.end(), std::greater_equal()) == percents.end())
            << extension << ": never back, and nothing twice";
        EXPECT_EQ(percents.back(), 100) << extension;
    }
}

TEST_F(MeshLimits, NormalsStandOnTheirTrianglesHoweverAPartIsPlaced)
{
    struct Placement {
        char const* name;
        float x, y, z;
    };
    for (auto const& [name, x, y, z] :
         {Placement{"as it is", 1, 1, 1}, Placement{"mirrored", -1, 1, 1}, Placement{"uneven", 1, 7, 0.25F},
          Placement{"mirrored and uneven", 3, -0.5F, 2}, Placement{"through a point", -2, -2, -2}}) {
        TestScene scene;
        orvsg::Transform placement;
        placement.isSet = true;
        constexpr float c = 0.8F; // turned, so that scales mix the axes
        constexpr float s = 0.6F;
        float const columns[9] = {c * x, s * x, 0, -s * y, c * y, 0, 0, 0, z};
        for (unsigned char column = 0; column < 3; ++column) {
            for (unsigned char row = 0; row < 3; ++row) {
                placement.matrix[static_cast<unsigned char>(4 * column + row)] = columns[3 * column + row];
            }
        }
        scene.resources->transforms.setValue(0, placement);
        // An inclined face, so that uneven scales turn its normal.
        auto wedge = std::make_shared<orvsg::Mesh>();
        wedge->positions = {0, 0, 0, 4, 0, 0, 0, 3, 5};
        float const length = std::hypot(20.0F, 12.0F);
        for (int corner = 0; corner < 3; ++corner) {
            wedge->normals.insert(wedge->normals.end(), {0, -20 / length, 12 / length});
        }
        wedge->triangles = {0, 1, 2};
        wedge->faces = {{0, 1, {}}};
        scene.resources->meshes[1] = wedge;
        for (auto const& [library, extension] :
             {std::pair{"objwriter", "obj"}, std::pair{"stlwriter", "stl"}, std::pair{"colladawriter", "dae"}}) {
            ASSERT_EQ(save(scene, library, extension), Status::ok);
            Assimp::Importer reader;
            auto const* const found = reader.ReadFile(file.string(), 0);
            ASSERT_NE(found, nullptr) << reader.GetErrorString();
            unsigned triangles = 0;
            for (unsigned i = 0; i < found->mNumMeshes; ++i) {
                auto const& mesh = *found->mMeshes[i];
                ASSERT_TRUE(mesh.HasNormals()) << extension;
                for (unsigned face = 0; face < mesh.mNumFaces; ++face, ++triangles) {
                    auto const* const corner = mesh.mFaces[face].mIndices;
                    auto const& origin = mesh.mVertices[corner[0]];
                    aiVector3D facet = (mesh.mVertices[corner[1]] - origin) ^ (mesh.mVertices[corner[2]] - origin);
                    facet.Normalize();
                    for (int k = 0; k < 3; ++k) {
                        ASSERT_GT(facet * mesh.mNormals[corner[k]], 0.999F) << name << ' ' << extension;
                    }
                }
            }
            EXPECT_EQ(triangles, 37U) << extension;
        }
    }
}

} // namespace
