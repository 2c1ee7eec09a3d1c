#pragma once

#include "host/runtime/Runtime.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace orvbench
{

/// The host layer set up for a measurement: the user's data in a directory that goes with this object, the service at
/// that address.
class TemporaryData
{
public:
    explicit TemporaryData(std::string const& serviceUrl)
    {
        std::string name = (std::filesystem::temp_directory_path() / "orvanta-bench-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary directory for the measurement");
        }
        root = name;
        orvhost::Settings settings;
        settings.dataDirectory = root.wstring();
        settings.libraryDirectory = std::filesystem::path(ORV_BINARY_DIR "/lib").wstring();
        settings.serviceUrl = std::wstring(serviceUrl.begin(), serviceUrl.end());
        orvhost::configure(settings);
    }
    ~TemporaryData()
    {
        std::error_code error;
        std::filesystem::remove_all(root, error);
    }
    TemporaryData(TemporaryData const&) = delete;
    TemporaryData& operator=(TemporaryData const&) = delete;

    std::filesystem::path const& directory() const { return root; }

private:
    std::filesystem::path root;
};

} // namespace orvbench
