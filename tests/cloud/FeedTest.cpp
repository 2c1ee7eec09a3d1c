#include "cloud/RunningService.h"

#include "cloud/feed/Record.h"

#include <chrono>
#include <fstream>
#include <gmock/gmock.h>
#include <json/reader.h>
#include <json/value.h>
#include <sstream>

using namespace orvcloud;
using namespace orvcloud::testing;
using ::testing::HasSubstr;

namespace
{
class Feed : public RunningService
{
protected:
    static Json::Value parse(const std::string& text)
    {
        Json::Value value;
        std::istringstream stream(text);
        EXPECT_TRUE(Json::parseFromStream(Json::CharReaderBuilder(), stream, &value, nullptr)) << text;
        return value;
    }

    static std::string saying(const std::string& content)
    {
        return R"({"commentcontent":{"content":")" + content + "\"}}";
    }

    SignedIn ann = signIn("ann");
    SignedIn bob = signIn("bob");
    std::string job = push(ann, "a.step");
};
} // namespace

TEST_F(Feed, IsAnArrayInAscii)
{
    ASSERT_EQ(comment(ann, job, "c1", saying("\xC3\xA9")).status, 200);
    const Reply reply = get(ann, "/api/CommentSync/", {{"jobid", job}});
    EXPECT_EQ(reply.headers.at("content-type"), "application/json");
    for (const char c : reply.body)
        ASSERT_LT(static_cast<unsigned char>(c), 0x80);
    const Json::Value feed = parse(reply.body);
    ASSERT_TRUE(feed.isArray());
    ASSERT_EQ(feed.size(), 7U);
    for (const Json::Value& element : feed) {
        EXPECT_TRUE(element["Content"].isString());
        EXPECT_TRUE(element["Thumbnail"].isString());
    }
    EXPECT_EQ(parse(feed[0]["Content"].asString())["commentcontent"]["content"].asString(), "\xC3\xA9");
}

TEST_F(Feed, KeepsARecordAndNamesItsAuthor)
{
    const std::string rest = R"("commentcontent":{"content":"c","objects":{"hidden":[3,7]},)"
                             R"("viewport":{"eye":[0.10000000149011612,0.0,10.0],"zoom":1.0}},"file":{"id":")" +
                             job + R"("})";
    const std::string sent =
        R"({"author":{"canDelete":true,"email":"e","id":")" + ann.token + R"(","name":"n"},)" + rest + "}\n";
    EXPECT_EQ(comment(ann, job, "c1", sent).body, "ok");
    const std::string stored = feed(ann, job)[0];
    EXPECT_THAT(stored, HasSubstr("}," + rest + "}\n"));
    const Json::Value author = parse(stored)["author"];
    EXPECT_EQ(author["email"].asString(), "ann@example.org");
    EXPECT_EQ(author["name"].asString(), "\xC3\x84"
                                         "ann");
    EXPECT_EQ(author["canDelete"].asBool(), true);
    EXPECT_EQ(author["id"].asString(), parse(get(ann, "/api/AccountInfo/", {}).body)["id"].asString());
}

TEST_F(Feed, PlusSignsArriveAsSuch)
{
    ASSERT_EQ(comment(ann, job, "c1", R"({"thumbnail":"data:image/jpeg;base64,a%2bb/%2b"})").status, 200);
    EXPECT_EQ(parse(feed(ann, job)[0])["thumbnail"].asString(), "data:image/jpeg;base64,a+b/+");
}

TEST_F(Feed, NewestComesFirstAndAReplacementStays)
{
    comment(ann, job, "c1", saying("one"));
    comment(ann, job, "c2", saying("two"));
    comment(ann, job, "c1", saying("one, mended"));
    const auto entries = feed(ann, job);
    ASSERT_EQ(entries.size(), 8U);
    EXPECT_THAT(entries[0], HasSubstr("two"));
    EXPECT_THAT(entries[1], HasSubstr("one, mended"));
}

TEST_F(Feed, AnothersCommentIsntReplaced)
{
    share(ann, job, "bob@example.org", "");
    ASSERT_EQ(comment(ann, job, "c1", saying("one")).status, 200);
    EXPECT_EQ(comment(bob, job, "c1", saying("mine now")).status, 409);
    EXPECT_THAT(feed(bob, job)[0], HasSubstr("one"));
}

