// The server that other tests rely on: it keeps every byte, and nothing unexpected gets past it.

#include "support/ScriptedHttpServer.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <string>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using orvtest::Answer;
using orvtest::ScriptedHttpServer;

namespace
{

/// A connection that sends what it is given.
class Client
{
public:
    explicit Client(ScriptedHttpServer const& server) : descriptor(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(server.port());
        isConnected = ::connect(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    }
    ~Client() { ::close(descriptor); }
    Client(Client const&) = delete;
    Client& operator=(Client const&) = delete;

    void send(std::string const& bytes) const
    {
        EXPECT_EQ(::send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL), static_cast<ssize_t>(bytes.size()));
    }
    /// What comes until it ends in `end`, or until the connection ends.
    std::string receive(std::string const& end) const
    {
        std::string bytes;
        std::string block(1 << 16, ' ');
        for (ssize_t count = 1; !bytes.ends_with(end) && count > 0;) {
            count = ::recv(descriptor, block.data(), block.size(), 0);
            bytes.append(block, 0, count > 0 ? static_cast<std::size_t>(count) : 0);
        }
        return bytes;
    }

    bool isConnected = false;

private:
    int descriptor;
};

std::string const first = "GET /a?x=1 HTTP/1.1\r\nHost: h\r\n\r\n";

/// What a test sees that sends these bytes where one GET of /a is expected.
void send(std::string const& bytes)
{
    ScriptedHttpServer server;
    server.expect("GET", "/a", Answer::ok("done"));
    Client const client(server);
    client.send(bytes);
    client.receive("\r\n\r\ndone");
}

/// What a test sees that expects nothing, of a client that leaves without waiting for an answer.
void sendAndLeave(std::string const& bytes)
{
    ScriptedHttpServer const server;
    Client(server).send(bytes);
}

TEST(ScriptedServer, KeepsEveryByteOfEveryRequest)
{
    std::string const body("\r\n\0xy", 5);
    std::string const post = "POST /b HTTP/1.1\r\nHost: h\r\nContent-Length: 5\r\n\r\n" + body;
    ScriptedHttpServer server;
    server.expect("GET", "/a", Answer::ok("one"));
    server.expect("POST", "/b", Answer::ok("two"));
    server.expect("GET", "/a", Answer::ok("three"));
    Client const client(server);
    client.send(first + post.substr(0, 20));
    EXPECT_TRUE(client.receive("one").ends_with("\r\n\r\none"));
    client.send(post.substr(20) + first); // one after the other, without waiting
    EXPECT_TRUE(client.receive("three").ends_with("\r\n\r\nthree"));
    ASSERT_EQ(server.requests().size(), 3U);
    EXPECT_EQ(server.requests()[0].bytes, first);
    EXPECT_EQ(server.requests()[1].bytes, post);
    EXPECT_EQ(server.requests()[1].body, body);
    EXPECT_EQ(server.requests()[2].query(), "x=1");
    EXPECT_EQ(server.everything(), first + post + first);
    EXPECT_EQ(server.connections(), 1);
}

TEST(ScriptedServer, FailsTheTestOnAnythingUnexpected)
{
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(sendAndLeave(first), "unexpected GET /a");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(sendAndLeave("DELETE /a HTTP/1.1\r\nHost: h\r\n\r\n"),
                                           "unexpected DELETE /a");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(sendAndLeave("GET /a HT"), "no whole request");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(sendAndLeave("POST /a HTTP/1.1\r\nHost: h\r\nContent-Length: 5\r\n\r\nfour"),
                                           "no whole request");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(send(first + "more"), "no whole request: more");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(send("GET /a HTTP/1.0\r\nHost: h\r\n\r\n"), "no request line");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(send("GET /a HTTP/1.1\r\nHost: h\r\nHost: h\r\n\r\n"), "came twice");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(send("GET /a HTTP/1.1\r\nHost\r\n\r\n"), "can't read");
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(send("GET /a HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n"), "411");
}

TEST(ScriptedServer, FailsTheTestOnWhatNeverCame)
{
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(
        {
            ScriptedHttpServer server;
            server.expect("GET", "/a", Answer::ok("x"));
        },
        "which never came");
}

TEST(ScriptedServer, RefusesAfterItsLastAnswer)
{
    ScriptedHttpServer server;
    server.expect("GET", "/a", Answer::beforeRefusing("last"));
    Client const client(server);
    client.send(first);
    EXPECT_TRUE(client.receive("never").ends_with("\r\n\r\nlast")) << "and the connection ends";
    EXPECT_FALSE(Client(server).isConnected);
}

TEST(ScriptedServer, MakesLargeAnswersAsTheyGoOut)
{
    for (Answer const& answer : {Answer::large(3 << 20), Answer::largeUnannounced(3 << 20)}) {
        EXPECT_LT(answer.bytes.size(), 200U);
        ScriptedHttpServer server;
        server.expect("GET", "/a", answer);
        Client const client(server);
        client.send(first);
        EXPECT_EQ(client.receive("never"), answer.bytes + std::string(3 << 20, 'x'));
    }
}

} // namespace
