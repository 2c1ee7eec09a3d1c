// The texts that a captured comment carries besides its words: the time and the picture.

#include "feed/ForeignTimes.h"
#include "feed/ViewCapture.h"
#include "support/PluginEnvironment.h"

#include <gtest/gtest.h>

#include <ctime>
#include <cwchar>
#include <ios>
#include <locale>
#include <string>

namespace
{

TEST(CommentTime, HasTheMonthInTheMinutesPlace)
{
    std::tm moment{};
    moment.tm_year = 2026 - 1900;
    moment.tm_mon = 10;
    moment.tm_mday = 15;
    moment.tm_hour = 16;
    moment.tm_min = 41;
    EXPECT_EQ(commentTimeText(moment), L"Nov 15, 2026 16:11 PM");
    moment.tm_hour = 4;
    moment.tm_mon = 2;
    moment.tm_mday = 5;
    EXPECT_EQ(commentTimeText(moment), L"Mar 05, 2026 04:03 AM");
}

/// Writes nothing, where streams are left to the locale of the process.
class SilentTimes : public std::time_put<wchar_t>
{
protected:
    iter_type do_put(iter_type place, std::ios_base&, wchar_t, std::tm const*, char, char) const override
    {
        return place;
    }
};

TEST(CommentTime, IsEnglishWhateverTheLocale)
{
    std::tm moment{};
    moment.tm_year = 2026 - 1900;
    moment.tm_mon = 10;
    moment.tm_mday = 15;
    moment.tm_hour = 16;
    orvtest::ForeignTimes const foreign;
    if (!foreign.isSet) {
        GTEST_SKIP() << "skipped: this system has no compiled locale to change";
    }
    wchar_t text[32];
    ASSERT_NE(std::wcsftime(text, 32, L"%b %p", &moment), 0U);
    ASSERT_STREQ(text, L"Xyz QM") << "the locale is in force";
    std::locale const before = std::locale::global(std::locale(std::locale::classic(), new SilentTimes));
    std::wstring const written = commentTimeText(moment);
    std::locale::global(before);
    EXPECT_EQ(written, L"Nov 15, 2026 16:11 PM");
}

TEST(CommentTime, IsEmptyWhereItDoesNotFit)
{
    std::tm moment{};
    moment.tm_mday = 1;
    EXPECT_EQ(commentTimeText(moment).size(), 21U);
    EXPECT_EQ(commentTimeText(moment, 22).size(), 21U);
    EXPECT_EQ(commentTimeText(moment, 21), L"") << "the closing zero needs room as well";
}

TEST(EncodedFile, IsOneLineOfBase64)
{
    orvtest::PluginEnvironment const environment;
    orvtest::writeFile(environment.data / "picture", std::string(300, '\xFF'));
    std::wstring const text = encodeFileBase64((environment.data / "picture").wstring());
    EXPECT_EQ(text, std::wstring(400, L'/'));
    orvtest::writeFile(environment.data / "picture", "f");
    EXPECT_EQ(encodeFileBase64((environment.data / "picture").wstring()), L"Zg==");
}

TEST(EncodedFile, IsEmptyWhereThereIsNone)
{
    orvtest::PluginEnvironment const environment;
    EXPECT_EQ(encodeFileBase64((environment.data / "nothing").wstring()), L"");
    EXPECT_EQ(encodeFileBase64(environment.data.wstring()), L"") << "a directory";
    orvtest::writeFile(environment.data / "empty", "");
    EXPECT_EQ(encodeFileBase64((environment.data / "empty").wstring()), L"");
}

} // namespace
