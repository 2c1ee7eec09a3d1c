// The largest, the deepest and the outermost that a response can hold, in both of its layers, and the damaged.

#include "feed/FeedReader.h"

#include "platform/text/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <json/json.h>

#include <bit>
#include <climits>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{

constexpr std::size_t mebibyte = std::size_t{1024} * 1024;

/// The text as a JSON string, for documents without control characters.
std::wstring jsonString(std::string const& text)
{
    std::wstring result = L"\"";
    for (char const character : text) {
        if (character == '"' || character == '\\') {
            result += L'\\';
        }
        result += static_cast<wchar_t>(character);
    }
    return result + L"\"";
}

std::vector<Feed> readDocument(std::string const& document)
{
    return FeedReader().read(L"[{\"Content\":" + jsonString(document) + L"}]");
}

FeedComment readComment(std::string const& members)
{
    auto const feeds = readDocument("{\"commentcontent\":{" + members + "}}");
    if (feeds.size() != 1) {
        ADD_FAILURE() << feeds.size() << " records for " << members;
        return {};
    }
    return feeds[0].comment;
}

FeedObjects readObjects(std::string const& members)
{
    return readComment("\"objects\":{" + members + "}").objects;
}

std::string refusalOf(std::wstring const& response)
{
    try {
        FeedReader().read(response);
    } catch (Json::Exception const& exception) {
        return exception.what();
    }
    return "none";
}

std::string refusalOfObjects(std::string const& members)
{
    return refusalOf(L"[{\"Content\":" + jsonString("{\"commentcontent\":{\"objects\":{" + members + "}}}") + L"}]");
}

std::string nested(int levels)
{
    auto const count = static_cast<std::size_t>(levels);
    return std::string(count, '[') + std::string(count, ']');
}

float parsedFloat(std::string const& number)
{
    return readComment("\"viewport\":{\"eye\":[" + number + "]}").viewport.eye[0];
}

double parsedDouble(std::string const& number)
{
    return readComment("\"viewport\":{\"zoom\":" + number + "}").viewport.zoom;
}

} // namespace

TEST(FeedReaderLimits, TakesADocumentOf64MiB)
{
    std::string nodes;
    std::size_t count = 0;
    for (; nodes.size() < 32 * mebibyte; ++count) {
        nodes += count == 0 ? "1234567" : ",1234567";
    }
    std::string const picture(32 * mebibyte, 'A');
    std::string const document =
        R"({"commentcontent":{"objects":{"hidden":[)" + nodes + R"(]}},"thumbnail":")" + picture + "\"}";
    ASSERT_GE(document.size(), 64 * mebibyte);
    auto const feeds = readDocument(document);
    ASSERT_EQ(feeds.size(), 1U);
    EXPECT_EQ(feeds[0].comment.objects.hidden, std::vector<int>(count, 1234567));
    EXPECT_TRUE(feeds[0].thumbnail == std::wstring(picture.begin(), picture.end()));
}

TEST(FeedReaderLimits, TakesAResponseOf64MiB)
{
    std::wstring const picture(20 * 1024, L'B');
    std::wstring response = L"[";
    std::size_t count = 0;
    for (; response.size() < 64 * mebibyte; ++count) {
        response += count == 0 ? L"" : L",";
        response += L"{\"Content\":" + jsonString("{\"source\":\"" + std::to_string(count) + "\"}") +
                    L",\"Thumbnail\":\"" + picture + L"\"}";
    }
    response += L"]";
    auto const feeds = FeedReader().read(response);
    ASSERT_EQ(feeds.size(), count);
    for (std::size_t i = 0; i < count; ++i) {
        ASSERT_EQ(feeds[i].source, std::to_wstring(i));
        ASSERT_EQ(feeds[i].thumbnail, picture);
    }
}

TEST(FeedReaderLimits, RefusesTenThousandLevelsInEitherLayer)
{
    std::string const why = "Exceeded stackLimit in readValue().";
    std::string const deep = nested(10000);
    std::wstring const deepWide(deep.begin(), deep.end());
    EXPECT_EQ(refusalOf(deepWide), why) << "the response itself";
    EXPECT_EQ(refusalOf(L"[{\"Content\":\"{}\",\"Extra\":" + deepWide + L"}]"), why) << "a member that nobody reads";
    EXPECT_EQ(refusalOf(L"[{\"Content\":" + jsonString(deep) + L"}]"), why) << "the document itself";
    EXPECT_EQ(refusalOf(L"[{\"Content\":" + jsonString("{\"extra\":" + deep + "}") + L"}]"), why);
    EXPECT_EQ(refusalOfObjects("\"hidden\":" + deep), why);
    EXPECT_EQ(refusalOf(std::wstring(10000, L'[')), why) << "before the missing ends are noticed";
    std::string objects;
    for (int level = 0; level < 10000; ++level) {
        objects += "{\"a\":";
    }
    EXPECT_EQ(refusalOf(L"[{\"Content\":" + jsonString(objects) + L"}]"), why);
}

