#include "tests/host/TestAuthority.h"

#include "host/orvweb/CurlTransport.h"
#include "support/HostSession.h"
#include "support/Loopback.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include <openssl/err.h>

using orv::ErrorCode;
using orvtest::Subject;
using orvtest::TestAuthority;
using orvtest::TlsContext;
using orvweb::HttpResponse;

namespace
{

/// Takes one connection, answers its one request with "the answer" and a cookie, and notes how the encryption was
/// agreed on and what came over it.
class TlsServer
{
public:
    explicit TlsServer(TlsContext tlsContext, bool hangsUpInTheMiddle = false)
        : context(std::move(tlsContext)), hangsUp(hangsUpInTheMiddle), listener(orvtest::listenOnLoopback(port, 1))
    {
        EXPECT_GE(listener, 0);
        thread = std::thread([this] { serve(); });
    }
    ~TlsServer() { finish(); }
    TlsServer(TlsServer const&) = delete;
    TlsServer& operator=(TlsServer const&) = delete;

    void finish()
    {
        if (thread.joinable()) {
            ::shutdown(listener, SHUT_RDWR); // ends a wait for a connection that never came
            thread.join();
            ::close(listener);
        }
    }

    unsigned short port = 0;
    bool isAgreed = false;
    int reason = 0;
    std::string received;

private:
    void serve()
    {
        // A client that objects leaves at once; what the service still says to it must not end the test's process.
        sigset_t pipe;
        sigemptyset(&pipe);
        sigaddset(&pipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &pipe, nullptr);
        int const socket = ::accept(listener, nullptr, nullptr);
        if (socket < 0) {
            return;
        }
        if (context) {
            std::unique_ptr<SSL, void (*)(SSL*)> const session(SSL_new(context.get()), SSL_free);
            SSL_set_fd(session.get(), socket);
            isAgreed = SSL_accept(session.get()) == 1;
            char block[4096];
            int const count = isAgreed ? SSL_read(session.get(), block, sizeof block) : 0;
            if (count > 0 && hangsUp) {
                // Says that nothing more comes, and leaves with the rest of the request unread.
                ::shutdown(socket, SHUT_WR);
            } else if (count > 0) {
                received.assign(block, static_cast<std::size_t>(count));
                std::string const answer = "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: 10\r\n"
                                           "Set-Cookie: orvanta_session=abc; Path=/api/; Secure; HttpOnly\r\n\r\n"
                                           "the answer";
                SSL_write(session.get(), answer.data(), static_cast<int>(answer.size()));
                SSL_shutdown(session.get());
            }
            reason = ERR_GET_REASON(ERR_peek_last_error());
        } else {
            char block[4096];
            while (::recv(socket, block, sizeof block, 0) > 0) { // never says a word
            }
        }
        ::close(socket);
    }

    TlsContext context;
    bool hangsUp; ///< as soon as the first bytes of a request are there
    int listener;
    std::thread thread;
};

class WebTls : public testing::Test
{
protected:
    WebTls() { authority.writeTo(trusted); }

    HttpResponse ask(TlsServer& server, std::string const& host = "localhost")
    {
        orvweb::TransferLimits limits;
        limits.connectMilliseconds = 2000;
        orvweb::CurlTransport transport(limits, trusted);
        orvweb::HttpRequest request;
        request.url = "https://" + host + ":" + std::to_string(server.port) + "/api/Login/";
        request.headers = {{"Authorization", "Bearer secret"}};
        HttpResponse response = transport.send(request, {});
        server.finish();
        return response;
    }
    static void expectNothingSent(HttpResponse const& response, TlsServer const& server)
    {
        EXPECT_EQ(response.code, ErrorCode::unreachable);
        EXPECT_EQ(response.status, 0);
        EXPECT_EQ(response.body, "");
        EXPECT_EQ(server.received, "");
    }

