#include "resources/Expected.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace restest;

namespace
{

using Strings = std::map<unsigned, std::string>;

Strings stringsIn(const Language& language)
{
    Strings result;
    for (const auto& [id, text] : stringsOf(resources(), language.tag)) {
        result[id] = utf8(text);
    }
    return result;
}

std::string link(const std::string& target)
{
    return "<a href=\"" + target + "\">" + target + "</a>";
}

const std::string host = ORVANTA_SERVICE_HOST;

const Strings englishTexts{
    {103, "Share"},
    {104, "Enter comma separated email addresses"},
    {105, "(Optional)"},
    {106, "Login"},
    {107, "Logout"},
    {108, "Delete"},
    {109, "Comment added successfully."},
    {110, "Please enter valid text comment."},
    {111, "Something went wrong, Check your network connection."},
    {112, "Cloud"},
    {113, "Tools"},
    {114, "Cloud"},
    {115, "Connect to cloud"},
    {116, "Uploading file to " + host},
    {117, " is successfully uploaded to " + host},
    {118, " saved"},
    {119, "Push to cloud"},
    {120, "You are logged in to Orvanta cloud as "},
    {121, "Please login to Orvanta cloud."},
    {122, "Orvanta Cloud is available to all Orvanta for Windows customers. To create an account, please visit  " +
              link(ORVANTA_SERVICE_URL) + " or write to " + link(ORVANTA_SUPPORT_ADDRESS) + "."},
    {129, "File upload has failed. Please try again."},
    {130, "Successfully logged in to " + host},
    {131, "Login failed, please login again."},
    {132, "shared successfully. "},
    {133, "File sharing has failed. Please try again."},
    {205, "desktop"},
    {206, "text"},
    {207, "view"},
    {208, " "},
    {209, "data:image/jpeg;base64,"},
    {210, "STL (*.stl)|*.stl||"},
    {211, "3DS (*.3ds)|*.3ds||"},
    {212, "OBJ (*.obj)|*.obj||"},
    {213, "PDF (*.pdf)|*.pdf||"},
    {214, "BOM Report (*.bompdf)|*.bompdf||"},
    {215, "BOM Report (*.csv)|*.csv||"},
    {216, "Add Comment"},
    {217, "Feeds"},
    {218, "Feed Tools"},
    {2007, "Login to Orvanta Cloud"},
    {2008, "Push to Orvanta Cloud"},
    {2009, "Share"},
    {2010, "Refresh"},
};

std::size_t leadingBlanks(const std::string& text)
{
    return std::min(text.find_first_not_of(' '), text.size());
}

std::size_t trailingBlanks(const std::string& text)
{
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string::npos ? text.size() : text.size() - last - 1;
}

class StringsTest : public testing::TestWithParam<Language>
{
protected:
    Strings texts = stringsIn(GetParam());
};

} // namespace

TEST(EnglishStrings, AreTheGivenTexts)
{
    EXPECT_EQ(englishTexts.size(), 43U);
    EXPECT_EQ(stringsIn(languages[0]), englishTexts);
}

TEST_P(StringsTest, HoldEveryIdAndNoOther)
{
    for (const auto& [id, text] : englishTexts) {
        EXPECT_TRUE(texts.contains(id)) << id;
    }
    EXPECT_EQ(texts.size(), englishTexts.size());
}

TEST_P(StringsTest, KeepTheBlanksAtBothEnds)
{
    for (const auto& [id, text] : englishTexts) {
        EXPECT_EQ(leadingBlanks(texts[id]), leadingBlanks(text)) << id << ": " << texts[id];
        EXPECT_EQ(trailingBlanks(texts[id]), trailingBlanks(text)) << id << ": " << texts[id];
    }
}

TEST_P(StringsTest, EndWithTheHostNameWhereTheyNameIt)
{
    for (const unsigned id : {116U, 117U, 130U}) {
        EXPECT_TRUE(texts[id].ends_with(" " + host)) << id << ": " << texts[id];
    }
}

TEST_P(StringsTest, LeaveValuesUntranslated)
{
    for (unsigned id = 205; id <= 209; ++id) {
        EXPECT_EQ(texts[id], englishTexts.at(id));
    }
}

TEST_P(StringsTest, KeepThePatternsOfTheSaveFilters)
{
    for (unsigned id = 210; id <= 215; ++id) {
        const std::string& given = englishTexts.at(id);
        EXPECT_TRUE(texts[id].ends_with(given.substr(given.rfind(" (")))) << id << ": " << texts[id];
        EXPECT_EQ(std::count(texts[id].begin(), texts[id].end(), '|'), 3) << id << ": " << texts[id];
    }
}

TEST_P(StringsTest, TellLoginFromLogout)
{
    EXPECT_NE(texts[106], texts[107]);
}

TEST_P(StringsTest, HaveNoHyphenInTheSideBarTitle)
{
    EXPECT_EQ(texts[217].find('-'), std::string::npos);
}

TEST_P(StringsTest, LinkTheServiceAndTheSupportAddress)
{
    const std::string& text = texts[122];
    const std::string service = "  " + link(ORVANTA_SERVICE_URL);
    const std::string support = link(ORVANTA_SUPPORT_ADDRESS);
    const std::size_t first = text.find(service);
    const std::size_t second = text.find(support);
    ASSERT_NE(first, std::string::npos) << text;
    ASSERT_NE(second, std::string::npos) << text;
    EXPECT_NE(text[first - 1], ' ') << "two blanks, not more";
    EXPECT_LT(first + service.size(), second);
    EXPECT_EQ(text.find("<a", second + 1), std::string::npos);
}

TEST_P(StringsTest, NameTheProductAlike)
{
    for (const unsigned id : {120U, 121U, 122U, 2007U, 2008U}) {
        const std::string& text = texts[id];
        const bool lower = GetParam().tag == english && (id == 120 || id == 121); // given so
        EXPECT_NE(text.find(lower ? "Orvanta cloud" : "Orvanta Cloud"), std::string::npos) << id << ": " << text;
    }
}

TEST_P(StringsTest, AreTranslated)
{
    if (GetParam().tag == english) {
        GTEST_SKIP() << "English is the original";
    }
    // Words that a language shares with English. Values and names of formats stand as they are everywhere.
    const std::set<std::pair<std::string, unsigned>> alike{{"de", 105}, {"de", 112}, {"de", 114},
                                                           {"de", 217}, {"fr", 112}, {"fr", 114}};
    for (const auto& [id, text] : englishTexts) {
        const bool isAlike = (id >= 205 && id <= 213) || alike.contains({GetParam().code, id});
        EXPECT_EQ(texts[id] == text, isAlike) << id << ": " << texts[id];
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, StringsTest, testing::ValuesIn(languages),
                         [](const auto& test) { return std::string(test.param.code); });
