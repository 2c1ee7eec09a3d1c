#include "shell/LoadedPlugin.h"

using namespace orvtest;
namespace codes = orv::HintCode;

namespace
{

class LifecycleTest : public UiTest
{
protected:
    using Function = int (*)(orv::IPlugin**);
    LifecycleTest() : module(LoadLibraryW(ORV_PLUGIN_LIBRARY))
    {
        EXPECT_NE(module, nullptr);
        create = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, "createPlugin")));
        destroy = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, "destroyPlugin")));
    }
    ~LifecycleTest() override { FreeLibrary(module); }

    HMODULE module;
    Function create = nullptr;
    Function destroy = nullptr;
};

} // namespace

TEST_F(LifecycleTest, APluginIsMadeAndDestroyed)
{
    orv::IPlugin* plugin = nullptr;
    EXPECT_EQ(create(&plugin), 0);
    ASSERT_NE(plugin, nullptr);
    EXPECT_STREQ(plugin->getName(), L"cloudplugin");
    EXPECT_EQ(static_cast<int>(plugin->getType()), 2);
    EXPECT_EQ(plugin->id(), orv::GUID(L"{a661d3e7-45cd-4e9f-8886-fd3efe39ba63}"));
    EXPECT_EQ(destroy(&plugin), 0);
    EXPECT_EQ(plugin, nullptr);
}

TEST_F(LifecycleTest, DestroyingNothingIsFine)
{
    orv::IPlugin* plugin = nullptr;
    EXPECT_EQ(destroy(&plugin), 0);
    EXPECT_EQ(plugin, nullptr);
}

TEST_F(LifecycleTest, NoPreferencesAreKept)
{
    LoadedPlugin plugin;
    auto registry = std::make_shared<orv::IPreferencesRegistry>();
    auto preferences = std::make_shared<orv::Preferences>();
    EXPECT_EQ(plugin->loadPreferences(registry), nullptr);
    plugin->savePreferences(registry, preferences);
    EXPECT_EQ(registry.use_count(), 1);
    EXPECT_EQ(preferences.use_count(), 1);
    EXPECT_TRUE(preferences->entries().empty());
}

TEST_F(LifecycleTest, MakingOneTouchesNeitherNetworkNorWindows)
{
    signIn();
    LoadedPlugin const plugin;
    EXPECT_TRUE(network.sent().empty());
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(LifecycleTest, TheSessionFileStaysBehind)
{
    signIn();
    {
        LoadedPlugin const plugin;
    }
    orvweb::UserInfo saved;
    ASSERT_TRUE(SessionFile().read(saved));
    EXPECT_EQ(saved.username, L"ann@example.com");
    EXPECT_EQ(saved.userid, token);
    EXPECT_EQ(saved.name, L"Ann");
}

TEST_F(LifecycleTest, ADocumentIsTakenFromSixCodes)
{
    for (short const code : {codes::documentActivated, codes::documentOpened, codes::documentReplaced,
                             codes::documentReloaded, codes::documentImported, codes::documentSaved}) {
        LoadedPlugin plugin;
        long const before = scene.document.use_count();
        sendHint(*plugin.operator->(), code, scene.document);
        EXPECT_EQ(scene.document.use_count(), before + 1) << code;
    }
}

TEST_F(LifecycleTest, OtherCodesAndEmptyHintsAreLeftAlone)
{
    LoadedPlugin plugin;
    long const before = scene.document.use_count();
    plugin->OnUpdate(nullptr);
    for (short const code :
         {short{0}, codes::documentClosed, codes::documentChanged, codes::viewChanged, codes::sceneChanged,
          codes::viewRestored, codes::commentAdded, codes::feedReloaded, codes::signedIn, codes::signedOut}) {
        sendHint(*plugin.operator->(), code, scene.document);
    }
    EXPECT_EQ(scene.document.use_count(), before);
}

TEST_F(LifecycleTest, TheLastDocumentAloneStaysReferenced)
{
    LoadedPlugin plugin;
    TestScene other;
    long const before = scene.document.use_count();
    sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
    sendHint(*plugin.operator->(), codes::documentOpened, other.document);
    EXPECT_EQ(scene.document.use_count(), before);
}

TEST_F(LifecycleTest, AClosedDocumentAndAnEmptyHintKeepTheDocument)
{
    LoadedPlugin plugin;
    sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
    long const held = scene.document.use_count();
    sendHint(*plugin.operator->(), codes::documentClosed, scene.document);
    sendHint(*plugin.operator->(), codes::documentActivated, nullptr);
    EXPECT_EQ(scene.document.use_count(), held);
}

TEST_F(LifecycleTest, DestructionReleasesEverything)
{
    long const before = scene.document.use_count();
    {
        LoadedPlugin plugin;
        sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
    }
    EXPECT_EQ(scene.document.use_count(), before);
}

TEST_F(LifecycleTest, AMissingExporterIsNotNoticed)
{
    orvhost::Settings settings = orvhost::settings();
    settings.libraryDirectory = dataDirectory.wstring();
    orvhost::configure(settings);
    LoadedPlugin const plugin;
    EXPECT_TRUE(application->texts.empty());
}
