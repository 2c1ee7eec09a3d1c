// The viewer's command line writes the sample through the deferred exporter, as a user without a window would.

#include "exporters/CommandOutput.h"
#include "exporters/prc/PrcReader.h"

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace
{

namespace fs = std::filesystem;

class ProgramExport : public testing::Test
{
protected:
    void SetUp() override
    {
        folder = fs::path(testing::TempDir()) / ("program-export-" + std::to_string(getpid()));
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    /// The exit status of the viewer with these arguments behind the sample.
    int run(std::string const& arguments,
            fs::path const& model = ORV_BINARY_DIR "/samples/planetary-gearbox.step") const
    {
        std::string const command = std::string(ORV_BINARY_DIR "/bin/orvanta ")
                                        .append(model.string())
                                        .append(" --data ")
                                        .append((folder / "data").string())
                                        .append(" ")
                                        .append(arguments)
                                        .append(" 2>")
                                        .append((folder / "errors").string());
        int const status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string errors() const
    {
        std::ifstream in(folder / "errors");
        return {std::istreambuf_iterator<char>(in), {}};
    }

    fs::path folder;
};

TEST_F(ProgramExport, WritesTheSampleAsPrc)
{
    fs::path const file = folder / "gearbox.prc";
    ASSERT_EQ(run("--export " + file.string()), 0);
    prc::ReadResult const result = prc::readFile(file);
    ASSERT_TRUE(result.scene) << result.problem;
    EXPECT_GT(result.scene->occurrences.size(), 41U);
    EXPECT_FALSE(result.scene->meshes.empty());
}

TEST_F(ProgramExport, OneThatFailsLeavesTheOthersWritten)
{
    fs::path const good = folder / "good.prc";
    EXPECT_NE(run("--export " + (folder / "none/bad.prc").string() + " --export " + good.string()), 0);
    EXPECT_TRUE(prc::readFile(good).scene);
    EXPECT_FALSE(fs::exists(folder / "none"));
}

TEST_F(ProgramExport, WritesEveryOutput)
{
    std::string arguments;
    for (char const* extension : {"orvanta", "3ds", "obj", "stl", "dae", "csv", "bompdf"})
        arguments += " --export " + (folder / "gearbox.").string() + extension;
    ASSERT_EQ(run(arguments), 0) << errors();
    for (char const* extension : {"orvanta", "3ds", "obj", "stl", "dae", "csv", "bompdf"})
        EXPECT_GT(fs::file_size(folder / ("gearbox." + std::string(extension))), 500U) << extension;
    EXPECT_EQ(run("--export " + (folder / "again.stl").string(), folder / "gearbox.orvanta"), 0) << errors();
    EXPECT_EQ(fs::file_size(folder / "again.stl"), fs::file_size(folder / "gearbox.stl"));
}

TEST_F(ProgramExport, PdfShowsThePictureOfTheModel)
{
    fs::path const file = folder / "gearbox.pdf";
    ASSERT_EQ(run("--export " + file.string()), 0) << errors();
    orvtest::outputOf("pdftoppm -r 36 -singlefile '" + file.string() + "' '" + (folder / "page").string() + "'");
    std::ifstream in(folder / "page.ppm", std::ios::binary);
    std::string const picture{std::istreambuf_iterator<char>(in), {}};
    std::set<std::string> colors;
    for (std::size_t i = 15; i + 2 < picture.size(); i += 3)
        colors.insert(picture.substr(i, 3));
    EXPECT_GT(colors.size(), 1000U) << "shaded surfaces, not an empty field";
}

TEST_F(ProgramExport, SaysWhatToDoWhereItCannotWrite)
{
    fs::create_directory(folder / "folder.stl");
    EXPECT_NE(run("--export " + (folder / "folder.stl").string()), 0);
    EXPECT_THAT(errors(), testing::HasSubstr("\"folder.stl\" can't be written: it is a folder."));
    std::ofstream(folder / "kept.obj") << "kept";
    fs::permissions(folder / "kept.obj", fs::perms::owner_read);
    EXPECT_NE(run("--export " + (folder / "kept.obj").string()), 0);
    EXPECT_THAT(errors(), testing::HasSubstr("it is protected against writing"));
    EXPECT_EQ(fs::file_size(folder / "kept.obj"), 4U);
    EXPECT_NE(run("--export " + (folder / "none/a.3ds").string()), 0);
    EXPECT_THAT(errors(), testing::HasSubstr("its folder doesn't exist"));
    EXPECT_NE(run("--export " + (folder / "a.xyz").string()), 0);
    EXPECT_THAT(errors(), testing::HasSubstr("\"a.xyz\" can't be saved"));
}

} // namespace
