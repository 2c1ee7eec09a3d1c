#include "cloud/RunningService.h"

#include "cloud/api/Parts.h"

#include <chrono>
#include <gmock/gmock.h>
#include <thread>

using namespace orvcloud;
using namespace orvcloud::testing;

namespace
{
class HttpProfile : public RunningService
{
protected:
    /// The status of the answer to these bytes; 0 if the connection ended without one.
    int statusOf(const std::string& bytes)
    {
        RawConnection connection(url);
        connection.send(bytes);
        return connection.receive().status;
    }

    /// Sends a byte now and then, each in time by itself, until the log shows the text. False if it doesn't.
    bool dripUntilLogged(RawConnection& connection, const std::string& text)
    {
        const auto present = [] { return std::chrono::steady_clock::now(); };
        const auto began = present();
        auto last = began;
        while (present() - began < std::chrono::seconds(20)) {
            if (logText().find(text) != std::string::npos)
                return true;
            if (present() - last < std::chrono::milliseconds(10)) {
                std::this_thread::yield();
                continue;
            }
            last = present();
            connection.send("X");
        }
        return false;
    }

    void restartWithShortTimes()
    {
        stop();
        config.limits.idle = std::chrono::milliseconds(200);
        config.limits.header = std::chrono::milliseconds(200);
        config.limits.transfer = std::chrono::milliseconds(200);
        config.limits.linger = std::chrono::milliseconds(200);
        start();
    }
};

const std::string getLine = "GET /shared/x HTTP/1.1\r\n";
const std::string postHead = "POST /api/Login/ HTTP/1.1\r\nHost: x\r\nX-Api-Key: " ORVANTA_API_KEY
                             "\r\nContent-Type: application/x-www-form-urlencoded\r\n";
} // namespace

TEST_F(HttpProfile, TakesExactlyOneHost)
{
    EXPECT_EQ(statusOf(getLine + "Host: x\r\n\r\n"), 200);
    EXPECT_EQ(statusOf(getLine + "\r\n"), 400);
    EXPECT_EQ(statusOf(getLine + "Host:\r\n\r\n"), 400);
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nHost: x\r\n\r\n"), 400);
    EXPECT_EQ(statusOf(getLine + "Host: x y\r\n\r\n"), 400);
    EXPECT_EQ(statusOf(getLine + "Host: a@b\r\n\r\n"), 400);
}

TEST_F(HttpProfile, SpeaksOneVersion)
{
    EXPECT_EQ(statusOf("GET /shared/x HTTP/1.0\r\nHost: x\r\n\r\n"), 505);
    EXPECT_EQ(statusOf("GET /shared/x HTTP/2.0\r\nHost: x\r\n\r\n"), 505);
    EXPECT_EQ(statusOf("GET /shared/x\r\n\r\n"), 400);
    EXPECT_EQ(statusOf("nonsense\r\n\r\n"), 400);
    EXPECT_EQ(statusOf(std::string("\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03\r\n\r\n", 15)), 400) << "TLS";
}

TEST_F(HttpProfile, TakesALengthAndNothingElse)
{
    const std::string chunk = "0\r\n\r\n";
    EXPECT_EQ(statusOf(postHead + "Transfer-Encoding: chunked\r\n\r\n" + chunk), 411);
    EXPECT_EQ(statusOf(postHead + "Transfer-Encoding: identity\r\n\r\n"), 411);
    EXPECT_EQ(statusOf(postHead + "Transfer-Encoding: chunked\r\nContent-Length: 5\r\n\r\n" + chunk), 411);
    EXPECT_EQ(statusOf(postHead + "Content-Length: 5\r\nTransfer-Encoding: xchunked\r\n\r\n" + chunk), 411);
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nTransfer-Encoding: chunked\r\n\r\n" + chunk), 411);
    EXPECT_EQ(statusOf(postHead + "\r\n"), 411);
    EXPECT_EQ(statusOf(postHead + "Content-Length: 1\r\nContent-Length: 1\r\n\r\nx"), 400);
    EXPECT_EQ(statusOf(postHead + "Content-Length: 1\r\nContent-Length: 2\r\n\r\nxy"), 400);
    for (const char* length : {"1, 1", "-1", "+1", "0x1", "1 1", "", "99999999999999999999999"})
        EXPECT_EQ(statusOf(postHead + "Content-Length: " + length + "\r\n\r\nx"), 400) << length;
}

