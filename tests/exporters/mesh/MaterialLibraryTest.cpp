// The library of materials that an OBJ file names and that lies beside it.

#include "exporters/ExportLibraries.h"
#include "exporters/FileSizeLimit.h"
#include "platform/text/Text.h"
#include "support/TestScene.h"
#include "viewer/ModelFixture.h"

#include <assimp/Importer.hpp>
#include <assimp/material.h>
#include <assimp/scene.h>

#include <set>

using namespace orvtest;
using orvexp::Status;

namespace
{

class MaterialLibrary : public testing::Test
{
protected:
    Status save(std::filesystem::path const& file)
    {
        return exporter->save(orvtext::fromUtf8(file.string()).c_str(), scene.document, nullptr, nullptr);
    }
    std::string unwritten() const { return orvtext::toUtf8(exporter->unwrittenBeside()); }
    std::set<std::string> files() const
    {
        std::set<std::string> names;
        for (auto const& entry : std::filesystem::directory_iterator(folder.path)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }
    /// What follows "mtllib" in the file.
    static std::string libraryOf(std::filesystem::path const& file)
    {
        std::istringstream text(contentOf(file));
        std::string line;
        while (std::getline(text, line)) {
            if (line.starts_with("mtllib ")) {
                return line.substr(7);
            }
        }
        return {};
    }

    std::shared_ptr<orvexp::ExportHelper> const exporter = loadExporter("objwriter");
    TestScene scene;
    TemporaryFolder folder;
};

TEST_F(MaterialLibrary, IsTheFileThatTheModelNames)
{
    for (char const* const stem :
         {"model", "two words (2)", "Zahnräder 歯車", "a.b.c", "it's; \"quoted\" & more", "100%", "#lead", "a#b"}) {
        for (char const* const ending : {".obj", ".OBJ"}) {
            TemporaryFolder const own;
            auto const file = own.path / (std::string(stem) + ending);
            ASSERT_EQ(save(file), Status::ok) << file;
            EXPECT_EQ(libraryOf(file), std::string(stem) + ".mtl");
            EXPECT_TRUE(std::filesystem::is_regular_file(own.path / libraryOf(file))) << file;
            Assimp::Importer reader;
            auto const* const found = reader.ReadFile(file.string(), 0);
            ASSERT_NE(found, nullptr) << reader.GetErrorString();
            bool isRed = false;
            for (unsigned i = 0; i < found->mNumMaterials; ++i) {
                aiColor4D color;
                found->mMaterials[i]->Get(AI_MATKEY_COLOR_DIFFUSE, color);
                isRed = isRed || (color.r > 0.99F && color.g < 0.01F && color.b < 0.01F);
            }
            EXPECT_TRUE(isRed) << file << ": the gears' colour stands in the library";
        }
    }
}

TEST_F(MaterialLibrary, HasANameThatEndsNoLine)
{
    for (auto const& [stem, library] :
         {std::pair{"two\nlines", "two_lines.mtl"}, std::pair{"end\\", "end_.mtl"}, std::pair{"a\\b", "a_b.mtl"},
          std::pair{"tab\tand\rreturn", "tab_and_return.mtl"}}) {
        TemporaryFolder const own;
        auto const file = own.path / (std::string(stem) + ".obj");
        ASSERT_EQ(save(file), Status::ok);
        ASSERT_TRUE(std::filesystem::is_regular_file(file)) << "the model has the name that was asked for";
        EXPECT_EQ(libraryOf(file), library);
        EXPECT_NE(contentOf(own.path / library).find("newmtl"), std::string::npos);
        ASSERT_EQ(save(file), Status::ok);
        EXPECT_EQ(libraryOf(file), library) << "the next time, too";
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(own.path), {}), 2);
    }
}

TEST_F(MaterialLibrary, OfAnotherModelIsLeftToIt)
{
    auto const other = folder.path / "two_lines.obj";
    ASSERT_EQ(save(other), Status::ok);
    auto const before = contentOf(folder.path / "two_lines.mtl");
    std::filesystem::remove(folder.path / "two_lines.mtl");
    writeFile(folder.path / "two_lines.mtl", "the other model's");
    auto const file = folder.path / "two\nlines.obj";
    ASSERT_EQ(save(file), Status::ok);
    EXPECT_EQ(libraryOf(file), "two_lines_2.mtl");
    EXPECT_EQ(contentOf(folder.path / "two_lines.mtl"), "the other model's");
    EXPECT_EQ(contentOf(folder.path / "two_lines_2.mtl"), before);
}

TEST_F(MaterialLibrary, ThatCantBeWrittenLeavesTheEarlierModel)
{
    auto const file = writeFile(folder.path / "model.obj", "old");
    std::filesystem::create_directory(folder.path / "model.mtl");
    EXPECT_EQ(save(file), Status::isFolder);
    EXPECT_EQ(unwritten(), (folder.path / "model.mtl").string());
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_EQ(files(), (std::set<std::string>{"model.mtl", "model.obj"}));

    std::filesystem::remove(folder.path / "model.mtl");
    auto const library = writeFile(folder.path / "model.mtl", "kept");
    std::filesystem::permissions(library, std::filesystem::perms::owner_read);
    EXPECT_EQ(save(file), Status::isProtected);
    EXPECT_EQ(unwritten(), library.string());
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_EQ(contentOf(library), "kept");
    EXPECT_EQ(files().size(), 2U);

    // It is told of the last save alone, and of no reason that lies with the model's own file.
    EXPECT_EQ(save(folder.path / "missing" / "model.obj"), Status::noFolder);
    EXPECT_EQ(unwritten(), "");
    std::filesystem::permissions(library, std::filesystem::perms::owner_all);
    EXPECT_EQ(save(file), Status::ok);
    EXPECT_EQ(unwritten(), "");
}

TEST_F(MaterialLibrary, StaysWithTheModelThatIsTooLargeForTheDisk)
{
    auto const file = folder.path / "model.obj";
    ASSERT_EQ(save(file), Status::ok);
    auto const model = contentOf(file);
    auto const library = contentOf(folder.path / "model.mtl");
    scene.moveTo(3, 50, 60, 70);
    {
        // Room for the library, not for the model.
        prctest::FileSizeLimit const limit(library.size() + 10);
        EXPECT_EQ(save(file), Status::fileTooLarge);
    }
    EXPECT_EQ(contentOf(file), model);
    EXPECT_EQ(contentOf(folder.path / "model.mtl"), library);
    EXPECT_EQ(files().size(), 2U);
}

TEST_F(MaterialLibrary, IsReplacedWithTheModel)
{
    writeFile(folder.path / "model.obj", "old");
    writeFile(folder.path / "model.mtl", "old");
    ASSERT_EQ(save(folder.path / "model.obj"), Status::ok);
    EXPECT_NE(contentOf(folder.path / "model.mtl").find("newmtl"), std::string::npos);
    EXPECT_EQ(files(), (std::set<std::string>{"model.mtl", "model.obj"}));
}

} // namespace
