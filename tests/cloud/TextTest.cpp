#include "cloud/base/Text.h"

#include "cloud/base/Address.h"
#include "cloud/base/Secret.h"

#include <gtest/gtest.h>
#include <regex>

using namespace orvcloud;

TEST(Text, KnowsWellFormedUtf8)
{
    for (const char* good :
         {"", "plain", "\xC3\xA4", "\xE2\x82\xAC", "\xED\x9F\xBF", "\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isUtf8(good)) << good;
    for (const char* bad : {"\x80", "\xC0\x80", "\xC3", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
                            "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE2\x82", "a\xFF"})
        EXPECT_FALSE(isUtf8(bad)) << bad;
}

TEST(Text, WritesJsonStringsInAscii)
{
    EXPECT_EQ(jsonString("a\"\\\n\xC3\xA4\xF0\x9F\x98\x80"), "\"a\\\"\\\\\\n\\u00e4\\ud83d\\ude00\"");
    EXPECT_EQ(jsonString(""), "\"\"");
}

TEST(Text, TellsMailAddresses)
{
    for (const char* good : {"a@b", "ann.example@x.org", "o'neil+cad@x-y.example", "j\xC3\xB6rg@x.org"})
        EXPECT_TRUE(isMailAddress(good)) << good;
    for (const char* bad : {"", "a", "@b", "a@", "a@b@c", "a b@c", "a@b\r\nBcc: c@d", "<a@b>", "a,b@c", "\"a\"@b"})
        EXPECT_FALSE(isMailAddress(bad)) << bad;
    EXPECT_FALSE(isMailAddress(std::string(250, 'a') + "@b.org"));
}

TEST(Text, SplitsAndTrims)
{
    EXPECT_EQ(split("a,,b;c", ",;"), (std::vector<std::string_view>{"a", "", "b", "c"}));
    EXPECT_EQ(trimmed(" \t x y\r\n"), "x y");
    EXPECT_EQ(trimmed("  "), "");
}

TEST(Text, WritesMoments)
{
    EXPECT_EQ(isoTime(0), "1970-01-01T00:00:00Z");
    EXPECT_EQ(httpTime(1'800'000'000), "Fri, 15 Jan 2027 08:00:00 GMT");
}

TEST(Secret, GivesOutUuidsOfVersionFour)
{
    prepareSecrets();
    const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    const std::string first = randomUuid();
    EXPECT_TRUE(std::regex_match(first, form)) << first;
    EXPECT_NE(first, randomUuid());
    EXPECT_EQ(randomSecret().size(), 43U);
    EXPECT_NE(hashOf("a"), hashOf("b"));
    EXPECT_TRUE(equalInConstantTime("key", "key"));
    EXPECT_FALSE(equalInConstantTime("key", "keys"));
    EXPECT_EQ(base64("ab"), "YWI=");
}

TEST(Text, IsCutBetweenCharacters)
{
    EXPECT_EQ(cut("abc", 5), "abc");
    EXPECT_EQ(cut("abc", 2), "ab");
    EXPECT_EQ(cut("a\xC3\xA4", 2), "a");
    EXPECT_EQ(cut("a\xF0\x9F\x98\x80z", 4), "a");
    EXPECT_EQ(cut("a\xF0\x9F\x98\x80z", 5), "a\xF0\x9F\x98\x80");
    EXPECT_EQ(cut("\xC3\xA4", 1), "");
}

TEST(Text, BecomesOneLine)
{
    EXPECT_EQ(oneLine("a\r\nb\tc\x7f \xC3\xA4"), "a??b?c? \xC3\xA4");
}

TEST(Address, TellsLoopback)
{
    for (const char* host : {"localhost", "LocalHost", "127.0.0.1", "127.255.0.9", "::1", "[::1]", "0:0:0:0:0:0:0:1"})
        EXPECT_TRUE(isLoopbackHost(host)) << host;
    for (const char* host : {"", "127.evil.example", "127.0.0.1.example", "localhost.example", "0.0.0.0", "::", "[::]",
                             "128.0.0.1", "127.1", "10.0.0.1", "::2", "example.org"})
        EXPECT_FALSE(isLoopbackHost(host)) << host;
}

TEST(Address, HasAHost)
{
    EXPECT_EQ(hostOfAddress("127.0.0.1:8640"), "127.0.0.1");
    EXPECT_EQ(hostOfAddress("[::1]:8640"), "::1");
    EXPECT_EQ(hostOfAddress(":8640"), "");
    EXPECT_EQ(hostOfAddress("host"), "host");
}
