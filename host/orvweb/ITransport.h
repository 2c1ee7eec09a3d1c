#pragma once

#include "host/orv/ErrorCode.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvweb
{

/// What goes over the wire: all text UTF-8, not yet percent-encoded.
struct HttpRequest {
    /// A plain form may be sent again where a kept connection ended without an answer; what would leave a second
    /// token or what people would see twice may not.
    enum class Kind { get, form, formOnce, multipart };
    using Field = std::pair<std::string, std::string>;

    Kind kind = Kind::get;
    std::string url;            ///< address without a query
    std::vector<Field> headers; ///< the secrets: X-Api-Key, Authorization
    std::vector<Field> fields;  ///< the parameters, in order
    std::wstring file;          ///< multipart alone: the file to stream
};

struct HttpResponse {
    orv::ErrorCode code = orv::ErrorCode::none;
    long status = 0;  ///< 0 where no answer came
    std::string body; ///< empty unless code is none
};

/// Called during a transfer: true for an upload, and the percentage.
using TransferProgress = std::function<void(bool upload, int percent)>;

/// Carries one request. The five web classes send through one transport: libcurl in the product; tests register one
/// that records and fails on a request that it was not told to expect.
class ITransport
{
public:
    virtual ~ITransport() = default;
    virtual HttpResponse send(HttpRequest const& request,
                              TransferProgress const& progress) = 0; ///< blocks; never throws
};

/// Replaces the transport; an empty one brings the product's own back. Returns the one before.
std::shared_ptr<ITransport> setTransport(std::shared_ptr<ITransport> transport);

} // namespace orvweb
