#include "cloud/feed/Record.h"

#include "cloud/feed/Feed.h"
#include "cloud/feed/JsonCheck.h"
#include "cloud/feed/RecordReader.h"

#include <gtest/gtest.h>
#include <json/reader.h>
#include <sstream>

using namespace orvcloud;

namespace
{
const std::string token = "0f8fad5b-d9cb-469f-a165-70867728950e";
const Account account{7, "public-id", "ann@example.org", "\xC3\x84nn", "hash"};

std::variant<std::string, RecordRefusal> prepare(std::string_view value)
{
    return prepareRecord(value, {account, token, "job", "c1"});
}

std::string accepted(std::string_view value)
{
    auto result = prepare(value);
    const auto* refusal = std::get_if<RecordRefusal>(&result);
    EXPECT_EQ(refusal, nullptr) << (refusal ? refusal->sentence : "") << " for " << value.substr(0, 200);
    return refusal ? std::string() : std::get<std::string>(result);
}

bool isRefused(std::string_view value)
{
    return std::holds_alternative<RecordRefusal>(prepare(value));
}

/// A record with one member somewhere inside, e.g. `commentcontent.viewport.eye`.
std::string recordWith(const std::string& path, const std::string& value)
{
    const auto dot = path.rfind('.');
    const std::string member = "{\"" + path.substr(dot == std::string::npos ? 0 : dot + 1) + "\":" + value + "}";
    return dot == std::string::npos ? member : recordWith(path.substr(0, dot), member);
}

constexpr const char* authorText = R"("author":{"email":"ann@example.org","id":"public-id","name":"\u00c4nn"})";
} // namespace

TEST(Record, GetsTheAccountsAuthor)
{
    EXPECT_EQ(accepted(R"({"author":{"canDelete":true,"canEdit":false,"email":"x","id":")" + token +
                       R"(","name":"y"},"source":"desktop"})"),
              R"({"author":{"canDelete":true,"canEdit":false,"email":"ann@example.org","id":"public-id",)"
              R"("name":"\u00c4nn"},"source":"desktop"})");
    EXPECT_EQ(accepted("{}"), std::string("{") + authorText + "}");
    EXPECT_EQ(accepted("\n { \"source\":\"web\"}\n"), std::string("\n {") + authorText + ", \"source\":\"web\"}\n");
    EXPECT_EQ(accepted(R"({"author":null,"x":1})"), std::string("{") + authorText + ",\"x\":1}");
    EXPECT_EQ(accepted(R"({"\u0061uthor":{"id":"other"}})"),
              R"({"\u0061uthor":{"email":"ann@example.org","id":"public-id","name":"\u00c4nn"}})");
}

TEST(Record, StaysByteForByteOtherwise)
{
    const std::string rest =
        R"("commentcontent":{"content":"\u00e9 <\/b> \"q\" \ud83d\ude00","viewport":{"eye":[0.10000000149011612,1.0,-0.0],)"
        R"("up":[1e-7,1E+2,3.4028234663852886e+38],"zoom":1.7976931348623157e308},"objects":{"hidden":[2147483647,-2147483648,2.9],)"
        R"("nodecolor":{"10":255,"9":16711680},"nodetransform":{"3":[1.0,2]}}},"unknown":[1,1.0,18446744073709551615,)"
        R"(123456789012345678901234567890,null,true,{"deep":[[]]}],"z":" raw )"
        "\xC3\xA9\"";
    EXPECT_EQ(accepted("{\"author\":{}," + rest + "}\n"), "{" + std::string(authorText) + "," + rest + "}\n");
    EXPECT_EQ(accepted("{" + rest + ",\"author\":{}}"), "{" + rest + "," + authorText + "}");
}

TEST(Record, MayLackAnything)
{
    for (const char* path : {"commentcontent", "commentcontent.viewport", "commentcontent.objects", "file", "action",
                             "thumbnail", "author", "source"})
        accepted(recordWith(path, "null"));
    for (const char* value : {"null", "[]", "{}", "5", "\"text\"", "true"})
        for (const char* path :
             {"commentcontent.objects.colored", "commentcontent.objects.hidden", "commentcontent.objects.transparent"})
            accepted(recordWith(path, value));
    for (const char* value : {"null", "[]", "{}", "5", "\"text\""})
        for (const char* path : {"commentcontent.objects.nodecolor", "commentcontent.objects.nodetransform"})
            accepted(recordWith(path, value));
}

