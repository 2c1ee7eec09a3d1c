#pragma once

#include "platform/Process.h"
#include "support/HostSession.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

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

/// While it lives, the plug-in's code runs on a data directory of its own, without any exporters, and finds its texts,
/// those that the build compiled. The suite defines ORV_RESOURCE_FILE.
class PluginEnvironment
{
public:
    PluginEnvironment() : host(L"http://127.0.0.1:9"), data(host.dataDirectory())
    {
        std::filesystem::create_directories(data);
        setLibraries(data / "libraries");
        EXPECT_TRUE(orvplatform::registerModuleFile(L"cloudplugin.dll", ORV_RESOURCE_FILE));
    }

    void setLanguage(std::wstring const& code)
    {
        host.reconfigure([&](orvhost::Settings& settings) { settings.language = code; });
    }
    void setService(std::wstring const& url)
    {
        host.reconfigure([&](orvhost::Settings& settings) { settings.serviceUrl = url; });
    }
    void setLibraries(std::filesystem::path const& directory)
    {
        host.reconfigure([&](orvhost::Settings& settings) { settings.libraryDirectory = directory.wstring(); });
    }

    std::filesystem::path cloud(std::string const& name = {}) const { return data / "Cloud" / name; }
    std::filesystem::path feed(std::string const& name = {}) const { return data / "Feed" / name; }
    std::filesystem::path session() const { return cloud("temp"); }

private:
    HostSession host;

public:
    std::filesystem::path const data;
};

} // namespace orvtest
