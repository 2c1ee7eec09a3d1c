// The viewer's command line writes the sample through the deferred exporter, as a user without a window would.

#include "exporters/prc/PrcReader.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
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
    int run(std::string const& arguments) const
    {
        std::string const command =
            std::string(ORV_BINARY_DIR "/bin/orvanta " ORV_BINARY_DIR "/samples/planetary-gearbox.step --data ")
                .append((folder / "data").string())
                .append(" ")
                .append(arguments)
                .append(" 2>/dev/null");
        int const status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
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

} // namespace
