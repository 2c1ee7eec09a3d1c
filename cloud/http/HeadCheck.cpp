#include "cloud/http/HeadCheck.h"

#include "cloud/base/Text.h"

#include <algorithm>
#include <boost/beast/http/verb.hpp>
#include <charconv>

namespace orvcloud
{
namespace
{
namespace http = boost::beast::http;

std::string_view view(boost::core::string_view text)
{
    return {text.data(), text.size()};
}

std::string_view valueOf(const HttpHeader& header, http::field field)
{
    const auto found = header.find(field);
    return found == header.end() ? std::string_view() : view(found->value());
}

std::optional<std::uint64_t> lengthIn(std::string_view text)
{
    std::uint64_t value = 0;
    const auto end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

std::string cookieIn(std::string_view cookies, std::string_view wanted)
{
    for (const std::string_view piece : split(cookies, ";")) {
        const auto cookie = trimmed(piece);
        const auto equals = cookie.find('=');
        if (equals != std::string_view::npos && cookie.substr(0, equals) == wanted)
            return std::string(cookie.substr(equals + 1));
    }
    return {};
}
} // namespace

HeadRefusal transferEncodingRefusal()
{
    return {411, "Send the body's length in Content-Length; Transfer-Encoding isn't taken."};
}

std::optional<HeadRefusal> checkHead(const HttpHeader& header)
{
    if (header.version() != 11)
        return HeadRefusal{505, "Only HTTP/1.1 is spoken here."};
    const auto count = [&](auto field) { return header.count(field); };
    if (count(http::field::transfer_encoding) != 0)
        return transferEncodingRefusal();
    if (count(http::field::host) != 1 || valueOf(header, http::field::host).empty() ||
        valueOf(header, http::field::host).find_first_of(" \t,/@") != std::string_view::npos)
        return HeadRefusal{400, "Name the host in exactly one Host header."};
    if (count(http::field::content_length) > 1 ||
        (count(http::field::content_length) == 1 && !lengthIn(valueOf(header, http::field::content_length))))
        return HeadRefusal{400, "Give the body's length in exactly one Content-Length header."};
    if (header.method() == http::verb::post && count(http::field::content_length) == 0)
        return HeadRefusal{411, "Give the body's length in a Content-Length header."};
    if (count(http::field::authorization) > 1 || count("X-Api-Key") > 1 || count(http::field::cookie) > 1 ||
        count(http::field::content_type) > 1)
        return HeadRefusal{400, "A header that may stand once was sent twice."};
    const auto target = view(header.target());
    if (target.empty() || target.front() != '/' || hasControlCharacter(target) ||
        target.find_first_of(" #") != std::string_view::npos)
        return HeadRefusal{400, "Ask for a path of this service."};
    const auto expectation = valueOf(header, http::field::expect);
    if (!expectation.empty() && lowerAscii(expectation) != "100-continue")
        return HeadRefusal{417, "The only expectation met here is 100-continue."};
    return std::nullopt;
}

RequestHead readHead(const HttpHeader& header)
{
    RequestHead head;
    head.method = view(header.method_string());
    const auto target = view(header.target());
    const auto mark = std::min(target.size(), target.find('?'));
    head.path = target.substr(0, mark);
    head.query = target.substr(std::min(target.size(), mark + 1));
    const auto key = header.find("X-Api-Key");
    head.apiKey = key == header.end() ? std::string() : std::string(view(key->value()));
    const auto authorization = valueOf(header, http::field::authorization);
    constexpr std::string_view scheme = "bearer ";
    if (lowerAscii(authorization.substr(0, scheme.size())) == scheme)
        head.bearer = trimmed(authorization.substr(scheme.size()));
    head.cookie = cookieIn(valueOf(header, http::field::cookie), "orvanta_session");
    head.contentType = valueOf(header, http::field::content_type);
    // A proxy adds the address that it was asked from at the end; whatever stands before it is the client's word.
    const auto forwarded = header.equal_range("X-Forwarded-For");
    for (auto field = forwarded.first; field != forwarded.second; ++field)
        head.forwardedFor = trimmed(split(view(field->value()), ",").back());
    head.contentLength = lengthIn(valueOf(header, http::field::content_length)).value_or(0);
    return head;
}

bool expectsContinue(const HttpHeader& header)
{
    return !valueOf(header, http::field::expect).empty();
}

} // namespace orvcloud
