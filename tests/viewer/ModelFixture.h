#pragma once

#include "viewer/import/ModelImporter.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace orvtest
{

/// A folder of its own that goes with the test.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        auto pattern = (std::filesystem::temp_directory_path() / "orvanta-test-XXXXXX").string();
        path = ::mkdtemp(pattern.data());
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;

    std::filesystem::path path;
};

inline std::filesystem::path sharedModel(char const* name)
{
    return std::filesystem::path(ORV_SHARED_DIR) / "models" / name;
}

inline std::filesystem::path sampleModel()
{
    return std::filesystem::path(ORV_BINARY_DIR) / "samples" / "planetary-gearbox.step";
}

inline std::string contentOf(std::filesystem::path const& file)
{
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

inline std::filesystem::path writeFile(std::filesystem::path const& file, std::string const& content)
{
    std::ofstream(file, std::ios::binary) << content;
    return file;
}

inline orvviewer::ImportResult importFile(std::filesystem::path const& file)
{
    orvviewer::ImportProgress progress;
    return orvviewer::importModel(file.wstring(), progress);
}

} // namespace orvtest

#define ORV_NEEDS_SHARED_MODEL(name)                                                                                   \
    if (!std::filesystem::exists(orvtest::sharedModel(name))) {                                                        \
        GTEST_SKIP() << "skipped: the public test models are not there";                                               \
    }
