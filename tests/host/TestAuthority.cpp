#include "tests/host/TestAuthority.h"

#include <gtest/gtest.h>

#include <cstdio>

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

namespace orvtest
{

namespace
{

Key newKey()
{
    return {EVP_EC_gen("P-256"), EVP_PKEY_free};
}

Certificate newCertificate(EVP_PKEY* key, std::string const& name, long begins, long ends)
{
    static long serial = 1;
    Certificate certificate(X509_new(), X509_free);
    X509_set_version(certificate.get(), 2);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), serial++);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), begins);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), ends);
    X509_set_pubkey(certificate.get(), key);
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate.get()), "CN", MBSTRING_ASC,
                               reinterpret_cast<unsigned char const*>(name.c_str()), -1, -1, 0);
    return certificate;
}

void addExtension(X509* certificate, int kind, std::string const& value)
{
    std::unique_ptr<X509_EXTENSION, void (*)(X509_EXTENSION*)> const extension(
        X509V3_EXT_conf_nid(nullptr, nullptr, kind, value.c_str()), X509_EXTENSION_free);
    EXPECT_TRUE(extension != nullptr && X509_add_ext(certificate, extension.get(), -1) == 1) << value;
}

} // namespace

TestAuthority::TestAuthority() : key(newKey()), certificate(newCertificate(key.get(), "Test authority", -7200, 7200))
{
    X509_set_issuer_name(certificate.get(), X509_get_subject_name(certificate.get()));
    addExtension(certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
    addExtension(certificate.get(), NID_key_usage, "critical,keyCertSign,cRLSign");
    EXPECT_GT(X509_sign(certificate.get(), key.get(), EVP_sha256()), 0);
}

void TestAuthority::writeTo(std::filesystem::path const& file) const
{
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> const stream(std::fopen(file.c_str(), "w"), std::fclose);
    ASSERT_TRUE(stream);
    EXPECT_EQ(PEM_write_X509(stream.get(), certificate.get()), 1);
}

TlsContext TestAuthority::vouchFor(Subject const& subject) const
{
    Key const own = newKey();
    Certificate const proof = newCertificate(own.get(), subject.dnsName, subject.begins, subject.ends);
    X509_set_issuer_name(proof.get(), X509_get_subject_name(certificate.get()));
    addExtension(proof.get(), NID_subject_alt_name, "DNS:" + subject.dnsName);
    EXPECT_GT(X509_sign(proof.get(), key.get(), EVP_sha256()), 0);
    TlsContext context(SSL_CTX_new(TLS_server_method()), SSL_CTX_free);
    EXPECT_EQ(SSL_CTX_use_certificate(context.get(), proof.get()), 1);
    EXPECT_EQ(SSL_CTX_use_PrivateKey(context.get(), own.get()), 1);
    return context;
}

} // namespace orvtest
