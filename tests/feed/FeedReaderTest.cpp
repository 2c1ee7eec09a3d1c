#include "feed/FeedReader.h"

#include "platform/text/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <json/json.h>

#include <string>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

std::vector<Feed> read(std::wstring const& response)
{
    return FeedReader().read(response);
}

/// A response of one element with that inner document.
std::wstring responseOf(std::string const& document, std::string const& outerThumbnail = {})
{
    Json::Value element;
    element["Content"] = document;
    if (!outerThumbnail.empty()) {
        element["Thumbnail"] = outerThumbnail;
    }
    Json::Value root(Json::arrayValue);
    root.append(element);
    return orvtext::fromUtf8(Json::writeString(Json::StreamWriterBuilder(), root));
}

Feed readOne(std::string const& document)
{
    std::vector<Feed> const feeds = read(responseOf(document));
    if (feeds.size() != 1) {
        ADD_FAILURE() << "one record expected, got " << feeds.size();
        return {};
    }
    return feeds[0];
}

FeedObjects readObjects(std::string const& objects)
{
    return readOne("{\"commentcontent\":{\"objects\":" + objects + "}}").comment.objects;
}

TEST(FeedReader, TakesEveryMember)
{
    Feed const feed = readOne(R"({
        "author":{"id":"u-1","name":"Ada","email":"ada@example.com","canEdit":true,"canDelete":true},
        "file":{"id":"f-1","name":"part.step"},
        "action":{"type":"view","value":" "},
        "commentcontent":{"id":"c-1","commentType":"text","content":"look","publishedTime":"p","updatedTime":"u",
            "viewport":{"eye":[1,2.5,-3],"target":[4,5,6],"up":[0,1,0],"zoom":1.25},
            "objects":{"colored":[[0,0,0],[1,0.5,0.25]],"transparent":[4,4,2],"hidden":[9,3],
                "nodecolor":{"7":255},
                "nodetransform":{"5":[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16]}}},
        "source":"desktop","thumbnail":"data"})");
    EXPECT_EQ(feed.author, FeedAuthor(L"u-1", L"Ada", L"ada@example.com", true, true));
    EXPECT_EQ(feed.file, FeedFile(L"f-1", L"part.step"));
    EXPECT_EQ(feed.action, FeedAction(L"view", L" "));
    FeedComment const& comment = feed.comment;
    EXPECT_EQ(comment.id, L"c-1");
    EXPECT_EQ(comment.commentType, L"text");
    EXPECT_EQ(comment.content, L"look");
    EXPECT_EQ(comment.publishedTime, L"p");
    EXPECT_EQ(comment.updatedTime, L"u");
    EXPECT_EQ(comment.viewport, FeedViewport(Vector3(1, 2.5F, -3), Vector3(4, 5, 6), Vector3(0, 1, 0), 1.25));
    EXPECT_THAT(comment.objects.colored, ElementsAre(Vector3(), Vector3(1, 0.5F, 0.25F)));
    EXPECT_THAT(comment.objects.transparent, ElementsAre(4, 4, 2)) << "order and duplicates stay";
    EXPECT_THAT(comment.objects.hidden, ElementsAre(9, 3));
    EXPECT_THAT(comment.objects.nodecolor, ElementsAre(std::pair(7, 255)));
    ASSERT_EQ(comment.objects.nodetransform.size(), 1U);
    Matrix4 const& matrix = comment.objects.nodetransform.at(5);
    for (unsigned char i = 0; i < 16; ++i) {
        EXPECT_EQ(matrix[i], static_cast<float>(i + 1));
    }
    EXPECT_EQ(feed.source, L"desktop");
    EXPECT_EQ(feed.thumbnail, L"data");
}

TEST(FeedReader, KeepsTheFlagsApart)
{
    FeedAuthor const author = readOne(R"({"author":{"canDelete":true}})").author;
    EXPECT_TRUE(author.canDelete);
    EXPECT_FALSE(author.canEdit);
}