TEST(Record, TakesWhatConverts)
{
    for (const char* value : {"17", "true", "2.5", "\"x\"", "\"a\\u0000b\""})
        for (const char* path : {"file.name", "commentcontent.content", "commentcontent.publishedTime", "source",
                                 "action.value", "thumbnail"})
            accepted(recordWith(path, value));
    for (const char* value : {"true", "1", "0.0", "null"})
        accepted(recordWith("author.canEdit", value));
    for (const char* value : {"[]", "[1,2]", "[1,2,3,4]", "[true,null,3]"})
        accepted(recordWith("commentcontent.viewport.eye", value));
    accepted(recordWith("commentcontent.objects.colored", "[[1,0.5,0],[],null]"));
    accepted(recordWith("commentcontent.objects.nodetransform", R"({"abc":[1],"12abc":[1,2,3]})"));
    accepted(recordWith("commentcontent.objects.hidden", "[2.9,true,null]"));
}

TEST(Record, RefusesWhatAReaderCouldNotTake)
{
    const std::vector<std::pair<const char*, std::vector<const char*>>> table{
        {"author", {"[]", "[1]", "5", "\"x\"", "true"}},
        {"author.canEdit", {"\"true\"", "[]", "{}", "[true]"}},
        {"author.canDelete", {"\"\"", "{\"a\":1}"}},
        {"file", {"[]", "[1]", "5", "\"x\""}},
        {"file.id", {"[]", "{}", "[1]", "{\"a\":1}"}},
        {"file.name", {"[]", "{}"}},
        {"action", {"[]", "\"view\""}},
        {"action.type", {"[]", "{}"}},
        {"action.value", {"[\"stl\"]"}},
        {"source", {"[]", "{}"}},
        {"thumbnail", {"[]", "{}"}},
        {"commentcontent", {"[]", "[1]", "5", "\"x\"", "false"}},
        {"commentcontent.id", {"[]", "{}"}},
        {"commentcontent.commentType", {"[]"}},
        {"commentcontent.content", {"[]", "{}"}},
        {"commentcontent.publishedTime", {"{}"}},
        {"commentcontent.updatedTime", {"[]"}},
        {"commentcontent.viewport", {"[]", "5", "\"x\""}},
        {"commentcontent.viewport.eye",
         {"5", "\"x\"", "{}", "{\"0\":1}", "[\"1\",2,3]", "[[],2,3]", "[1,2,{}]", "[1e39,0,0]"}},
        {"commentcontent.viewport.target", {"true", "{}"}},
        {"commentcontent.viewport.up", {"0.0", "[0,0,-1e300]"}},
        {"commentcontent.viewport.zoom", {"\"1\"", "[]", "{}"}},
        {"commentcontent.objects", {"[]", "5", "\"x\""}},
        {"commentcontent.objects.colored", {"{\"a\":1}", "[5]", "[{}]", "[[\"r\",0,0]]", "[\"x\"]"}},
        {"commentcontent.objects.hidden",
         {"{\"a\":1}", "[2147483648]", "[-2147483649]", "[4294967296]", "[18446744073709551615]", "[3e9]", "[1e300]",
          "[\"1\"]", "[[]]", "[{}]"}},
        {"commentcontent.objects.transparent", {"{\"0\":1}", "[-3e9]", "[\"x\"]"}},
        {"commentcontent.objects.nodecolor", {"{\"1\":2147483648}", "{\"1\":\"red\"}", "{\"1\":[]}", "[\"x\"]"}},
        {"commentcontent.objects.nodetransform",
         {"{\"1\":5}", "{\"1\":{}}", "{\"1\":[\"x\"]}", "[5]", "{\"1\":\"x\"}"}},
    };
    for (const auto& [path, values] : table)
        for (const char* value : values)
            EXPECT_TRUE(isRefused(recordWith(path, value))) << path << " = " << value;
}

