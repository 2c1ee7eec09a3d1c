#include "cloud/RunningService.h"

#include "cloud/app/Users.h"
#include "cloud/store/SqliteStore.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <gmock/gmock.h>
#include <limits>
#include <thread>

using namespace orvcloud;
using namespace orvcloud::testing;
using ::testing::HasSubstr;

namespace
{
class Accounts : public RunningService
{
};
constexpr std::int64_t day = 24 * 3600;
} // namespace

TEST_F(Accounts, ALoginGivesATokenAndACookie)
{
    const Reply reply = login("ann@example.org", "ann's password");
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body.size(), 36U);
    const std::string cookie = reply.headers.at("set-cookie");
    EXPECT_TRUE(cookie.starts_with("orvanta_session="));
    EXPECT_THAT(cookie, HasSubstr("; HttpOnly"));
    EXPECT_THAT(cookie, HasSubstr("; SameSite=Strict"));
    EXPECT_THAT(cookie, HasSubstr("; Path=/api/;"));
    EXPECT_THAT(cookie, HasSubstr("; Max-Age=2592000;"));
    EXPECT_EQ(cookie.find("Secure"), std::string::npos) << "over plain HTTP the client would never send it back";
    EXPECT_EQ(cookie.find(reply.body), std::string::npos);
    EXPECT_EQ(login("ANN@example.ORG", "ann's password").status, 200);
}

TEST_F(Accounts, ASecureCookieWhereUsersComeOverTls)
{
    stop();
    config.publicUrl = "https://cloud.example/";
    start();
    EXPECT_THAT(login("ann@example.org", "ann's password").headers.at("set-cookie"), HasSubstr("; Secure"));
    stop();
    config.publicUrl = "";
    config.behindProxy = true;
    start();
    EXPECT_THAT(login("ann@example.org", "ann's password").headers.at("set-cookie"), HasSubstr("; Secure"));
}

TEST_F(Accounts, WrongPasswordsAndUnknownUsersLookAlike)
{
    const Reply wrong = login("ann@example.org", "bob's password");
    const Reply unknown = login("nobody@example.org", "bob's password");
    EXPECT_EQ(wrong.status, 401);
    EXPECT_EQ(unknown.status, 401);
    EXPECT_EQ(wrong.body, unknown.body);
    EXPECT_EQ(wrong.headers.count("set-cookie"), 0U);
    EXPECT_EQ(login("ann@example.org", "").status, 401);
    EXPECT_EQ(login("ann@example.org", std::string(2000, 'x')).status, 401);
}

TEST_F(Accounts, AnUnknownUserTakesAsLongAsAWrongPassword)
{
    stop();
    config.hashCost = {3, 32U << 20}; // some 50 ms, where all the rest takes about one
    setPassword(config, "ann@example.org", "ann's password");
    start();
    // The processor's time, which a busy machine doesn't stretch as it does the clock's.
    const auto timeOf = [&](const std::string& email) {
        auto least = std::numeric_limits<std::clock_t>::max();
        for (int i = 0; i < 3; ++i) {
            const std::clock_t began = std::clock();
            EXPECT_EQ(login(email, "wrong").status, 401);
            least = std::min(least, std::clock() - began);
        }
        return least;
    };
    EXPECT_GT(timeOf("nobody@example.org") * 8, timeOf("ann@example.org")) << "without a hash it would be a fiftieth";
}

TEST_F(Accounts, GuessingIsSlowedDown)
{
    for (int i = 0; i < 5; ++i)
        ASSERT_EQ(login("ann@example.org", "guess").status, 401);
    const Reply refused = login("ann@example.org", "ann's password");
    EXPECT_EQ(refused.status, 429);
    EXPECT_EQ(refused.headers.at("retry-after"), "2");
    EXPECT_EQ(login("bob@example.org", "bob's password").status, 200);
    *now += 2;
    EXPECT_EQ(login("ann@example.org", "ann's password").status, 200);
    EXPECT_EQ(login("ann@example.org", "guess").status, 401);
}

