#include "tests/viewer/SessionFixture.h"

#include "host/orv/IHint.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvui/Hint.h"
#include "platform/testing/ModalExpectation.h"
#include "viewer/app/MainWindow.h"
#include "viewer/commands/CommandId.h"
#include "viewer/commands/PartCommands.h"
#include "viewer/plugins/PluginHost.h"
#include "viewer/plugins/SideBar.h"

#include <afxcontrolbars.h>
#include <windows.h>

#include <algorithm>

using namespace orvtest;

namespace
{

class PluginHostTest : public SessionFixture
{
protected:
    /// Puts a test library in the place of the viewer's own plug-in.
    void install(char const* name)
    {
        std::filesystem::copy_file(built(name), installed(), std::filesystem::copy_options::overwrite_existing);
    }
    /// Puts one beside the viewer's own plug-in.
    void installBeside(char const* name)
    {
        std::filesystem::copy_file(built(name), guiFolder() / (std::string(name) + ".so"));
    }
    static std::filesystem::path built(char const* name)
    {
        return std::filesystem::path(ORV_BINARY_DIR) / "tests" / "viewer-plugins" / (std::string(name) + ".so");
    }
    /// Expects a sentence that names the file and the reason, and a viewer that works.
    void expectRefused(char const* file, char const* reason)
    {
        EXPECT_NE(status().find(std::string("\"") + file + "\""), std::string::npos) << status();
        EXPECT_NE(status().find(reason), std::string::npos) << status();
        EXPECT_TRUE(status().ends_with('.')) << status();
        EXPECT_EQ(session->plugins().count(), 0U);
        EXPECT_FALSE(session->window().isSideBarShown()) << "no pane, no side bar";
        expectWorks();
    }
    std::filesystem::path installed() const { return guiFolder() / "cloudplugin.so"; }

    std::vector<std::string> takeEvents() const
    {
        std::vector<std::string> list;
        auto const module = LoadLibraryW(installed().wstring().c_str());
        auto const take = reinterpret_cast<void (*)(std::vector<std::string>*)>(
            reinterpret_cast<void (*)()>(GetProcAddress(module, "takeEvents")));
        take(&list);
        FreeLibrary(module);
        return list;
    }
    /// Ends the window of the recording plug-in's pane; a second call ends the pane itself.
    void endPane() const
    {
        auto const module = LoadLibraryW(installed().wstring().c_str());
        reinterpret_cast<void (*)()>(GetProcAddress(module, "endPane"))();
        FreeLibrary(module);
    }

    static std::ptrdiff_t placeOf(std::vector<std::string> const& list, std::string const& event)
    {
        auto const found = std::find(list.begin(), list.end(), event);
        return found == list.end() ? -1 : found - list.begin();
    }

    void expectWorks()
    {
        ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring()));
        session->context().select({1});
        EXPECT_TRUE(session->runCommand(orvviewer::hideParts));
        EXPECT_FALSE(orv::recordOf<orvsg::SCSceneRT>(session->document())->visibility[1]);
        session->closeModel();
        EXPECT_FALSE(session->document());
    }
};

} // namespace

TEST_F(PluginHostTest, AMissingPluginIsASentence)
{
    start();
    expectRefused("cloudplugin.so", "is missing");
}

TEST_F(PluginHostTest, AFileThatIsNoLibraryIsASentence)
{
    writeFile(installed(), "this is no library");
    start();
    EXPECT_EQ(status(), "The library \"cloudplugin.so\" can't be loaded: \"file too short\". Install Orvanta again and "
                        "start it anew.");
    expectRefused("cloudplugin.so", "can't be loaded");
}

TEST_F(PluginHostTest, ALibraryWithoutTheFunctionsIsASentence)
{
    install("NoEntry");
    start();
    expectRefused("cloudplugin.so", "lacks the function \"createPlugin\"");
}

TEST_F(PluginHostTest, ALibraryThatMakesNothingIsASentence)
{
    install("Empty");
    start();
    expectRefused("cloudplugin.so", "made no plug-in");
}

TEST_F(PluginHostTest, ALibraryThatThrowsWhenLoadedIsASentence)
{
    install("Refusing");
    start();
    expectRefused("cloudplugin.so", "failed to start: \"refused on purpose, for a reason that is kept on the heap\"");
}

