#pragma once

#include <curl/curl.h>

#include <string>

namespace orvbench
{

/// A request with libcurl and nothing else: one handle that is set up once, one connection that is kept, and the answer
/// appended to a text.
class PlainRequest
{
public:
    explicit PlainRequest(std::string const& headers); ///< one a line
    ~PlainRequest();
    PlainRequest(PlainRequest const&) = delete;
    PlainRequest& operator=(PlainRequest const&) = delete;

    /// The answer's body; empty where the request failed.
    std::string const& get(std::string const& address);
    std::string const& post(std::string const& address, std::string const& body);

private:
    std::string const& perform(std::string const& address);

    CURL* handle;
    curl_slist* list = nullptr;
    std::string answer;
};

} // namespace orvbench