TEST(FeedReader, FillsAnEmptyDocumentWithDefaults)
{
    EXPECT_EQ(readOne("{}"), Feed());
}

TEST(FeedReader, ReadsTheShortestResponse)
{
    EXPECT_THAT(read(LR"([{"Content":"{}"}])"), ElementsAre(Feed()));
    std::vector<Feed> const feeds = read(LR"([{"Content":"{}","Thumbnail":"x"}])");
    ASSERT_EQ(feeds.size(), 1U);
    EXPECT_EQ(feeds[0].thumbnail, L"x");
}

TEST(FeedReader, PrefersTheThumbnailOfTheDocument)
{
    EXPECT_EQ(read(responseOf(R"({"thumbnail":"inner"})", "outer"))[0].thumbnail, L"inner");
    EXPECT_EQ(read(responseOf(R"({"thumbnail":""})", "outer"))[0].thumbnail, L"outer");
}

TEST(FeedReader, KeepsTheOrderOfTheArray)
{
    std::vector<Feed> const feeds = read(LR"([{"Content":"{\"source\":\"b\"}"},{"Content":"{\"source\":\"a\"}"}])");
    ASSERT_EQ(feeds.size(), 2U);
    EXPECT_EQ(feeds[0].source, L"b");
    EXPECT_EQ(feeds[1].source, L"a");
}

TEST(FeedReader, GivesNothingForTextThatIsNotJson)
{
    for (wchar_t const* text : {L"", L" ", L"failed", L"<html></html>", L"[", L"[{\"Content\":\"{}\"}"}) {
        EXPECT_THAT(read(text), IsEmpty()) << orvtext::toUtf8(text);
    }
}

TEST(FeedReader, GivesNothingForARootWithoutElements)
{
    for (wchar_t const* text : {L"[]", L"{}", L"null", L"17", L"\"text\"", L"true", L"1.5"}) {
        EXPECT_THAT(read(text), IsEmpty()) << orvtext::toUtf8(text);
    }
}

TEST(FeedReader, DropsAnElementWhoseContentIsNotJson)
{
    std::vector<Feed> const feeds = read(
        LR"([{"Content":"{\"source\":\"a\"}"},{"Content":"no"},{"Content":""},{},null,{"Content":"{\"source\":\"b\"}"}])");
    ASSERT_EQ(feeds.size(), 2U);
    EXPECT_EQ(feeds[0].source, L"a");
    EXPECT_EQ(feeds[1].source, L"b");
}

TEST(FeedReader, TakesAnyScalarForText)
{
    EXPECT_EQ(readOne(R"({"commentcontent":{"id":17}})").comment.id, L"17");
    EXPECT_EQ(readOne(R"({"source":true})").source, L"true");
    EXPECT_EQ(readOne(R"({"source":null})").source, L"");
}

TEST(FeedReader, EndsATextAtItsFirstNul)
{
    EXPECT_EQ(readOne(R"({"source":"ab\u0000cd"})").source, L"ab");
}

TEST(FeedReader, ReadsTextsOfEveryScript)
{
    EXPECT_EQ(readOne(R"({"commentcontent":{"content":"\u00e9 \u65e5\u672c \ud83d\ude00"}})").comment.content,
              L"\u00e9 \u65e5\u672c \U0001f600");
}

TEST(FeedReader, UndoesNoEscapeInTheContent)
{
    EXPECT_EQ(readOne(R"({"commentcontent":{"content":"a%2bb"}})").comment.content, L"a%2bb");
}

