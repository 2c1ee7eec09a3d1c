// How a file replaces another. The system's calls that end the work are stood in for here, so that their order is seen
// and each can fail.

#include "exporters/output/OutputFile.h"
#include "viewer/ModelFixture.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
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

bool fails(char const* name)
{
    calls.emplace_back(name);
    errno = failure;
    return failing == name;
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
    ~OutputFileTest() override { failing.clear(); }

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
    EXPECT_THAT(calls, ElementsAre("fsync", "rename"));
    EXPECT_EQ(contentOf(path), "content");
}

TEST_F(OutputFileTest, SaysWhyTheSystemRefuses)
{
    struct Case {
        int error;
        Status status;
    };
    for (auto const& [error, status] :
         {Case{ENOSPC, Status::diskFull}, Case{EDQUOT, Status::overQuota}, Case{EFBIG, Status::fileTooLarge},
          Case{EROFS, Status::readOnlyDisk}, Case{EACCES, Status::folderProtected},
          Case{EPERM, Status::folderProtected}, Case{ENAMETOOLONG, Status::nameTooLong}, Case{EISDIR, Status::isFolder},
          Case{ENOENT, Status::noFolder}, Case{ENOMEM, Status::noMemory}, Case{EIO, Status::cannotWrite}}) {
        for (char const* const call : {"write", "fsync", "rename"}) {
            writeFile(path, "old");
            failing = call;
            failure = error;
            EXPECT_EQ(outcomeOf(path), status) << call << ' ' << std::strerror(error);
            failing.clear();
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
    EXPECT_EQ(firstOutcomeOf(deep + "/a.stl"), Status::nameTooLong);
    EXPECT_EQ(files(), 0U);
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

} // namespace
