// The exporters as the plug-in loads them, and the outputs that the service's feed offers.

#include "host/orvexp/ExportManager.h"
#include "service/Exporters.h"
#include "support/HostSession.h"
#include "support/TestScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace
{

class Downloads : public testing::Test
{
protected:
    Downloads() { loadExporters(manager); }

    orvtest::HostSession session;
    orvtest::TestScene scene;
    std::shared_ptr<orvexp::ExportManager> manager = std::make_shared<orvexp::ExportManager>(nullptr);
};

TEST_F(Downloads, EachOutputOfTheFeedIsTakenByOneExporterAndWritten)
{
    for (wchar_t const* const kind : {L"3ds", L"obj", L"stl", L"pdf", L"csv", L"bompdf"}) {
        auto const file = session.path("gearbox_PartLevel.") + kind;
        auto const takers = std::count_if(manager->plugins().begin(), manager->plugins().end(),
                                          [&](auto const& exporter) { return exporter->takes(file.c_str()); });
        EXPECT_EQ(takers, 1) << std::filesystem::path(kind);
        auto const exporter = manager->getPlugin(file.c_str());
        ASSERT_TRUE(exporter) << std::filesystem::path(kind);
        EXPECT_EQ(exporter->save(file.c_str(), scene.document, exportPreferences(), nullptr), orvexp::Status::ok);
        EXPECT_TRUE(std::filesystem::is_regular_file(file));
    }
}

TEST_F(Downloads, NativeFileOfAPushIsTakenByTheFirstOfTheList)
{
    ASSERT_FALSE(manager->plugins().empty());
    EXPECT_TRUE(manager->plugins().front()->takes(L"/models/orvanta/gearbox.orvanta"));
    auto const file = session.path("gearbox.orvanta");
    auto const exporter = manager->getPlugin(file.c_str());
    ASSERT_TRUE(exporter);
    EXPECT_EQ(std::wstring(exporter->getName()), L"orvwriter");
    EXPECT_EQ(exporter->save(file.c_str(), scene.document, exportPreferences(), nullptr), orvexp::Status::ok);
    EXPECT_TRUE(std::filesystem::is_regular_file(file));
}

TEST_F(Downloads, ListIsLoadedAnewForEachPush)
{
    for (int push = 0; push < 3; ++push) {
        auto const another = std::make_shared<orvexp::ExportManager>(nullptr);
        loadExporters(another);
        EXPECT_EQ(another->plugins().size(), manager->plugins().size());
        manager = another;
        auto const file = session.path("again.pdf");
        EXPECT_EQ(manager->getPlugin(file.c_str())->save(file.c_str(), scene.document, nullptr, nullptr),
                  orvexp::Status::ok);
    }
}

TEST_F(Downloads, UnknownOutputIsTakenByNone)
{
    EXPECT_FALSE(manager->getPlugin(L"gearbox. "));
    EXPECT_FALSE(manager->getPlugin(L"gearbox.xyz"));
}

} // namespace
