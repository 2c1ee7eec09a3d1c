// A disk that fills up while the exporter writes: the temporary directory lies on a small file system in memory, or,
// which needs no right to mount one, no file of this process can grow.

#include "tests/exporters/FileSizeLimit.h"
#include "tests/service/MultipartForm.h"
#include "tests/service/PushFixture.h"
#include "tests/support/OwnMounts.h"

#include "host/orvsg/SCSceneRes.h"
#include "host/runtime/Files.h"
#include "service/Exporters.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <random>

#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

using namespace orvtest;
using testing::IsEmpty;

namespace
{

std::string const job = "7c9e6679-7425-40de-944b-e07fc1f90ae7";
bool mayMount = false;

enum class Disk { mounted, limited };

class FullDisk : public testing::TestWithParam<Disk>
{
protected:
    static constexpr std::size_t diskBytes = 256 << 10;

    void SetUp() override
    {
        isMounted = GetParam() == Disk::mounted;
        if (isMounted && !mayMount) {
            isMounted = false;
            GTEST_SKIP() << "skipped: this user may not mount a file system of a test's own";
        }
        push = std::make_unique<PushScene>(); // the user's data stay where there is room
        // The run's temporary directory is made anew where TMPDIR says, once the earlier one is gone.
        std::filesystem::remove_all(PushScene::temporary(""));
        disk = std::filesystem::temp_directory_path() / ("orvanta-disk-" + std::to_string(getpid()));
        std::filesystem::create_directories(disk);
        if (isMounted) {
            ASSERT_EQ(::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=256k"), 0);
        }
        ::setenv("TMPDIR", disk.c_str(), 1);
        ASSERT_EQ(PushScene::temporary("").parent_path().parent_path(), disk);
        push->environment.setService(server.wideUrl());
        push->environment.setLibraries(ORV_BINARY_DIR "/lib");
    }
    void TearDown() override
    {
        limit.reset();
        push.reset();
        if (!disk.empty()) {
            std::filesystem::remove_all(PushScene::temporary(""));
            ::unsetenv("TMPDIR");
            EXPECT_TRUE(!isMounted || ::umount(disk.c_str()) == 0) << "something on the disk is still open";
            std::filesystem::remove_all(disk);
        }
    }

    /// Takes all the room but so many bytes.
    void leaveFree(std::size_t bytes)
    {
        if (!isMounted) {
            limit = std::make_unique<prctest::FileSizeLimit>(bytes);
            return;
        }
        struct statvfs state {
        };
        ASSERT_EQ(::statvfs(disk.c_str(), &state), 0);
        std::size_t const free = state.f_bfree * state.f_bsize;
        ASSERT_GE(free, bytes);
        std::ofstream(ballast()) << std::string(free - bytes, 'x');
    }
    void makeRoom()
    {
        limit.reset();
        std::filesystem::remove(ballast());
    }
    std::filesystem::path ballast() const { return disk / "ballast"; }
    /// A model whose PRC file has more than `bytes` bytes: points that nothing can pack.
    void openLargeModel() const
    {
        std::mt19937 random(7);
        auto mesh = std::make_shared<orvsg::Mesh>(*push->scene->resources->meshes[0]);
        for (unsigned i = 0; i < 9000; ++i) {
            auto const at = static_cast<std::uint32_t>(mesh->positions.size() / 3);
            for (int value = 0; value < 9; ++value) {
                mesh->positions.push_back(static_cast<float>(random()) / 1e6F);
                mesh->normals.push_back(value % 3 == 2 ? 1.0F : 0.0F);
            }
            for (std::uint32_t corner = 0; corner < 3; ++corner) {
                mesh->triangles.push_back(at + corner);
            }
        }
        mesh->faces = {{0, static_cast<std::uint32_t>(mesh->triangles.size() / 3), {}}};
        push->scene->resources->meshes[0] = mesh;
    }
    std::wstring pushDirect() const
    {
        return CloudHelper(makeDeferredExporter(nullptr)).pushDirect(push->scene->document, push->user);
    }

    void expectFailure() const
    {
        EXPECT_EQ(push->application->statuses().back(), uploadFailedText);
        EXPECT_EQ(push->application->events.back(), "progress off");
        EXPECT_THAT(PushScene::leftBehind(), IsEmpty()) << "a half file stayed";
        EXPECT_EQ(push->user->userid, L"0f8fad5b-d9cb-469f-a165-70867728950e");
        EXPECT_EQ(push->user->username, L"ada@example.com");
    }

    ScriptedHttpServer server;
    std::filesystem::path disk;
    bool isMounted = false;
    std::unique_ptr<prctest::FileSizeLimit> limit;
    std::unique_ptr<PushScene> push;
};

TEST_P(FullDisk, DirectSendsNothingOfACopyThatDidNotFit)
{
    openLargeModel();
    for (std::size_t const room : {std::size_t{0}, std::size_t{4096}, diskBytes / 4}) {
        ASSERT_NO_FATAL_FAILURE(leaveFree(room));
        EXPECT_EQ(pushDirect(), L"failed");
        expectFailure();
        makeRoom();
    }
    EXPECT_EQ(server.connections(), 0) << "not a byte went out";
}

TEST_P(FullDisk, DirectGoesThroughOnceThereIsRoomAgain)
{
    ASSERT_NO_FATAL_FAILURE(leaveFree(0));
    EXPECT_EQ(pushDirect(), L"failed");
    makeRoom();
    server.expect("POST", "/api/UploadInput/", Answer::ok(job));
    EXPECT_EQ(pushDirect(), orvtext::fromUtf8(job));
    EXPECT_NE(server.last().body.find("\r\n\r\nPRC"), std::string::npos);
    EXPECT_THAT(PushScene::leftBehind(), IsEmpty());
}

TEST_P(FullDisk, WithPreviewSendsNoNativeFileThatDidNotFit)
{
    std::string const picture = "picture";
    writeFile(push->environment.data / "Orvanta/RecentFile/asm_gear.box.bmp", picture);
    ASSERT_NO_FATAL_FAILURE(leaveFree(0));
    server.expect("POST", "/api/Upload/", Answer::ok(job));
    EXPECT_EQ(push->pushWithPreview(), orvtext::fromUtf8(job));
    expectUpload(server.last(), {"png", "gear.box.step", "asm_gear.box.bmp", picture});
    EXPECT_EQ(server.requests().size(), 1U) << "the native file didn't fit, so the picture goes alone";
    EXPECT_THAT(PushScene::leftBehind(), IsEmpty());
}

TEST_P(FullDisk, AReplacedFileKeepsItsOldContent)
{
    auto const file = disk / "list";
    ASSERT_TRUE(orvhost::replaceFile(file, "old"));
    ASSERT_NO_FATAL_FAILURE(leaveFree(4096));
    EXPECT_FALSE(orvhost::replaceFile(file, std::string(100000, 'n')));
    EXPECT_EQ(contentOf(file), "old");
    std::filesystem::remove(file);
    makeRoom();
    EXPECT_THAT(PushScene::leftBehind(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Both, FullDisk, testing::Values(Disk::mounted, Disk::limited), [](auto const& kind) {
    return std::string(kind.param == Disk::mounted ? "Mounted" : "Limited");
});

} // namespace

int main(int argc, char* argv[])
{
    mayMount = takeOwnMounts();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