TEST_F(Feed, RefusedRecordsChangeNothing)
{
    const auto before = feed(ann, job);
    for (const std::string bad :
         {"", "5", "[]", "{", R"({"file":[]})", R"({"commentcontent":{"objects":{"hidden":[3e9]}}})"})
        EXPECT_EQ(comment(ann, job, "c1", bad).status, 400) << bad;
    EXPECT_EQ(comment(ann, job, "c1", R"({"file":{"name":")" + ann.token + "\"}}").status, 400);
    EXPECT_EQ(comment(ann, job, "", "{}").status, 400);
    EXPECT_EQ(comment(ann, job, "a\nb", "{}").status, 400);
    EXPECT_EQ(comment(ann, job, std::string(201, 'x'), "{}").status, 400);
    EXPECT_EQ(comment(ann, job, ann.token, "{}").status, 400) << "the token is no id";
    EXPECT_EQ(comment(ann, "failed", "c1", "{}").status, 404);
    EXPECT_EQ(feed(ann, job), before);
}

TEST_F(Feed, TakesTheLargestRecordHoweverItIsEscaped)
{
    const std::string frame = R"({"thumbnail":""})";
    std::string escaped;
    for (std::size_t i = 0; i < largestRecord - frame.size(); ++i)
        escaped += "%2b";
    EXPECT_EQ(comment(ann, job, "c1", R"({"thumbnail":")" + escaped + "\"}").status, 200);
    EXPECT_EQ(parse(feed(ann, job)[0])["thumbnail"].asString().size(), largestRecord - frame.size());
    EXPECT_EQ(comment(ann, job, "c2", R"({"thumbnail":"%2b)" + escaped + "\"}").status, 400);
}

TEST_F(Feed, ARecordIsOfItsRequestsModelAndComment)
{
    EXPECT_EQ(comment(ann, job, "c1", R"({"commentcontent":{"id":"c1"},"file":{"id":")" + job + "\"}}").status, 200);
    EXPECT_EQ(comment(ann, job, "c2", R"({"commentcontent":{"id":"c1"}})").status, 400);
    EXPECT_EQ(comment(ann, push(ann, "b.step"), "c2", R"({"file":{"id":")" + job + "\"}}").status, 400);
}

TEST_F(Feed, OnesOwnCommentsCarryTheAddressAsTheRequestSpellsIt)
{
    share(ann, job, "bob@example.org", "");
    ASSERT_EQ(comment(ann, job, "c1", saying("anns")).status, 200);
    ASSERT_EQ(comment(bob, job, "c2", saying("bobs")).status, 200);
    const auto emails = [&](SignedIn user, const std::string& spelling) {
        user.email = spelling;
        const auto entries = feed(user, job);
        return parse(entries[1])["author"]["email"].asString() + " " + parse(entries[0])["author"]["email"].asString();
    };
    EXPECT_EQ(emails(ann, "Ann@Example.org"), "Ann@Example.org bob@example.org");
    EXPECT_EQ(emails(ann, "ann@example.org"), "ann@example.org bob@example.org");
    EXPECT_EQ(emails(bob, "BOB@example.org"), "ann@example.org BOB@example.org");
    EXPECT_EQ(parse(feed(ann, job)[2])["author"]["email"].asString(), "");

    // Whoever signed in under another spelling comments, sees the comment as their own, and deletes it.
    const SignedIn shouting{"ANN@EXAMPLE.ORG", login("ANN@EXAMPLE.ORG", "ann's password").body, ""};
    ASSERT_EQ(comment(shouting, job, "c3", saying("loud")).status, 200);
    EXPECT_EQ(parse(feed(shouting, job)[0])["author"]["email"].asString(), "ANN@EXAMPLE.ORG");
    EXPECT_EQ(parse(feed(bob, job)[0])["author"]["email"].asString(), "ann@example.org");
    EXPECT_EQ(post(shouting, "/api/DeleteComment/", {{"jobid", job}, {"commentid", "c3"}}).status, 200);
}

