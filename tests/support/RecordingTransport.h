#pragma once

#include "host/orvweb/ITransport.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvtest
{

/// A request as the transport got it. The address is cut into the service's and the path below it.
struct SentRequest {
    orvweb::HttpRequest request;
    std::string path;        ///< what stands behind the host name, e.g. "/api/Login/"
    std::string fileContent; ///< multipart: the bytes of the file at the moment of sending
    bool hadFile = false;    ///< multipart: the file could be read

    /// The value of a parameter or of a header; empty where there is none.
    std::string field(std::string const& name) const { return valueOf(request.fields, name); }
    std::string header(std::string const& name) const { return valueOf(request.headers, name); }

private:
    static std::string valueOf(std::vector<orvweb::HttpRequest::Field> const& fields, std::string const& name)
    {
        for (auto const& [key, value] : fields) {
            if (key == name) {
                return value;
            }
        }
        return {};
    }
};

/// Stands in for the network while it lives: answers the requests that it was told to expect, in that order, keeps what
/// was sent, and fails the test on any other request and on expected requests that never came.
class RecordingTransport
{
public:
    RecordingTransport() : transport(std::make_shared<Transport>()), before(orvweb::setTransport(transport)) {}
    ~RecordingTransport()
    {
        orvweb::setTransport(before);
        for (auto const& expected : transport->expected) {
            ADD_FAILURE() << "expected a request to " << expected.path << " that never came";
        }
    }
    RecordingTransport(RecordingTransport const&) = delete;
    RecordingTransport& operator=(RecordingTransport const&) = delete;

    /// The next request goes to `path` and is answered with status 200 and the body.
    void expect(std::string path, std::string body = {})
    {
        orvweb::HttpResponse response;
        response.status = 200;
        response.body = std::move(body);
        transport->expected.push_back({std::move(path), std::move(response), {}});
    }
    /// The next request goes to `path` and fails.
    void expectFailure(std::string path, orv::ErrorCode code = orv::ErrorCode::unreachable, long status = 0)
    {
        orvweb::HttpResponse response;
        response.code = code;
        response.status = status;
        transport->expected.push_back({std::move(path), std::move(response), {}});
    }
    /// The next request goes to `path`; `handler` sees it and makes the answer. It may throw.
    void expectHandled(std::string path, std::function<orvweb::HttpResponse(SentRequest const&)> handler)
    {
        transport->expected.push_back({std::move(path), {}, std::move(handler)});
    }

    /// All requests so far, in order.
    std::vector<SentRequest> const& sent() const { return transport->sent; }
    SentRequest const& last() const { return transport->sent.at(transport->sent.size() - 1); }
    std::size_t pending() const { return transport->expected.size(); }

private:
    struct Expected {
        std::string path;
        orvweb::HttpResponse response;
        std::function<orvweb::HttpResponse(SentRequest const&)> handler;
    };

    class Transport final : public orvweb::ITransport
    {
    public:
        orvweb::HttpResponse send(orvweb::HttpRequest const& request, orvweb::TransferProgress const& progress) override
        {
            SentRequest record{request, pathOf(request.url), {}, false};
            if (request.kind == orvweb::HttpRequest::Kind::multipart) {
                std::ifstream file(std::filesystem::path(request.file), std::ios::binary);
                record.hadFile = file.is_open();
                record.fileContent.assign(std::istreambuf_iterator<char>(file), {});
            }
            sent.push_back(record);
            if (expected.empty() || expected.front().path != record.path) {
                ADD_FAILURE() << "unexpected request to " << record.path
                              << (expected.empty() ? std::string(", expected none")
                                                   : ", expected one to " + expected.front().path);
                orvweb::HttpResponse refused;
                refused.code = orv::ErrorCode::refused;
                return refused;
            }
            Expected next = std::move(expected.front()); // an answer may be as long as memory is
            expected.pop_front();
            if (progress) {
                progress(true, 100);
                progress(false, 100);
            }
            return next.handler ? next.handler(record) : std::move(next.response);
        }

        std::deque<Expected> expected;
        std::vector<SentRequest> sent;

    private:
        static std::string pathOf(std::string const& url)
        {
            auto const scheme = url.find("://");
            auto const slash = url.find('/', scheme == std::string::npos ? 0 : scheme + 3);
            return slash == std::string::npos ? std::string() : url.substr(slash);
        }
    };

    std::shared_ptr<Transport> transport;
    std::shared_ptr<orvweb::ITransport> before;
};

} // namespace orvtest
