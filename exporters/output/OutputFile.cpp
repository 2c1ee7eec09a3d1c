#include "exporters/output/OutputFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace orvexport
{

namespace
{

orvexp::Status statusOf(int error)
{
    using orvexp::Status;
    switch (error) {
    case EISDIR:
        return Status::isFolder;
    case ENOENT:
    case ENOTDIR:
        return Status::noFolder;
    case EACCES:
    case EPERM:
        return Status::folderProtected;
    case EROFS:
        return Status::readOnlyDisk;
    case ENOSPC:
        return Status::diskFull;
    case EDQUOT:
        return Status::overQuota;
    case EFBIG:
        return Status::fileTooLarge;
    case ENAMETOOLONG:
        return Status::nameTooLong;
    case ENOMEM:
        return Status::noMemory;
    default:
        return Status::cannotWrite;
    }
}

std::filesystem::path behindLinks(std::filesystem::path path)
{
    std::error_code failure;
    constexpr int longestChain = 40;
    for (int i = 0; i < longestChain && std::filesystem::is_symlink(path, failure); ++i) {
        path = path.parent_path() / std::filesystem::read_symlink(path, failure);
    }
    return path;
}

bool isTooLong(std::filesystem::path const& folder)
{
    struct stat found {
    };
    return stat(folder.c_str(), &found) != 0 && errno == ENAMETOOLONG;
}

/// A name in the same folder that no other save takes.
std::filesystem::path besides(std::filesystem::path const& target, char const* beginning)
{
    return target.parent_path() / (beginning + std::to_string(std::random_device()()));
}

} // namespace

OutputFile::OutputFile(std::filesystem::path const& wanted) : asked(wanted), target(behindLinks(wanted))
{
    if (target.filename().empty()) {
        throw OutputError(orvexp::Status::cannotWrite, "the path names no file", asked);
    }
    struct stat old {
    };
    bool const replaces = stat(target.c_str(), &old) == 0;
    if (!replaces && errno != ENOENT) {
        int const error = errno;
        // The temporary name may be shorter, so that a name that is too long would only be found at the end.
        bool const isTheFolder = error == ENAMETOOLONG && isTooLong(target.parent_path());
        fail(error, isTheFolder ? orvexp::Status::pathTooLong : statusOf(error));
    }
    if (replaces && S_ISDIR(old.st_mode)) {
        fail(EISDIR);
    }
    constexpr mode_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    // The administrator's rights would pass over a file's own protection; who protected it meant it.
    if (replaces && (old.st_mode & anyWrite) == 0) {
        fail(EACCES, orvexp::Status::isProtected);
    }
    if (replaces && faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
        fail(errno, errno == EACCES ? orvexp::Status::isProtected : statusOf(errno));
    }
    do {
        name = besides(target, ".saving-");
        descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (descriptor < 0 && errno == EEXIST);
    if (descriptor < 0) {
        int const error = errno;
        std::error_code unknown;
        // A file system that takes no files, such as one of the system's own, says that too.
        bool const isNoReason = error == ENOENT && std::filesystem::is_directory(name.parent_path(), unknown);
        // The wanted name has been found to be short enough; the one before it may be longer.
        fail(error, isNoReason              ? orvexp::Status::cannotWrite
                    : error == ENAMETOOLONG ? orvexp::Status::pathTooLong
                                            : statusOf(error));
    }
    if (replaces) {
        // Who may read the file stays as it was; a file system without such rights has nothing to keep.
        [[maybe_unused]] int const ignored = fchmod(descriptor, old.st_mode & 07777);
    }
}

OutputFile::~OutputFile()
{
    if (descriptor >= 0) {
        close(descriptor);
    }
    if (!kept && !name.empty()) {
        unlink(name.c_str());
    }
}

void OutputFile::write(void const* bytes, std::size_t count)
{
    auto const* next = static_cast<char const*>(bytes);
    while (count > 0) {
        ssize_t const written = ::write(descriptor, next, count);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            fail(written < 0 ? errno : ENOSPC);
        }
        next += written;
        count -= static_cast<std::size_t>(written);
        at += static_cast<std::uint64_t>(written);
        end = std::max(end, at);
    }
}

void OutputFile::seek(std::uint64_t position)
{
    if (lseek(descriptor, static_cast<off_t>(position), SEEK_SET) < 0) {
        fail(errno);
    }
    at = position;
}

void OutputFile::putInPlace(std::vector<OutputFile*> const& files)
{
    for (auto* const file : files) {
        file->finish();
    }
    std::size_t done = 0;
    try {
        for (; done < files.size(); ++done) {
            files[done]->replace(done + 1 < files.size());
        }
    } catch (OutputError const&) {
        while (done > 0) {
            files[--done]->giveWay();
        }
        throw;
    }
    for (auto* const file : files) {
        file->dropEarlier();
    }
}

void OutputFile::finish()
{
    // Some file systems only find out here, or on closing, that there was no room; some have nothing to wait for.
    if (fsync(descriptor) != 0 && errno != EINVAL && errno != ENOTSUP) {
        fail(errno);
    }
    int const closed = close(descriptor);
    descriptor = -1;
    if (closed != 0) {
        fail(errno);
    }
}

void OutputFile::replace(bool withWayBack)
{
    if (withWayBack) {
        keepEarlier();
    }
    if (std::rename(name.c_str(), target.c_str()) != 0) {
        int const error = errno;
        giveWay();
        fail(error);
    }
    kept = true;
}

void OutputFile::keepEarlier()
{
    auto const second = besides(target, ".replaced-");
    if (link(target.c_str(), second.c_str()) == 0) {
        earlier = second;
    } else if (errno != ENOENT) { // without an earlier file there is nothing to come back to
        // Some file systems, such as those of memory cards, know no second names: it has the other name alone then.
        if (std::rename(target.c_str(), second.c_str()) != 0) {
            fail(errno);
        }
        earlier = second;
    }
}

void OutputFile::dropEarlier()
{
    if (!earlier.empty()) {
        unlink(earlier.c_str());
        earlier.clear();
    }
}

void OutputFile::giveWay()
{
    if (!earlier.empty()) {
        std::error_code unknown;
        bool const isBack = std::rename(earlier.c_str(), target.c_str()) == 0;
        // Renaming does nothing where both are still names of one file. What didn't come back is left where it is.
        if (isBack || std::filesystem::equivalent(earlier, target, unknown)) {
            unlink(earlier.c_str());
        }
        earlier.clear();
    } else if (kept) {
        unlink(target.c_str());
    }
}

void OutputFile::fail(int error) const
{
    fail(error, statusOf(error));
}

void OutputFile::fail(int error, orvexp::Status status) const
{
    throw OutputError(status, std::strerror(error), asked);
}

} // namespace orvexport
