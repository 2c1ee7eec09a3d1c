#include "host/orvweb/CurlTransport.h"
#include "support/HostSession.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <openssl/err.h>
#include <openssl/ssl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

using Context = std::unique_ptr<SSL_CTX, void (*)(SSL_CTX*)>;
using Key = std::unique_ptr<EVP_PKEY, void (*)(EVP_PKEY*)>;
using Certificate = std::unique_ptr<X509, void (*)(X509*)>;

/// A certificate that nobody vouches for.
Context selfSigned()
{
    Key const key(EVP_EC_gen("P-256"), EVP_PKEY_free);
    Certificate const certificate(X509_new(), X509_free);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), 0);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
    X509_set_pubkey(certificate.get(), key.get());
    X509_NAME* const name = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, reinterpret_cast<unsigned char const*>("localhost"), -1, -1,
                               0);
    X509_set_issuer_name(certificate.get(), name);
    X509_sign(certificate.get(), key.get(), EVP_sha256());
    Context context(SSL_CTX_new(TLS_server_method()), SSL_CTX_free);
    SSL_CTX_use_certificate(context.get(), certificate.get());
    SSL_CTX_use_PrivateKey(context.get(), key.get());
    return context;
}

/// Takes one connection and notes how the encryption was agreed on and what came over it.
class TlsServer
{
public:
    TlsServer() : listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* const generic = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(::bind(listener, generic, size), 0);
        EXPECT_EQ(::listen(listener, 1), 0);
        EXPECT_EQ(::getsockname(listener, generic, &size), 0);
        port = ntohs(address.sin_port);
        thread = std::thread([this] { serve(); });
    }
    ~TlsServer() { finish(); }

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
        int const socket = ::accept(listener, nullptr, nullptr);
        if (socket < 0) {
            return;
        }
        Context const context = selfSigned();
        std::unique_ptr<SSL, void (*)(SSL*)> const session(SSL_new(context.get()), SSL_free);
        SSL_set_fd(session.get(), socket);
        isAgreed = SSL_accept(session.get()) == 1;
        char block[4096];
        int const count = isAgreed ? SSL_read(session.get(), block, sizeof block) : 0;
        if (count > 0) {
            received.assign(block, static_cast<std::size_t>(count));
        }
        reason = ERR_GET_REASON(ERR_peek_last_error());
        ::close(socket);
    }

    int listener;
    std::thread thread;
};

TEST(WebTls, ACertificateThatNobodyVouchesForEndsTheRequestBeforeAnythingIsSent)
{
    orvtest::HostSession const session;
    TlsServer server;
    orvweb::CurlTransport transport;
    orvweb::HttpRequest request;
    request.url = "https://localhost:" + std::to_string(server.port) + "/api/Login/";
    request.headers = {{"Authorization", "Bearer secret"}};
    auto const response = transport.send(request, {});
    server.finish();
    EXPECT_EQ(response.code, orv::ErrorCode::unreachable);
    EXPECT_EQ(response.status, 0);
    EXPECT_EQ(server.received, "");
    EXPECT_TRUE(server.reason == SSL_R_TLSV1_ALERT_UNKNOWN_CA || server.reason == SSL_R_SSLV3_ALERT_BAD_CERTIFICATE)
        << "the client did not object to the certificate: " << server.reason;
}

} // namespace
