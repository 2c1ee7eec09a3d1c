#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvcloud::testing
{

using Fields = std::vector<std::pair<std::string, std::string>>;

struct Reply {
    int status = 0;                             ///< 0 if the connection ended without an answer
    std::map<std::string, std::string> headers; ///< names in lower case
    std::string body;
};

/// A connection that sends bytes as they are given and reads answers one by one.
class RawConnection
{
public:
    explicit RawConnection(const std::string& url);
    ~RawConnection();

    void send(std::string_view bytes);
    /// The next answer; waits for it. Interim answers (1xx) are answers too.
    Reply receive();
    /// The next answer to a HEAD request, which has no body whatever its header says.
    Reply receiveHead();
    /// Takes up to `most` bytes of what comes next. Zero once the connection has ended.
    std::size_t readSome(std::size_t most);
    /// True if the other side ends the connection without a further byte; waits for it.
    bool isClosed();

private:
    class Impl;
    std::unique_ptr<Impl> impl;
};

/// Percent-encodes every byte but RFC 3986's unreserved ones.
std::string encode(std::string_view text);
std::string encodeForm(const Fields& fields);

/// A form with parts; the part "file" last, if `file` isn't null.
std::string encodeMultipart(const Fields& fields, const std::string* file, std::string_view boundary);

/// One request on a connection of its own.
Reply sendRequest(const std::string& url, std::string_view method, std::string_view target, const Fields& headers,
                  std::string_view body = {});

} // namespace orvcloud::testing
