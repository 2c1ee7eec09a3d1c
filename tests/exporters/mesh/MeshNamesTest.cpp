// Names of parts in the files of the mesh exporters.

#include "exporters/ExportLibraries.h"
#include "exporters/mesh/PartsScene.h"
#include "exporters/mesh/ThreeDsFile.h"
#include "platform/text/Text.h"
#include "viewer/ModelFixture.h"

#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/scene.h>
#include <gmock/gmock.h>

#include <functional>
#include <set>
#include <sstream>

using namespace orvtest;
using testing::UnorderedElementsAreArray;

namespace
{

class MeshNames : public testing::Test
{
protected:
    std::filesystem::path save(char const* library, char const* extension, std::vector<std::wstring> const& names)
    {
        PartsScene const scene(names);
        auto const file = folder.path / (std::string("a.") + extension);
        EXPECT_EQ(loadExporter(library)->save(file.wstring().c_str(), scene.document, nullptr, nullptr),
                  orvexp::Status::ok);
        return file;
    }
    /// The names behind "g " or "o " as the lines of the file have them.
    static std::vector<std::string> groupsOf(std::filesystem::path const& file)
    {
        std::istringstream lines(contentOf(file));
        std::vector<std::string> names;
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("g ") || line.starts_with("o ")) {
                names.push_back(line.substr(2));
            }
        }
        return names;
    }
    static std::vector<std::string> namesOf(ThreeDsFile const& file)
    {
        std::vector<std::string> names;
        for (auto const& mesh : file.meshes) {
            names.push_back(mesh.name);
        }
        return names;
    }
    /// The names of the nodes with meshes, and the triangles of all.
    std::vector<std::string> readAgain(std::filesystem::path const& file)
    {
        reader.SetPropertyBool(AI_CONFIG_IMPORT_COLLADA_USE_COLLADA_NAMES, true); // else made-up identifiers
        auto const* const scene = reader.ReadFile(file.string(), 0);
        if (scene == nullptr) {
            ADD_FAILURE() << reader.GetErrorString();
            return {};
        }
        std::vector<std::string> names;
        triangles = 0;
        std::function<void(aiNode const&)> const walk = [&](aiNode const& node) {
            for (unsigned i = 0; i < node.mNumMeshes; ++i) {
                triangles += scene->mMeshes[node.mMeshes[i]]->mNumFaces;
            }
            if (node.mNumMeshes > 0) {
                names.emplace_back(node.mName.C_Str());
            }
            std::for_each(node.mChildren, node.mChildren + node.mNumChildren, [&](aiNode* child) { walk(*child); });
        };
        walk(*scene->mRootNode);
        return names;
    }

    TemporaryFolder folder;
    Assimp::Importer reader;
    std::size_t triangles = 0;
    /// One part a name, with what is awkward in a line of text.
    std::vector<std::wstring> const awkward{L"Bolt M8",    L"Bolt M8",      L"end\\",    L"a\\b",
                                            L"#lead",      L"M8#2",         L"model",    L"",
                                            L"line\nfeed", L"Gehäuse 歯車", L"Bolt M8_2"};
    /// The same as plain names, each occurring once.
    std::vector<std::string> const plain{"Bolt_M8", "Bolt_M8_2", "end_",      "a_b",          "_lead",      "M8#2",
                                         "model_2", "part",      "line_feed", "Gehäuse_歯車", "Bolt_M8_2_2"};
};

TEST_F(MeshNames, OfAnObjFileEndTheirLineAndOccurOnce)
{
    auto const file = save("objwriter", "obj", awkward);
    EXPECT_THAT(groupsOf(file), UnorderedElementsAreArray(plain));
    EXPECT_THAT(readAgain(file), UnorderedElementsAreArray(plain));
    EXPECT_EQ(triangles, 12 * awkward.size());
}

TEST_F(MeshNames, OfAnObjFileLeaveTheMaterialToItsTriangles)
{
    auto const text = contentOf(save("objwriter", "obj", {L"one\\", L"two\\"}));
    EXPECT_EQ(text.find("\\\n"), std::string::npos) << "the next line would belong to the name";
    auto const* const scene = reader.ReadFile((folder.path / "a.obj").string(), 0);
    ASSERT_NE(scene, nullptr);
    for (unsigned i = 0; i < scene->mNumMeshes; ++i) {
        EXPECT_NE(std::string(scene->mMaterials[scene->mMeshes[i]->mMaterialIndex]->GetName().C_Str()),
                  "DefaultMaterial");
    }
}

TEST_F(MeshNames, OfA3dsFileAreThoseOfThePartsWithANumber)
{
    auto const file = save("3dswriter", "3ds", awkward);
    // No part's name is that of another's mesh: "Bolt_M8_1" is the mesh of one "Bolt_M8" alone.
    std::vector<std::string> const numbered{"Bolt_M8_0",   "Bolt_M8-2_1",    "end__2",        "a_b_3",
                                            "_lead_4",     "M8#2_5",         "model-2_6",     "part_7",
                                            "line_feed_8", "Gehäuse_歯車_9", "Bolt_M8-2-2_10"};
    EXPECT_EQ(namesOf(ThreeDsFile(contentOf(file))), numbered);
    EXPECT_THAT(readAgain(file), UnorderedElementsAreArray(numbered));
    EXPECT_EQ(triangles, 12 * awkward.size());
}

TEST_F(MeshNames, OfA3dsFileHave63BytesAtMostAndAreCutBetweenCharacters)
{
    std::vector<std::wstring> names;
    for (int shift = 0; shift < 4; ++shift) {
        names.push_back(std::wstring(static_cast<std::size_t>(shift), L'x') + std::wstring(80, L'歯'));
        names.push_back(std::wstring(static_cast<std::size_t>(shift), L'x') + std::wstring(80, L'ö'));
        names.push_back(names.back()); // one of the same name is told apart behind the cut
        names.push_back(std::wstring(static_cast<std::size_t>(shift), L'x') + std::wstring(80, L'\U0001F600'));
    }
    ThreeDsFile const file(contentOf(save("3dswriter", "3ds", names)));
    auto const found = namesOf(file);
    ASSERT_EQ(found.size(), names.size());
    EXPECT_EQ(std::set<std::string>(found.begin(), found.end()).size(), names.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_LE(found[i].size(), 63U);
        EXPECT_LE(found[i].rfind('_'), 57U) << "numbers of five digits have room behind it";
        EXPECT_GE(found[i].size(), 50U) << "as much of a name as there is room for";
        auto const stem = found[i].substr(0, found[i].find_first_of("_-"));
        EXPECT_EQ(orvtext::toUtf8(names[i]).substr(0, stem.size()), stem);
        EXPECT_EQ(orvtext::toUtf8(orvtext::fromUtf8(stem)), stem) << "no half character at the cut";
    }
    for (auto const& place : file.tree) {
        EXPECT_LE(place.name.size(), 63U);
    }
}

TEST_F(MeshNames, OfAColladaFileStayAsTheyAre)
{
    auto const file =
        save("colladawriter", "dae",
             {L"Bolt M8", L"Bolt M8", L"end\\", L"#lead", L"model", L"", L"<a> & \"b\"", L"Gehäuse 歯車"});
    std::vector<std::string> const kept{"Bolt M8", "Bolt M8_2", "end\\",       "#lead",
                                        "model_2", "part",      "<a> & \"b\"", "Gehäuse 歯車"};
    EXPECT_THAT(readAgain(file), UnorderedElementsAreArray(kept));
    EXPECT_EQ(triangles, 12 * kept.size());
}

} // namespace
