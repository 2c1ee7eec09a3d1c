// What the mesh exporters write, read again with Assimp and compared with the scene.

#include "exporters/ExportLibraries.h"
#include "exporters/FileSizeLimit.h"
#include "exporters/mesh/SceneFacts.h"
#include "host/orv/Preferences.h"
#include "host/orvsg/Value.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "host/orvsgutils/SceneQuery.h"
#include "support/TestScene.h"
#include "viewer/ModelFixture.h"

#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>

using namespace orvtest;

namespace
{

struct FormatCase {
    char const* library;
    char const* extension;
    bool keepsParts; ///< the format tells parts apart
};

/// Opened once for all tests.
std::shared_ptr<orv::IDocument> sampleDocument()
{
    static auto const sample = importFile(sampleModel()).document;
    return sample;
}

class MeshFile : public testing::TestWithParam<FormatCase>
{
protected:
    std::filesystem::path file(std::string const& stem = "model") const
    {
        return folder.path / (stem + '.' + GetParam().extension);
    }
    orvexp::Status save(std::shared_ptr<orv::IDocument> const& document,
                        std::shared_ptr<orv::Preferences> const& preferences = nullptr)
    {
        return loadExporter(GetParam().library)->save(file().wstring().c_str(), document, preferences, &bar);
    }
    aiScene const& read()
    {
        // As the file says it: the format's own axes are not turned to the reader's.
        reader.SetPropertyBool(AI_CONFIG_IMPORT_COLLADA_IGNORE_UP_DIRECTION, true);
        auto const* const scene = reader.ReadFile(file().string(), 0);
        if (scene == nullptr) {
            throw std::runtime_error(reader.GetErrorString());
        }
        return *scene;
    }
    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        for (auto const& entry : std::filesystem::directory_iterator(folder.path)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    TemporaryFolder folder;
    ProgressBar bar;
    Assimp::Importer reader;
};

TEST_P(MeshFile, HoldsTheSampleAsItStandsInTheViewer)
{
    auto const sample = sampleDocument();
    ASSERT_TRUE(sample);
    ASSERT_EQ(save(sample), orvexp::Status::ok);
    auto const before = factsOf(sample);
    auto const after = factsOf(read());
    EXPECT_EQ(before.parts, 41U);
    EXPECT_EQ(after.parts, GetParam().keepsParts ? before.parts : 1U);
    EXPECT_EQ(after.triangles, before.triangles);
    expectSameBox(before, after, 2e-3);
    EXPECT_TRUE(std::is_sorted(bar.percents.begin(), bar.percents.end()));
    EXPECT_GE(bar.percents.size(), 5U);
    EXPECT_EQ(bar.percents.back(), 100);
}

TEST_P(MeshFile, PartsStandWhereTheUserMovedThemHiddenOnesToo)
{
    TestScene scene;
    scene.moveTo(3, 100, -50, 25);
    scene.runtime->visibility[1] = false;
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const before = factsOf(scene.document);
    auto const after = factsOf(read());
    EXPECT_EQ(after.triangles, before.triangles);
    expectSameBox(before, after, 1e-4);
}

TEST_P(MeshFile, MirroredPartsKeepTheirOutsideOut)
{
    TestScene scene;
    orvsg::Transform mirrored;
    mirrored.isSet = true;
    mirrored.matrix[0] = -1;
    scene.resources->transforms.setValue(0, mirrored);
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    aiScene const& found = read();
    double volume = 0;
    for (unsigned i = 0; i < found.mNumMeshes; ++i) {
        aiMesh const& mesh = *found.mMeshes[i];
        for (unsigned face = 0; face < mesh.mNumFaces; ++face) {
            auto const* const corner = mesh.mFaces[face].mIndices;
            aiVector3D const cross = mesh.mVertices[corner[1]] ^ mesh.mVertices[corner[2]];
            volume += static_cast<double>(mesh.mVertices[corner[0]] * cross) / 6;
        }
    }
    EXPECT_NEAR(volume, 40 * 20 * 10 + 10 * 2 * 2 + 2 * 4 * 4 * 1, 1);
}

TEST_P(MeshFile, UnitIsTheOneOfTheSettings)
{
    TestScene scene;
    auto preferences = std::make_shared<orv::Preferences>();
    preferences->add(std::make_shared<orvsg::Value<int, 3>>(L"EXPORT_UNIT", 2), nullptr); // centimetres
    ASSERT_EQ(save(scene.document, preferences), orvexp::Status::ok);
    EXPECT_NEAR(factsOf(read()).maximum[0], factsOf(scene.document).maximum[0] / 10, 1e-4);
}

TEST_P(MeshFile, NamesInAnyScriptAndLengthAreBorne)
{
    TestScene scene;
    auto node = scene.topology->nodes.getValue(1);
    node.name = L"Gehäuse <oben> & \"歯車\" \U0001F600\n" + std::wstring(300, L'ö');
    scene.topology->nodes.setValue(1, node);
    node = scene.topology->nodes.getValue(3);
    node.name = L"";
    scene.topology->nodes.setValue(3, node);
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const after = factsOf(read());
    EXPECT_EQ(after.parts, GetParam().keepsParts ? 4U : 1U);
    EXPECT_EQ(after.triangles, 48U);
}

TEST_P(MeshFile, PartsOfAnySizeArriveWhole)
{
    TestScene scene;
    auto large = std::make_shared<orvsg::Mesh>();
    constexpr std::uint32_t side = 300; // 90,601 vertices, 180,000 triangles
    for (std::uint32_t y = 0; y <= side; ++y) {
        for (std::uint32_t x = 0; x <= side; ++x) {
            large->positions.insert(large->positions.end(), {static_cast<float>(x), static_cast<float>(y),
                                                             static_cast<float>((x * 7 + y * 3) % 5)});
        }
    }
    for (std::uint32_t y = 0; y < side; ++y) {
        for (std::uint32_t x = 0; x < side; ++x) {
            std::uint32_t const a = y * (side + 1) + x;
            large->triangles.insert(large->triangles.end(), {a, a + 1, a + side + 2, a, a + side + 2, a + side + 1});
        }
    }
    large->faces = {{0, 2 * side * side, {}}};
    scene.resources->meshes[0] = large;
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const before = factsOf(scene.document);
    auto const after = factsOf(read());
    EXPECT_EQ(after.triangles, before.triangles);
    expectSameBox(before, after, 1e-3);
}

TEST_P(MeshFile, SizeThatTheDiskRefusesLeavesWhatWasThereAndNothingElse)
{
    writeFile(file(), "old");
    auto const sample = sampleDocument();
    orvexp::Status status = orvexp::Status::ok;
    {
        prctest::FileSizeLimit const limit(20000);
        status = save(sample);
    }
    EXPECT_EQ(status, orvexp::Status::fileTooLarge);
    EXPECT_EQ(contentOf(file()), "old");
    EXPECT_EQ(files().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Formats, MeshFile,
                         testing::Values(FormatCase{"3dswriter", "3ds", true}, FormatCase{"objwriter", "obj", true},
                                         FormatCase{"stlwriter", "stl", false},
                                         FormatCase{"colladawriter", "dae", true}),
                         [](auto const& tested) { return std::string("As_") + tested.param.extension; });

TEST(MeshColors, ArriveByPartAndByFace)
{
    TemporaryFolder const folder;
    TestScene scene;
    auto painted = std::make_shared<orvsg::Mesh>(*scene.resources->meshes[0]);
    painted->faces[2].color = 0x0080FF; // two triangles in orange
    scene.resources->meshes[0] = painted;
    orvsgutils::MaterialUtils::setNodeTransparency(3, 0.5F, scene.resources, scene.runtime, scene.topology);
    for (auto const& [library, extension] :
         {std::pair{"objwriter", "obj"}, std::pair{"colladawriter", "dae"}, std::pair{"3dswriter", "3ds"}}) {
        auto const file = folder.path / (std::string("painted.") + extension);
        ASSERT_EQ(loadExporter(library)->save(file.wstring().c_str(), scene.document, nullptr, nullptr),
                  orvexp::Status::ok);
        Assimp::Importer reader;
        auto const* const found = reader.ReadFile(file.string(), 0);
        ASSERT_NE(found, nullptr) << reader.GetErrorString();
        std::map<std::array<int, 4>, unsigned> triangles; // by colour and opacity
        for (unsigned i = 0; i < found->mNumMeshes; ++i) {
            aiColor4D color;
            float opacity = 1;
            auto const& material = *found->mMaterials[found->mMeshes[i]->mMaterialIndex];
            material.Get(AI_MATKEY_COLOR_DIFFUSE, color);
            material.Get(AI_MATKEY_OPACITY, opacity);
            triangles[{static_cast<int>(std::lround(color.r * 255)), static_cast<int>(std::lround(color.g * 255)),
                       static_cast<int>(std::lround(color.b * 255)), static_cast<int>(std::lround(opacity * 10))}] +=
                found->mMeshes[i]->mNumFaces;
        }
        EXPECT_EQ((triangles[{0x80, 0x80, 0x80, 10}]), 10U) << extension;
        EXPECT_EQ((triangles[{0xFF, 0x80, 0x00, 10}]), 2U) << extension;
        EXPECT_EQ((triangles[{0xFF, 0x00, 0x00, 10}]), 24U) << extension;
        unsigned halfSeen = 0;
        for (auto const& [look, count] : triangles) {
            halfSeen += look[3] == 5 ? count : 0;
        }
        EXPECT_EQ(halfSeen, 12U) << extension;
    }
}

} // namespace