TEST(FeedReader, ReadsMissingNumbersAsZeroAndIgnoresMore)
{
    FeedViewport const view =
        readOne(R"({"commentcontent":{"viewport":{"eye":[1],"target":[1,2,3,4],"up":[]}}})").comment.viewport;
    EXPECT_EQ(view.eye, Vector3(1, 0, 0));
    EXPECT_EQ(view.target, Vector3(1, 2, 3));
    EXPECT_EQ(view.up, Vector3());
    EXPECT_EQ(view.zoom, 0.0);
    Matrix4 const matrix = readObjects(R"({"nodetransform":{"3":[7,8,9]}})").nodetransform.at(3);
    EXPECT_EQ(matrix[0], 7.0F);
    EXPECT_EQ(matrix[2], 9.0F);
    for (unsigned char i = 3; i < 16; ++i) {
        EXPECT_EQ(matrix[i], 0.0F);
    }
}

TEST(FeedReader, ReadsNullInPlaceOfAListAsZeros)
{
    FeedObjects const objects =
        readObjects(R"({"colored":[null,[1],[]],"nodetransform":{"1":null,"2":[]},"nodecolor":{"3":null}})");
    EXPECT_THAT(objects.colored, ElementsAre(Vector3(), Vector3(1, 0, 0), Vector3()));
    EXPECT_THAT(objects.nodetransform, ElementsAre(std::pair(1, Matrix4()), std::pair(2, Matrix4())));
    EXPECT_THAT(objects.nodecolor, ElementsAre(std::pair(3, 0)));
}

TEST(FeedReader, CutsAFractionOffANode)
{
    EXPECT_THAT(readObjects(R"({"hidden":[2.9]})").hidden, ElementsAre(2));
}

TEST(FeedReader, TakesTheFirstOfTwoKeysForOneNode)
{
    EXPECT_THAT(readObjects(R"({"nodecolor":{"1":7,"01":5}})").nodecolor, ElementsAre(std::pair(1, 5)));
}

TEST(FeedReader, TakesTheNumberAtTheStartOfAKey)
{
    EXPECT_THAT(readObjects(R"({"nodecolor":{"abc":1,"12abc":2,"-4":3}})").nodecolor,
                ElementsAre(std::pair(-4, 3), std::pair(0, 1), std::pair(12, 2)));
    EXPECT_THAT(readObjects(R"({"nodecolor":{"99999999999999999999":1}})").nodecolor,
                ElementsAre(std::pair(2147483647, 1)));
}

TEST(FeedReader, TakesKeysInTheOrderOfTheirBytes)
{
    EXPECT_THAT(readObjects(R"({"nodecolor":{"1":7,"01":5,"+1":4," 1":3}})").nodecolor, ElementsAre(std::pair(1, 3)))
        << "a blank stands before the others";
    FeedObjects const objects = readObjects(R"({"nodetransform":{"1":[1],"01":[2],"001":[3]}})");
    ASSERT_EQ(objects.nodetransform.size(), 1U);
    EXPECT_EQ(objects.nodetransform.at(1)[0], 3.0F);
}

TEST(FeedReader, TakesFlagsNumbersAndNullForEachOther)
{
    EXPECT_THAT(readObjects(R"({"hidden":[true,false,null,-2.9,0.0]})").hidden, ElementsAre(1, 0, 0, -2, 0));
    FeedAuthor const author = readOne(R"({"author":{"canDelete":2,"canEdit":0.5}})").author;
    EXPECT_TRUE(author.canDelete);
    EXPECT_TRUE(author.canEdit);
    EXPECT_EQ(readOne(R"({"author":{"canDelete":0,"canEdit":null}})").author, FeedAuthor());
    FeedViewport const view =
        readOne(R"({"commentcontent":{"viewport":{"eye":[true,null,3],"zoom":true}}})").comment.viewport;
    EXPECT_EQ(view, FeedViewport(Vector3(1, 0, 3), Vector3(), Vector3(), 1.0));
}

TEST(FeedReader, TakesNullForAnEmptyDocument)
{
    EXPECT_EQ(readOne("null"), Feed());
    EXPECT_EQ(readOne(R"({"author":null,"file":null,"action":null,"commentcontent":null})"), Feed());
    EXPECT_EQ(readOne(R"({"commentcontent":{"viewport":null,"objects":null}})"), Feed());
}

