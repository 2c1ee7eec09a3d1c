#include "host/runtime/Files.h"

#include "host/orv/FilePath.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cwctype>
#include <fstream>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvhost
{

namespace
{

bool writeAll(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        ssize_t const written = ::write(descriptor, content.data(), content.size());
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace

std::filesystem::path nativePath(std::wstring const& path)
{
    return orvtext::toUtf8(path);
}

std::wstring extensionOf(std::wstring const& path)
{
    std::wstring extension = orv::FilePath(path.c_str()).getExt();
    extension.erase(0, 1);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c))); });
    return extension;
}

FileStamp stampOf(std::filesystem::path const& path)
{
    struct stat status {
    };
    if (::stat(path.c_str(), &status) != 0) {
        return {};
    }
    return {static_cast<std::int64_t>(status.st_dev), static_cast<std::int64_t>(status.st_ino), status.st_size,
            status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

bool makeDirectory(std::filesystem::path const& path)
{
    std::error_code error;
    if (path.empty() || std::filesystem::is_directory(path, error)) {
        return !path.empty();
    }
    if (path.has_parent_path() && path.parent_path() != path && !makeDirectory(path.parent_path())) {
        return false;
    }
    return ::mkdir(path.c_str(), 0700) == 0 || std::filesystem::is_directory(path, error);
}

bool replaceFile(std::filesystem::path const& path, std::string_view content)
{
    // Not the name with something behind it: a name may be as long as the system allows.
    std::string temporary = (path.parent_path() / ".orvanta-XXXXXX").string();
    int const descriptor = ::mkostemp(temporary.data(), O_CLOEXEC); // mode 0600
    if (descriptor < 0) {
        return false;
    }
    bool isWritten = writeAll(descriptor, content) && ::fsync(descriptor) == 0;
    isWritten = ::close(descriptor) == 0 && isWritten;
    if (isWritten && ::rename(temporary.c_str(), path.c_str()) == 0) {
        return true;
    }
    ::unlink(temporary.c_str());
    return false;
}

std::string readFile(std::filesystem::path const& path, std::size_t limit)
{
    std::ifstream file(path, std::ios::binary);
    std::string content;
    char block[4096];
    while (content.size() < limit && file) {
        file.read(block, sizeof block);
        content.append(block, static_cast<std::size_t>(file.gcount()));
    }
    if (content.size() > limit) {
        content.resize(limit);
    }
    return content;
}

} // namespace orvhost
