#include "feed/FeedWriter.h"

#include "feed/CommaLocale.h"
#include "feed/FeedReader.h"
#include "platform/text/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <json/json.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace
{

std::string write(Feed const& feed)
{
    return orvtext::toUtf8(FeedWriter().write(feed));
}

/// What the reader makes of the writer's text.
std::vector<Feed> readBack(Feed const& feed)
{
    Json::Value element;
    element["Content"] = write(feed);
    Json::Value root(Json::arrayValue);
    root.append(element);
    return FeedReader().read(orvtext::fromUtf8(Json::writeString(Json::StreamWriterBuilder(), root)));
}

Feed writeAndRead(Feed const& feed)
{
    auto const feeds = readBack(feed);
    EXPECT_EQ(feeds.size(), 1U);
    return feeds.empty() ? Feed() : feeds[0];
}

bool contains(std::string const& text, std::string const& part)
{
    return text.find(part) != std::string::npos;
}

Feed sample()
{
    Feed feed;
    feed.author = FeedAuthor(L"i", L"n", L"e", true, true);
    feed.file = FeedFile(L"f", L"m");
    feed.action = FeedAction(L"view", L" ");
    feed.comment = FeedComment(L"g", L"text", L"c", L"t", L"t",
                               FeedViewport(Vector3(0, 0, 10), Vector3(), Vector3(0, 1, 0), 1.0), FeedObjects());
    feed.comment.objects.hidden = {3, 7};
    feed.source = L"desktop";
    feed.thumbnail = L"data:image/jpeg;base64,";
    return feed;
}

TEST(FeedWriter, GivesThisTextExactly)
{
    EXPECT_EQ(write(sample()),
              R"({"action":{"type":"view","value":" "},"author":{"canDelete":true,"canEdit":true,"email":"e","id":"i",)"
              R"("name":"n"},"commentcontent":{"commentType":"text","content":"c","id":"g","objects":{"hidden":[3,7]},)"
              R"("publishedTime":"t","updatedTime":"t","viewport":{"eye":[0.0,0.0,10.0],"target":[0.0,0.0,0.0],)"
              R"("up":[0.0,1.0,0.0],"zoom":1.0}},"file":{"id":"f","name":"m"},"source":"desktop",)"
              R"("thumbnail":"data:image/jpeg;base64,"})"
              "\n");
}

TEST(FeedWriter, WritesEveryMemberOfAnEmptyRecord)
{
    EXPECT_EQ(write(Feed()),
              R"({"action":{"type":"","value":""},"author":{"canDelete":false,"canEdit":false,"email":"","id":"",)"
              R"("name":""},"commentcontent":{"commentType":"","content":"","id":"","publishedTime":"",)"
              R"("updatedTime":"","viewport":{"eye":[0.0,0.0,0.0],"target":[0.0,0.0,0.0],"up":[0.0,0.0,0.0],)"
              R"("zoom":0.0}},"file":{"id":"","name":""},"source":"","thumbnail":""})"
              "\n");
}

TEST(FeedWriter, LeavesObjectsOutWithoutAny)
{
    Feed feed = sample();
    feed.comment.objects = FeedObjects();
    EXPECT_FALSE(contains(write(feed), "objects"));
}

TEST(FeedWriter, NeverWritesTheColoursByPosition)
{
    Feed feed = sample();
    feed.comment.objects = FeedObjects();
    feed.comment.objects.colored = {Vector3(1, 0, 0)};
    EXPECT_FALSE(contains(write(feed), "color"));
    EXPECT_FALSE(contains(write(feed), "objects"));
}

TEST(FeedWriter, KeepsTheOrderOfTheLists)
{
    Feed feed = sample();
    feed.comment.objects.hidden = {9, 3, 9};
    feed.comment.objects.transparent = {5, 4};
    EXPECT_TRUE(contains(write(feed), R"("objects":{"hidden":[9,3,9],"transparent":[5,4]})"));
}

TEST(FeedWriter, SortsNodeKeysAsText)
{
    Feed feed = sample();
    feed.comment.objects = FeedObjects();
    feed.comment.objects.nodecolor = {{2, 255}, {10, 0}, {-1, 7}};
    EXPECT_TRUE(contains(write(feed), R"("objects":{"nodecolor":{"-1":7,"10":0,"2":255}})"));
}

TEST(FeedWriter, WritesAMatrixElementByElement)
{
    Feed feed = sample();
    feed.comment.objects = FeedObjects();
    Matrix4 matrix;
    for (unsigned char i = 0; i < 16; ++i) {
        matrix[i] = static_cast<float>(i) + 0.5F;
    }
    feed.comment.objects.nodetransform = {{4, matrix}};
    EXPECT_TRUE(contains(write(feed), R"("nodetransform":{"4":[0.5,1.5,2.5,3.5,4.5,5.5,6.5,7.5,8.5,9.5,10.5,11.5,12.5,)"
                                      R"(13.5,14.5,15.5]})"));
}

TEST(FeedWriter, PrintsFloatsWithTheirDoubleExpansion)
{
    Feed feed = sample();
    feed.comment.viewport.eye = Vector3(0.1F, 1e20F, -1.5e-7F);
    feed.comment.viewport.zoom = 0.1;
    std::string const text = write(feed);
    EXPECT_TRUE(contains(text, R"("eye":[0.10000000149011612,1.0000000200408773e+20,)")) << text;
    EXPECT_TRUE(contains(text, R"("zoom":0.10000000000000001})")) << text;
    EXPECT_EQ(writeAndRead(feed).comment.viewport, feed.comment.viewport) << "the floats come back the same";
}

TEST(FeedWriter, PrintsAPointWhereTheDesktopWritesAComma)
{
    std::string const before = write(sample());
    Feed const back = writeAndRead(sample());
    orvtest::CommaLocale const comma;
    EXPECT_EQ(write(sample()), before);
    EXPECT_EQ(writeAndRead(sample()), back);
    Feed feed;
    feed.comment.viewport.zoom = 2.5;
    EXPECT_TRUE(contains(write(feed), "\"zoom\":2.5"));
    EXPECT_EQ(writeAndRead(feed).comment.viewport.zoom, 2.5);
}

TEST(FeedWriter, PrintsWhatIsNoNumber)
{
    Feed feed = sample();
    float const infinity = std::numeric_limits<float>::infinity();
    feed.comment.viewport.eye = Vector3(std::nanf(""), infinity, -infinity);
    EXPECT_TRUE(contains(write(feed), R"("eye":[[],1e+9999,-1e+9999])")) << write(feed);
}

TEST(FeedWriter, IsPlainAscii)
{
    Feed feed = sample();
    feed.comment.content = L"\u00e9 \u65e5 \U0001f600";
    std::string const text = write(feed);
    EXPECT_TRUE(contains(text, R"("content":"\u00e9 \u65e5 \ud83d\ude00")")) << text;
    for (char const character : text) {
        EXPECT_LT(static_cast<unsigned char>(character), 0x80);
    }
    EXPECT_EQ(writeAndRead(feed).comment.content, feed.comment.content);
}

TEST(FeedWriter, BringsQuotesBackslashesAndLineBreaksBack)
{
    Feed feed = sample();
    feed.comment.content = L"a \"b\" \\c/ \r\n\td\x01";
    EXPECT_EQ(writeAndRead(feed).comment.content, feed.comment.content);
}

TEST(FeedWriter, ReplacesTheWordNullEverywhere)
{
    Feed feed = sample();
    feed.comment.content = L"null";
    EXPECT_TRUE(contains(write(feed), R"("content":"[]")"));
    feed.comment.content = L"nullable nunull nullnull Null";
    EXPECT_TRUE(contains(write(feed), R"("content":"[]able nu[] [][] Null")"));
    feed.author.name = L"Anullo";
    feed.thumbnail = L"AnullB";
    EXPECT_EQ(writeAndRead(feed).author.name, L"A[]o");
    EXPECT_EQ(writeAndRead(feed).thumbnail, L"A[]B");
}

TEST(FeedWriter, LosesACommentWhoseLineBeginsWithUll)
{
    // The replacement meets the escape of the line feed. That is how the text stands, and no reader takes it.
    Feed feed = sample();
    feed.comment.content = L"line\null and void";
    EXPECT_TRUE(contains(write(feed), R"("content":"line\[] and void")")) << write(feed);
    EXPECT_THAT(readBack(feed), testing::IsEmpty());
    feed.comment.content = L"line\n null";
    EXPECT_EQ(writeAndRead(feed).comment.content, L"line\n []");
}

TEST(FeedWriter, LosesARecordWithANumberThatIsNone)
{
    Feed feed = sample();
    feed.comment.viewport.zoom = std::nan("");
    EXPECT_TRUE(contains(write(feed), R"("zoom":[]})"));
    EXPECT_THROW(readBack(feed), Json::Exception) << "an array is no number";
    for (double const infinity : {HUGE_VAL, -HUGE_VAL}) {
        feed.comment.viewport.zoom = infinity;
        EXPECT_THAT(readBack(feed), testing::IsEmpty()) << "no reader takes a number beyond double";
    }
}

TEST(FeedWriter, EscapesWhatJsonCantHoldAndNothingElse)
{
    Feed feed = sample();
    std::wstring all;
    for (wchar_t character = 0; character < 0x20; ++character) {
        all += character;
    }
    feed.comment.content = all;
    EXPECT_TRUE(contains(write(feed), R"("content":"\u0000\u0001\u0002\u0003\u0004\u0005\u0006\u0007\b\t\n\u000b\f\r)"
                                      R"(\u000e\u000f\u0010\u0011\u0012\u0013\u0014\u0015\u0016\u0017\u0018\u0019)"
                                      R"(\u001a\u001b\u001c\u001d\u001e\u001f")"))
        << write(feed);
    EXPECT_EQ(writeAndRead(feed).comment.content, L"") << "a reader ends a text at its first NUL";
    all.erase(0, 1);
    feed.comment.content = all + L"/'<>&\x7F";
    EXPECT_TRUE(contains(write(feed), "\\u001f/'<>&\x7F\"")) << write(feed);
    EXPECT_EQ(writeAndRead(feed).comment.content, feed.comment.content);
    feed.comment.content = L"\x80\u07ff\u0800\uffff\U00010000\U0010ffff";
    EXPECT_TRUE(contains(write(feed), R"("content":"\u0080\u07ff\u0800\uffff\ud800\udc00\udbff\udfff")"))
        << write(feed);
    EXPECT_EQ(writeAndRead(feed).comment.content, feed.comment.content);
}

TEST(FeedWriter, PrintsFloatsAtTheirLimits)
{
    Feed feed = sample();
    using Limits = std::numeric_limits<float>;
    feed.comment.viewport.eye = Vector3(-0.0F, Limits::denorm_min(), Limits::max());
    feed.comment.viewport.target = Vector3(Limits::min(), Limits::lowest(), 16777216.0F);
    EXPECT_TRUE(contains(write(feed), R"("eye":[-0.0,1.4012984643248171e-45,3.4028234663852886e+38])")) << write(feed);
    EXPECT_TRUE(contains(write(feed), R"("target":[1.1754943508222875e-38,-3.4028234663852886e+38,16777216.0])"));
    FeedViewport const back = writeAndRead(feed).comment.viewport;
    EXPECT_EQ(back, feed.comment.viewport);
    EXPECT_TRUE(std::signbit(back.eye[0]));
}

TEST(FeedWriter, PrintsNodesAndColoursAtTheLimitsOfInt)
{
    Feed feed = sample();
    feed.comment.objects.hidden = {INT_MIN, INT_MAX, 0, -1};
    feed.comment.objects.nodecolor = {{INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}};
    EXPECT_TRUE(contains(write(feed), R"("objects":{"hidden":[-2147483648,2147483647,0,-1],)"
                                      R"("nodecolor":{"-2147483648":2147483647,"2147483647":-2147483648}},)"))
        << write(feed);
    EXPECT_EQ(writeAndRead(feed), feed);
}

TEST(FeedWriter, EndsWithOneLineFeed)
{
    std::string const text = write(sample());
    EXPECT_EQ(text.find('\n'), text.size() - 1);
}

TEST(FeedWriter, LosesNothingButTheColoursByPosition)
{
    Feed feed = sample();
    feed.comment.objects.colored = {Vector3(), Vector3(1, 0, 0)};
    feed.comment.objects.nodecolor = {{1, 255}};
    feed.comment.objects.transparent = {2};
    feed.comment.objects.nodetransform = {{3, Matrix4()}};
    Feed expected = feed;
    expected.comment.objects.colored.clear();
    EXPECT_EQ(writeAndRead(feed), expected);
}

TEST(FeedWriter, ReplacesLoneSurrogates)
{
    Feed feed = sample();
    feed.comment.content = std::wstring(1, static_cast<wchar_t>(0xD800)) + L"x";
    EXPECT_TRUE(contains(write(feed), R"("content":"\ufffdx")")) << write(feed);
}

} // namespace
