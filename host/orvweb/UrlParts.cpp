#include "host/orvweb/UrlParts.h"

#include <memory>

#include <arpa/inet.h>
#include <curl/curl.h>

namespace orvweb
{

namespace
{

/// One part of a parsed address; empty where it has none.
std::optional<std::string> part(CURLU* url, CURLUPart what, unsigned int flags = 0)
{
    char* text = nullptr;
    if (curl_url_get(url, what, &text, flags) != CURLUE_OK) {
        return std::nullopt;
    }
    std::unique_ptr<char, void (*)(void*)> const owner(text, curl_free);
    return std::string(text);
}

} // namespace

std::optional<UrlParts> urlParts(std::string const& url)
{
    std::unique_ptr<CURLU, void (*)(CURLU*)> const parsed(curl_url(), curl_url_cleanup);
    if (!parsed || curl_url_set(parsed.get(), CURLUPART_URL, url.c_str(), CURLU_NON_SUPPORT_SCHEME) != CURLUE_OK) {
        return std::nullopt;
    }
    auto const scheme = part(parsed.get(), CURLUPART_SCHEME);
    auto const host = part(parsed.get(), CURLUPART_HOST);
    auto const port = part(parsed.get(), CURLUPART_PORT, CURLU_DEFAULT_PORT);
    bool const hasUser = part(parsed.get(), CURLUPART_USER) || part(parsed.get(), CURLUPART_PASSWORD);
    if (!scheme || !host || host->empty() || !port || hasUser) {
        return std::nullopt;
    }
    UrlParts parts{*scheme, *host, static_cast<unsigned short>(std::stoul(*port))};
    if (parts.host.size() > 2 && parts.host.front() == '[' && parts.host.back() == ']') {
        parts.host = parts.host.substr(1, parts.host.size() - 2);
    }
    return parts;
}

bool isLoopback(std::string const& host)
{
    in_addr v4{};
    if (inet_pton(AF_INET, host.c_str(), &v4) == 1) {
        return (ntohl(v4.s_addr) >> 24) == 127;
    }
    in6_addr v6{};
    if (inet_pton(AF_INET6, host.c_str(), &v6) == 1) {
        return IN6_IS_ADDR_LOOPBACK(&v6);
    }
    return host == "localhost";
}

} // namespace orvweb
