#include "shell/LoadedPlugin.h"

#include <json/json.h>

#include <QGuiApplication>
#include <QWindow>

#include <cstdlib>
#include <new>
#include <set>

using namespace orvtest;
namespace codes = orv::HintCode;

namespace
{
bool memoryIsOut = false; // for allocations that answer with null
} // namespace

// Takes the place of the one that the plug-in's library calls.
void* operator new(std::size_t size, std::nothrow_t const&) noexcept
{
    return memoryIsOut ? nullptr : ::operator new(size);
}

namespace
{

/// Notes its end in a list.
class NotedApplication final : public orv::IApplication
{
public:
    explicit NotedApplication(std::function<void()> atEnd) : note(std::move(atEnd)) {}
    ~NotedApplication() override { note(); }
    void saveFile(wchar_t const*, orv::SaveCompletion) override {}
    void showStatus(wchar_t const*, int) override {}
    std::shared_ptr<orv::IViewNotifier> getViewNotifier() override { return nullptr; }
    orv::IStatusManager* getStatusManager() override { return nullptr; }

private:
    std::function<void()> note;
};

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

    /// Ends the pane first, which the plug-in would leave behind.
    int destroyWhole(orv::IPlugin*& plugin) const
    {
        endPane(dynamic_cast<orvui::IGUIPlugin&>(*plugin));
        return destroy(&plugin);
    }

    std::string authorOfLastComment() const
    {
        Json::Value record;
        EXPECT_TRUE(Json::Reader().parse(network.last().field("comment"), record));
        return record["author"]["name"].asString();
    }

    static constexpr wchar_t exporterLibrary[] = L"prcdelaywriter.dll";
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
    EXPECT_EQ(destroyWhole(plugin), 0);
    EXPECT_EQ(plugin, nullptr);
}

TEST_F(LifecycleTest, DestroyingNothingIsFine)
{
    orv::IPlugin* plugin = nullptr;
    EXPECT_EQ(destroy(&plugin), 0);
    EXPECT_EQ(plugin, nullptr);
}

TEST_F(LifecycleTest, WithoutMemoryANullIsStoredAndTheResultStaysZero)
{
    orv::IPlugin* plugin = nullptr;
    ASSERT_EQ(create(&plugin), 0);
    orv::IPlugin* other = plugin;
    memoryIsOut = true;
    int const result = create(&other);
    memoryIsOut = false;
    EXPECT_EQ(result, 0);
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(destroyWhole(plugin), 0);
}

TEST_F(LifecycleTest, ThePluginOfACreatingCallIsAlwaysANewOne)
{
    orv::IPlugin* first = nullptr;
    orv::IPlugin* second = nullptr;
    create(&first);
    create(&second);
    EXPECT_NE(first, second);
    destroyWhole(first);
    EXPECT_EQ(first, nullptr);
    EXPECT_STREQ(second->getName(), L"cloudplugin");
    destroyWhole(second);
}

TEST_F(LifecycleTest, ThePageGoesBeforeTheApplicationAndThatBeforeTheDocument)
{
    TestScene own;
    std::weak_ptr<orv::IDocument> const document = own.document;
    long atEndOfApplication = -1;
    auto noted = std::make_shared<NotedApplication>([&] { atEndOfApplication = document.use_count(); });
    CMFCPropertySheet sheet(L"Options");
    EXPECT_TRUE(sheet.Create(&frame));
    long const others = own.document.use_count();
    {
        LoadedPlugin plugin;
        sendHint(*plugin.operator->(), codes::documentOpened, own.document);
        plugin->OnCommand(nullptr, 999, noted);
        plugin->AddToPropertySheet(sheet.GetSafeHwnd(), nullptr);
        noted.reset();
        EXPECT_EQ(atEndOfApplication, -1);
        EXPECT_EQ(own.document.use_count(), others + 2); // the plug-in's and the page's
        sheet.DestroyWindow();
    }
    EXPECT_EQ(atEndOfApplication, others + 1) << "the page had gone, the plug-in's document had not";
    EXPECT_EQ(own.document.use_count(), others);
}