TEST(FeedReaderLimits, TakesAsManyLevelsAsTheLibraryDoes)
{
    std::string const why = "Exceeded stackLimit in readValue().";
    auto const inside = [](int levels) {
        return L"[{\"Content\":" + jsonString("{\"source\":\"deep\",\"extra\":" + nested(levels) + "}") + L"}]";
    };
    auto const outside = [](int levels) {
        std::string const extra = nested(levels);
        return L"[{\"Content\":\"{}\",\"Extra\":" + std::wstring(extra.begin(), extra.end()) + L"}]";
    };
    EXPECT_EQ(FeedReader().read(inside(999)).size(), 1U) << "a thousand with the document";
    EXPECT_EQ(refusalOf(inside(1000)), why);
    EXPECT_EQ(FeedReader().read(outside(998)).size(), 1U) << "a thousand with the array and its element";
    EXPECT_EQ(refusalOf(outside(999)), why);
}

TEST(FeedReaderLimits, TakesNodesToTheEndsOfInt)
{
    auto const objects = readObjects(R"("hidden":[2147483647,-2147483648,2147483647.0,-2147483648.0,-0.9],)"
                                     R"("transparent":[-2147483648,2147483646.75],)"
                                     R"("nodecolor":{"2147483647":-2147483648,"-2147483648":2147483647})");
    EXPECT_THAT(objects.hidden, ElementsAre(INT_MAX, INT_MIN, INT_MAX, INT_MIN, 0));
    EXPECT_THAT(objects.transparent, ElementsAre(INT_MIN, INT_MAX - 1));
    EXPECT_THAT(objects.nodecolor, ElementsAre(Pair(INT_MIN, INT_MAX), Pair(INT_MAX, INT_MIN)));
}

TEST(FeedReaderLimits, RefusesNodesPastTheEndsOfInt)
{
    struct Case {
        char const* number;
        char const* why;
    };
    for (auto const& [number, why] :
         {Case{"2147483648", "LargestUInt out of Int range"}, Case{"-2147483649", "LargestInt out of Int range"},
          Case{"4294967295", "LargestUInt out of Int range"},
          Case{"9223372036854775807", "LargestUInt out of Int range"},
          Case{"-9223372036854775808", "LargestInt out of Int range"},
          Case{"9223372036854775808", "LargestUInt out of Int range"},
          Case{"18446744073709551615", "LargestUInt out of Int range"},
          Case{"18446744073709551616", "double out of Int range"},
          Case{"-9223372036854775809", "double out of Int range"}, Case{"2147483647.5", "double out of Int range"},
          Case{"-2147483648.5", "double out of Int range"}, Case{"2147483648.0", "double out of Int range"},
          Case{"-3000000000", "LargestInt out of Int range"}, Case{"1e30", "double out of Int range"},
          Case{"1.7976931348623157e308", "double out of Int range"}}) {
        SCOPED_TRACE(number);
        std::string const text = number;
        EXPECT_EQ(refusalOfObjects("\"hidden\":[" + text + "]"), why);
        EXPECT_EQ(refusalOfObjects("\"transparent\":[" + text + "]"), why);
        EXPECT_EQ(refusalOfObjects("\"nodecolor\":{\"1\":" + text + "}"), why);
    }
}

TEST(FeedReaderLimits, HoldsKeysToTheRangeOfInt)
{
    std::string const huge(400, '9');
    auto const colors = [](std::string const& key) {
        return readObjects("\"nodecolor\":{\"" + key + "\":7}").nodecolor;
    };
    EXPECT_THAT(colors("2147483648"), ElementsAre(Pair(INT_MAX, 7)));
    EXPECT_THAT(colors("-2147483649"), ElementsAre(Pair(INT_MIN, 7)));
    EXPECT_THAT(colors("9223372036854775808"), ElementsAre(Pair(INT_MAX, 7)));
    EXPECT_THAT(colors(huge), ElementsAre(Pair(INT_MAX, 7)));
    EXPECT_THAT(colors("-" + huge), ElementsAre(Pair(INT_MIN, 7)));
    EXPECT_THAT(colors("9223372036854775807"), ElementsAre(Pair(INT_MAX, 7)));
    EXPECT_THAT(colors("4294967297"), ElementsAre(Pair(INT_MAX, 7))) << "it doesn't wrap around to 1";
    EXPECT_THAT(colors("2147483647"), ElementsAre(Pair(INT_MAX, 7)));
    EXPECT_THAT(colors("-2147483648"), ElementsAre(Pair(INT_MIN, 7)));
    EXPECT_THAT(colors("\\t +5"), ElementsAre(Pair(5, 7)));
    EXPECT_THAT(colors(""), ElementsAre(Pair(0, 7)));
    auto const moved = readObjects("\"nodetransform\":{\"" + huge + "\":[1],\"-" + huge + "\":[2]}").nodetransform;
    ASSERT_EQ(moved.size(), 2U);
    EXPECT_EQ(moved.begin()->first, INT_MIN);
    EXPECT_EQ(moved.rbegin()->first, INT_MAX);
}

