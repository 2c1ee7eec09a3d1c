#include "platform/text/Text.h"

#include <gtest/gtest.h>

using namespace orvtext;

TEST(Text, GoesThroughUtf8AndBack)
{
    for (const std::wstring& text : {std::wstring(), std::wstring(L"plain"), std::wstring(L"Äé…"),
                                     std::wstring(L"日本"), std::wstring(L"a\U0001F600b"), std::wstring(L"\0x", 2)})
        EXPECT_EQ(fromUtf8(toUtf8(text)), text);
    EXPECT_EQ(toUtf8(L"\U0001F600"), "\xF0\x9F\x98\x80");
}

TEST(Text, ConvertsAlikeWhereverACharacterStandsInALongText)
{
    const struct {
        std::string bytes;
        std::wstring text;
    } cases[] = {{"\xC3\xA9", L"\u00E9"},
                 {"\xE6\x97\xA5", L"\u65E5"},
                 {"\xF0\x9F\x98\x80", L"\U0001F600"},
                 {std::string(1, '\0'), std::wstring(1, L'\0')}};
    for (std::size_t before = 0; before < 600; ++before) {
        for (const auto& each : cases) {
            const std::string bytes = std::string(before, 'a') + each.bytes + std::string(300, 'z');
            const std::wstring text = std::wstring(before, L'a') + each.text + std::wstring(300, L'z');
            ASSERT_EQ(fromUtf8(bytes), text) << before;
            ASSERT_EQ(toUtf8(text), bytes) << before;
        }
        const std::wstring head(before, L'a');
        ASSERT_EQ(fromUtf8(std::string(before, 'a') + "\xF0\x9F\x98"), head + L"\uFFFD") << before;
        ASSERT_EQ(fromUtf8(std::string(before, 'a') + "\xE6z"), head + L"\uFFFDz") << before;
    }
}

TEST(Text, ReplacesBrokenUtf8)
{
    const struct {
        const char* bytes;
        const wchar_t* text;
    } cases[] = {
        {"a\x80z", L"a\uFFFDz"},                           // a following byte alone
        {"\xC3", L"\uFFFD"},                               // cut short
        {"\xC3(", L"\uFFFD("},                             // the byte after stays
        {"\xC0\xAF", L"\uFFFD\uFFFD"},                     // overlong
        {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},           // a surrogate
        {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond the last code point
        {"\xE2\x82z", L"\uFFFDz"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(fromUtf8(each.bytes), each.text);
}

TEST(Text, ReplacesWhatIsNoCodePoint)
{
    EXPECT_EQ(toUtf8(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(std::wstring(1, static_cast<wchar_t>(0x110000))), "\xEF\xBF\xBD");
    EXPECT_EQ(fromUtf16(std::u16string(1, static_cast<char16_t>(0xDC00))), L"\uFFFD");
    EXPECT_EQ(fromUtf16(std::u16string{static_cast<char16_t>(0xD83D), u'x'}), L"\uFFFDx");
}

TEST(Text, CountsUtf16Units)
{
    EXPECT_EQ(utf16Length(L""), 0u);
    EXPECT_EQ(utf16Length(L"aé日"), 3u);
    EXPECT_EQ(utf16Length(L"\U0001F600"), 2u);
    EXPECT_EQ(fromUtf16(toUtf16(L"x\U0001F600y")), L"x\U0001F600y");
    EXPECT_EQ(fromUtf16Le("\x3D\xD8\x00\xDE", 2), L"\U0001F600");
}

TEST(Text, NarrowsToTheLowByteOfEachUnit)
{
    EXPECT_EQ(narrowLowBytes(L"abc"), "abc");
    EXPECT_EQ(narrowLowBytes(L"\u0141"), "A");
    EXPECT_EQ(narrowLowBytes(L"\U0001F600"), std::string("\x3D\x00", 2));
    EXPECT_EQ(narrowLowBytes(L"\u00E9"), "\xE9");
}

TEST(Text, WidensByteByByte)
{
    EXPECT_EQ(widenSignExtended("a\xE9"), L"a\uFFE9");
    EXPECT_EQ(widenBytes("a\xE9\xFF"), L"a\u00E9\u00FF");
    // Bytes that were widened by sign narrow to themselves again.
    EXPECT_EQ(narrowLowBytes(widenSignExtended("\x80\xFFz")), "\x80\xFFz");
}
