#include "host/runtime/Files.h"
#include "host/orv/FilePath.h"
#include "host/orv/FileUtils.h"
#include "host/orv/GUID.h"
#include "host/orv/Preferences.h"
#include "host/orvSysInfo/GeneralUtils.h"
#include "host/orvsg/Value.h"
#include "host/orvweb/APIUtils.h"
#include "host/orvweb/Directories.h"
#include "support/HostSession.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <string>

#include <sys/stat.h>

using orv::FilePath;
using orv::FileUtils;
using orv::GUID;
namespace fs = std::filesystem;

namespace
{

unsigned int modeOf(fs::path const& path)
{
    struct stat status {
    };
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 0777U : 0U;
}

std::string contentOf(fs::path const& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(Paths, AreSplitAtTheLastSeparatorAndTheLastDot)
{
    struct Case {
        wchar_t const* path;
        wchar_t const* folder;
        wchar_t const* name;
        wchar_t const* extension;
    };
    Case const cases[] = {
        {L"/a/part.v2.step", L"/a/", L"part.v2", L".step"},
        {L"part.step", L"", L"part", L".step"},
        {L"/a.b/part", L"/a.b/", L"part", L""},
        {L"/a/", L"/a/", L"", L""},
        {L"/a/.step", L"/a/", L"", L".step"},
        {L"part.", L"", L"part", L"."},
        {L"", L"", L"", L""},
        {L"/m/caf\u00e9 \U0001F600.STEP", L"/m/", L"caf\u00e9 \U0001F600", L".STEP"},
    };
    for (Case const& one : cases) {
        FilePath const path(one.path);
        EXPECT_EQ(path.getFolder(), one.folder);
        EXPECT_EQ(path.getFName(), one.name);
        EXPECT_EQ(path.getExt(), one.extension);
    }
    EXPECT_EQ(FilePath(nullptr).getFName(), L"");
}

TEST(Paths, TellTheKindOfAFileInLowerCase)
{
    for (auto const& [path, extension] :
         {std::pair{L"/a/part.v2.STEP", L"step"}, std::pair{L"/a/.csv", L"csv"}, std::pair{L".CSV", L"csv"},
          std::pair{L"/a.b/part", L""}, std::pair{L"part.", L""}, std::pair{L"gearbox. ", L" "}, std::pair{L"", L""}}) {
        EXPECT_EQ(orvhost::extensionOf(path), extension);
    }
}

TEST(Paths, AreJoinedWithOneSeparator)
{
    EXPECT_EQ(FileUtils::join(L"/a", L"b"), L"/a/b");
    EXPECT_EQ(FileUtils::join(L"/a/", L"b"), L"/a/b");
    EXPECT_EQ(FileUtils::join(L"/a//", L"//b"), L"/a/b");
    EXPECT_EQ(FileUtils::join(L"/a", L"b/c/"), L"/a/b/c/");
    EXPECT_EQ(FileUtils::join(L"/", L"b"), L"/b");
    EXPECT_EQ(FileUtils::join(L"", L"b"), L"b");
    EXPECT_EQ(FileUtils::join(L"/a", L""), L"/a/");
}

TEST(Paths, ASavedFileIsReportedByNameAndExtension)
{
    EXPECT_EQ(FileUtils::getStatusFileName(L"/models/bracket.stl"), L"bracket.stl");
}

TEST(Directories, AreMadeForTheUserAlone)
{
    orvtest::HostSession const session;
    EXPECT_FALSE(fs::exists(session.dataDirectory()));
    std::wstring const cloud = orvweb::Directories::GetUserDirectoryDetails(L"Cloud", L"");
    EXPECT_EQ(cloud, (session.dataDirectory() / "Cloud").wstring());
    EXPECT_EQ(modeOf(session.dataDirectory()), 0700U);
    EXPECT_EQ(modeOf(cloud), 0700U);
    EXPECT_EQ(orvweb::Directories::GetUserDirectoryDetails(L"Feed", L"sub"),
              (session.dataDirectory() / "Feed" / "sub").wstring());
    EXPECT_TRUE(fs::is_directory(session.dataDirectory() / "Feed" / "sub"));
}

TEST(Directories, APathComesBackWhereTheDirectoryCantBeMade)
{
    orvtest::HostSession session;
    std::ofstream(session.directory() / "file") << "in the way";
    session.reconfigure([&](orvhost::Settings& settings) { settings.dataDirectory = session.path("file"); });
    EXPECT_EQ(orvweb::Directories::GetUserDirectoryDetails(L"Cloud", L""), session.path("file/Cloud"));
    std::wstring path;
    EXPECT_FALSE(FileUtils::getAppDataPath(path));
    EXPECT_EQ(path, session.path("file"));
}

TEST(Directories, TheApplicationDataIsTheUsersDirectory)
{
    orvtest::HostSession const session;
    std::wstring path;
    EXPECT_TRUE(FileUtils::getAppDataPath(path));
    EXPECT_EQ(path, session.dataDirectory().wstring());
    EXPECT_TRUE(fs::is_directory(path));
}

TEST(Directories, FollowThePlatformWithoutASetting)
{
    orvtest::HostSession session;
    std::string const before = std::getenv("XDG_DATA_HOME") != nullptr ? std::getenv("XDG_DATA_HOME") : "";
    ::setenv("XDG_DATA_HOME", session.directory().c_str(), 1);
    session.reconfigure([](orvhost::Settings& settings) { settings.dataDirectory.clear(); });
    EXPECT_EQ(orvhost::settings().dataDirectory, (session.directory() / "orvanta").wstring());
    before.empty() ? ::unsetenv("XDG_DATA_HOME") : ::setenv("XDG_DATA_HOME", before.c_str(), 1);
}

TEST(Directories, TheTemporaryOneIsPrivateAndEndsInASeparator)
{
    orvtest::HostSession const session;
    std::wstring const path = FileUtils::getTempPath();
    ASSERT_FALSE(path.empty());
    EXPECT_EQ(path.back(), L'/');
    EXPECT_TRUE(fs::is_directory(path));
    EXPECT_EQ(modeOf(path), 0700U);
    EXPECT_EQ(FileUtils::getTempPath(), path);
    fs::remove_all(path);
    EXPECT_TRUE(fs::is_directory(FileUtils::getTempPath())) << "one that was swept away is made again";
}

TEST(DirectoriesDeathTest, TheTemporaryOneGoesWithTheProgram)
{
    orvtest::HostSession const session;
    fs::path const note = session.directory() / "note";
    EXPECT_EXIT(
        {
            std::wstring const path = FileUtils::getTempPath();
            std::ofstream(fs::path(path) / "model.prc") << "left behind";
            std::ofstream(note) << fs::path(path).string();
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
    std::string const path = contentOf(note);
    ASSERT_FALSE(path.empty());
    EXPECT_FALSE(fs::exists(path));
}

TEST(Settings, AreCompletedAndTidied)
{
    orvtest::HostSession session(L"https://cloud.example.com/base//");
    EXPECT_EQ(orvweb::APIUtils::rootUrl(), L"https://cloud.example.com/base");
    session.reconfigure([](orvhost::Settings& settings) { settings.serviceUrl.clear(); });
    EXPECT_FALSE(orvweb::APIUtils::rootUrl().empty());
    EXPECT_FALSE(orvweb::APIUtils::apiId().empty());
    EXPECT_FALSE(orvweb::APIUtils::apiKey().empty());
    session.reconfigure([](orvhost::Settings& settings) { settings.dataDirectory = L"relative"; });
    EXPECT_EQ(orvhost::settings().dataDirectory, (fs::current_path() / "relative").wstring());
}

TEST(Replacing, AFileIsPrivateAndWholeOrUntouched)
{
    orvtest::HostSession const session;
    fs::path const file = session.directory() / "file";
    EXPECT_TRUE(orvhost::replaceFile(file, "first"));
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_TRUE(orvhost::replaceFile(file, std::string("sec\0nd", 6)));
    EXPECT_EQ(contentOf(file), std::string("sec\0nd", 6));
    EXPECT_FALSE(orvhost::replaceFile(session.directory() / "no" / "file", "x"));
    fs::create_directories(session.directory() / "directory" / "full");
    EXPECT_FALSE(orvhost::replaceFile(session.directory() / "directory", "x"));
    EXPECT_EQ(std::distance(fs::directory_iterator(session.directory()), fs::directory_iterator()), 2)
        << "a temporary file was left behind";
}

TEST(Replacing, TakesNamesAsLongAsTheSystemAllows)
{
    orvtest::HostSession const session;
    fs::path const file = session.directory() / std::string(255, 'n');
    EXPECT_TRUE(orvhost::replaceFile(file, "content"));
    EXPECT_EQ(contentOf(file), "content");
    EXPECT_FALSE(orvhost::replaceFile(session.directory() / std::string(256, 'n'), "content"));
    EXPECT_EQ(std::distance(fs::directory_iterator(session.directory()), fs::directory_iterator()), 1);
}

TEST(Identities, AreUniqueAndReadBack)
{
    std::set<std::wstring> seen;
    for (int i = 0; i < 1000; ++i) {
        std::wstring const text = GUID().toString();
        ASSERT_EQ(text.size(), 38U);
        EXPECT_EQ(text.front(), L'{');
        EXPECT_EQ(text.back(), L'}');
        EXPECT_EQ(text[15], L'4');
        EXPECT_NE(std::wstring(L"89ab").find(text[20]), std::wstring::npos);
        EXPECT_TRUE(seen.insert(text).second);
        EXPECT_EQ(GUID(text.c_str()).toString(), text);
    }
    EXPECT_EQ(GUID(L"{A661D3E7-45CD-4E9F-8886-FD3EFE39BA63}"), GUID(L"a661d3e7-45cd-4e9f-8886-fd3efe39ba63"));
    GUID const nil(L"");
    EXPECT_EQ(nil.toString(), L"{00000000-0000-0000-0000-000000000000}");
    for (wchar_t const* const text :
         {L"{}", L"a661d3e7-45cd-4e9f-8886-fd3efe39ba6", L"a661d3e7-45cd-4e9f-8886-fd3efe39ba6g",
          L"a661d3e7045cd-4e9f-8886-fd3efe39ba63", L"{a661d3e7-45cd-4e9f-8886-fd3efe39ba63"}) {
        EXPECT_EQ(GUID(text), nil);
    }
    EXPECT_EQ(GUID(nullptr), nil);
}

TEST(PreferencesList, KeepsItsOrderAndFindsByName)
{
    orv::Preferences preferences;
    preferences.add(std::make_shared<orvsg::Value<bool, 0>>(L"FEATURE Export", true), nullptr);
    preferences.add(std::make_shared<orvsg::Value<int, 3>>(L"EXPORT_UNIT", 1), nullptr);
    preferences.add(std::make_shared<orvsg::Value<int, 3>>(L"EXPORT_UNIT", 2), nullptr);
    preferences.add(nullptr, nullptr);
    ASSERT_EQ(preferences.entries().size(), 3U);
    EXPECT_EQ(preferences.entries()[0].first->name(), L"FEATURE Export");
    auto const unit = std::dynamic_pointer_cast<orvsg::Value<int, 3>>(preferences.find(L"EXPORT_UNIT"));
    ASSERT_TRUE(unit);
    EXPECT_EQ(unit->get(), 1);
    EXPECT_FALSE(preferences.find(L"FEATURE"));
}

TEST(SystemInformation, NamesProgramSystemAndInstallation)
{
    using orvSysInfo::GeneralUtils;
    orvtest::HostSession const session;
    EXPECT_EQ(GeneralUtils::getApplicationInfo().rfind(L"Orvanta ", 0), 0U);
    EXPECT_EQ(GeneralUtils::getSystemInfo().rfind(L"Linux ", 0), 0U);
    EXPECT_NE(GeneralUtils::getSignature().find(L"g++ "), std::wstring::npos);
    std::wstring name;
    std::wstring version;
    EXPECT_TRUE(GeneralUtils::getOSName(name, version));
    EXPECT_FALSE(name.empty());
}

TEST(SystemInformation, TheInstallationKeepsItsId)
{
    using orvSysInfo::GeneralUtils;
    orvtest::HostSession const session;
    std::wstring const id = GeneralUtils::getHostID();
    EXPECT_EQ(id.size(), 38U);
    EXPECT_EQ(GeneralUtils::getHostID(), id);
    EXPECT_EQ(modeOf(session.dataDirectory() / "installation-id"), 0600U);
    std::ofstream(session.dataDirectory() / "installation-id") << "nonsense";
    std::wstring const other = GeneralUtils::getHostID();
    EXPECT_NE(other, id);
    EXPECT_EQ(GeneralUtils::getHostID(), other);
    EXPECT_EQ(GUID(other.c_str()).toString(), other);
}

TEST(SystemInformation, EmptyPiecesAreLeftOutOfTheMail)
{
    using orvSysInfo::GeneralUtils;
    EXPECT_EQ(GeneralUtils::compileSystemInfo(L"Orvanta 1", L"Linux", L"", L"g++", L""),
              L"Application: Orvanta 1\nSystem: Linux\nBuild: g++\n");
    EXPECT_EQ(GeneralUtils::compileSystemInfo(L"", L"", L"", L"", L""), L"");
}

} // namespace