TEST(FeedReaderLimits, NarrowsToFloatsAsTheProcessorDoes)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(parsedFloat("3.4028234663852886e38"), std::numeric_limits<float>::max());
    EXPECT_EQ(parsedFloat("3.4028235677973366e38"), infinity);
    EXPECT_EQ(parsedFloat("-1.7976931348623157e308"), -infinity);
    EXPECT_EQ(parsedFloat("1.401298464324817e-45"), std::numeric_limits<float>::denorm_min());
    EXPECT_EQ(parsedFloat("1e-46"), 0.0F);
    EXPECT_TRUE(std::signbit(parsedFloat("-0.0")));
    EXPECT_EQ(parsedFloat("18446744073709551615"), 18446744073709551616.0F);
    EXPECT_EQ(parsedFloat("16777217"), 16777216.0F);
    EXPECT_EQ(parsedFloat("0.10000000149011612"), 0.1F);
    EXPECT_EQ(parsedFloat("true"), 1.0F);
}

TEST(FeedReaderLimits, KeepsDoublesToTheirLastBit)
{
    EXPECT_EQ(parsedDouble("0.1"), 0.1) << "no float on its way";
    EXPECT_EQ(parsedDouble("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(parsedDouble("2.2250738585072014e-308"), std::numeric_limits<double>::min());
    EXPECT_EQ(parsedDouble("5e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(std::bit_cast<std::uint64_t>(parsedDouble("-0.0")), std::uint64_t{1} << 63U);
    EXPECT_EQ(parsedDouble("9223372036854775807"), 9223372036854775808.0);
    EXPECT_EQ(parsedDouble("0." + std::string(400, '0') + "1e401"), 1.0);
}

TEST(FeedReaderLimits, DropsARecordWithANumberThatNoDoubleHolds)
{
    for (char const* number : {"1e309", "-1e309", "1e+9999"}) {
        EXPECT_THAT(readDocument(std::string(R"({"commentcontent":{"viewport":{"zoom":)") + number + "}}}"), IsEmpty())
            << number;
    }
    EXPECT_THAT(readDocument("{\"extra\":1" + std::string(400, '0') + "}"), IsEmpty()) << "even where nobody reads it";
    EXPECT_THAT(FeedReader().read(L"[{\"Content\":\"{}\",\"Extra\":1e309}]"), IsEmpty()) << "the whole response";
}

TEST(FeedReaderLimits, TakesAnyNumberForAText)
{
    auto const id = [](std::string const& number) { return readComment("\"id\":" + number).id; };
    EXPECT_EQ(id("18446744073709551615"), L"18446744073709551615");
    EXPECT_EQ(id("-9223372036854775808"), L"-9223372036854775808");
    EXPECT_EQ(id("18446744073709551616"), L"1.8446744073709552e+19");
    EXPECT_EQ(id("5e-324"), L"4.9406564584124654e-324");
}

TEST(FeedReaderLimits, TakesOrRefusesDamageWithoutHarm)
{
    std::wstring const good =
        L"[{\"Content\":" +
        jsonString(
            R"({"author":{"id":"u","canEdit":true},"commentcontent":{"viewport":{"eye":[1,2.5,-3],"zoom":1},"objects":)"
            R"({"colored":[[0,0,1]],"hidden":[9,3],"nodecolor":{"7":255},"nodetransform":{"5":[1,2,3]}}},"source":"web"})") +
        L",\"Thumbnail\":\"data:image/jpeg;base64,AAAA\"}]";
    std::wstring const pieces = LR"({}[]",:\\0-19.eE+ntfu"\ud8)";
    std::mt19937 random(20261115);
    int refused = 0;
    for (int round = 0; round < 20000; ++round) {
        std::wstring text = good;
        for (unsigned change = random() % 4 + 1; change > 0; --change) {
            std::size_t const at = random() % text.size();
            wchar_t const piece = pieces[random() % pieces.size()];
            switch (random() % 3) {
            case 0:
                text[at] = piece;
                break;
            case 1:
                text.insert(at, 1, piece);
                break;
            default:
                text.erase(at, random() % 8 + 1);
            }
        }
        try {
            FeedReader().read(text);
        } catch (Json::Exception const&) {
            ++refused; // which the viewer survives; anything else is a fault of the reader
        }
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, 20000);
}
