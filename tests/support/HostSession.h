#pragma once

#include "host/runtime/Runtime.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

namespace orvtest
{

/// The host layer set up for one test: the user's data lies in a directory of its own that goes with this object, never
/// in the real one.
class HostSession
{
public:
    explicit HostSession(std::wstring serviceUrl = {}, std::wstring language = L"en", double dpi = 96.0)
    {
        std::string name = (std::filesystem::temp_directory_path() / "orvanta-test-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            ADD_FAILURE() << "no temporary directory for the test";
            std::abort();
        }
        root = name;
        set.dataDirectory = dataDirectory().wstring();
        set.libraryDirectory = std::filesystem::path(ORV_BINARY_DIR "/lib").wstring();
        set.serviceUrl = std::move(serviceUrl);
        set.language = std::move(language);
        set.dpi = dpi;
        orvhost::configure(set);
    }
    ~HostSession()
    {
        std::error_code error;
        std::filesystem::remove_all(root, error);
    }
    HostSession(HostSession const&) = delete;
    HostSession& operator=(HostSession const&) = delete;

    std::filesystem::path const& directory() const { return root; }       ///< for the test's own files
    std::filesystem::path dataDirectory() const { return root / "data"; } ///< made by the host on demand
    std::wstring path(std::string const& name) const { return (root / name).wstring(); }

    /// Changes a setting and tells the host layer.
    template <class Change>
    void reconfigure(Change change)
    {
        change(set);
        orvhost::configure(set);
    }

private:
    std::filesystem::path root;
    orvhost::Settings set;
};

} // namespace orvtest
