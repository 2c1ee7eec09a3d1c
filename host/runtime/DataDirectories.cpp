#include "host/runtime/DataDirectories.h"

#include "host/orv/FileUtils.h"
#include "host/runtime/Files.h"
#include "host/runtime/Runtime.h"
#include "platform/text/Text.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvhost
{

namespace
{

std::string environment(char const* name)
{
    char const* const value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

std::string homeDirectory()
{
    std::string home = environment("HOME");
    if (home.empty()) {
        passwd const* const entry = getpwuid(getuid());
        home = entry != nullptr && entry->pw_dir != nullptr ? entry->pw_dir : "/";
    }
    return home;
}

/// Owns the temporary directory of this process.
class TemporaryDirectory
{
public:
    ~TemporaryDirectory()
    {
        // A forked child that ends normally must not take its parent's files away.
        if (!path.empty() && owner == getpid()) {
            std::error_code error;
            std::filesystem::remove_all(path, error);
        }
    }

    std::string const& get()
    {
        struct stat status {
        };
        bool const isThere =
            !path.empty() && ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && owner == getpid();
        if (!isThere) {
            make();
        }
        return path;
    }

private:
    void make()
    {
        std::string const data = nativePath(settings().dataDirectory).string();
        for (std::string const& parent : {environment("TMPDIR"), std::string("/tmp"), data}) {
            // The last resort is made on demand, the other two are the system's.
            if (parent.empty() || (parent == data && !makeDirectory(parent))) {
                continue;
            }
            std::string name = parent + (parent.back() == '/' ? "orvanta-XXXXXX" : "/orvanta-XXXXXX");
            if (::mkdtemp(name.data()) != nullptr) {
                path = name;
                owner = getpid();
                return;
            }
        }
    }

    std::string path;
    pid_t owner = 0;
};

} // namespace

std::wstring platformDataDirectory()
{
    // The base directory rules: a relative value counts as not set.
    std::string base = environment("XDG_DATA_HOME");
    if (base.empty() || base.front() != '/') {
        base = homeDirectory() + "/.local/share";
    }
    return orv::FileUtils::join(orvtext::fromUtf8(base), L"orvanta");
}

std::wstring temporaryDirectory()
{
    static TemporaryDirectory directory;
    return orv::FileUtils::join(orvtext::fromUtf8(directory.get()), L"");
}

} // namespace orvhost