TEST(FeedReader, TakesAScalarForTheContentAsItsText)
{
    EXPECT_THAT(read(LR"([{"Content":null}])"), IsEmpty()) << "the text of null is empty";
    EXPECT_THROW(read(LR"([{"Content":5}])"), Json::Exception) << "a document, but none with members";
    EXPECT_THROW(read(LR"([{"Content":false}])"), Json::Exception);
}

TEST(FeedReader, EndsTheContentAtItsFirstNul)
{
    EXPECT_THAT(read(LR"([{"Content":"{}\u0000junk"}])"), ElementsAre(Feed()));
    EXPECT_THAT(read(LR"([{"Content":"{\u0000}"}])"), IsEmpty());
}

TEST(FeedReader, KnowsMembersByTheirExactNames)
{
    EXPECT_THAT(read(LR"([{"content":"{}","Thumbnail":"x"}])"), IsEmpty());
    std::vector<Feed> const feeds = read(
        LR"([{"Content":"{\"Source\":\"a\",\"Thumbnail\":\"a\",\"commentContent\":{\"id\":\"a\"},\"commentcontent\":{\"commenttype\":\"a\",\"objects\":{\"nodeColor\":{\"1\":1}}}}","thumbnail":"a"}])");
    EXPECT_THAT(feeds, ElementsAre(Feed()));
}

TEST(FeedReader, LooksAtTheOuterThumbnailOnlyWhereItNeedsOne)
{
    EXPECT_EQ(read(LR"([{"Content":"{\"thumbnail\":\"x\"}","Thumbnail":{}}])")[0].thumbnail, L"x");
    EXPECT_THROW(read(LR"([{"Content":"{}","Thumbnail":{}}])"), Json::Exception);
}

TEST(FeedReader, TakesTheLastOfTwoMembersWithOneName)
{
    EXPECT_EQ(readOne(R"({"source":"a","source":"b"})").source, L"b");
}

TEST(FeedReader, TakesCommentsAndTextBehindTheDocument)
{
    EXPECT_EQ(readOne("/* c */ {\"source\":\"a\"} // c\n").source, L"a");
    EXPECT_EQ(readOne("{\"source\":\"a\"} behind").source, L"a");
}

TEST(FeedReader, DropsAnElementWithHalfACharacter)
{
    EXPECT_THAT(read(responseOf(R"({"source":"\ud83d"})")), IsEmpty());
}

TEST(FeedReader, CountsScalarsInPlaceOfListsAsEmpty)
{
    FeedObjects const objects =
        readObjects(R"({"colored":5,"transparent":"x","hidden":true,"nodecolor":1.5,"nodetransform":"y"})");
    EXPECT_EQ(objects, FeedObjects());
    EXPECT_EQ(readObjects(R"({"nodecolor":[],"hidden":[],"colored":{},"nodetransform":null})"), FeedObjects());
}

struct BadCase {
    char const* document;
    char const* message;
};

class BadFeed : public testing::TestWithParam<BadCase>
{
};

TEST_P(BadFeed, RaisesTheLibrarysException)
{
    try {
        read(responseOf(GetParam().document));
        FAIL() << "no exception";
    } catch (Json::Exception const& error) {
        EXPECT_STREQ(error.what(), GetParam().message);
    }
}

constexpr char const* notAnArray = "in Json::Value::operator[](ArrayIndex): requires arrayValue";
constexpr char const* notAnObject = "in Json::Value::resolveReference(key, end): requires objectValue";
constexpr char const* notAText = "Type is not convertible to string";