TEST_F(HttpProfile, RefusesHeadersThatTwoProgramsReadDifferently)
{
    EXPECT_EQ(statusOf(getLine + "Host : x\r\n\r\n"), 400);
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nBad\r\n\r\n"), 400);
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nX: a\nY: b\r\n\r\n"), 400);
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nA: 1\r\nX-Api-Key: a\r\nX-Api-Key: b\r\n\r\n"), 400);
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nAuthorization: Bearer a\r\nAuthorization: Bearer b\r\n\r\n"), 400);
    EXPECT_EQ(statusOf("GET http://x/shared/x HTTP/1.1\r\nHost: x\r\n\r\n"), 400);
    EXPECT_EQ(statusOf("OPTIONS * HTTP/1.1\r\nHost: x\r\n\r\n"), 400);
    EXPECT_EQ(statusOf("CONNECT x:1 HTTP/1.1\r\nHost: x\r\n\r\n"), 400);
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nExpect: a-pony\r\n\r\n"), 417);
}

TEST_F(HttpProfile, LimitsHeaderAndBody)
{
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nX: " + std::string(7000, 'x') + "\r\n\r\n"), 200);
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nX: " + std::string(9000, 'x') + "\r\n\r\n"), 431);
    EXPECT_EQ(statusOf("GET /" + std::string(100'000, 'x') + " HTTP/1.1\r\nHost: x\r\n\r\n"), 431);
    EXPECT_EQ(statusOf(postHead + "Content-Length: 2000000\r\n\r\n"), 413) << "before any of the body came";
    EXPECT_EQ(statusOf(getLine + "Host: x\r\nContent-Length: 5\r\n\r\nhello"), 413);
}

TEST_F(HttpProfile, ABodyIsntTakenForARequest)
{
    RawConnection connection(url);
    connection.send(postHead + "Content-Length: 2000000\r\n\r\n" + getLine + "Host: x\r\n\r\n");
    const Reply reply = connection.receive();
    EXPECT_EQ(reply.status, 413);
    EXPECT_EQ(reply.headers.at("connection"), "close");
    EXPECT_EQ(connection.receive().status, 0);
}

TEST_F(HttpProfile, RequestsFollowOneAnotherOnAConnection)
{
    RawConnection connection(url);
    const std::string body = encodeForm({{"name", ORVANTA_API_ID}, {"username", "ann@example.org"}, {"password", "x"}});
    const std::string login = postHead + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
    connection.send(getLine + "Host: x\r\n\r\n" + login + getLine + "Host: x\r\n\r\n");
    EXPECT_EQ(connection.receive().status, 200);
    EXPECT_EQ(connection.receive().status, 401);
    EXPECT_EQ(connection.receive().status, 200);
    connection.send(getLine + "Host: x\r\nConnection: close\r\n\r\n");
    EXPECT_EQ(connection.receive().status, 200);
    EXPECT_EQ(connection.receive().status, 0);
}

TEST_F(HttpProfile, AFailureIsOneLineOfPlainText)
{
    RawConnection connection(url);
    connection.send(postHead + "Content-Length: 0\r\n\r\n");
    const Reply reply = connection.receive();
    EXPECT_EQ(reply.status, 403);
    EXPECT_EQ(reply.headers.at("content-type"), "text/plain; charset=utf-8");
    EXPECT_EQ(reply.headers.at("x-content-type-options"), "nosniff");
    EXPECT_FALSE(reply.body.empty());
    EXPECT_EQ(reply.body.find('\n'), std::string::npos);
}

TEST_F(HttpProfile, SilentAndSlowClientsAreLetGo)
{
    restartWithShortTimes();
    const std::vector<std::string> beginnings{"", "GET /sha", getLine + "Host: x\r\n",
                                              postHead + "Content-Length: 50\r\n\r\nname=x"};
    std::vector<std::unique_ptr<RawConnection>> slow;
    for (const std::string& beginning : beginnings) {
        slow.push_back(std::make_unique<RawConnection>(url));
        slow.back()->send(beginning);
    }
    EXPECT_EQ(statusOf(getLine + "Host: x\r\n\r\n"), 200) << "they hold nobody up";
    for (const auto& connection : slow)
        EXPECT_TRUE(connection->isClosed());
    EXPECT_THAT(logText(), ::testing::HasSubstr("timed out"));
}

TEST_F(HttpProfile, AHeaderThatDripsHasADeadlineToo)
{
    restartWithShortTimes();
    RawConnection connection(url);
    connection.send("GET /shared/x HTTP/1.1\r\n");
    EXPECT_TRUE(dripUntilLogged(connection, "timed out"));
}

TEST_F(HttpProfile, ABodyThatDripsIsRefused)
{
    restartWithShortTimes();
    RawConnection connection(url);
    connection.send(postHead + "Content-Length: 10000\r\n\r\n");
    EXPECT_TRUE(dripUntilLogged(connection, "POST /api/Login/ 408"));
    EXPECT_EQ(connection.receive().status, 408);
}

TEST_F(HttpProfile, MoreConnectionsThanAllowedAreEnded)
{
    stop();
    config.limits.connections = 1;
    start();
    RawConnection first(url);
    first.send(getLine + "Host: x\r\n\r\n");
    ASSERT_EQ(first.receive().status, 200);
    RawConnection second(url);
    EXPECT_TRUE(second.isClosed());
    first.send(getLine + "Host: x\r\n\r\n");
    EXPECT_EQ(first.receive().status, 200);
}

TEST_F(HttpProfile, HeadGetsNoBody)
{
    RawConnection connection(url);
    for (const char* path : {"/shared/x", "/api/Login/", "/nowhere"}) {
        connection.send(std::string("HEAD ") + path + " HTTP/1.1\r\nHost: x\r\n\r\n");
        const Reply reply = connection.receiveHead();
        EXPECT_EQ(reply.status, std::string(path) == "/nowhere" ? 404 : 405);
        EXPECT_NE(reply.headers.at("content-length"), "0");
        connection.send(getLine + "Host: x\r\n\r\n");
        EXPECT_EQ(connection.receive().status, 200) << "what follows is the next answer";
    }
    connection.send("HEAD /shared/x HTTP/1.1\r\n\r\n");
    EXPECT_EQ(connection.receiveHead().status, 400);
    EXPECT_TRUE(connection.isClosed());
}

TEST_F(HttpProfile, EachAddressHasItsOwnLimit)
{
    const SignedIn ann = signIn("ann");
    const auto statusAt = [&](const std::string& path, std::uint64_t length) {
        const bool isUpload = path.find("Upload") != std::string::npos;
        return statusOf("POST " + path +
                        " HTTP/1.1\r\nHost: x\r\nX-Api-Key: " ORVANTA_API_KEY "\r\nAuthorization: Bearer " + ann.token +
                        "\r\nCookie: " + ann.cookie +
                        "\r\nContent-Type: " + (isUpload ? "multipart/form-data; boundary=b" : formType) +
                        "\r\nExpect: 100-continue\r\nContent-Length: " + std::to_string(length) + "\r\n\r\n");
    };
    const std::vector<std::pair<const char*, std::uint64_t>> table{
        {"/api/Login/", 16'384},           {"/api/Logout/", 16'384},     {"/api/InstalledDevice/", 1U << 20},
        {"/api/DeleteComment/", 1U << 20}, {"/api/Share/", 1U << 20},    {"/api/CommentSync/", (20U << 20) + 65'536},
        {"/api/UploadInput/", 4ULL << 30}, {"/api/Upload/", 4ULL << 30},
    };
    for (const auto& [path, limit] : table) {
        EXPECT_EQ(statusAt(path, limit), 100) << path;
        EXPECT_EQ(statusAt(path, limit + 1), 413) << path;
    }
}

TEST_F(HttpProfile, ASlowReaderIsLetGo)
{
    const SignedIn ann = signIn("ann");
    const std::string job = push(ann, "a.step");
    const std::string record = R"({"thumbnail":")" + std::string(4'000'000, 'x') + "\"}";
    for (int i = 0; i < 8; ++i)
        ASSERT_EQ(comment(ann, job, "c" + std::to_string(i), record).status, 200);
    stop();
    config.limits.transfer = std::chrono::milliseconds(200);
    config.limits.linger = std::chrono::milliseconds(200);
    config.limits.slowestBytesPerSecond = std::uint64_t{1} << 40;
    start();
    RawConnection slow(url);
    slow.send(
        "GET /api/CommentSync/?" + encodeForm({{"name", ORVANTA_API_ID}, {"username", ann.email}, {"jobid", job}}) +
        " HTTP/1.1\r\nHost: x\r\nX-Api-Key: " ORVANTA_API_KEY "\r\nAuthorization: Bearer " + ann.token + "\r\n\r\n");
    // Every piece is taken in time, but never as much as asked for.
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    auto last = std::chrono::steady_clock::now();
    std::size_t got = 0;
    while (logText().find("undelivered") == std::string::npos && std::chrono::steady_clock::now() < end) {
        if (std::chrono::steady_clock::now() - last < std::chrono::milliseconds(20)) {
            std::this_thread::yield();
            continue;
        }
        last = std::chrono::steady_clock::now();
        got += slow.readSome(512 * 1024);
    }
    EXPECT_THAT(logText(), ::testing::HasSubstr("undelivered"));
    EXPECT_LT(got, 32'000'000U);
}

TEST_F(HttpProfile, AProxyNamesItsClients)
{
    const auto loginFrom = [&](const std::string& forwarded) {
        const std::string body =
            encodeForm({{"name", ORVANTA_API_ID}, {"username", "ann@example.org"}, {"password", "guess"}});
        return statusOf(postHead + forwarded + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body);
    };
    stop();
    config.behindProxy = true;
    start();
    for (const char* first : {"198.51.100.1, ", "198.51.100.2,", "", "x, ", "X-Y\r\nX-Forwarded-For: "})
        EXPECT_EQ(loginFrom(std::string("X-Forwarded-For: ") + first + "192.0.2.7\r\n"), 401);
    EXPECT_EQ(loginFrom("X-Forwarded-For: 192.0.2.7\r\n"), 429);
    EXPECT_EQ(loginFrom("X-Forwarded-For: 192.0.2.7, 192.0.2.8\r\n"), 401) << "somebody else";
    EXPECT_EQ(loginFrom("X-Forwarded-For: ::ffff:192.0.2.7\r\n"), 429) << "the same in another form";
    EXPECT_EQ(loginFrom("X-Forwarded-For: nonsense\r\n"), 401) << "the proxy itself";
    EXPECT_THAT(logText(), ::testing::HasSubstr(" 192.0.2.7 POST /api/Login/ 429"));
    stop();
    config.behindProxy = false;
    start();
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(loginFrom("X-Forwarded-For: 192.0.2." + std::to_string(i) + "\r\n"), 401);
    EXPECT_EQ(loginFrom("X-Forwarded-For: 192.0.2.9\r\n"), 429) << "without a proxy it is anybody's word";
}

TEST_F(HttpProfile, StoppingLetsARequestEnd)
{
    RawConnection idle(url);
    idle.send(getLine + "Host: x\r\n\r\n");
    ASSERT_EQ(idle.receive().status, 200);
    RawConnection busy(url);
    const std::string body =
        encodeForm({{"name", ORVANTA_API_ID}, {"username", "ann@example.org"}, {"password", "ann's password"}});
    busy.send(postHead + "Expect: 100-continue\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n");
    ASSERT_EQ(busy.receive().status, 100);
    std::thread stopping([this] { stop(); });
    const auto takesConnections = [&] {
        try {
            const RawConnection probe(url); // refused once nobody listens; what it would read is not waited for
            return true;
        } catch (const std::exception&) {
            return false;
        }
    };
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (takesConnections() && std::chrono::steady_clock::now() < end) {
    }
    busy.send(body);
    const Reply reply = busy.receive();
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.headers.count("connection"), 1U) << "it doesn't go on";
    stopping.join();
    EXPECT_TRUE(idle.isClosed());
}
