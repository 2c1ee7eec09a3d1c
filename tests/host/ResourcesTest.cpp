#include "host/orvsgutils/ResourceLoader.h"
#include "support/HostSession.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <climits>
#include <filesystem>
#include <set>
#include <string>

using orvsgutils::ResourceLoader;

namespace
{

std::wstring const library = L"cloudplugin.dll";

class Resources : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        ASSERT_NE(LoadLibraryW(std::filesystem::path(ORV_TEST_CARRIER).wstring().c_str()), nullptr);
    }
    void useLanguage(wchar_t const* language)
    {
        session.reconfigure([&](orvhost::Settings& settings) { settings.language = language; });
    }
    void useResolution(double dpi)
    {
        session.reconfigure([&](orvhost::Settings& settings) { settings.dpi = dpi; });
    }

    orvtest::HostSession session;
};

TEST_F(Resources, TextsComeInTheLanguageOfTheRun)
{
    EXPECT_EQ(ResourceLoader::getString(library, 108), L"Delete");
    std::set<std::wstring> texts;
    for (wchar_t const* const language : {L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"}) {
        useLanguage(language);
        EXPECT_EQ(ResourceLoader::getCurrentLocaleID(), language);
        texts.insert(ResourceLoader::getString(library, 109));
        EXPECT_EQ(ResourceLoader::getEngString(library, 109), L"Comment added successfully.");
        EXPECT_EQ(ResourceLoader::getString(library, 208), L" ");
        EXPECT_EQ(ResourceLoader::getString(library, 209), L"data:image/jpeg;base64,");
    }
    EXPECT_EQ(texts.size(), 8U);
}

TEST_F(Resources, ALanguageWithoutTextsIsAnsweredInEnglish)
{
    for (wchar_t const* const language : {L"it", L"", L"C", L"deutsch"}) {
        useLanguage(language);
        EXPECT_EQ(ResourceLoader::getCurrentLocaleID(), L"en");
        EXPECT_EQ(ResourceLoader::getString(library, 108), L"Delete");
    }
}

TEST_F(Resources, ACountryBehindTheLanguageIsDropped)
{
    useLanguage(L"de_AT.UTF-8");
    EXPECT_EQ(ResourceLoader::getCurrentLocaleID(), L"de");
    useLanguage(L"PT-br");
    EXPECT_EQ(ResourceLoader::getCurrentLocaleID(), L"pt");
}

TEST_F(Resources, AnUnknownTextIsEmpty)
{
    for (int const id : {0, 1, 102, 219, 65535, 65536, -1, INT_MAX, INT_MIN}) {
        EXPECT_EQ(ResourceLoader::getString(library, id), L"");
        EXPECT_EQ(ResourceLoader::getEngString(library, id), L"");
    }
    EXPECT_EQ(ResourceLoader::getString(L"nowhere.dll", 108), L"");
}

TEST_F(Resources, ImagesFollowTheResolutionInFourSteps)
{
    struct Case {
        double dpi;
        int id;
        int smallSize;
        int largeSize;
    };
    for (Case const& one :
         {Case{72, 1, 16, 32}, Case{96, 1, 16, 32}, Case{119.9, 1, 16, 32}, Case{120, 2, 20, 40}, Case{143, 2, 20, 40},
          Case{144, 3, 24, 48}, Case{191, 3, 24, 48}, Case{192, 4, 32, 64}, Case{400, 4, 32, 64}, Case{0, 1, 16, 32}}) {
        useResolution(one.dpi);
        EXPECT_EQ(ResourceLoader::getImage(1, 2, 3, 4), one.id) << one.dpi;
        EXPECT_EQ(ResourceLoader::m_Pixel.smallWidth, one.smallSize);
        EXPECT_EQ(ResourceLoader::m_Pixel.smallHeight, one.smallSize);
        EXPECT_EQ(ResourceLoader::m_Pixel.largeWidth, one.largeSize);
    }
    useResolution(120);
    EXPECT_DOUBLE_EQ(ResourceLoader::m_dpi, 120.0);
}

} // namespace
