#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include <openssl/ssl.h>

namespace orvtest
{

using TlsContext = std::unique_ptr<SSL_CTX, void (*)(SSL_CTX*)>;
using Key = std::unique_ptr<EVP_PKEY, void (*)(EVP_PKEY*)>;
using Certificate = std::unique_ptr<X509, void (*)(X509*)>;

/// Whom a certificate is for, and from when to when in seconds from now.
struct Subject {
    std::string dnsName = "localhost";
    long begins = -3600;
    long ends = 3600;
};

/// Vouches for services in tests, as an authority does for the real ones.
class TestAuthority
{
public:
    TestAuthority();

    /// What a client that trusts this authority alone reads: its certificate as PEM.
    void writeTo(std::filesystem::path const& file) const;
    /// A service's side of the encryption, with a new key and a certificate from this authority.
    TlsContext vouchFor(Subject const& subject) const;

private:
    Key key;
    Certificate certificate;
};

} // namespace orvtest