TEST_F(Accounts, ManyLoginsAtOnceAllGetAnAnswer)
{
    std::vector<std::thread> threads;
    std::atomic<int> fine = 0;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([&, i] {
            const std::string name = i % 2 == 0 ? "ann" : "bob";
            if (login(name + "@example.org", name + "'s password").status == 200)
                ++fine;
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(fine, 8);
}

TEST_F(Accounts, TooManyLoginsAtOnceAreToldToWait)
{
    stop();
    config.limits.waitingHashes = 0;
    start();
    const Reply reply = login("ann@example.org", "ann's password");
    EXPECT_EQ(reply.status, 503);
    EXPECT_EQ(reply.headers.count("retry-after"), 1U);
}

TEST_F(Accounts, LogLinesComeOneAtATime)
{
    stop();
    std::atomic<int> inside = 0;
    std::atomic<bool> overlapped = false;
    std::atomic<bool> mailFailed = false;
    config.smtpUrl = "smtp://127.0.0.1:1";
    config.log = [&](const std::string& line) {
        if (++inside > 1)
            overlapped = true;
        if (line.find("mail server") != std::string::npos) {
            mailFailed = true;
            // Stays long enough for the lines of the requests below to come in between, if they could.
            const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(300);
            while (!overlapped && std::chrono::steady_clock::now() < end)
                std::this_thread::yield();
        }
        --inside;
    };
    start();
    const SignedIn ann = signIn("ann");
    share(ann, push(ann, "a.step"), "bob@example.org", "");
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!mailFailed && std::chrono::steady_clock::now() < end)
        std::this_thread::yield();
    ASSERT_TRUE(mailFailed);
    get(ann, "/api/AccountInfo/", {});
    get(ann, "/api/AccountInfo/", {});
    stop();
    EXPECT_FALSE(overlapped);
}

TEST_F(Accounts, InfoNamesTheAccount)
{
    const Reply reply = get(signIn("ann"), "/api/AccountInfo/", {});
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.headers.at("content-type"), "application/json");
    EXPECT_THAT(reply.body, HasSubstr(R"("email":"ann@example.org")"));
    EXPECT_THAT(reply.body, HasSubstr(R"("name":"\u00c4ann")"));
}

TEST_F(Accounts, ADeviceIsRecordedForTheCookiesUser)
{
    SignedIn ann = signIn("ann");
    const Fields device{{"devicename", "desk"}, {"devicetype", "pc"}};
    EXPECT_EQ(postWithCookie(ann, "/api/InstalledDevice/", device).body, "ok");
    EXPECT_EQ(postWithCookie(ann, "/api/InstalledDevice/", {{"devicename", ""}, {"devicetype", "pc"}}).status, 400);
    EXPECT_EQ(postWithCookie(ann, "/api/InstalledDevice/", {{"devicename", "desk"}}).status, 400);
    EXPECT_EQ(post(ann, "/api/InstalledDevice/", device).status, 401) << "the token doesn't open it";
    EXPECT_EQ(postWithCookie({"bob@example.org", "", ann.cookie}, "/api/InstalledDevice/",
                             {{"devicename", "laptop"}, {"devicetype", "mac"}})
                  .status,
              200);
    const auto store = openSqliteStore(config.dataDirectory);
    const auto devices = store->devicesOf(store->findAccount("ann@example.org")->id);
    ASSERT_EQ(devices.size(), 2U) << "the cookie says whose device it is, whatever the parameter says";
    EXPECT_EQ(devices[0].name + devices[0].type, "deskpc");
    EXPECT_EQ(devices[1].name + devices[1].type, "laptopmac");
    EXPECT_EQ(devices[0].recorded, *now);
    EXPECT_TRUE(store->devicesOf(store->findAccount("bob@example.org")->id).empty());
    ann.cookie = "orvanta_session=made-up";
    EXPECT_EQ(postWithCookie(ann, "/api/InstalledDevice/", device).status, 401);
}

TEST_F(Accounts, LogoutEndsTokenAndCookie)
{
    const SignedIn ann = signIn("ann");
    const SignedIn elsewhere = signIn("ann");
    const Reply reply = postWithCookie({"", "", ann.cookie}, "/api/Logout/", {{"tokenID", "default"}});
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body, "ok");
    EXPECT_THAT(reply.headers.at("set-cookie"), HasSubstr("Max-Age=0"));
    EXPECT_EQ(get(ann, "/api/AccountInfo/", {}).status, 401);
    EXPECT_EQ(postWithCookie(ann, "/api/InstalledDevice/", {{"devicename", "d"}, {"devicetype", "pc"}}).status, 401);
    EXPECT_EQ(get(elsewhere, "/api/AccountInfo/", {}).status, 200) << "other computers stay signed in";
}

TEST_F(Accounts, NobodySignsOutWhoOnlyKnowsTheAddress)
{
    const SignedIn ann = signIn("ann");
    EXPECT_EQ(post({ann.email, "", ""}, "/api/Logout/", {{"tokenID", "default"}}).body, "ok");
    EXPECT_EQ(get(ann, "/api/AccountInfo/", {}).status, 200);
}

