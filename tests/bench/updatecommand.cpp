// Asks the plug-in, in the way of the viewer, whether a command is enabled, many times over between two marks that a
// trace of the system calls shows: updatecommand DATA_DIRECTORY COMMAND TIMES

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orvui/IGUIPlugin.h"
#include "host/runtime/Runtime.h"
#include "platform/Process.h"
#include "platform/testing/Input.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace
{

/// A write that fails and changes nothing.
void mark(char const* text)
{
    constexpr int noFile = -1;
    if (write(noFile, text, std::char_traits<char>::length(text)) >= 0) {
        std::abort();
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: updatecommand DATA_DIRECTORY COMMAND TIMES\n");
        return 2;
    }
    orvplatform::prepareProcess();
    orvplatform::testing::ensureApplication();
    orvhost::Settings settings;
    settings.dataDirectory = std::filesystem::path(argv[1]).wstring();
    settings.libraryDirectory = ORV_TEST_LIBRARIES;
    orvhost::configure(settings);

    orv::DLLFuncPtrHelper<orv::IPlugin> const library(ORV_TEST_LIBRARIES L"/gui/cloudplugin.dll", "createPlugin",
                                                      "destroyPlugin");
    auto* const plugin = dynamic_cast<orvui::IGUIPlugin*>(library.get());
    if (plugin == nullptr) {
        std::fprintf(stderr, "The plug-in could not be loaded.\n");
        return 1;
    }
    auto const command = static_cast<unsigned int>(std::atoi(argv[2]));
    int const times = std::atoi(argv[3]);
    bool enabled = false;
    mark("begin of the passes");
    for (int i = 0; i < times; ++i) {
        plugin->OnUpdateCommand(nullptr, command, &enabled);
    }
    mark("end of the passes");
    std::printf("%s\n", enabled ? "enabled" : "disabled");
    return 0;
}
