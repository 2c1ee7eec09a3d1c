#pragma once

#include "host/runtime/Runtime.h"
#include "platform/Process.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

namespace orvtest
{

inline std::string contentOf(std::filesystem::path const& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeFile(std::filesystem::path const& file, std::string const& content)
{
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

/// While it lives, the plug-in's code runs on a data directory of its own and finds its texts, those that the build
/// compiled. The suite defines ORV_RESOURCE_FILE.
class PluginEnvironment
{
public:
    PluginEnvironment()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "orvanta-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            ADD_FAILURE() << "no directory for the test's data";
        }
        data = pattern;
        orvhost::Settings settings;
        settings.dataDirectory = data.wstring();
        settings.libraryDirectory = (data / "libraries").wstring();
        settings.serviceUrl = L"http://127.0.0.1:9";
        orvhost::configure(settings);
        EXPECT_TRUE(orvplatform::registerModuleFile(L"cloudplugin.dll", ORV_RESOURCE_FILE));
    }
    ~PluginEnvironment()
    {
        std::error_code ignored;
        std::filesystem::remove_all(data, ignored);
    }
    PluginEnvironment(PluginEnvironment const&) = delete;
    PluginEnvironment& operator=(PluginEnvironment const&) = delete;

    void setLanguage(std::wstring const& code)
    {
        orvhost::Settings settings = orvhost::settings();
        settings.language = code;
        orvhost::configure(settings);
    }
    void setLibraries(std::filesystem::path const& directory)
    {
        orvhost::Settings settings = orvhost::settings();
        settings.libraryDirectory = directory.wstring();
        orvhost::configure(settings);
    }

    std::filesystem::path cloud(std::string const& name = {}) const { return data / "Cloud" / name; }
    std::filesystem::path feed(std::string const& name = {}) const { return data / "Feed" / name; }
    std::filesystem::path session() const { return cloud("temp"); }

    std::filesystem::path data;
};

} // namespace orvtest
