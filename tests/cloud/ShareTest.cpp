#include "cloud/RunningService.h"

#include "cloud/app/Users.h"

#include <gmock/gmock.h>

using namespace orvcloud;
using namespace orvcloud::testing;
using ::testing::HasSubstr;

namespace
{
class Share : public RunningService
{
protected:
    SignedIn ann = signIn("ann");
    SignedIn bob = signIn("bob");
    std::string job = push(ann, "a.step");
};
} // namespace

TEST_F(Share, GivesAccessAndSendsMail)
{
    const Reply reply = share(ann, job, "bob@example.org", "Have a look");
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body, "1");
    EXPECT_EQ(get(bob, "/api/isFilePresent/", {{"filename", "a.step"}}).body, job);
    EXPECT_EQ(feed(bob, job).size(), 6U);
    EXPECT_EQ(comment(bob, job, "c1", "{}").status, 200);
    const auto mails = outbox();
    ASSERT_EQ(mails.size(), 1U);
    EXPECT_THAT(mails[0], HasSubstr("To: <bob@example.org>"));
    EXPECT_THAT(mails[0], HasSubstr("Reply-To: <ann@example.org>"));
}

TEST_F(Share, TakesTheAddressesAsTyped)
{
    EXPECT_EQ(share(ann, job, ",bob@example.org,, eve@example.org ,BOB@example.org,", "").body, "2");
    EXPECT_EQ(outbox().size(), 2U);
    EXPECT_EQ(share(ann, job, "ann@example.org", "").body, "0") << "the owner has access already";
    EXPECT_EQ(outbox().size(), 2U);
}

TEST_F(Share, InvitesAllOrNobody)
{
    for (const std::string bad : {"", " , ", "bob", "bob@example.org, nonsense", "bob@example.org\r\nBcc: x@y.org"})
        EXPECT_EQ(share(ann, job, bad, "").status, 400) << bad;
    std::string many;
    for (int i = 0; i < 101; ++i)
        many += "user" + std::to_string(i) + "@example.org,";
    EXPECT_EQ(share(ann, job, many, "").status, 400);
    EXPECT_EQ(share(ann, job, "bob@example.org", std::string(20'000, 'x')).status, 400);
    EXPECT_TRUE(outbox().empty());
    EXPECT_EQ(get(bob, "/api/isFilePresent/", {{"filename", "a.step"}}).body, "");
}

TEST_F(Share, SendsNoMoreThanSoManyMailsADay)
{
    const auto invite = [&](int first) {
        std::string many;
        for (int i = first; i < first + 100; ++i)
            many += "user" + std::to_string(i) + "@example.org,";
        return share(ann, job, many, "");
    };
    for (int i = 0; i < 5; ++i)
        ASSERT_EQ(invite(i * 100).status, 200);
    const Reply refused = share(ann, job, "bob@example.org", "");
    EXPECT_EQ(refused.status, 429);
    const std::int64_t wait = std::stoll(refused.headers.at("retry-after"));
    EXPECT_EQ(get(bob, "/api/isFilePresent/", {{"filename", "a.step"}}).body, "") << "nobody was invited";
    EXPECT_EQ(outbox().size(), 500U);
    EXPECT_EQ(share(bob, push(bob, "b.step"), "ann@example.org", "").status, 200) << "each has a count of their own";
    *now += wait - 1;
    EXPECT_EQ(share(ann, job, "bob@example.org", "").status, 429);
    *now += 1;
    EXPECT_EQ(share(ann, job, "bob@example.org", "").status, 200);
}

TEST_F(Share, QuotesAWrongAddressInOneLine)
{
    std::string address = "a\r\nb";
    while (address.size() < 400)
        address += "\xC3\xA4";
    const Reply reply = share(ann, job, address, "");
    EXPECT_EQ(reply.status, 400);
    EXPECT_FALSE(hasControlCharacter(reply.body)) << reply.body;
    EXPECT_TRUE(isUtf8(reply.body)) << "cut between characters";
    EXPECT_THAT(reply.body, HasSubstr("a??b\xC3\xA4"));
}

TEST_F(Share, WaitsForAnAccount)
{
    EXPECT_EQ(share(ann, job, "later@example.org", "").body, "1");
    addUser(config, "Later@example.org", "Later", "later's password");
    const SignedIn later{"Later@example.org", login("later@example.org", "later's password").body, ""};
    EXPECT_EQ(get(later, "/api/isFilePresent/", {{"filename", "a.step"}}).body, job);
}

TEST_F(Share, IsTheOwnersAlone)
{
    EXPECT_EQ(share(bob, job, "eve@example.org", "").status, 404) << "bob can't see it";
    share(ann, job, "bob@example.org", "");
    EXPECT_EQ(share(bob, job, "eve@example.org", "").status, 403);
    EXPECT_EQ(outbox().size(), 1U);
}

TEST_F(Share, OnesOwnModelOfTheNameGoesFirst)
{
    share(ann, job, "bob@example.org", "");
    const std::string own = push(bob, "a.step");
    EXPECT_NE(own, job);
    EXPECT_EQ(get(bob, "/api/isFilePresent/", {{"filename", "a.step"}}).body, own);
}

TEST_F(Share, TheLinkTellsNothing)
{
    const Reply there = sendRequest(url, "GET", "/shared/" + job, {});
    const Reply missing = sendRequest(url, "GET", "/shared/nothing", {});
    EXPECT_EQ(there.status, 200);
    EXPECT_THAT(there.headers.at("content-type"), HasSubstr("text/html"));
    EXPECT_EQ(there.body, missing.body);
    EXPECT_EQ(sendRequest(url, "POST", "/shared/x", {}).status, 405);
}
