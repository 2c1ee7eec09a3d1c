#include "afxwin.h"
#include "objbase.h"
#include "platform/Process.h"
#include "platform/text/Text.h"
#include "windows.h"
#include "wininet.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <netdb.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace
{
int namesAsked = 0; // how often a name was to be looked up, which sends packets

// Whether the system's table of routes has one for everything.
bool hasDefaultRoute()
{
    std::ifstream table("/proc/net/route");
    std::string line;
    std::getline(table, line);
    while (std::getline(table, line)) {
        std::istringstream words(line);
        std::string interface, destination;
        words >> interface >> destination;
        if (destination == "00000000")
            return true;
    }
    return false;
}

class System : public ::testing::Test
{
protected:
    System() : folder(fs::temp_directory_path() / ("orvsystem" + std::to_string(getpid())))
    {
        fs::remove_all(folder);
        fs::create_directory(folder);
    }
    ~System() override { fs::remove_all(folder); }
    std::wstring path(const char* name) const { return (folder / name).wstring(); }
    static unsigned mode(const fs::path& file)
    {
        struct stat status {
        };
        return stat(file.c_str(), &status) == 0 ? status.st_mode & 0777u : 0u;
    }

    const fs::path folder;
};
} // namespace

// Stands before the system's own, also for the library under test.
extern "C" int getaddrinfo(const char* name, const char* service, const addrinfo* hints, addrinfo** found)
{
    if (name && !(hints && (hints->ai_flags & AI_NUMERICHOST)))
        ++namesAsked;
    using Function = int (*)(const char*, const char*, const addrinfo*, addrinfo**);
    static const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return real(name, service, hints, found);
}

