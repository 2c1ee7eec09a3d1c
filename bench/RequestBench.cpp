// What a request over loopback costs, compared with plain libcurl on a kept connection in the same run: same server,
// same bytes on the wire, same answer. Ends non-zero where a small request costs twice as much or more, or where a side
// made more than its one connection: build/release/bin/bench_request

#include "bench/Aims.h"
#include "bench/DrainingServer.h"
#include "bench/Pair.h"
#include "bench/PlainRequest.h"
#include "bench/TemporaryData.h"
#include "host/orv/GetAPI.h"
#include "host/orv/PostAPI.h"
#include "host/orvweb/APIUtils.h"
#include "platform/text/Text.h"
#include "service/FeedRequests.h"
#include "service/Request.h"

#include <sched.h>

#include <string>
#include <utility>
#include <vector>

namespace
{

constexpr double limit = 2.0;

std::wstring const username = L"ann@example.com";
std::wstring const token = L"7c9e6679-7425-40de-944b-e07fc1f90ae7";
std::wstring const jobId = L"0f8fad5b-d9cb-469f-a165-70867728950e";
std::wstring const commentId = L"c0ffee00-0000-4000-8000-000000000001";

std::string secrets()
{
    return "X-Api-Key: " + orvtext::toUtf8(orvweb::APIUtils::apiKey()) + "\nAuthorization: Bearer " +
           orvtext::toUtf8(token);
}

std::string fields(std::string const& more)
{
    return "name=" + orvtext::toUtf8(orvweb::APIUtils::apiId()) + "&username=ann%40example.com" + more;
}

orv::OmniInfo feedRequest(std::vector<std::pair<std::wstring, std::wstring>> const& more)
{
    orv::OmniInfo request = openRequest(L"", L"/api/CommentSync/", username);
    addToken(request, L"userid", token);
    for (auto const& [name, value] : more) {
        addToken(request, name, value);
    }
    return request;
}

/// Both sides' requests to one server.
class Requests
{
public:
    Requests() : data(server.url()), plain(secrets()) {}

    /// From here on every answer is longer than that.
    void setAnswerLength(std::size_t length)
    {
        answer = R"({"name":"Ann","email":"ann@example.com","note":")" + std::string(length, 'x') + "\"}";
        server.answerWith(answer);
    }

    /// Through the web class alone, or by the client's function, which makes a file for the request as well.
    orvbench::Pair get(std::string name, bool byFunction = false)
    {
        std::string const jobField = "&jobid=0f8fad5b-d9cb-469f-a165-70867728950e";
        std::string const address = server.url() + "/api/CommentSync/?" + fields(jobField);
        return {std::move(name), [this, address] { return plain.get(address) == answer; },
                [this, byFunction] {
                    std::wstring const text =
                        byFunction ? getFeed(username, token, L"", jobId)
                                   : runRequest(&orv::GetAPI::get, feedRequest({{L"jobid", jobId}})).response;
                    return text.size() == answer.size();
                }};
    }
    orvbench::Pair post(std::string name, std::size_t commentLength, bool byFunction = false)
    {
        std::string const body = fields("&jobid=0f8fad5b-d9cb-469f-a165-70867728950e"
                                        "&commentid=c0ffee00-0000-4000-8000-000000000001&comment=" +
                                        std::string(commentLength, 'x') + "&filename=gearbox.step");
        std::wstring const comment(commentLength, L'x');
        return {std::move(name),
                [this, body] { return plain.post(server.url() + "/api/CommentSync/", body) == answer; },
                [this, comment, byFunction] {
                    std::wstring const text =
                        byFunction ? addFeed(username, token, L"gearbox.step", commentId, comment, jobId)
                                   : runRequest(&orv::PostAPI::post, feedRequest({{L"jobid", jobId},
                                                                                  {L"commentid", commentId},
                                                                                  {L"comment", comment},
                                                                                  {L"filename", L"gearbox.step"}}))
                                         .response;
                    return text.size() == answer.size();
                }};
    }

    int connections() const { return server.connections(); }

private:
    orvbench::DrainingServer server;
    std::string answer;
    orvbench::TemporaryData data;
    orvbench::PlainRequest plain;
};

/// Client and server take turns anyway. On two cores the rounds fall into two kinds, by whether the core that is woken
/// slept, and the comparison would show which side met the better kind.
void stayOnOneCore()
{
    cpu_set_t cores;
    CPU_ZERO(&cores);
    CPU_SET(static_cast<std::size_t>(sched_getcpu()), &cores);
    sched_setaffinity(0, sizeof cores, &cores);
}

} // namespace

int main(int argc, char** argv)
{
    stayOnOneCore(); // before the server's threads begin, which inherit it
    Requests requests;
    struct Case {
        orvbench::Pair pair;
        std::size_t answerLength; ///< bytes
        int iterations;
        bool hasAim; ///< the request alone: no file of its own, no long text, which the host keeps at four bytes a
                     ///< character
    };
    std::vector<Case> cases;
    cases.push_back({requests.get("Get/64B"), 64, 4000, true});
    cases.push_back({requests.get("GetByFunction/64B", true), 64, 4000, false});
    cases.push_back({requests.get("Get/1MiB"), std::size_t{1} << 20, 300, false});
    cases.push_back({requests.post("PostForm/64B", 64), 64, 4000, true});
    cases.push_back({requests.post("PostFormByFunction/64B", 64, true), 64, 4000, false});
    cases.push_back({requests.post("PostForm/64KiB", 65536), 64, 1000, false});

    benchmark::Initialize(&argc, argv);
    for (Case& each : cases) {
        each.pair.addBenchmark(each.iterations, benchmark::kMicrosecond,
                               [&requests, &each] { requests.setAnswerLength(each.answerLength); });
    }
    benchmark::RunSpecifiedBenchmarks();

    orvbench::Aims aims;
    for (Case const& each : cases) {
        if (!each.pair.wasRun()) {
            continue;
        }
        aims.expect(each.pair.title() + " got its answers", each.pair.succeeded());
        if (each.hasAim) {
            aims.expectUnder(each.pair.title() + ", times plain libcurl", each.pair.ratio(), limit, "");
        }
    }
    aims.expect("one kept connection a side", requests.connections() == 2);
    return aims.exitStatus();
}
