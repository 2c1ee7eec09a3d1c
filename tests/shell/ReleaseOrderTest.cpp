// What the plug-in lets go of at its end, one after the other. Built with the plug-in's own sources, so that the test
// sees each member.

#include "shell/LoadedPlugin.h"

#include "shell/cloudplugin.h"
#include "ui/account/SettingsDlg.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace orvtest;

namespace
{

/// Gives the address of a private member: an explicit instantiation may name it.
template <class Tag, auto member>
struct Reached {
    friend auto placeOf(Tag) { return member; }
};

#define ORV_REACH(member)                                                                                              \
    struct member##Tag {                                                                                               \
        friend auto placeOf(member##Tag);                                                                              \
    };                                                                                                                 \
    template struct Reached<member##Tag, &cloudplugin::member>

ORV_REACH(document);
ORV_REACH(application);
ORV_REACH(reserved);
ORV_REACH(settings);
ORV_REACH(helper);
ORV_REACH(settingsPage);
ORV_REACH(userInfo);
ORV_REACH(exporter);

class ReleaseOrderTest : public UiTest
{
protected:
    /// Puts a reference in the place of the plug-in's own that notes its end. The object itself goes on for as long as
    /// others have it.
    template <class T>
    void note(std::shared_ptr<T>& held, std::string const& name)
    {
        auto const object = held;
        held = std::shared_ptr<T>(object.get(), [this, object, name](T*) { released.push_back(name); });
    }

    std::vector<std::string> released;
};

} // namespace

TEST_F(ReleaseOrderTest, GoesFromTheExporterToTheDocument)
{
    auto* const plugin = new cloudplugin;
    endPane(*plugin);
    sendHint(*plugin, orv::HintCode::documentOpened, scene.document);
    plugin->OnCommand(nullptr, 999, application);
    CMFCPropertySheet sheet(L"Options");
    ASSERT_TRUE(sheet.Create(&frame));
    plugin->AddToPropertySheet(sheet.GetSafeHwnd(), nullptr);
    ASSERT_EQ(sheet.GetPageCount(), 1);
    sheet.DestroyWindow();

    EXPECT_EQ(plugin->*placeOf(reservedTag()), nullptr);
    plugin->*placeOf(reservedTag()) = std::make_shared<int>(); // stays empty in use, and is let go of in its turn
    note(plugin->*placeOf(documentTag()), "document");
    note(plugin->*placeOf(applicationTag()), "application");
    note(plugin->*placeOf(reservedTag()), "reserved");
    note(plugin->*placeOf(settingsTag()), "settings");
    note(plugin->*placeOf(helperTag()), "helper");
    note(plugin->*placeOf(settingsPageTag()), "page");
    note(plugin->*placeOf(userInfoTag()), "user");
    note(plugin->*placeOf(exporterTag()), "exporter");
    EXPECT_TRUE(released.empty());
    delete plugin;
    EXPECT_EQ(released, (std::vector<std::string>{"exporter", "user", "page", "helper", "settings", "reserved",
                                                  "application", "document"}));
}

TEST_F(ReleaseOrderTest, ThePluginBeginsWithItsSettingsItsUserItsHelperAndItsExporterAlone)
{
    auto* const plugin = new cloudplugin;
    EXPECT_EQ(plugin->*placeOf(documentTag()), nullptr);
    EXPECT_EQ(plugin->*placeOf(applicationTag()), nullptr);
    EXPECT_EQ(plugin->*placeOf(reservedTag()), nullptr);
    EXPECT_EQ(plugin->*placeOf(settingsPageTag()), nullptr);
    ASSERT_NE(plugin->*placeOf(settingsTag()), nullptr);
    EXPECT_TRUE((plugin->*placeOf(settingsTag()))->uploadDirect);
    ASSERT_NE(plugin->*placeOf(userInfoTag()), nullptr);
    EXPECT_TRUE((plugin->*placeOf(userInfoTag()))->userid.empty());
    EXPECT_NE(plugin->*placeOf(helperTag()), nullptr);
    EXPECT_NE(plugin->*placeOf(exporterTag()), nullptr);
    endPane(*plugin);
    delete plugin;
}