TEST_F(System, CreatesFilesForTheUserAlone)
{
    HANDLE file = CreateFileW(path("temp").c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_EQ(mode(folder / "temp"), 0600u);
}

TEST_F(System, EmptiesAFileThatIsThere)
{
    std::ofstream(folder / "temp") << "content";
    CloseHandle(CreateFileW(path("temp").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    EXPECT_EQ(fs::file_size(folder / "temp"), 0u);
}

TEST_F(System, TellsWhyAFileCannotBeMade)
{
    const HANDLE none = CreateFileW(path("missing/temp").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    EXPECT_EQ(none, INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
    EXPECT_FALSE(CloseHandle(INVALID_HANDLE_VALUE));
}

TEST_F(System, MakesAndRemovesDirectories)
{
    EXPECT_TRUE(CreateDirectoryW(path("Cloud").c_str(), nullptr));
    EXPECT_EQ(mode(folder / "Cloud"), 0700u);
    EXPECT_FALSE(CreateDirectoryW(path("Cloud").c_str(), nullptr));
    EXPECT_EQ(GetLastError(), ERROR_ALREADY_EXISTS);
    std::ofstream(folder / "Cloud" / "share") << "";
    EXPECT_FALSE(RemoveDirectoryW(path("Cloud").c_str()));
    EXPECT_EQ(GetLastError(), ERROR_DIR_NOT_EMPTY);
    EXPECT_TRUE(DeleteFileW((folder.wstring() + L"/Cloud/share").c_str()));
    EXPECT_TRUE(RemoveDirectoryW(path("Cloud").c_str()));
    EXPECT_FALSE(DeleteFileW(path("Cloud").c_str()));
}

TEST_F(System, TakesABackslashForALetterOfTheName)
{
    EXPECT_TRUE(CreateDirectoryW(path("a\\b").c_str(), nullptr));
    EXPECT_TRUE(fs::is_directory(folder / "a\\b"));
    CloseHandle(CreateFileW(path("a\\b/c\\d").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    EXPECT_TRUE(fs::is_regular_file(folder / "a\\b" / "c\\d"));
    EXPECT_TRUE(DeleteFileW(path("a\\b/c\\d").c_str()));
    EXPECT_TRUE(RemoveDirectoryW(path("a\\b").c_str()));
}

TEST_F(System, NamesTheComputer)
{
    wchar_t name[124];
    DWORD size = 124;
    ASSERT_TRUE(GetComputerNameW(name, &size));
    EXPECT_EQ(std::wcslen(name), size);
    EXPECT_GT(size, 0u);
    DWORD tooSmall = 1;
    EXPECT_FALSE(GetComputerNameW(name, &tooSmall));
    EXPECT_EQ(tooSmall, size + 1);
    EXPECT_EQ(GetLastError(), ERROR_BUFFER_OVERFLOW);
}

TEST_F(System, KnowsWhetherTheServiceHasARoute)
{
    orvplatform::setServiceAddress("127.0.0.1", 8640); // nothing listens there, and nothing needs to
    EXPECT_TRUE(InternetGetConnectedState(nullptr, 0));
    for (const char* local : {"localhost", "LocalHost", "::ffff:127.0.0.1"}) {
        orvplatform::setServiceAddress(local, 8640);
        EXPECT_TRUE(InternetGetConnectedState(nullptr, 0)) << local;
    }
    orvplatform::setServiceAddress("255.255.255.255", 80); // a plain socket may not broadcast
    DWORD flags = 0;
    EXPECT_FALSE(InternetGetConnectedState(&flags, 0));
    EXPECT_EQ(flags, INTERNET_CONNECTION_OFFLINE);
    orvplatform::setConnectedForTest(true);
    EXPECT_TRUE(InternetGetConnectedState(nullptr, 0));
    orvplatform::setServiceAddress("127.0.0.1", 8640);
    orvplatform::setConnectedForTest(false);
    EXPECT_FALSE(InternetGetConnectedState(nullptr, 0));
    orvplatform::setConnectedForTest(std::nullopt);
    EXPECT_TRUE(InternetGetConnectedState(nullptr, 0));
}

TEST_F(System, AsksNobodyForTheAddressOfAName)
{
    orvplatform::setServiceAddress("no.such.host.invalid", 80);
    namesAsked = 0;
    const BOOL connected = InternetGetConnectedState(nullptr, 0);
    EXPECT_EQ(namesAsked, 0);
    if (hasDefaultRoute()) {
        EXPECT_TRUE(connected);
    }
    orvplatform::setServiceAddress("127.0.0.1", 8640);
}

TEST_F(System, KeepsABusyCursorToItselfBeforeThereIsAnApplication)
{
    {
        CWaitCursor cursor;
        cursor.Restore();
        EXPECT_EQ(orvplatform::waitCursorDepth(), 1);
    }
    EXPECT_EQ(orvplatform::waitCursorDepth(), 0);
}

TEST_F(System, StreamsAMemoryBlock)
{
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 5);
    std::memcpy(GlobalLock(block), "abcde", 5);
    GlobalUnlock(block);
    IStream* stream = nullptr;
    ASSERT_EQ(CreateStreamOnHGlobal(block, FALSE, &stream), S_OK);
    char text[4] = {};
    ULONG count = 0;
    EXPECT_EQ(stream->Read(text, 3, &count), S_OK);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(stream->Read(text, 3, &count), S_FALSE);
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(stream->AddRef(), 2u);
    EXPECT_EQ(stream->Release(), 1u);
    EXPECT_EQ(stream->Release(), 0u);
    EXPECT_EQ(GlobalSize(block), 5u);
    EXPECT_EQ(GlobalFree(block), nullptr);
    EXPECT_EQ(GlobalFree(block), block);
    EXPECT_EQ(GlobalLock(block), nullptr);
    EXPECT_EQ(CreateStreamOnHGlobal(block, FALSE, &stream), E_INVALIDARG);
}

TEST_F(System, FreesABlockWithItsStream)
{
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 5);
    IStream* stream = nullptr;
    ASSERT_EQ(CreateStreamOnHGlobal(block, TRUE, &stream), S_OK);
    stream->Release();
    EXPECT_EQ(GlobalLock(block), nullptr);
}

TEST_F(System, NumbersMessagesByName)
{
    const UINT first = RegisterWindowMessageW(L"DOCUMENT_OPENED_IN_ORVANTA");
    EXPECT_GE(first, 0xC000u);
    EXPECT_EQ(RegisterWindowMessageW(L"document_opened_in_orvanta"), first);
    EXPECT_NE(RegisterWindowMessageW(L"DOCUMENT_CLOSED_IN_ORVANTA"), first);
    EXPECT_EQ(RegisterWindowMessageW(L""), 0u);
}

TEST_F(System, OpensAddressesThroughTheHook)
{
    std::vector<std::wstring> opened;
    orvplatform::setOpenAddressHook([&](const std::wstring& address) {
        opened.push_back(address);
        return address != L"bad:";
    });
    EXPECT_GT(reinterpret_cast<LONG_PTR>(
                  ShellExecuteW(nullptr, L"open", L"https://example.test/", nullptr, nullptr, SW_SHOWNORMAL)),
              32);
    EXPECT_LE(reinterpret_cast<LONG_PTR>(ShellExecuteW(nullptr, L"open", L"bad:", nullptr, nullptr, 1)), 32);
    EXPECT_EQ(opened, (std::vector<std::wstring>{L"https://example.test/", L"bad:"}));
    orvplatform::setOpenAddressHook({});
}

TEST_F(System, RoundsTheScaledNumber)
{
    EXPECT_EQ(MulDiv(7, 7, 4), 12);
    EXPECT_EQ(MulDiv(14, 13, 8), 23);
    EXPECT_EQ(MulDiv(-7, 7, 4), -12);
    EXPECT_EQ(MulDiv(1, 1, 0), -1);
}
