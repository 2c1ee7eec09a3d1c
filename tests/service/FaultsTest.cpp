// What each of the eleven requests makes of a service that answers at once, and wrongly.

#include "tests/service/FaultTable.h"

#include <string>
#include <tuple>
#include <vector>

using orvtest::Answer;
using orvtest::Fault;
using orvtest::RequestRow;

namespace
{

using namespace std::chrono_literals;
using namespace std::string_literals;

std::string const page = "<!DOCTYPE html>\n<html><body>Sign in to the hotel's network.</body></html>\r\n";

Fault status(char const* name, int code, std::string const& moreHeaders = {})
{
    return {name, Answer::status(code, "The service says why.\n", moreHeaders)};
}

Fault redirect(char const* name, int code)
{
    Fault fault{name, {}};
    fault.redirect = code;
    return fault;
}

Fault delivered(char const* name, Answer answer, std::string body)
{
    return {name, std::move(answer), true, std::move(body)};
}

Fault delivered(char const* name, std::string const& body)
{
    return delivered(name, Answer::ok(body), body);
}

Fault refused()
{
    Fault fault{"RefusedConnection", {}};
    fault.isRefused = true;
    return fault;
}

std::vector<Fault> faults()
{
    return {
        refused(),
        {"HangUp", Answer::raw("", true)},
        {"CutBody", Answer::cut("half of it", 20)},
        {"CutHeader", Answer::raw("HTTP/1.1 200 OK\r\nContent-Le", true)},
        {"LengthTooLarge", Answer::cut(std::string(36, 'a'), 37)},
        {"LengthThatIsNoNumber", Answer::raw("HTTP/1.1 200 OK\r\nContent-Length: twelve\r\n\r\nhalf of it..")},
        {"LengthBelowZero", Answer::raw("HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\nx")},
        delivered("LengthTooSmall", Answer::raw("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbodyand more"), "body"),
        {"BrokenChunks", Answer::raw("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\nbody\r\n0\r\n\r\n")},
        {"NoHttp", Answer::raw("220 mail.example ready\r\n")},
        {"EndlessHeader", Answer::raw("HTTP/1.1 200 OK\r\nX-Filler: " + std::string(2 << 20, 'x'))},
        redirect("MovedPermanently", 301),
        redirect("Found", 302),
        redirect("TemporaryRedirect", 307),
        redirect("PermanentRedirect", 308),
        status("Created", 201),
        status("BadRequest", 400),
        status("Unauthorized", 401, "WWW-Authenticate: Basic realm=\"x\"\r\n"),
        status("Forbidden", 403),
        status("NotFound", 404),
        status("TooLarge", 413),
        {"TooLargeBeforeTheBodyWasRead",
         [] {
             Answer answer = Answer::unread(Answer::status(413, "Too large.\n", "Connection: close\r\n"));
             answer.closes = true;
             return answer;
         }()},
        status("TooManyRequests", 429, "Retry-After: 1\r\n"),
        status("InternalError", 500),
        status("Unavailable", 503, "Retry-After: 1\r\n"),
        delivered("HtmlPage", Answer::ok(page), page),
        delivered("EmptyAnswer", ""),
        delivered("NoLengthAtAll", Answer::raw("HTTP/1.1 200 OK\r\n\r\nuntil the end", true), "until the end"),
        delivered("NulBytes", "a\0\0b\0"s),
        delivered("InvalidUtf8", "\xC3\x28\xFF\xFE\x80\xED\xA0\x80\xF5"),
        delivered("SteadyTrickle", Answer::trickle("slow but steady", 10ms), "slow but steady"),
    };
}

class Faults : public orvtest::FaultTable, public testing::WithParamInterface<std::tuple<RequestRow, Fault>>
{
};

TEST_P(Faults, GiveTheDocumentedResult)
{
    auto const& [request, fault] = GetParam();
    meet(request, fault);
}

INSTANTIATE_TEST_SUITE_P(OfTheEleven, Faults,
                         testing::Combine(testing::ValuesIn(orvtest::elevenRequests()), testing::ValuesIn(faults())),
                         [](auto const& cell) {
                             return std::string(std::get<0>(cell.param).name) + "_" + std::get<1>(cell.param).name;
                         });

/// A service that closes the connection which the request before has left open.
class KeptConnection : public orvtest::FaultTable, public testing::WithParamInterface<RequestRow>
{
protected:
    void SetUp() override
    {
        FaultTable::SetUp();
        service.expect("GET", "/before", Answer::ok("ok"));
        orvweb::HttpRequest before;
        before.url = service.url() + "/before";
        auto const transport = orvweb::setTransport(nullptr);
        orvweb::setTransport(transport);
        ASSERT_EQ(transport->send(before, {}).code, orv::ErrorCode::none);
    }

    static bool mayBeRepeated(RequestRow const& request)
    {
        std::string const name = request.name;
        return request.method == std::string("GET") || name == "addFeed" || name == "deleteFeed";
    }
};

TEST_P(KeptConnection, ThatHangsUpIsTriedAnewWhereNothingCanHappenTwice)
{
    RequestRow const& request = GetParam();
    if (mayBeRepeated(request)) {
        service.expect(request.method, request.path, Answer::hangUp());
        meet(request, delivered("HangUpThenAnswer", std::string(36, 'a')));
    } else {
        // The server fails the test where it hears of the request again.
        meet(request, {"HangUp", Answer::hangUp()});
    }
}

INSTANTIATE_TEST_SUITE_P(OfTheEleven, KeptConnection, testing::ValuesIn(orvtest::elevenRequests()),
                         [](auto const& cell) { return std::string(cell.param.name); });

} // namespace
