#include "platform/Process.h"
#include "platform/windows/ResourceFile.h"
#include "windows.h"

#include "afxcmdtarget.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

using orvplatform::ResourceFile;
using orvplatform::ResourceName;

namespace
{
std::vector<unsigned char> testBytes()
{
    bool readable = false;
    return orvplatform::readResources(TEST_RESOURCES, readable);
}

class Resource : public ::testing::Test
{
protected:
    Resource()
    {
        EXPECT_TRUE(orvplatform::registerModuleFile(L"test.dll", TEST_RESOURCES));
        module = GetModuleHandleW(L"test.dll");
    }
    ~Resource() override { SetThreadUILanguage(0); }
    std::wstring string(UINT id) const
    {
        wchar_t buffer[64];
        LoadStringW(module, id, buffer, 64);
        return buffer;
    }
    HMODULE module;
};
} // namespace

TEST_F(Resource, LooksInTheThreadsLanguageThenEnglish)
{
    EXPECT_EQ(string(100), L"first");
    SetThreadUILanguage(0x040C);
    EXPECT_EQ(string(100), L"premier");
    SetThreadUILanguage(0x0C0C); // another French
    EXPECT_EQ(string(100), L"premier");
    SetThreadUILanguage(0x0411);
    EXPECT_EQ(string(100), L"最初 😀");
    SetThreadUILanguage(0x0407); // not there
    EXPECT_EQ(string(100), L"first");
    EXPECT_EQ(string(200), L"only in English");
}

TEST_F(Resource, KeepsBlanksAndFindsTheEndsOfBlocks)
{
    EXPECT_EQ(string(101), L" blanks ");
    EXPECT_EQ(string(115), L"last of its block");
    EXPECT_EQ(string(116), L"first of the next");
    EXPECT_EQ(string(102), L"");
    EXPECT_EQ(string(9999), L"");
    EXPECT_EQ(string(70000), L"");
}

TEST_F(Resource, CutsAStringToItsBuffer)
{
    wchar_t small[4];
    EXPECT_EQ(LoadStringW(module, 100, small, 4), 3);
    EXPECT_STREQ(small, L"fir");
    LPCWSTR place = nullptr;
    EXPECT_EQ(LoadStringW(module, 100, reinterpret_cast<LPWSTR>(&place), 0), 5);
    EXPECT_STREQ(place, L"first");
    CString text;
    EXPECT_TRUE(text.LoadString(module, 115));
    EXPECT_EQ(text, L"last of its block");
    EXPECT_FALSE(text.LoadString(module, 9999));
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(Resource, FindsPicturesByNumberAndType)
{
    HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(6), L"PNG");
    ASSERT_NE(resource, nullptr);
    EXPECT_EQ(FindResourceW(module, L"#6", L"png"), resource);
    const auto* bytes = static_cast<const unsigned char*>(LockResource(LoadResource(module, resource)));
    ASSERT_GT(SizeofResource(module, resource), 8u);
    EXPECT_EQ(bytes[1], 'P');
    EXPECT_EQ(FindResourceW(module, MAKEINTRESOURCEW(600), L"PNG"), nullptr);
    EXPECT_EQ(LockResource(nullptr), nullptr);
    EXPECT_EQ(SizeofResource(module, nullptr), 0u);
}

TEST_F(Resource, LooksInOtherModulesForWhatTheChosenOneLacks)
{
    AfxSetResourceHandle(GetModuleHandleW(nullptr));
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(10), RT_DIALOG), module);
    AfxSetResourceHandle(nullptr);
}

TEST(ResourceFile, ReadsNothingFromNothing)
{
    EXPECT_TRUE(ResourceFile().entries().empty());
    EXPECT_FALSE(ResourceFile(std::vector<unsigned char>()).isDamaged());
}

TEST(ResourceFile, KeepsWhatStandsBeforeTheDamage)
{
    const std::vector<unsigned char> whole = testBytes();
    const std::size_t count = ResourceFile(whole).entries().size();
    ASSERT_GT(count, 5u);
    std::size_t last = 0;
    for (std::size_t length = 0; length < whole.size(); length += 97) {
        const ResourceFile cut(std::vector<unsigned char>(whole.begin(), whole.begin() + static_cast<long>(length)));
        EXPECT_GE(cut.entries().size(), last);
        EXPECT_LE(cut.entries().size(), count);
        last = cut.entries().size();
    }
}

TEST(ResourceFile, SurvivesAnyBytes)
{
    std::mt19937 random(4711);
    const std::vector<unsigned char> whole = testBytes();
    for (int round = 0; round < 400; ++round) {
        std::vector<unsigned char> bytes(whole.begin(), whole.begin() + static_cast<long>(whole.size() / 2));
        for (int i = 0; i < 12; ++i)
            bytes[random() % bytes.size()] = static_cast<unsigned char>(random());
        const ResourceFile file(std::move(bytes));
        for (const UINT id : {100u, 101u, 115u, 116u})
            file.string(id, 0x0409);
        for (const auto& entry : file.entries())
            EXPECT_LE(entry.data.size(), whole.size());
    }
}

TEST(ResourceFile, RefusesSizesThatWrapAround)
{
    std::vector<unsigned char> bytes(64, 0xFF);
    const ResourceFile file(bytes);
    EXPECT_TRUE(file.isDamaged());
    EXPECT_TRUE(file.entries().empty());
}

TEST(ResourceFile, ReadsSectionsOfLibrariesAndSurvivesBrokenOnes)
{
    bool readable = false;
    const std::string library = TEST_LIBRARIES "/platformtestlibrary.so";
    EXPECT_EQ(orvplatform::readResources(library, readable), testBytes());
    EXPECT_TRUE(orvplatform::readResources(TEST_LIBRARIES "/brokenlibrary.so", readable).empty());
    EXPECT_TRUE(readable);
    EXPECT_TRUE(orvplatform::readResources(TEST_LIBRARIES "/missing.so", readable).empty());
    EXPECT_FALSE(readable);

    std::ifstream file(library, std::ios::binary);
    const std::string whole((std::istreambuf_iterator<char>(file)), {});
    const std::string damagedPath = ::testing::TempDir() + "damaged.so";
    std::mt19937 random(12);
    for (int round = 0; round < 40; ++round) {
        std::string bytes = whole.substr(0, round % 2 ? whole.size() : random() % whole.size());
        for (std::size_t i = 4; i < 64 && i < bytes.size(); ++i)
            if (random() % 8 == 0)
                bytes[i] = static_cast<char>(random());
        std::ofstream(damagedPath, std::ios::binary) << bytes;
        EXPECT_LE(orvplatform::readResources(damagedPath, readable).size(), whole.size());
    }
    std::remove(damagedPath.c_str());
}