TEST_F(Feed, AnAuthorsRoomIsLimited)
{
    stop();
    config.commentQuota = {2, 1000};
    start();
    EXPECT_EQ(comment(ann, job, "c1", saying(std::string(1000, 'x'))).status, 413);
    EXPECT_EQ(comment(ann, job, "c1", saying("one")).status, 200);
    EXPECT_EQ(comment(ann, job, "c2", saying("two")).status, 200);
    EXPECT_EQ(comment(ann, job, "c3", saying("three")).status, 413);
    EXPECT_EQ(comment(ann, job, "c2", saying("two, mended")).status, 200);
    EXPECT_EQ(feed(ann, job).size(), 8U);
}

TEST_F(Feed, LargeAnswersUnderWayAreLimited)
{
    std::string record = R"({"thumbnail":")" + std::string(largestRecord - 16, 'x') + "\"}";
    ASSERT_EQ(record.size(), largestRecord);
    for (const char* id : {"c1", "c2", "c3", "c4"})
        ASSERT_EQ(comment(ann, job, id, record).status, 200);
    stop();
    config.limits.answerBytes = 20U << 20;
    start();
    const std::string target =
        "/api/CommentSync/?" + encodeForm({{"name", ORVANTA_API_ID}, {"username", ann.email}, {"jobid", job}});
    {
        RawConnection slow(url);
        slow.send("GET " + target + " HTTP/1.1\r\nHost: x\r\nX-Api-Key: " ORVANTA_API_KEY "\r\nAuthorization: Bearer " +
                  ann.token + "\r\n\r\n");
        ASSERT_GT(slow.readSome(1), 0U); // the answer is under way, and more than the system takes over
        const Reply refused = get(ann, "/api/CommentSync/", {{"jobid", job}});
        EXPECT_EQ(refused.status, 503);
        EXPECT_EQ(refused.headers.count("retry-after"), 1U);
        EXPECT_EQ(get(ann, "/api/AccountInfo/", {}).status, 200) << "small answers aren't counted";
    }
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    int status = 0;
    while (status != 200 && std::chrono::steady_clock::now() < end)
        status = get(ann, "/api/CommentSync/", {{"jobid", job}}).status;
    EXPECT_EQ(status, 200) << "an answer that ended makes room";
    EXPECT_EQ(get(ann, "/api/CommentSync/", {{"jobid", job}}).status, 200);
}

TEST_F(Feed, AuthorAndOwnerDelete)
{
    share(ann, job, "bob@example.org, eve@example.org", "");
    const SignedIn eve = signIn("eve");
    comment(bob, job, "c1", saying("one"));
    comment(bob, job, "c2", saying("two"));
    const auto remove = [&](const SignedIn& user, const std::string& id) {
        return post(user, "/api/DeleteComment/", {{"jobid", job}, {"commentid", id}}).status;
    };
    EXPECT_EQ(remove(eve, "c1"), 403);
    EXPECT_EQ(feed(ann, job).size(), 8U);
    EXPECT_EQ(remove(bob, "c1"), 200);
    EXPECT_EQ(remove(ann, "c2"), 200);
    EXPECT_EQ(remove(bob, "c1"), 200) << "one that is gone is fine";
    EXPECT_EQ(feed(ann, job).size(), 6U);
    const std::string automatic = parse(feed(ann, job)[0])["commentcontent"]["id"].asString();
    EXPECT_EQ(remove(bob, automatic), 403);
    EXPECT_EQ(remove(ann, automatic), 200);
    EXPECT_EQ(feed(ann, job).size(), 5U);
}

TEST_F(Feed, NoTokenIsKeptAnywhere)
{
    comment(ann, job, "c1", R"({"author":{"id":")" + ann.token + "\"}}");
    share(ann, job, "bob@example.org", "hello");
    stop();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(config.dataDirectory)) {
        if (!entry.is_regular_file())
            continue;
        std::ifstream stream(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        for (const std::string& secret :
             {ann.token, ann.cookie.substr(ann.cookie.find('=') + 1), std::string("ann's password")})
            EXPECT_EQ(bytes.find(secret), std::string::npos) << entry.path();
    }
}
