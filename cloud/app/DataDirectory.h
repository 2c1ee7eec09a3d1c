#pragma once

#include "cloud/store/WriteLock.h"

#include <filesystem>
#include <optional>

namespace orvcloud
{

/// The data directory, made with mode 0700 if there is none. A service holds it for itself, so that two services can't
/// work on one directory; accounts can be added beside a running service.
class DataDirectory
{
public:
    enum class Use { exclusive, shared };

    /// Throws std::runtime_error with a sentence if it can't be made or is in use by another service.
    DataDirectory(const std::filesystem::path& path, Use use);
    ~DataDirectory();
    DataDirectory(const DataDirectory&) = delete;
    DataDirectory& operator=(const DataDirectory&) = delete;

private:
    std::optional<WriteLock> lock;
};

} // namespace orvcloud