INSTANTIATE_TEST_SUITE_P(
    Table, BadFeed,
    testing::Values(
        BadCase{R"({"commentcontent":{"objects":{"colored":{"a":1}}}})", notAnArray},
        BadCase{R"({"commentcontent":{"objects":{"transparent":{"a":1}}}})", notAnArray},
        BadCase{R"({"commentcontent":{"objects":{"hidden":{"a":1}}}})", notAnArray},
        BadCase{R"({"commentcontent":{"viewport":{"eye":1}}})", notAnArray},
        BadCase{R"({"commentcontent":{"viewport":{"target":{"x":1}}}})", notAnArray},
        BadCase{R"({"commentcontent":{"viewport":{"up":"z"}}})", notAnArray},
        BadCase{R"({"author":"Ada"})", notAnObject}, BadCase{R"({"author":[1]})", notAnObject},
        BadCase{R"({"commentcontent":{"viewport":7}})", notAnObject},
        BadCase{R"({"commentcontent":{"objects":[]}})", notAnObject}, BadCase{"5", notAnObject},
        BadCase{R"({"source":[]})", notAText}, BadCase{R"({"thumbnail":{}})", notAText},
        BadCase{R"({"commentcontent":{"viewport":{"zoom":"1"}}})", "Value is not convertible to double."},
        BadCase{R"({"commentcontent":{"viewport":{"eye":["1"]}}})", "Value is not convertible to double."},
        BadCase{R"({"commentcontent":{"objects":{"hidden":["1"]}}})", "Value is not convertible to Int."},
        BadCase{R"({"commentcontent":{"objects":{"nodecolor":{"1":[]}}}})", "Value is not convertible to Int."},
        BadCase{R"({"author":{"canEdit":"yes"}})", "Value is not convertible to bool."},
        BadCase{R"({"commentcontent":{"objects":{"transparent":[1,{}]}}})", "Value is not convertible to Int."},
        BadCase{R"({"commentcontent":{"objects":{"colored":[[1],5]}}})", notAnArray},
        BadCase{R"({"commentcontent":{"objects":{"colored":[["1"]]}}})", "Value is not convertible to double."},
        BadCase{R"({"commentcontent":{"objects":{"nodetransform":{"1":{"a":1}}}}})", notAnArray},
        BadCase{R"({"commentcontent":{"objects":{"nodetransform":{"1":5}}}})", notAnArray},
        BadCase{R"({"commentcontent":{"objects":{"nodetransform":[[1],["x"]]}}})",
                "Value is not convertible to double."},
        BadCase{R"({"commentcontent":5})", notAnObject}, BadCase{R"({"action":true})", notAnObject},
        BadCase{R"({"file":[]})", notAnObject}, BadCase{R"({"file":{"id":[]}})", notAText},
        BadCase{R"({"author":{"canDelete":{}}})", "Value is not convertible to bool."},
        BadCase{R"({"author":{"id":[],"canEdit":"x"},"file":5})", notAText},
        BadCase{R"({"author":{"canEdit":"x"},"file":5})", "Value is not convertible to bool."}));

TEST(BadFeed, WithARootOfTheWrongKindRaisesTheLibrarysException)
{
    struct {
        wchar_t const* response;
        char const* message;
    } const cases[] = {{LR"({"Content":"{}"})", notAnArray},
                       {LR"({"0":{"Content":"{}"}})", notAnArray},
                       {LR"([5])", notAnObject},
                       {LR"(["text"])", notAnObject},
                       {LR"([[]])", notAnObject},
                       {LR"([[{"Content":"{}"}]])", notAnObject},
                       {LR"([{"Content":"{}"},5])", notAnObject},
                       {LR"([{"Content":{}}])", notAText},
                       {LR"([{"Content":["{}"]}])", notAText}};
    for (auto const& [response, message] : cases) {
        try {
            read(response);
            ADD_FAILURE() << "no exception for " << orvtext::toUtf8(response);
        } catch (Json::Exception const& error) {
            EXPECT_STREQ(error.what(), message) << orvtext::toUtf8(response);
        }
    }
}

} // namespace
