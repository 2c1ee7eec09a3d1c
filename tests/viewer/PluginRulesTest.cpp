// The viewer asks the plug-in's enable rules while it is idle: the ribbon follows the session file and the model
// without anybody touching it.

#include "tests/viewer/SessionFixture.h"

#include "host/orvsg/SCInfo.h"
#include "platform/qt/Native.h"
#include "support/FileWatch.h"
#include "viewer/plugins/PluginHost.h"

#include <afxcontrolbars.h>

#include <QAbstractButton>

#include <algorithm>
#include <string>
#include <vector>

using namespace orvtest;
using orvplatform::testing::waitFor;

namespace
{

class PluginRules : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        installCloudPlugin();
        start();
        ASSERT_EQ(session->plugins().count(), 1U) << status();
        // The ribbon is built anew once the plug-in's panel has come to it.
        ASSERT_TRUE(waitFor([this] { return button("Push to cloud") != nullptr && button("Share") != nullptr; }));
    }

    std::filesystem::path sessionFile() const { return folder.path / "data" / "Cloud" / "temp"; }
    void signIn() const
    {
        std::filesystem::create_directories(sessionFile().parent_path());
        writeFile(sessionFile(), "ann@example.com\n7c9e6679-7425-40de-944b-e07fc1f90ae7\nAnn\n");
    }
    /// The button as it is shown. Nothing is asked of the plug-in by looking at it.
    QAbstractButton const* button(char const* caption) const
    {
        auto const buttons =
            orvplatform::widgetOf(session->ribbonBar().GetSafeHwnd())->findChildren<QAbstractButton*>();
        auto const found = std::find_if(buttons.begin(), buttons.end(),
                                        [&](QAbstractButton const* each) { return each->text() == caption; });
        return found == buttons.end() ? nullptr : *found;
    }
    bool becomes(char const* caption, bool enabled) const
    {
        return waitFor([&] {
            auto const* const shown = button(caption);
            return shown != nullptr && shown->isEnabled() == enabled;
        });
    }
};

TEST_F(PluginRules, BeforeTheFirstModelBothAreDisabled)
{
    EXPECT_TRUE(becomes("Share", false));
    EXPECT_TRUE(becomes("Push to cloud", false)) << "there is nothing to push";
    signIn();
    FileWatch watch(sessionFile());
    EXPECT_TRUE(waitFor([&] { return !watch.events().empty(); })) << "the rules were asked anew";
    EXPECT_TRUE(becomes("Share", false));
    EXPECT_TRUE(becomes("Push to cloud", false));
}

TEST_F(PluginRules, ShareFollowsTheSessionFileWhileIdle)
{
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring())) << status();
    EXPECT_TRUE(becomes("Share", false));
    EXPECT_TRUE(becomes("Push to cloud", true));
    signIn();
    EXPECT_TRUE(becomes("Share", true));
    std::filesystem::remove(sessionFile());
    EXPECT_TRUE(becomes("Share", false));
    EXPECT_TRUE(becomes("Push to cloud", true));
    std::filesystem::create_directories(sessionFile()); // no session
    EXPECT_TRUE(becomes("Share", false));
}

TEST_F(PluginRules, BothFollowTheModelWhileIdle)
{
    signIn();
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring())) << status();
    EXPECT_TRUE(becomes("Share", true));
    EXPECT_TRUE(becomes("Push to cloud", true));
    auto const info = orv::recordOf<orvsg::SCInfo>(session->document());
    info->pushState = orvsg::SCInfo::notPushable;
    EXPECT_TRUE(becomes("Share", false));
    EXPECT_TRUE(becomes("Push to cloud", false));
    info->pushState = 0;
    EXPECT_TRUE(becomes("Share", true));
    EXPECT_TRUE(becomes("Push to cloud", true));
    std::wstring const file = info->file();
    info->setFile(L"");
    EXPECT_TRUE(becomes("Share", false));
    EXPECT_TRUE(becomes("Push to cloud", false));
    info->setFile(file);
    EXPECT_TRUE(becomes("Push to cloud", true));
}

TEST_F(PluginRules, AnIdleViewerOpensTheSessionFileAndReadsNothing)
{
    signIn();
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring())) << status();
    ASSERT_TRUE(becomes("Share", true));
    FileWatch watch(sessionFile());
    std::vector<std::string> seen;
    EXPECT_TRUE(waitFor([&] {
        auto const more = watch.events();
        seen.insert(seen.end(), more.begin(), more.end());
        return seen.size() >= 8;
    }));
    for (std::size_t i = 0; i < seen.size(); ++i) {
        EXPECT_EQ(seen[i], i % 2 == 0 ? "open" : "close");
    }
}

} // namespace
