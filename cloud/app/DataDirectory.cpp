#include "cloud/app/DataDirectory.h"

#include "cloud/store/FileVault.h"

#include <stdexcept>
#include <system_error>

namespace orvcloud
{

DataDirectory::DataDirectory(const std::filesystem::path& path, Use use)
{
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path);
    if (absolute.has_parent_path())
        std::filesystem::create_directories(absolute.parent_path(), error);
    makePrivateDirectory(absolute);
    if (use == Use::shared)
        return;
    lock.emplace(absolute / "serve.lock");
    if (lock->try_lock())
        return;
    lock.reset();
    throw std::runtime_error("The data directory " + path.string() +
                             " is in use by another orvanta-cloud; stop that one or give another --data.");
}

DataDirectory::~DataDirectory()
{
    if (lock)
        lock->unlock();
}

} // namespace orvcloud
