#pragma once

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orv/IPlugin.h"
#include "host/orv/IStatusManager.h"
#include "host/orvexp/ExportHelper.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace orvtest
{

/// The exporter of the build tree in the library of that name.
inline std::shared_ptr<orvexp::ExportHelper> loadExporter(std::string const& name)
{
    auto const path = std::filesystem::path(ORV_BINARY_DIR) / "lib/export" / (name + ".dll");
    auto const library =
        std::make_shared<orv::DLLFuncPtrHelper<orv::IPlugin>>(path.wstring().c_str(), "createPlugin", "destroyPlugin");
    EXPECT_TRUE(library->isValid()) << testing::PrintToString(library->errorText());
    return std::make_shared<orvexp::ExportHelper>(library);
}

/// Notes what an exporter tells the progress bar. It may not show or hide it: somebody else's course may be on show.
class ProgressBar final : public orv::IStatusManager
{
public:
    void setProgress(int const& percent, int channel) override
    {
        EXPECT_EQ(channel, orvexp::exportChannel);
        percents.push_back(percent);
    }
    void showProgress(int on, int) override { ADD_FAILURE() << "an exporter switched the bar " << (on != 0); }
    std::vector<int> percents;
};

} // namespace orvtest