    orvtest::HostSession session;
    TestAuthority authority;
    std::filesystem::path trusted = session.directory() / "authority.pem";
};

TEST_F(WebTls, AGoodCertificateIsTaken)
{
    TlsServer server(authority.vouchFor({}));
    HttpResponse const response = ask(server);
    EXPECT_EQ(response.code, ErrorCode::none);
    EXPECT_EQ(response.body, "the answer");
    EXPECT_NE(server.received.find("Authorization: Bearer secret\r\n"), std::string::npos);
}

TEST_F(WebTls, ACookieForEncryptedConnectionsComesBackOverThemAlone)
{
    TlsServer first(authority.vouchFor({}));
    EXPECT_EQ(ask(first).code, ErrorCode::none);
    std::ifstream stream(session.dataDirectory() / "session-cookie");
    std::string line;
    ASSERT_TRUE(std::getline(stream, line));
    EXPECT_EQ(line, "https://localhost:" + std::to_string(first.port) +
                        "\t#HttpOnly_localhost\tFALSE\t/api/\tTRUE\t0\torvanta_session\tabc");
    TlsServer second(authority.vouchFor({}));
    EXPECT_EQ(ask(second).code, ErrorCode::none);
    EXPECT_EQ(second.received.find("Cookie"), std::string::npos) << "another port is another service";
}

TEST_F(WebTls, ACertificateForAnotherHostIsRefused)
{
    TlsServer server(authority.vouchFor({"cloud.example"}));
    expectNothingSent(ask(server), server);
    TlsServer byNumber(authority.vouchFor({}));
    expectNothingSent(ask(byNumber, "127.0.0.1"), byNumber);
}

TEST_F(WebTls, ACertificateThatHasExpiredIsRefused)
{
    TlsServer server(authority.vouchFor({"localhost", -3600, -60}));
    expectNothingSent(ask(server), server);
    EXPECT_EQ(server.reason, SSL_R_SSLV3_ALERT_CERTIFICATE_EXPIRED);
}

TEST_F(WebTls, ACertificateThatIsNotValidYetIsRefused)
{
    TlsServer server(authority.vouchFor({"localhost", 1800, 3600}));
    expectNothingSent(ask(server), server);
}

TEST_F(WebTls, ACertificateOfAnUnknownAuthorityIsRefused)
{
    TestAuthority const stranger;
    TlsServer server(stranger.vouchFor({}));
    expectNothingSent(ask(server), server);
    EXPECT_TRUE(server.reason == SSL_R_TLSV1_ALERT_UNKNOWN_CA || server.reason == SSL_R_SSLV3_ALERT_BAD_CERTIFICATE ||
                server.reason == SSL_R_TLSV1_ALERT_DECRYPT_ERROR)
        << "the client did not object to the certificate: " << server.reason;
}

TEST_F(WebTls, TheSystemsAuthoritiesDoNotVouchForATestsService)
{
    TlsServer server(authority.vouchFor({}));
    trusted.clear(); // the system's own
    expectNothingSent(ask(server), server);
    EXPECT_EQ(server.reason, SSL_R_TLSV1_ALERT_UNKNOWN_CA);
}

TEST_F(WebTls, AServiceThatNeverAgreesOnAnEncryptionIsGivenUp)
{
    TlsServer server(TlsContext(nullptr, SSL_CTX_free));
    auto const start = std::chrono::steady_clock::now();
    HttpResponse const response = ask(server);
    EXPECT_EQ(response.code, ErrorCode::unreachable);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

/// A signal at a connection that the other end has left would end the viewer.
TEST_F(WebTls, AServiceThatLeavesInTheMiddleOfAnUploadIsAFailureAndNoSignal)
{
    std::ofstream(session.directory() / "model.prc", std::ios::binary) << std::string(32 << 20, 'x');
    for (int i = 0; i < 20; ++i) {
        TlsServer server(authority.vouchFor({}), true);
        orvweb::CurlTransport transport({}, trusted);
        orvweb::HttpRequest request;
        request.kind = orvweb::HttpRequest::Kind::multipart;
        request.url = "https://localhost:" + std::to_string(server.port) + "/api/Upload/";
        request.file = session.path("model.prc");
        EXPECT_EQ(transport.send(request, {}).code, ErrorCode::broken);
        server.finish();
    }
}

} // namespace
