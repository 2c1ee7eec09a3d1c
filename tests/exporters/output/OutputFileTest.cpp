// How a file replaces another. The system's calls that end the work are stood in for here, so that their order is seen
// and each can fail.

#include "exporters/output/OutputFile.h"
#include "support/OrdinaryUser.h"
#include "viewer/ModelFixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace orvtest;
using orvexp::Status;
using orvexport::OutputError;
using orvexport::OutputFile;
using testing::ElementsAre;

namespace
{

std::vector<std::string> calls;
std::string failing; ///< the call that fails, with `failure`
int failure = 0;
std::map<std::string, std::set<int>> failingTimes; ///< further calls that fail: which of a name, from 1 on

bool fails(char const* name)
{
    calls.emplace_back(name);
    bool const isOneOfThem =
        failingTimes[name].contains(static_cast<int>(std::count(calls.begin(), calls.end(), std::string(name))));
    errno = failure;
    return failing == name || isOneOfThem;
}

} // namespace

extern "C" ssize_t write(int file, void const* data, std::size_t size)
{
    return fails("write") ? -1 : syscall(SYS_write, file, data, size);
}
extern "C" int fsync(int file)
{
    return fails("fsync") ? -1 : static_cast<int>(syscall(SYS_fsync, file));
}
extern "C" int close(int file)
{
    bool const isRefused = fails("close"); // the descriptor is gone in any case
    auto const result = static_cast<int>(syscall(SYS_close, file));
    errno = failure;
    return isRefused ? -1 : result;
}
extern "C" int link(char const* from, char const* to) noexcept
{
    return fails("link") ? -1 : static_cast<int>(syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}
extern "C" int rename(char const* from, char const* to) noexcept
{
    return fails("rename") ? -1 : static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

namespace
{

class OutputFileTest : public testing::Test
{
protected:
    OutputFileTest() { calls.clear(); }
    ~OutputFileTest() override
    {
        failing.clear();
        failingTimes.clear();
    }

    /// The outcome of writing a file; ok where nothing was thrown.
    static Status outcomeOf(std::filesystem::path const& path)
    {
        try {
            OutputFile file(path);
            file.write("content");
            calls.clear();
            file.putInPlace();
            return Status::ok;
        } catch (OutputError const& error) {
            EXPECT_STRNE(error.what(), "");
            return error.status();
        }
    }
    std::size_t files() const
    {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(folder.path), std::filesystem::directory_iterator()));
    }

    TemporaryFolder folder;
    std::filesystem::path const path = folder.path / "a.stl";
};

TEST_F(OutputFileTest, StandsOnTheDiskBeforeItHasItsName)
{
    EXPECT_EQ(outcomeOf(path), Status::ok);
    EXPECT_THAT(calls, ElementsAre("fsync", "close", "rename"));
    EXPECT_EQ(contentOf(path), "content");
}

TEST_F(OutputFileTest, SaysWhyTheSystemRefuses)
{
    struct Case {
        int error;
        Status status;
    };
    int const firstFree = dup(STDERR_FILENO);
    ::close(firstFree);
    for (auto const& [error, status] :
         {Case{ENOSPC, Status::diskFull}, Case{EDQUOT, Status::overQuota}, Case{EFBIG, Status::fileTooLarge},
          Case{EROFS, Status::readOnlyDisk}, Case{EACCES, Status::folderProtected},
          Case{EPERM, Status::folderProtected}, Case{ENAMETOOLONG, Status::nameTooLong}, Case{EISDIR, Status::isFolder},
          Case{ENOENT, Status::noFolder}, Case{ENOMEM, Status::noMemory}, Case{EIO, Status::cannotWrite}}) {
        for (char const* const call : {"write", "fsync", "close", "rename"}) {
            writeFile(path, "old");
            failing = call;
            failure = error;
            EXPECT_EQ(outcomeOf(path), status) << call << ' ' << std::strerror(error);
            failing.clear();
            EXPECT_EQ(fcntl(firstFree, F_GETFD), -1) << call << ": nothing stays open";
            EXPECT_EQ(contentOf(path), "old");
            EXPECT_EQ(files(), 1U) << "nothing is left beside it";
        }
    }
}

TEST_F(OutputFileTest, FileSystemThatHasNothingToWaitForIsBorne)
{
    failing = "fsync";
    failure = EINVAL;
    EXPECT_EQ(outcomeOf(path), Status::ok);
    EXPECT_EQ(contentOf(path), "content");
}

/// Before anything is written, so before the work on the content.
Status firstOutcomeOf(std::filesystem::path const& path)
{
    try {
        OutputFile const file(path);
        return Status::ok;
    } catch (OutputError const& error) {
        return error.status();
    }
}

TEST_F(OutputFileTest, NameThatIsTooLongIsFoundBeforeTheWork)
{
    std::string const japanese = "歯";
    std::string name;
    for (int i = 0; i < 80; ++i) {
        name += japanese; // 240 bytes
    }
    EXPECT_EQ(firstOutcomeOf(folder.path / (name + ".bompdf")), Status::ok);
    EXPECT_EQ(firstOutcomeOf(folder.path / (name + "_PartLevel.bompdf")), Status::nameTooLong);
    EXPECT_EQ(firstOutcomeOf(folder.path / (std::string(251, 'n') + ".stl")), Status::ok);
    EXPECT_EQ(firstOutcomeOf(folder.path / (std::string(252, 'n') + ".stl")), Status::nameTooLong);
    std::string deep = folder.path;
    while (deep.size() < 4096) {
        deep += "/folder";
    }
    EXPECT_EQ(firstOutcomeOf(deep + "/a.stl"), Status::pathTooLong) << "no other name would do";
    EXPECT_EQ(firstOutcomeOf(folder.path / std::string(256, 'f') / "a.stl"), Status::pathTooLong);
    EXPECT_EQ(files(), 0U);
}

TEST_F(OutputFileTest, FolderWhosePathHasNoRoomForTheNameIsFoundBeforeTheWork)
{
    // A path has 4,095 bytes at most.
    auto deep = folder.path;
    std::size_t const longest = 4095 - std::string("/ab.stl").size();
    while (deep.native().size() + 1 + 200 < longest - 1) {
        deep /= std::string(200, 'f');
    }
    deep /= std::string(longest - deep.native().size() - 1, 'e');
    ASSERT_EQ(deep.native().size(), longest);
    std::filesystem::create_directories(deep);
    EXPECT_EQ(firstOutcomeOf(deep / "abc.stl"), Status::nameTooLong) << "another name would do";
    EXPECT_EQ(firstOutcomeOf(deep / "ab.stl"), Status::pathTooLong) << "the name itself has room";
    EXPECT_EQ(std::filesystem::directory_iterator(deep), std::filesystem::directory_iterator());
}

TEST_F(OutputFileTest, ErrorNamesTheFileThatWasAskedFor)
{
    std::filesystem::create_directory(folder.path / "folder");
    std::filesystem::create_symlink("folder", path);
    try {
        OutputFile const file(path);
        ADD_FAILURE() << "a folder was taken";
    } catch (OutputError const& error) {
        EXPECT_EQ(error.file(), path);
    }
    std::filesystem::remove(path);
    failing = "write";
    failure = EIO;
    try {
        OutputFile file(path);
        file.write("content");
        ADD_FAILURE() << "nothing was thrown";
    } catch (OutputError const& error) {
        EXPECT_EQ(error.file(), path);
    }
}

TEST_F(OutputFileTest, FileOfSomebodyElseIsFoundBeforeTheWork)
{
    auto const own = folder.path / "own";
    std::filesystem::create_directory(own);
    auto const file = writeFile(own / "a.stl", "kept");
    bool const isAdministrator = geteuid() == 0;
    if (!isAdministrator) {
        GTEST_SKIP() << "skipped: only the administrator can make somebody else's file";
    }
    OrdinaryUser const user(folder.path); // who owns the folder now; the file is the administrator's again
    ASSERT_EQ(seteuid(0), 0);
    ASSERT_EQ(chown(file.c_str(), 0, 0), 0);
    ASSERT_EQ(chmod(file.c_str(), 0644), 0);
    ASSERT_EQ(seteuid(65534), 0);
    EXPECT_EQ(firstOutcomeOf(file), Status::isProtected);
    EXPECT_EQ(firstOutcomeOf(own / "b.stl"), Status::ok);
    EXPECT_EQ(contentOf(file), "kept");
}

TEST_F(OutputFileTest, WhatStandsInTheWayIsFoundBeforeTheWork)
{
    EXPECT_EQ(firstOutcomeOf(folder.path), Status::isFolder);
    EXPECT_EQ(firstOutcomeOf(folder.path / "missing" / "a.stl"), Status::noFolder);
    writeFile(path, "old");
    EXPECT_EQ(firstOutcomeOf(path / "a.stl"), Status::noFolder) << "a file isn't a folder";
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_EQ(firstOutcomeOf(path), Status::isProtected);
    EXPECT_EQ(firstOutcomeOf("/proc/a.stl"), Status::cannotWrite) << "that folder exists";
    EXPECT_EQ(firstOutcomeOf(""), Status::cannotWrite);
    EXPECT_EQ(contentOf(path), "old");
}

TEST_F(OutputFileTest, FilesThatBelongTogetherStandTogetherOrNotAtAll)
{
    auto const first = folder.path / "model.mtl";
    auto const second = folder.path / "model.obj";
    auto const save = [&](char const* content) {
        OutputFile materials(first);
        OutputFile model(second);
        materials.write(content);
        model.write(content);
        OutputFile::putInPlace({&materials, &model});
    };
    auto const saveWhereTheSecondFails = [&](char const* content) {
        OutputFile materials(first);
        OutputFile model(second);
        materials.write(content);
        model.write(content);
        // Somebody makes a folder of that name meanwhile.
        std::filesystem::remove(second);
        std::filesystem::create_directory(second);
        EXPECT_THROW(OutputFile::putInPlace({&materials, &model}), OutputError);
        std::filesystem::remove(second);
    };
    saveWhereTheSecondFails("never seen");
    EXPECT_EQ(files(), 0U) << "there was none before";
    save("old");
    EXPECT_EQ(contentOf(first), "old");
    EXPECT_EQ(files(), 2U);
    saveWhereTheSecondFails("new");
    EXPECT_EQ(contentOf(first), "old") << "the materials of a model that was never replaced";
    EXPECT_EQ(files(), 1U);
    save("newer");
    EXPECT_EQ(contentOf(first), "newer");
    EXPECT_EQ(contentOf(second), "newer");
    EXPECT_EQ(files(), 2U) << "nothing is left beside them";
}

TEST_F(OutputFileTest, FilesThatBelongTogetherStayWhereAFileHasOneNameOnly)
{
    auto const first = writeFile(folder.path / "model.mtl", "old");
    auto const second = writeFile(folder.path / "model.obj", "old");
    auto const save = [&](std::set<int> const& refusedRenames) {
        OutputFile materials(first);
        OutputFile model(second);
        materials.write("new");
        model.write("new");
        calls.clear();
        failing = "link";
        failure = EPERM; // as file systems without second names say
        failingTimes = {{"rename", refusedRenames}};
        try {
            OutputFile::putInPlace({&materials, &model});
            return Status::ok;
        } catch (OutputError const& error) {
            return error.status();
        }
    };
    // Away with the old materials, the new ones in, the new model in; and back again.
    for (int const refused : {1, 2, 3}) {
        EXPECT_EQ(save({refused}), Status::folderProtected) << refused;
        EXPECT_EQ(contentOf(first), "old") << refused;
        EXPECT_EQ(contentOf(second), "old") << refused;
        EXPECT_EQ(files(), 2U) << refused;
    }
    EXPECT_EQ(save({}), Status::ok);
    EXPECT_EQ(contentOf(first), "new");
    EXPECT_EQ(contentOf(second), "new");
    EXPECT_EQ(files(), 2U) << "nothing is left beside them";
    std::filesystem::remove(first);
    EXPECT_EQ(save({1}), Status::folderProtected) << "without earlier materials, too";
    EXPECT_EQ(files(), 1U);
    // A disk that takes nothing any more keeps what it has, by whatever name.
    writeFile(first, "old");
    EXPECT_EQ(save({3, 4}), Status::folderProtected);
    std::filesystem::remove(first);
    std::filesystem::remove(second);
    ASSERT_EQ(files(), 1U);
    EXPECT_EQ(contentOf(std::filesystem::directory_iterator(folder.path)->path()), "old");
}

TEST_F(OutputFileTest, DiskThatFailsWhileFilesChangeNamesKeepsThem)
{
    auto const first = writeFile(folder.path / "model.mtl", "old");
    auto const second = writeFile(folder.path / "model.obj", "old");
    OutputFile materials(first);
    OutputFile model(second);
    failing = "rename";
    failure = EIO;
    EXPECT_THROW(OutputFile::putInPlace({&materials, &model}), OutputError);
    EXPECT_EQ(contentOf(first), "old");
    EXPECT_EQ(contentOf(second), "old");
    EXPECT_EQ(files(), 4U) << "the two, and what is being written";
}

} // namespace
