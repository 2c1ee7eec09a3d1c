#pragma once

#include "host/orvweb/CookieJar.h"
#include "host/orvweb/ITransport.h"

#include <cstddef>
#include <filesystem>

namespace orvweb
{

/// When a transfer is given up. The product runs with the defaults; tests shorten them.
struct TransferLimits {
    long connectMilliseconds = 10000;
    long slowSeconds = 30;                              ///< under 1 byte a second for so long ends a transfer
    std::size_t largestAnswer = std::size_t{256} << 20; ///< bytes
};

/// The product's transport: libcurl. Connections stay open between requests. Secrets never leave the service's own
/// address: no redirect is followed, plain http goes to this machine alone and past every proxy, certificates are
/// always verified.
class CurlTransport final : public ITransport
{
public:
    /// `authorities` is a PEM file of those who vouch for certificates, in place of the system's; empty for the
    /// system's own.
    explicit CurlTransport(TransferLimits limits = {}, std::filesystem::path authorities = {});
    ~CurlTransport() override;
    CurlTransport(CurlTransport const&) = delete;
    CurlTransport& operator=(CurlTransport const&) = delete;

    HttpResponse send(HttpRequest const& request, TransferProgress const& progress) override;

private:
    TransferLimits limits;
    std::filesystem::path authorities;
    CURL* handle;
    CookieJar jar;
};

} // namespace orvweb
