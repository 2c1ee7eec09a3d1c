#pragma once

#include "cloud/http/Form.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvcloud
{

/// What is known of a request before its body is read.
struct RequestHead {
    std::string method;
    std::string path;  ///< without the query, not decoded
    std::string query; ///< without the question mark
    std::string apiKey;
    std::string bearer; ///< empty without a bearer authorization
    std::string cookie; ///< the value of the session cookie, empty without one
    std::string contentType;
    std::uint64_t contentLength = 0;
    std::string forwardedFor; ///< the last address in X-Forwarded-For as it was sent; empty without one
    std::string peer;         ///< the other side's address without port
    bool peerIsLoopback = false;
};

/// What goes back. A failure's body is one line of plain text.
struct Answer {
    unsigned status = 200;
    std::string body;
    std::string contentType = "text/plain; charset=utf-8";
    std::vector<std::pair<std::string, std::string>> headers;
};

/// Takes a body as it comes. Its operations are called one after the other, on threads that may wait.
class BodySink
{
public:
    virtual ~BodySink() = default;
    /// An answer ends the request early; the rest of the body is then of no interest.
    virtual std::optional<Answer> take(std::string_view bytes) = 0;
    virtual Answer finish() = 0;
};

/// What becomes of a request after its head: a refusal, or a sink for the body.
struct Admission {
    std::optional<Answer> refusal;
    std::unique_ptr<BodySink> sink;
    std::uint64_t bodyLimit = 0;
    bool slow = false;      ///< `finish` hashes a password: it waits its turn among few
    std::string loggedPath; ///< a path that is known, and so safe to log; else empty
};

/// The service behind the HTTP server. Both are called from several threads at once.
class Application
{
public:
    virtual ~Application() = default;
    virtual Admission admit(const RequestHead& head) = 0;
};

} // namespace orvcloud
