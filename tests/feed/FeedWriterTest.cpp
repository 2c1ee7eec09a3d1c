#include "feed/FeedWriter.h"

#include "feed/CommaLocale.h"
#include "feed/FeedReader.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <json/json.h>

#include <cmath>
#include <limits>
#include <string>

namespace
{

std::string write(Feed const& feed)
{
    return orvtext::toUtf8(FeedWriter().write(feed));
}

/// The record that the reader makes of the writer's text.
Feed writeAndRead(Feed const& feed)
{
    Json::Value element;
    element["Content"] = write(feed);
    Json::Value root(Json::arrayValue);
    root.append(element);
    auto const feeds = FeedReader().read(orvtext::fromUtf8(Json::writeString(Json::StreamWriterBuilder(), root)));
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