TEST_F(LifecycleTest, TheExporterStaysWithThePaneThatNoSideBarGot)
{
    // In a process of its own, which takes the pane with it.
    EXPECT_EXIT(
        {
            orv::IPlugin* plugin = nullptr;
            create(&plugin);
            bool const wasLoaded = GetModuleHandleW(exporterLibrary) != nullptr;
            destroy(&plugin);
            std::_Exit(wasLoaded && GetModuleHandleW(exporterLibrary) != nullptr ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
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
    HWND const active = GetActiveWindow();
    auto const windows = QGuiApplication::allWindows();
    LoadedPlugin const plugin;
    EXPECT_TRUE(network.sent().empty());
    EXPECT_EQ(QGuiApplication::allWindows(), windows);
    EXPECT_EQ(GetActiveWindow(), active);
}

TEST_F(LifecycleTest, AllThreeLinesOfTheSessionAreRestored)
{
    signIn();
    PluginWithPane restored(frame);
    frame.ShowWindow(SW_SHOW);
    restored.openModel(scene.document);
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    ASSERT_TRUE(restored.submitComment(L"Check the clearance"));
    EXPECT_EQ(network.last().field("username"), "ann@example.com");
    EXPECT_EQ(network.last().header("Authorization"), std::string("Bearer ") + tokenBytes);
    EXPECT_EQ(authorOfLastComment(), "Ann");
}

TEST_F(LifecycleTest, APushReadsTheSessionAgainButNotItsThirdLine)
{
    signIn();
    PluginWithPane restored(frame);
    frame.ShowWindow(SW_SHOW);
    restored.openModel(scene.document);
    SessionFile().write(L"bob@example.com", jobId, L"Bob");
    network.expect("/api/UploadInput/", jobIdBytes);
    restored.plugin->OnCommand(nullptr, 118, application);
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    ASSERT_TRUE(restored.submitComment(L"hello"));
    EXPECT_EQ(network.last().field("username"), "bob@example.com");
    EXPECT_EQ(network.last().header("Authorization"), std::string("Bearer ") + jobIdBytes);
    EXPECT_EQ(authorOfLastComment(), "Ann");
}

TEST_F(LifecycleTest, AnEmptySessionFileRestoresNobody)
{
    SessionFile().createEmpty();
    PluginWithPane restored(frame);
    frame.ShowWindow(SW_SHOW);
    restored.openModel(scene.document);
    EXPECT_FALSE(restored.submitComment(L"hello")); // the prompt stands there
    restored.pane->OnActivateChange(true);
    EXPECT_TRUE(network.sent().empty());
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

TEST_F(LifecycleTest, ADocumentIsTakenFromSixCodesAndNoOther)
{
    std::set<short> const taking{1, 3, 8, 18, 25, 26};
    for (short code = -1; code <= 50; ++code) {
        LoadedPlugin plugin;
        long const before = scene.document.use_count();
        sendHint(*plugin.operator->(), code, scene.document);
        EXPECT_EQ(scene.document.use_count(), before + (taking.contains(code) ? 1 : 0)) << code;
    }
}

TEST_F(LifecycleTest, ANullHintIsLeftAlone)
{
    LoadedPlugin plugin;
    sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
    long const held = scene.document.use_count();
    plugin->OnUpdate(nullptr);
    EXPECT_EQ(scene.document.use_count(), held);
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
    long const documents = scene.document.use_count();
    long const applications = application.use_count();
    EXPECT_EQ(GetModuleHandleW(exporterLibrary), nullptr);
    {
        LoadedPlugin plugin;
        sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
        plugin->OnCommand(nullptr, 999, application);
        EXPECT_EQ(scene.document.use_count(), documents + 1);
        EXPECT_EQ(application.use_count(), applications + 1);
        EXPECT_NE(GetModuleHandleW(exporterLibrary), nullptr);
    }
    EXPECT_EQ(scene.document.use_count(), documents);
    EXPECT_EQ(application.use_count(), applications);
    // Its library goes with the last one that shares the exporter: the helper and the pane are gone as well.
    EXPECT_EQ(GetModuleHandleW(exporterLibrary), nullptr);
}

TEST_F(LifecycleTest, TheOptionsPageAndItsApplicationAreReleased)
{
    long const documents = scene.document.use_count();
    long const applications = application.use_count();
    CMFCPropertySheet sheet(L"Options");
    EXPECT_TRUE(sheet.Create(&frame));
    {
        LoadedPlugin plugin;
        sendHint(*plugin.operator->(), codes::documentOpened, scene.document);
        plugin->OnCommand(nullptr, 999, application);
        plugin->AddToPropertySheet(sheet.GetSafeHwnd(), nullptr);
        ASSERT_EQ(sheet.GetPageCount(), 1);
        EXPECT_EQ(scene.document.use_count(), documents + 2);
        sheet.DestroyWindow();
    }
    EXPECT_EQ(scene.document.use_count(), documents);
    EXPECT_EQ(application.use_count(), applications);
    EXPECT_EQ(GetModuleHandleW(exporterLibrary), nullptr);
}

TEST_F(LifecycleTest, APaneWithAWindowOutlivesThePlugin)
{
    SideBar bar;
    EXPECT_TRUE(bar.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 8, WS_CHILD | WS_VISIBLE));
    LoadedPlugin const keepsTheLibrary;
    {
        LoadedPlugin plugin;
        plugin->AddToOutlookBar(bar.GetSafeHwnd(), std::make_shared<FakeResourceManager>());
    }
    ASSERT_EQ(bar.tabs().GetTabsNum(), 1);
    EXPECT_NE(bar.tabs().GetTabWnd(0), nullptr);
    bar.DestroyWindow();
}

TEST_F(LifecycleTest, WithoutTheExportersLibraryEverythingElseWorks)
{
    orvhost::Settings settings = orvhost::settings();
    settings.libraryDirectory = dataDirectory.wstring();
    orvhost::configure(settings);
    signIn();
    PluginWithPane restored(frame);
    EXPECT_EQ(GetModuleHandleW(exporterLibrary), nullptr);
    frame.ShowWindow(SW_SHOW);
    restored.openModel(scene.document);
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    EXPECT_TRUE(restored.submitComment(L"hello"));
}
