#include "afxwin.h"
#include "platform/Process.h"
#include "windows.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{
const std::wstring folder = std::filesystem::path(TEST_LIBRARIES).wstring();
}

TEST(Module, LoadsALibraryUnderItsOtherName)
{
    HMODULE module = LoadLibraryW((folder + L"/platformtestlibrary.dll").c_str());
    ASSERT_NE(module, nullptr);
    auto* answer = reinterpret_cast<int (*)()>(GetProcAddress(module, "answer"));
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer(), 42);
    EXPECT_EQ(GetProcAddress(module, "question"), nullptr);
    EXPECT_EQ(GetModuleHandleW(L"PlatformTestLibrary.dll"), module);
    wchar_t text[32];
    EXPECT_EQ(LoadStringW(module, 100, text, 32), 5);
    EXPECT_EQ(LoadLibraryW((folder + L"/platformtestlibrary.so").c_str()), module);
    EXPECT_TRUE(FreeLibrary(module));
    EXPECT_EQ(GetModuleHandleW(L"platformtestlibrary.dll"), module); // one use is left
    EXPECT_TRUE(FreeLibrary(module));
    EXPECT_FALSE(FreeLibrary(module));
    EXPECT_EQ(GetModuleHandleW(L"platformtestlibrary.dll"), nullptr);
}

TEST(Module, AnUnloadedLibraryIsNoSourceOfResourcesAnyMore)
{
    HMODULE module = LoadLibraryW((folder + L"/platformtestlibrary.dll").c_str());
    ASSERT_NE(module, nullptr);
    AfxSetResourceHandle(module);
    EXPECT_EQ(AfxGetResourceHandle(), module);
    EXPECT_TRUE(FreeLibrary(module));
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
}

TEST(Module, SaysWhyALibraryCannotBeLoaded)
{
    EXPECT_EQ(LoadLibraryW((folder + L"/brokenlibrary.dll").c_str()), nullptr);
    EXPECT_EQ(orvplatform::lastModuleError(), L"file too short");
    EXPECT_EQ(GetLastError(), ERROR_MOD_NOT_FOUND);
    EXPECT_EQ(LoadLibraryW(L"no such library.dll"), nullptr);
    EXPECT_EQ(orvplatform::lastModuleError(), L"cannot open shared object file: No such file or directory");
    EXPECT_EQ(LoadLibraryW(nullptr), nullptr);
    EXPECT_EQ(orvplatform::lastModuleError(), L"no name was given");
}

TEST(Module, LooksInTheGivenDirectory)
{
    SetDllDirectoryW(folder.c_str());
    HMODULE module = LoadLibraryW(L"platformtestlibrary.dll");
    EXPECT_NE(module, nullptr);
    EXPECT_TRUE(FreeLibrary(module));
    SetDllDirectoryW(nullptr);
    EXPECT_EQ(LoadLibraryW(L"platformtestlibrary.dll"), nullptr);
}

TEST(Module, KnowsTheProgramAndLinkedLibraries)
{
    HMODULE program = GetModuleHandleW(nullptr);
    ASSERT_NE(program, nullptr);
    wchar_t path[MAX_PATH];
    EXPECT_GT(GetModuleFileNameW(program, path, MAX_PATH), 0u);
    EXPECT_NE(std::wstring(path).find(L"test_platform_Module"), std::wstring::npos);
    EXPECT_NE(GetModuleHandleW(L"orvplatform.dll"), nullptr);
    EXPECT_EQ(GetModuleHandleW(L"nothing.dll"), nullptr);
}

TEST(Module, TakesResourcesFromARegisteredFile)
{
    EXPECT_FALSE(orvplatform::registerModuleFile(L"other.dll", TEST_LIBRARIES "/missing"));
    EXPECT_TRUE(orvplatform::registerModuleFile(L"other.dll", TEST_RESOURCES));
    EXPECT_NE(FindResourceW(GetModuleHandleW(L"other.dll"), MAKEINTRESOURCEW(10), RT_DIALOG), nullptr);
}