TEST_F(Accounts, ANewLoginEndsTheSessionWhoseCookieItReplaces)
{
    const SignedIn ann = signIn("ann");
    const Reply again = postWithCookie(ann, "/api/Login/", {{"password", "ann's password"}});
    EXPECT_EQ(again.status, 200);
    EXPECT_EQ(get(ann, "/api/AccountInfo/", {}).status, 401);
    EXPECT_EQ(postWithCookie(ann, "/api/Login/", {{"password", "wrong"}}).status, 401);
    EXPECT_EQ(get({ann.email, again.body, ""}, "/api/AccountInfo/", {}).status, 200);
}

TEST_F(Accounts, ASessionLivesThirtyDaysFromItsLastUse)
{
    const SignedIn ann = signIn("ann");
    const SignedIn unused = signIn("ann");
    *now += 29 * day;
    EXPECT_EQ(get(ann, "/api/AccountInfo/", {}).status, 200);
    *now += 29 * day;
    EXPECT_EQ(get(ann, "/api/AccountInfo/", {}).status, 200);
    EXPECT_EQ(get(unused, "/api/AccountInfo/", {}).status, 401);
    *now += 31 * day;
    EXPECT_EQ(get(ann, "/api/AccountInfo/", {}).status, 401);
    const Fields device{{"devicename", "d"}, {"devicetype", "pc"}};
    EXPECT_EQ(postWithCookie(ann, "/api/InstalledDevice/", device).status, 401) << "the cookie has expired with it";
}

TEST_F(Accounts, SessionsOutliveTheService)
{
    const SignedIn ann = signIn("ann");
    stop();
    start();
    EXPECT_EQ(get(ann, "/api/AccountInfo/", {}).status, 200);
    EXPECT_EQ(postWithCookie(ann, "/api/InstalledDevice/", {{"devicename", "d"}, {"devicetype", "pc"}}).status, 200);
}

TEST_F(Accounts, APasswordIsHashedAnewWhenTheCostRises)
{
    const auto hashOfAnn = [&] { return listUsers(config)[0].passwordHash; };
    const std::string before = hashOfAnn();
    signIn("ann");
    EXPECT_EQ(hashOfAnn(), before);
    stop();
    config.hashCost = {2, 16384};
    start();
    signIn("ann");
    EXPECT_TRUE(hashOfAnn().starts_with("$argon2id$v=19$m=16,t=2,"));
    signIn("ann");
}

TEST_F(Accounts, AreManagedBesideTheService)
{
    const SignedIn ann = signIn("ann");
    addUser(config, "new@example.org", "New", "new password");
    EXPECT_EQ(login("new@example.org", "new password").status, 200);
    setPassword(config, "ann@example.org", "another password");
    EXPECT_EQ(get(ann, "/api/AccountInfo/", {}).status, 401) << "a new password ends all sessions";
    EXPECT_EQ(login("ann@example.org", "another password").status, 200);
    EXPECT_THROW(addUser(config, "NEW@example.org", "New", "new password"), std::runtime_error);
    EXPECT_THROW(addUser(config, "other@example.org", "New", "short"), std::runtime_error);
    EXPECT_THROW(addUser(config, "no address", "New", "new password"), std::runtime_error);
    EXPECT_THROW(addUser(config, "other@example.org", " ", "new password"), std::runtime_error);
    EXPECT_THROW(setPassword(config, "other@example.org", "new password"), std::runtime_error);
}

TEST_F(Accounts, SecretsStayOutOfTheLog)
{
    const SignedIn ann = signIn("ann");
    login("ann@example.org", "a wrong secret");
    get(ann, "/api/AccountInfo/", {});
    sendRequest(url, "GET", "/api/" + ann.token, standardHeaders(ann));
    sendRequest(url, ann.token, "/api/Login/", standardHeaders(ann));
    sendRequest(url, "GET", "/api/AccountInfo/?userid=" + ann.token, standardHeaders(ann));
    sendRequest(url, "GET", "/shared/" + ann.token + "?" + ann.token, standardHeaders(ann));
    upload(ann, ann.token, "x");
    upload(ann, "a.step", ann.token);
    upload(ann, "example.org", "x", "/api/Upload/", ann.token);
    const std::string job = push(ann, "b.step");
    comment(ann, job, ann.token, "{}");
    comment(ann, job, "c", R"({"file":")" + ann.token + "\"}");
    share(ann, job, ann.token + "@example.org, " + ann.token, ann.token);
    postWithCookie(ann, "/api/Logout/", {});
    const std::string log = logText();
    EXPECT_THAT(log, HasSubstr("POST /api/Login/ 200"));
    for (const std::string& secret : {ann.token, ann.cookie.substr(ann.cookie.find('=') + 1), std::string("secret"),
                                      std::string("password"), std::string("example.org")})
        EXPECT_EQ(log.find(secret), std::string::npos) << secret << " in\n" << log;
}
