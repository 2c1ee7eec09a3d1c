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

/// A small assembly of three cubes of 10 mm side by side, quick to open.
inline std::filesystem::path writeThreeCubes(std::filesystem::path const& folder)
{
    std::ostringstream text;
    for (int cube = 0; cube < 3; ++cube) {
        text << "g cube" << cube << '\n';
        for (unsigned corner = 0; corner < 8; ++corner) {
            text << "v " << 20 * cube + ((corner & 1U) != 0 ? 10 : 0) << ((corner & 2U) != 0 ? " 10" : " 0")
                 << ((corner & 4U) != 0 ? " 10" : " 0") << '\n';
        }
        int const quads[6][4] = {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}};
        for (auto const& quad : quads) {
            text << 'f';
            for (int const corner : quad) {
                text << ' ' << 8 * cube + corner + 1;
            }
            text << '\n';
        }
    }
    return writeFile(folder / "cubes.obj", text.str());
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
