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
        settings.dataDirectory = root.wstring();
        settings.libraryDirectory = std::filesystem::path(ORV_BINARY_DIR "/lib").wstring();
        setService(serviceUrl);
    }
    ~TemporaryData()
    {
        std::error_code error;
        std::filesystem::remove_all(root, error);
    }
    TemporaryData(TemporaryData const&) = delete;
    TemporaryData& operator=(TemporaryData const&) = delete;

    std::filesystem::path const& directory() const { return root; }

    void setService(std::string const& url)
    {
        settings.serviceUrl = std::wstring(url.begin(), url.end());
        orvhost::configure(settings);
    }

private:
    std::filesystem::path root;
    orvhost::Settings settings;
};

} // namespace orvbench