TEST_F(PluginHostTest, APluginOfAnotherKindIsASentence)
{
    install("Other");
    start();
    expectRefused("cloudplugin.so", "is no plug-in for the viewer's windows");
}

TEST_F(PluginHostTest, APluginThatThrowsWhenItIsDestroyedIsASentence)
{
    install("Unending"); // of another kind, so it is destroyed at once
    start();
    expectRefused("cloudplugin.so", "failed to end: \"ended on purpose\"");
    session.reset();
    std::filesystem::remove(installed());
    install("Throwing");
    start();
    session.reset(); // with a plug-in that throws as the viewer ends
}

TEST_F(PluginHostTest, ABadLibraryLeavesTheOthersAlone)
{
    for (char const* const bad : {"NoEntry", "Empty", "Refusing", "Other", "Unending"}) {
        SCOPED_TRACE(bad);
        session.reset();
        std::filesystem::remove_all(guiFolder());
        std::filesystem::create_directories(guiFolder());
        install("Recording");
        installBeside(bad);
        start();
        EXPECT_NE(status().find(std::string("\"") + bad + ".so\""), std::string::npos) << status();
        EXPECT_EQ(session->plugins().count(), 1U);
        EXPECT_EQ(session->sideBar().paneCount(), 1);
        expectWorks();
    }
}

TEST_F(PluginHostTest, TheFirstModelsSentenceSaysAgainWhichLibrariesFailed)
{
    install("NoEntry");
    installBeside("Empty");
    start();
    auto const cubes = writeThreeCubes(folder.path);
    ASSERT_TRUE(session->openModel(cubes.wstring()));
    auto const opened = cubes.filename().string().insert(0, 1, '"') + "\" is open.";
    EXPECT_EQ(status(),
              opened + " The library \"cloudplugin.so\" lacks the function \"createPlugin\". Install Orvanta again "
                       "and start it anew. The library \"Empty.so\" made no plug-in. The viewer works on without "
                       "it; install the plug-in again to get it back.");
    session->closeModel();
    ASSERT_TRUE(session->openModel(cubes.wstring()));
    EXPECT_EQ(status(), opened) << "once is enough";
}

TEST_F(PluginHostTest, TheFirstModelsSentenceIsInTheViewersLanguage)
{
    install("NoEntry");
    installBeside("Empty");
    start(L"de");
    auto const cubes = writeThreeCubes(folder.path);
    ASSERT_TRUE(session->openModel(cubes.wstring()));
    EXPECT_EQ(status(), "„" + cubes.filename().string() +
                            "“ ist geöffnet. Der Bibliothek „cloudplugin.so“ fehlt die Funktion „createPlugin“. "
                            "Installieren Sie Orvanta erneut, und starten Sie es neu. Die Bibliothek „Empty.so“ hat "
                            "kein Zusatzmodul geliefert. Das Programm arbeitet ohne es weiter; installieren Sie es "
                            "erneut, um es zurückzubekommen.");
}

TEST_F(PluginHostTest, APluginThatThrowsEverywhereIsSurvived)
{
    install("Throwing");
    start();
    EXPECT_NE(status().find("thrown on purpose"), std::string::npos) << status();
    EXPECT_EQ(session->plugins().count(), 1U);
    expectWorks();
    EXPECT_NE(status().find("thrown on purpose"), std::string::npos) << "each hint threw, too";
}

TEST_F(PluginHostTest, SetsThePluginUpOnce)
{
    install("Recording");
    start();
    auto const list = takeEvents();
    EXPECT_EQ(std::count(list.begin(), list.end(), "parent"), 1);
    EXPECT_EQ(std::count(list.begin(), list.end(), "ribbon"), 1);
    EXPECT_EQ(std::count(list.begin(), list.end(), "side bar"), 1);
    EXPECT_EQ(placeOf(list, "no category"), -1);
    EXPECT_EQ(placeOf(list, "no tabs"), -1);
    EXPECT_LT(placeOf(list, "parent"), placeOf(list, "ribbon"));
    EXPECT_TRUE(session->window().isSideBarShown());
    EXPECT_EQ(session->sideBar().paneCount(), 1);
}

TEST_F(PluginHostTest, PutsThePluginsPanelBeforeTheLast)
{
    install("Recording");
    start();
    auto* category = session->ribbonBar().GetActiveCategory();
    ASSERT_NE(category, nullptr);
    int const count = category->GetPanelCount();
    EXPECT_EQ(std::wstring(category->GetPanel(count - 2)->GetName()), L"Recording");
    EXPECT_EQ(std::wstring(category->GetPanel(count - 1)->GetName()), L"Options");
}

