#pragma once

#include "cloud/store/Store.h"

#include <filesystem>

namespace orvcloud
{

/// Opens the database "cloud.db" of the data directory, and makes it if there is none. Throws StoreError if it can't,
/// or if the database was written by a newer version of the service. Two processes may have it open at the same time.
std::unique_ptr<Store> openSqliteStore(const std::filesystem::path& dataDirectory);

} // namespace orvcloud
