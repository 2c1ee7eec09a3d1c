#include "cloud/RunningService.h"

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

TEST_F(HttpProfile, StoppingLetsARequestEnd)
{
    RawConnection idle(url);
    idle.send(getLine + "Host: x\r\n\r\n");
    ASSERT_EQ(idle.receive().status, 200);
    stop();
    EXPECT_TRUE(idle.isClosed());
}
