#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orv/Document.h"
#include "host/orv/FileUtils.h"
#include "host/orvexp/DelayExportHelper.h"
#include "host/orvexp/ExportHelper.h"
#include "host/orvexp/ExportManager.h"
#include "support/HostSession.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

using orv::LibraryEntry;
using Library = orv::DLLFuncPtrHelper<orv::IPlugin>;
using DelayLibrary = orv::DLLFuncPtrHelper<orvexp::IDelayExporter>;

namespace
{

std::wstring modulePath(wchar_t const* name)
{
    return orv::FileUtils::join(std::filesystem::path(ORV_TEST_MODULES).wstring(), name);
}

std::shared_ptr<Library> plugin(wchar_t const* name)
{
    return std::make_shared<Library>(modulePath(name).c_str(), "createPlugin", "destroyPlugin");
}

/// Objects that the working library has made and not got back; the library stays loaded meanwhile.
class Alive
{
public:
    Alive() : module(LoadLibraryW(modulePath(L"exporter.dll").c_str())) {}
    ~Alive() { FreeLibrary(module); }
    Alive(Alive const&) = delete;
    Alive& operator=(Alive const&) = delete;
    int count() const
    {
        return reinterpret_cast<int (*)()>(reinterpret_cast<void (*)()>(GetProcAddress(module, "countAlive")))();
    }

private:
    HMODULE module;
};

TEST(Library, HoldsOneObjectForItsOwnLife)
{
    Alive const alive;
    {
        auto const library = plugin(L"exporter.dll");
        ASSERT_TRUE(library->isValid()) << std::string(library->errorText().begin(), library->errorText().end());
        EXPECT_EQ(library->failure(), LibraryEntry::Failure::none);
        EXPECT_EQ(library->errorText(), L"");
        EXPECT_NE(library->module(), nullptr);
        EXPECT_STREQ(library->get()->getName(), L"test exporter");
        EXPECT_EQ(alive.count(), 1);
    }
    EXPECT_EQ(alive.count(), 0);
}

TEST(Library, ThatIsMissingSaysSo)
{
    auto const library = plugin(L"nowhere.dll");
    EXPECT_FALSE(library->isValid());
    EXPECT_EQ(library->get(), nullptr);
    EXPECT_EQ(library->failure(), LibraryEntry::Failure::missing);
    EXPECT_EQ(library->errorText(), L"The library \"nowhere.so\" is missing. Install Orvanta again and start it anew.");
}

TEST(Library, ThatIsNoLibrarySaysSo)
{
    orvtest::HostSession const session;
    std::ofstream(session.directory() / "text.so") << "not a library";
    std::ofstream(session.directory() / "empty.so");
    for (char const* const name : {"text.dll", "empty.dll"}) {
        Library const library(session.path(name).c_str(), "createPlugin", "destroyPlugin");
        EXPECT_FALSE(library.isValid());
        EXPECT_EQ(library.failure(), LibraryEntry::Failure::notALibrary);
        EXPECT_EQ(library.errorText(), L"The library \"" + std::filesystem::path(name).stem().wstring() +
                                           L".so\" can't be loaded: \"file too short\". Install Orvanta again and "
                                           L"start it anew.");
    }
}

TEST(Library, ThatLacksAnEntryPointNamesIt)
{
    auto const unfinished = plugin(L"unfinished.dll");
    EXPECT_FALSE(unfinished->isValid());
    EXPECT_EQ(unfinished->failure(), LibraryEntry::Failure::noEntryPoint);
    EXPECT_NE(unfinished->errorText().find(L"\"destroyPlugin\""), std::wstring::npos);
    Library const other(modulePath(L"exporter.dll").c_str(), "noSuchFunction", "destroyPlugin");
    EXPECT_NE(other.errorText().find(L"\"noSuchFunction\""), std::wstring::npos);
    EXPECT_EQ(other.module(), nullptr);
}

TEST(Library, ThatMakesNothingSaysSo)
{
    Library const library(modulePath(L"exporter.dll").c_str(), "makeNothing", "destroyPlugin");
    EXPECT_FALSE(library.isValid());
    EXPECT_EQ(library.failure(), LibraryEntry::Failure::madeNothing);
    EXPECT_FALSE(library.errorText().empty());
}

TEST(DeferredExporter, SavesThroughItsLibrary)
{
    orvtest::HostSession const session;
    auto const library = std::make_shared<DelayLibrary>(modulePath(L"exporter.dll").c_str(), "create", "destroy");
    orvexp::DelayExportHelper helper(library);
    auto const document = std::make_shared<orv::Document>();
    EXPECT_EQ(helper.save(session.path("a.prc").c_str(), document, nullptr, nullptr), orvexp::Status::ok);
    EXPECT_TRUE(std::filesystem::exists(session.directory() / "a.prc"));
}

TEST(DeferredExporter, WithoutALibrarySavesNothing)
{
    auto const library = std::make_shared<DelayLibrary>(modulePath(L"nowhere.dll").c_str(), "create", "destroy");
    EXPECT_EQ(orvexp::DelayExportHelper(library).save(L"/x", nullptr, nullptr, nullptr), orvexp::Status::noLibrary);
    EXPECT_EQ(orvexp::DelayExportHelper(nullptr).save(L"/x", nullptr, nullptr, nullptr), orvexp::Status::noLibrary);
}

TEST(ExportManager, GivesTheFirstExporterThatTakesThePath)
{
    Alive const alive;
    {
        orvexp::ExportManager manager(nullptr);
        EXPECT_FALSE(manager.getPlugin(L"/a.orvanta"));
        auto const notAnExporter = std::make_shared<orvexp::ExportHelper>(plugin(L"importer.dll"));
        auto const first = std::make_shared<orvexp::ExportHelper>(plugin(L"exporter.dll"));
        manager.push_back(notAnExporter);
        manager.push_back(first);
        manager.push_back(std::make_shared<orvexp::ExportHelper>(plugin(L"exporter.dll")));
        manager.push_back(std::make_shared<orvexp::ExportHelper>(plugin(L"nowhere.dll")));
        manager.push_back(std::make_shared<orvexp::ExportHelper>(nullptr));
        EXPECT_EQ(manager.getPlugin(L"/a.orvanta"), first);
        EXPECT_FALSE(manager.getPlugin(L"/a.stl"));
        EXPECT_FALSE(manager.getPlugin(nullptr));
        EXPECT_STREQ(first->getName(), L"test exporter");
        EXPECT_EQ(alive.count(), 2);
        EXPECT_EQ(notAnExporter->save(L"/x", nullptr, nullptr, nullptr), orvexp::Status::noLibrary);
        EXPECT_STREQ(notAnExporter->getName(), L"");
    }
    EXPECT_EQ(alive.count(), 0);
}

TEST(PluginDirectories, LieBelowTheLibraries)
{
    orvtest::HostSession session;
    session.reconfigure([](orvhost::Settings& settings) { settings.libraryDirectory = L"/opt/orvanta/lib/"; });
    EXPECT_EQ(orv::IPlugin::getDelayPluginPath(nullptr), L"/opt/orvanta/lib/delay");
    EXPECT_EQ(orv::IPlugin::getPluginPath(nullptr, orv::IPlugin::exporterPlugin), L"/opt/orvanta/lib/export");
    EXPECT_EQ(orv::IPlugin::getPluginPath(nullptr, orv::IPlugin::guiPlugin), L"/opt/orvanta/lib/gui");
    session.reconfigure([](orvhost::Settings& settings) { settings.libraryDirectory.clear(); });
    EXPECT_TRUE(std::filesystem::exists(orv::FileUtils::join(orvhost::settings().libraryDirectory, L"liborvhost.so")));
}

} // namespace