TEST_F(PluginHostTest, DeliversTheHintsOfADocumentsLife)
{
    install("Recording");
    start();
    takeEvents();
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring()));
    auto list = takeEvents();
    EXPECT_GE(placeOf(list, "hint 1"), 0);
    EXPECT_LT(placeOf(list, "hint 1"), placeOf(list, "hint 3"));
    EXPECT_GE(placeOf(list, "pane hint 1"), 0);
    EXPECT_GE(placeOf(list, "pane hint 3"), 0);
    EXPECT_LT(placeOf(list, "hint 3"), placeOf(list, "hint 40")) << "a hint raised within a hint";
    EXPECT_GE(placeOf(list, "pane hint 40"), 0);
    EXPECT_LT(placeOf(list, "pane hint 40"), placeOf(list, "pane hint 3")) << "and delivered before the outer one ends";
    session->context().select({1});
    session->runCommand(orvviewer::fitAll);
    session->runCommand(orvviewer::hideParts);
    list = takeEvents();
    EXPECT_GE(placeOf(list, "hint 10"), 0);
    EXPECT_GE(placeOf(list, "pane hint 9"), 0);
    EXPECT_GE(placeOf(list, "hint 14"), 0);
    session->closeModel();
    EXPECT_GE(placeOf(takeEvents(), "hint 5"), 0);
}

TEST_F(PluginHostTest, APaneThatEndedGetsNoHintsAnyMore)
{
    install("Recording");
    start();
    takeEvents();
    endPane();
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring()));
    auto const list = takeEvents();
    EXPECT_GE(placeOf(list, "hint 3"), 0) << "the plug-in itself does";
    EXPECT_EQ(std::count_if(list.begin(), list.end(), [](auto const& event) { return event.rfind("pane ", 0) == 0; }),
              0);
    endPane();
    session->closeModel();
    EXPECT_GE(placeOf(takeEvents(), "hint 5"), 0);
}

TEST_F(PluginHostTest, TheFirstHintGivesAWayToTheApplicationWithoutAModel)
{
    install("Recording");
    start();
    auto const list = takeEvents();
    EXPECT_EQ(std::count(list.begin(), list.end(), "hint 1 of no file"), 1);
    EXPECT_EQ(std::count(list.begin(), list.end(), "pane hint 1"), 1);
    EXPECT_FALSE(session->document()) << "the viewer itself has none";
}

TEST_F(PluginHostTest, ActivatesThePaneForEachOpenedModel)
{
    install("Recording");
    start();
    takeEvents();
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring()));
    auto const list = takeEvents();
    EXPECT_LT(placeOf(list, "pane hint 3"), placeOf(list, "pane activated"));
}

TEST_F(PluginHostTest, RoutesCommandsByThePluginsOwnNumber)
{
    install("Recording");
    start();
    unsigned int const id = orvviewer::firstPluginCommand;
    EXPECT_TRUE(session->plugins().owns(id));
    EXPECT_FALSE(session->plugins().owns(id + 500));
    EXPECT_FALSE(session->runCommand(id)) << "disabled without a document";
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring()));
    takeEvents();
    EXPECT_TRUE(session->runCommand(id));
    EXPECT_GE(placeOf(takeEvents(), "command 118"), 0);
    EXPECT_EQ(status(), "The command ran.");
}

TEST_F(PluginHostTest, AsksForPagesWheneverTheOptionsAreBuilt)
{
    install("Recording");
    start();
    takeEvents();
    for (int i = 0; i < 2; ++i) {
        orvplatform::testing::ModalScript script([](std::string const& why) { ADD_FAILURE() << why; });
        script.expectModal<CMFCPropertySheet>([](CMFCPropertySheet&) { return IDCANCEL; });
        session->runCommand(orvviewer::showOptions);
        EXPECT_TRUE(script.allSeen());
        EXPECT_EQ(placeOf(takeEvents(), "options"), 0);
    }
}

TEST_F(PluginHostTest, DestroysThePluginWithTheViewer)
{
    install("Recording");
    start();
    auto const keep = LoadLibraryW(installed().wstring().c_str());
    session.reset();
    EXPECT_GE(placeOf(takeEvents(), "destroyed"), 0);
    FreeLibrary(keep);
}