TEST(Record, RefusesWhatIsntOneJsonObject)
{
    for (const char* bad : {"",
                            " ",
                            "null",
                            "5",
                            "\"x\"",
                            "[]",
                            "[{}]",
                            "{",
                            "{}x",
                            "{} {}",
                            "{'a':1}",
                            "{\"a\":1,}",
                            "{\"a\":}",
                            "{a:1}",
                            "/* c */{}",
                            "{}//c",
                            "{\"a\":1,\"a\":2}",
                            "{\"a\":NaN}",
                            "{\"a\":Infinity}",
                            "{\"a\":\"\x01\"}",
                            "{\"a\":\"\xFF\"}",
                            "{\"a\":\"\xED\xA0\x80\"}",
                            "\xEF\xBB\xBF{}",
                            "{\"a\":\"\\ud800\"}",
                            "{\"a\":\"\\udc00\"}",
                            "{\"author\":{\"id\":1},\"author\":{\"id\":2}}",
                            "{\"a\":\"\\x\"}"})
        EXPECT_TRUE(isRefused(bad)) << bad;
    EXPECT_TRUE(isRefused(std::string_view("{}\0", 3)));
    for (const char* huge : {"1e400", "-1e9999", "1e+9999", "123e999999999999"})
        EXPECT_TRUE(isRefused(recordWith("anything", huge))) << huge;
    EXPECT_TRUE(isRefused("{\"a\":" + std::string(5000, '[') + std::string(5000, ']') + "}"));
}

TEST(Record, RefusesWhatOnlyLooksLikeJson)
{
    for (const char* number : {"01", "-01", "00", "1.", ".5", "-.5", "-", "+1", "1e", "1e+", "1.e5", "0x10", "1..2",
                               "1-2", "--1", "1e5.5", "1e5e5"})
        EXPECT_TRUE(isRefused(recordWith("anything", number))) << number;
    for (const char* number : {"0", "-0", "0.0", "-0.5", "10", "1e5", "1E-5", "0e0", "12.50e+07"})
        accepted(recordWith("anything", number));
    for (const char* text : {"\"a\nb\"", "\"a\tb\"", "\"a\rb\"", "\"\x1f\""})
        EXPECT_TRUE(isRefused(recordWith("anything", text))) << text;
    EXPECT_TRUE(isRefused("{\"a\":1\f}"));
    EXPECT_TRUE(isRefused("{\"a\":\"x"));
    EXPECT_TRUE(isRefused("{\"a\":\"x\\"));
    accepted("{\t\"a\" :\r\n\"01 + .5 \\\" [,\"}\n");
}

TEST(Record, HasAMostNumberOfValues)
{
    const auto list = [](std::size_t count) {
        std::string text = "[0";
        for (std::size_t i = 1; i < count; ++i)
            text += ",0";
        return text + "]";
    };
    std::string transforms;
    for (int node = 0; node < 10'000; ++node)
        transforms += (node == 0 ? "{\"" : ",\"") + std::to_string(node) + "\":" + list(16);
    accepted(R"({"commentcontent":{"objects":{"hidden":)" + list(10'000) + R"(,"transparent":)" + list(10'000) +
             R"(,"nodetransform":)" + transforms + "}}}}");
    accepted(recordWith("unknown", list(mostJsonValues - 10)));
    EXPECT_TRUE(isRefused(recordWith("unknown", list(mostJsonValues + 10))));
    std::string nested = "[[]";
    while (nested.size() < largestRecord - 100)
        nested += ",[]";
    EXPECT_TRUE(isRefused(recordWith("unknown", nested + "]")));
}

TEST(Record, NamesTheRequestsModelAndComment)
{
    accepted(recordWith("file.id", "\"job\""));
    accepted(recordWith("commentcontent.id", "\"c1\""));
    for (const char* id : {"\"other\"", "\"\"", "\"job \"", "\"job\\u0000\"", "1"})
        EXPECT_TRUE(isRefused(recordWith("file.id", id))) << id;
    for (const char* id : {"\"c2\"", "\"\"", "\"C1\"", "\"c1\\u0000x\"", "true"})
        EXPECT_TRUE(isRefused(recordWith("commentcontent.id", id))) << id;
}

TEST(Record, GetsAnotherSpellingOfItsAuthorsAddress)
{
    const std::string rest = R"(,"commentcontent":{"viewport":{"zoom":1.0E+2}},"x":"author"} )";
    EXPECT_EQ(withAuthorsAddress(accepted(R"({"author":{"canEdit":true})" + rest), "Ann@Example.ORG"),
              R"({"author":{"canEdit":true,"email":"Ann@Example.ORG","id":"public-id","name":"\u00c4nn"})" + rest);
    EXPECT_EQ(withAuthorsAddress("no record", "x"), "no record");
}

TEST(Record, HasALargestSize)
{
    const std::string begin = R"({"thumbnail":")";
    const std::string largest = begin + std::string(largestRecord - begin.size() - 2, 'A') + "\"}";
    ASSERT_EQ(largest.size(), largestRecord);
    accepted(largest);
    EXPECT_TRUE(isRefused(largest + " "));
}

