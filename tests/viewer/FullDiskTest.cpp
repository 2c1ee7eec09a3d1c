// Saves to a disk that is full, and to one that can only be read: small file systems in memory.

#include "tests/support/OwnMounts.h"
#include "tests/viewer/SaveOutcomes.h"
#include "tests/viewer/SessionFixture.h"

#include "host/orvexp/Status.h"

#include <sys/mount.h>

using namespace orvtest;

namespace
{

bool mayMount = false;

class FullDisk : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        if (!mayMount) {
            GTEST_SKIP() << "skipped: this user may not mount a file system of a test's own";
        }
        installExporters();
        start();
        ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring())) << status();
        std::filesystem::create_directory(disk);
        ASSERT_EQ(::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=4k"), 0);
    }
    void TearDown() override
    {
        SessionFixture::TearDown();
        EXPECT_TRUE(!std::filesystem::exists(disk) || ::umount(disk.c_str()) == 0)
            << "something on the disk is still open";
    }

    void expectRefusal(std::string const& name, orvexp::Status reason, std::string const& why)
    {
        SaveOutcomes outcomes;
        session->application()->saveFile((disk / name).wstring().c_str(), outcomes.completion());
        ASSERT_EQ(outcomes.told.size(), 1U);
        EXPECT_EQ(outcomes.told[0].status, static_cast<int>(reason)) << name;
        EXPECT_EQ(status(), "\"" + name + "\" can't be written: " + why);
    }
    std::size_t files() const
    {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(disk), std::filesystem::directory_iterator()));
    }

    std::filesystem::path const disk = folder.path / "disk";
};

} // namespace

TEST_F(FullDisk, IsTheReasonAndTheEarlierFileStays)
{
    for (char const* const kind : {"3ds", "obj", "stl", "pdf", "csv", "bompdf", "prc", "orvanta"}) {
        auto const name = std::string("cubes.") + kind;
        writeFile(disk / name, "earlier"); // which takes the only page that there is
        expectRefusal(name, orvexp::Status::diskFull, "the disk is full. Make room, or choose another disk.");
        EXPECT_EQ(contentOf(disk / name), "earlier") << kind;
        EXPECT_EQ(files(), 1U) << kind << ": nothing is left beside it";
        std::filesystem::remove(disk / name);
    }
    // There is room again, and nothing of the failed saves takes it.
    EXPECT_TRUE(session->exportModel((disk / "cubes.csv").wstring())) << status();
}

TEST_F(FullDisk, ThatCanOnlyBeReadIsAReasonOfItsOwn)
{
    writeFile(disk / "cubes.stl", "earlier");
    ASSERT_EQ(::mount("tmpfs", disk.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=4k"), 0);
    for (char const* const kind : {"3ds", "obj", "stl", "pdf", "csv", "bompdf", "prc"}) {
        expectRefusal(std::string("cubes.") + kind, orvexp::Status::readOnlyDisk,
                      "its disk is read-only. Choose another disk.");
    }
    EXPECT_EQ(contentOf(disk / "cubes.stl"), "earlier");
    EXPECT_EQ(files(), 1U);
}

int main(int argc, char* argv[])
{
    mayMount = takeOwnMounts();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
