// The limits that the product runs with, in real time: all of them at once, since each takes its time.

#include "host/orvweb/CurlTransport.h"
#include "support/HostSession.h"
#include "support/Loopback.h"
#include "support/ScriptedHttpServer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

using orv::ErrorCode;
using orvtest::Answer;

namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// A port that takes no connection: the queue in front of it is full.
class FullPort
{
public:
    FullPort() : listener(orvtest::listenOnLoopback(port, 0))
    {
        EXPECT_GE(listener, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(port);
        for (int i = 0; i < 4; ++i) {
            waiting.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
            static_cast<void>(::connect(waiting.back(), reinterpret_cast<sockaddr*>(&address), sizeof address));
        }
    }
    ~FullPort()
    {
        for (int const socket : waiting) {
            ::close(socket);
        }
        ::close(listener);
    }
    FullPort(FullPort const&) = delete;
    FullPort& operator=(FullPort const&) = delete;

    unsigned short port = 0;

private:
    int listener;
    std::vector<int> waiting;
};

class WebLimits : public testing::Test
{
protected:
    static void expectToEnd(orvweb::HttpRequest const& request, ErrorCode code, Clock::duration least,
                            Clock::duration most)
    {
        orvweb::CurlTransport transport;
        auto const start = Clock::now();
        EXPECT_EQ(transport.send(request, {}).code, code) << request.url;
        auto const taken = Clock::now() - start;
        EXPECT_GE(taken, least) << request.url;
        EXPECT_LE(taken, most) << request.url;
    }
    static orvweb::HttpRequest get(std::string const& url)
    {
        orvweb::HttpRequest request;
        request.url = url;
        return request;
    }

    orvtest::HostSession session;
};

TEST_F(WebLimits, AreThese)
{
    orvweb::TransferLimits const limits;
    EXPECT_EQ(limits.connectMilliseconds, 10000);
    EXPECT_EQ(limits.slowSeconds, 30);
    EXPECT_EQ(limits.largestAnswer, std::size_t{256} << 20);
}

TEST_F(WebLimits, EndWhatDoesNotMove)
{
    FullPort full;
    orvtest::ScriptedHttpServer silent, stalling, trickling, deaf, steady;
    silent.expect("GET", "/", Answer::silence());
    stalling.expect("GET", "/", Answer::stall("h", 100));
    trickling.expect("GET", "/", Answer::trickle(std::string(100, 'x'), 1500ms));
    deaf.expect("POST", "/", Answer::deaf());
    steady.expect("GET", "/", Answer::trickle(std::string(70, 'x'), 500ms));
    std::ofstream(session.directory() / "model.prc", std::ios::binary) << std::string(32 << 20, 'x');
    orvweb::HttpRequest upload = get(deaf.url() + "/");
    upload.kind = orvweb::HttpRequest::Kind::multipart;
    upload.file = session.path("model.prc");

    // Speed is counted over five seconds, so what has moved at all takes a little longer to end.
    std::vector<std::thread> all;
    auto const begin = [&](orvweb::HttpRequest const& request, ErrorCode code, Clock::duration least,
                           Clock::duration most) {
        all.emplace_back([=] { expectToEnd(request, code, least, most); });
    };
    begin(get("http://127.0.0.1:" + std::to_string(full.port) + "/"), ErrorCode::unreachable, 10s, 20s);
    begin(get(silent.url() + "/"), ErrorCode::broken, 30s, 50s);
    begin(get(stalling.url() + "/"), ErrorCode::broken, 30s, 50s);
    begin(get(trickling.url() + "/"), ErrorCode::broken, 30s, 50s);
    begin(upload, ErrorCode::broken, 30s, 60s);
    begin(get(steady.url() + "/"), ErrorCode::none, 34s, 120s);
    for (std::thread& each : all) {
        each.join();
    }
}

} // namespace