TEST(Record, HidesTheTokenNowhere)
{
    for (const std::string& record :
         {recordWith("commentcontent.content", "\"" + token + "\""), recordWith("file.id", "\"see " + token + ".\""),
          recordWith("unknown", "[[{\"deep\":\"" + token + "\"}]]"), recordWith("author.secret", "\"" + token + "\""),
          recordWith(token, "1"), recordWith("source", "\"\\u0030" + token.substr(1) + "\"")})
        EXPECT_TRUE(isRefused(record)) << record;
    EXPECT_EQ(accepted(recordWith("author.id", "\"" + token + "\"")).find(token), std::string::npos);
    EXPECT_EQ(accepted(recordWith("author.name", "\"" + token + "\"")).find(token), std::string::npos);
}

TEST(Record, PlusSignsComeBack)
{
    EXPECT_EQ(withPlusSigns("a%2bb%2b"), "a+b+");
    EXPECT_EQ(withPlusSigns("%2B%%2b%252b"), "%2B%+%252b") << "lower case alone, and nothing twice";
    EXPECT_EQ(withPlusSigns(""), "");
}

TEST(Feed, AutomaticEntriesOfferTheOutputs)
{
    const auto entries = automaticEntries("job", "b\"r.step", 1'800'000'000);
    std::string values;
    for (const FeedEntry& entry : entries) {
        Json::Value record;
        std::istringstream stream(entry.content);
        ASSERT_TRUE(Json::parseFromStream(Json::CharReaderBuilder(), stream, &record, nullptr)) << entry.content;
        EXPECT_FALSE(unreadable(record));
        EXPECT_EQ(record["commentcontent"]["commentType"].asString(), "auto");
        EXPECT_EQ(record["commentcontent"]["id"].asString(), entry.commentId);
        EXPECT_EQ(record["commentcontent"]["publishedTime"].asString(), "Jan 15, 2027 08:00");
        EXPECT_EQ(record["action"]["type"].asString(), "download");
        EXPECT_EQ(record["author"]["name"].asString(), "Orvanta Cloud");
        EXPECT_EQ(record["file"]["name"].asString(), "b\"r.step");
        values = record["action"]["value"].asString() + " " + values;
    }
    EXPECT_EQ(values, "3ds obj stl pdf csv bompdf ");
}

TEST(Feed, IsAnArrayOfRecordsInAscii)
{
    EXPECT_EQ(FeedText().finish(), "[]\n");
    FeedText feed;
    EXPECT_TRUE(feed.add("{\"a\":\"\xC3\xA4\"}"));
    EXPECT_TRUE(feed.add("{}"));
    EXPECT_EQ(feed.finish(), R"([{"Content":"{\"a\":\"\u00e4\"}","Thumbnail":""},{"Content":"{}","Thumbnail":""}])"
                             "\n");
}

TEST(Feed, StaysBelowWhatAClientTakes)
{
    FeedText feed;
    const std::string record = "\"" + std::string(largestRecord - 2, 'x') + "\"";
    int count = 0;
    while (count < 100 && feed.add(record))
        ++count;
    EXPECT_EQ(count, 59);
    EXPECT_LT(feed.finish().size(), std::size_t{256} << 20);
}
