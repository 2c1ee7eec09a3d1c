#include "host/orvweb/RequestBuilder.h"

#include "platform/text/Text.h"

#include <algorithm>

namespace orvweb
{

namespace
{

std::string part(std::vector<std::wstring> const& token, std::size_t place)
{
    return place < token.size() ? orvtext::toUtf8(token[place]) : std::string();
}

/// A control character in a header would end it and begin something else.
bool fitsHeader(std::string const& value)
{
    return std::none_of(value.begin(), value.end(),
                        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

} // namespace

std::optional<HttpRequest> buildRequest(std::wstring const& root, orv::OmniInfo const& record, HttpRequest::Kind kind)
{
    if (record.tokens.empty()) {
        return std::nullopt;
    }
    std::string const path = part(record.tokens.front(), 0);
    if (path.empty() || path.front() != '/') {
        return std::nullopt;
    }
    HttpRequest request;
    request.kind = kind;
    request.url = orvtext::toUtf8(root) + path;
    for (auto token = record.tokens.begin() + 1; token != record.tokens.end(); ++token) {
        std::string const name = part(*token, 0);
        std::string value = part(*token, 1);
        if (name != "key" && name != "userid") {
            request.fields.emplace_back(name, std::move(value));
            continue;
        }
        if (!fitsHeader(value)) {
            return std::nullopt;
        }
        // Nobody signed in: the service is told nothing rather than an empty name.
        if (!value.empty()) {
            bool const isKey = name == "key";
            request.headers.emplace_back(isKey ? "X-Api-Key" : "Authorization", isKey ? value : "Bearer " + value);
        }
    }
    if (kind == HttpRequest::Kind::multipart) {
        request.file = record.file;
    }
    return request;
}

} // namespace orvweb
