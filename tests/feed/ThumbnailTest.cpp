#include "feed/Thumbnail.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

std::wstring const prefix = L"data:image/jpeg;base64,";

Feed feedWith(std::wstring thumbnail, std::wstring source = L"desktop")
{
    Feed feed;
    feed.thumbnail = std::move(thumbnail);
    feed.source = std::move(source);
    return feed;
}

std::string decoded(std::wstring const& payload)
{
    return decodeThumbnail(feedWith(prefix + payload));
}

TEST(Thumbnail, NeedsMoreThanThePrefix)
{
    EXPECT_FALSE(hasThumbnail(feedWith(L"")));
    EXPECT_FALSE(hasThumbnail(feedWith(prefix))) << "23 characters";
    EXPECT_TRUE(hasThumbnail(feedWith(prefix + L"x"))) << "24 characters";
}

TEST(Thumbnail, CountsSixteenBitCharacters)
{
    EXPECT_TRUE(hasThumbnail(feedWith(std::wstring(12, L'\U0001f600'))));
    EXPECT_FALSE(hasThumbnail(feedWith(std::wstring(11, L'\U0001f600') + L"x")));
}

TEST(Thumbnail, DecodesThePayload)
{
    EXPECT_EQ(decoded(L"Rm9vYmFy"), "Foobar");
    EXPECT_EQ(decoded(L"Rm9vYmE="), "Fooba");
    EXPECT_EQ(decoded(L"Rm9vYg=="), "Foob");
    EXPECT_EQ(decoded(L""), "");
}

TEST(Thumbnail, SkipsThePrefixWithoutLookingAtIt)
{
    EXPECT_EQ(decodeThumbnail(feedWith(std::wstring(23, L'?') + L"Rm9v")), "Foo");
}

TEST(Thumbnail, OfTheWebClientHasAShorterPrefix)
{
    EXPECT_EQ(decodeThumbnail(feedWith(L"data:image/png;base64,Rm9v", L"web")), "Foo");
    EXPECT_EQ(decodeThumbnail(feedWith(L"data:image/png;base64,xRm9v", L"Web")), "Foo") << "\"Web\" isn't \"web\"";
}

TEST(Thumbnail, UndoesTheEscapeOfPlusSignsInLowerCaseAlone)
{
    EXPECT_EQ(decoded(L"%2b%2b%2b%2b"), "\xfb\xef\xbe");
    EXPECT_EQ(decoded(L"++++"), "\xfb\xef\xbe");
    EXPECT_EQ(decoded(L"Rm9v%2B%2B%2B%2B"), "Foo") << "decoding stops at the percent sign";
}

TEST(Thumbnail, DropsLineBreaks)
{
    EXPECT_EQ(decoded(L"Rm\r\n9v\nYm\rFy\n"), "Foobar");
    EXPECT_EQ(decoded(L"Rm9v%2\nb%2\nb%2\nb%2\nb"), "Foo") << "after the escapes: one with a break in it is none";
}

TEST(Thumbnail, StopsAtAStrayCharacter)
{
    EXPECT_EQ(decoded(L"Rm9v YmFy"), "Foo");
    EXPECT_EQ(decoded(L"Rm9vYm-y"), "Foob");
    EXPECT_EQ(decoded(L"Rm9v=YmFy"), "Foo");
    EXPECT_EQ(decoded(L"\u20acRm9v"), "") << "its low byte, 0xAC, is no base64 character";
}

TEST(Thumbnail, CutsEveryCharacterToItsLowByte)
{
    EXPECT_EQ(decoded(L"\u0152m9v"), "Foo") << "U+0152 ends in the byte of an R";
}

TEST(Base64, WritesLessOfALastShortGroup)
{
    EXPECT_EQ(decodeBase64("Rm9vY"), "Foo") << "one character, no byte";
    EXPECT_EQ(decodeBase64("Rm9vYg"), "Foob");
    EXPECT_EQ(decodeBase64("Rm9vYmE"), "Fooba");
    EXPECT_EQ(decodeBase64(""), "");
}

TEST(Base64, KnowsTheStandardsExamples)
{
    struct {
        char const* bytes;
        char const* text;
    } const cases[] = {{"", ""},
                       {"f", "Zg=="},
                       {"fo", "Zm8="},
                       {"foo", "Zm9v"},
                       {"foob", "Zm9vYg=="},
                       {"fooba", "Zm9vYmE="},
                       {"foobar", "Zm9vYmFy"}};
    for (auto const& [bytes, text] : cases) {
        EXPECT_EQ(encodeBase64(bytes), text);
        EXPECT_EQ(decodeBase64(text), bytes);
    }
}

TEST(Base64, BringsEveryByteBack)
{
    std::string bytes;
    for (int i = 0; i < 1000; ++i) {
        bytes.push_back(static_cast<char>(i * 7 + i / 256));
        EXPECT_EQ(decodeBase64(encodeBase64(bytes)), bytes);
    }
}

} // namespace
