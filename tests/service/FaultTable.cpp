#include "tests/service/FaultTable.h"

#include "host/orvweb/APIUtils.h"
#include "platform/text/Text.h"
#include "service/CloudHelper.h"
#include "service/FeedRequests.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <utility>

namespace orvtest
{

namespace
{

using namespace std::chrono_literals;

std::wstring const user = L"ada@example.com";
std::wstring const password = L"correct+horse battery";
std::wstring const token = L"0f8fad5b-d9cb-469f-a165-70867728950e";
std::wstring const job = L"7c9e6679-7425-40de-944b-e07fc1f90ae7";
std::string const cookie = "cookie-of-the-session";
std::string const cookieHeader =
    "Set-Cookie: orvanta_session=" + cookie + "; Path=/api/; HttpOnly; SameSite=Strict\r\n";
std::string const modelContent = "PRC of a model";
std::string const session = "ada@example.com\n" + orvtext::toUtf8(token) + "\n";

/// Far above what a transfer may take with the short limits, and far below what the real ones give.
constexpr auto longest = 20s;

} // namespace

std::vector<RequestRow> const& elevenRequests()
{
    static std::vector<RequestRow> const rows{
        {"login", "POST", "/api/Login/", [](auto const&) { return CloudHelper::login(user, password); }, L"", nullptr},
        // The login's second request: whatever becomes of it, the login stands.
        {"installedDevice", "POST", "/api/InstalledDevice/",
         [](auto const&) { return CloudHelper::login(user, password); }, L"0f8fad5b-d9cb-469f-a165-70867728950e",
         nullptr},
        {"logout", "POST", "/api/Logout/", [](auto const&) { return CloudHelper::logout(user); }, L"Failed", nullptr},
        {"accountInfo", "GET", "/api/AccountInfo/", [](auto const&) { return accountInfo(user, token); }, L"",
         "Feed/accountInfo"},
        {"isFilePresent", "GET", "/api/isFilePresent/",
         [](auto const&) { return isFilePresent(user, token, L"part.step"); }, L"", "Feed/isFilePresent"},
        {"getFeed", "GET", "/api/CommentSync/",
         [](auto const&) { return getFeed(user, token, L"/models/part.step", job); }, L"", "Feed/getFeed"},
        {"addFeed", "POST", "/api/CommentSync/",
         [](auto const&) { return addFeed(user, token, L"part.step", L"c-1", L"{\"a\":\"b+c\"}", job); }, L"",
         "Feed/addFeed"},
        {"deleteFeed", "POST", "/api/DeleteComment/",
         [](auto const&) { return deleteFeed(user, token, L"unused", L"c-1", job); }, L"", "Feed/deleteFeed"},
        {"upload", "POST", "/api/Upload/",
         [](auto const& file) { return CloudHelper::upload(L"part.step", file, user, token, L"orvanta"); }, L"failed",
         nullptr},
        {"uploadInput", "POST", "/api/UploadInput/",
         [](auto const& file) { return CloudHelper::uploadInput(L"part.step", file, user, token, L"prc"); }, L"failed",
         nullptr},
        {"share", "POST", "/api/Share/",
         [](auto const&) { return CloudHelper::share(user, token, job, L"bob@example.com", L"see this"); }, L"",
         "Cloud/share"},
    };
    return rows;
}

RequestRow const& requestNamed(std::string const& name)
{
    for (RequestRow const& row : elevenRequests()) {
        if (row.name == name) {
            return row;
        }
    }
    throw std::out_of_range("no request of that name: " + name);
}

FaultTable::FaultTable(orvweb::TransferLimits const& transferLimits)
    : limits(transferLimits), transportBefore(orvweb::setTransport(std::make_shared<orvweb::CurlTransport>()))
{
    environment.setService(service.wideUrl());
    modelFile = environment.data / "part.prc";
    writeFile(modelFile, modelContent);
}

FaultTable::~FaultTable()
{
    orvweb::setTransport(transportBefore);
}

orvweb::TransferLimits FaultTable::shortLimits()
{
    orvweb::TransferLimits limits;
    limits.connectMilliseconds = 5000;
    limits.slowSeconds = 2;
    return limits;
}

void FaultTable::SetUp()
{
    service.expect("POST", "/api/Login/", Answer::ok(orvtext::toUtf8(token), cookieHeader));
    service.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
    ASSERT_EQ(CloudHelper::login(user, password), token);
    ASSERT_EQ(contentOf(environment.session()), session);
    // What follows is another run: its connection is new, as one that was kept would be tried twice, and the cookie
    // comes from the jar.
    orvweb::setTransport(std::make_shared<orvweb::CurlTransport>(limits));
}

void FaultTable::meet(RequestRow const& request, Fault const& fault)
{
    expectRequest(request, fault);
    auto const start = std::chrono::steady_clock::now();
    std::wstring const result = request.call(modelFile.wstring());
    EXPECT_LT(std::chrono::steady_clock::now() - start, longest);

    bool const isAnswer = fault.isDelivered && request.name != std::string("installedDevice");
    EXPECT_EQ(result.size(), isAnswer ? fault.body.size() : std::wstring(request.failed).size());
    EXPECT_TRUE(result == (isAnswer ? orvtext::widenBytes(fault.body) : request.failed))
        << orvtext::toUtf8(result.substr(0, 200));
    checkFiles(request, fault);
    checkSecrets(request, fault);
}

void FaultTable::expectRequest(RequestRow const& request, Fault const& fault)
{
    bool const isDevice = request.name == std::string("installedDevice");
    if (fault.isRefused && !isDevice) {
        service.stop();
        return;
    }
    if (isDevice) {
        std::string const tokenBytes = orvtext::toUtf8(token);
        Answer first = Answer::beforeRefusing(tokenBytes, cookieHeader);
        first.isLast = fault.isRefused;
        service.expect("POST", "/api/Login/", first);
        if (fault.isRefused) {
            return;
        }
    }
    Answer const answer =
        fault.redirect == 0 ? fault.answer : Answer::redirect(elsewhere.url() + request.path, fault.redirect);
    service.expect(request.method, request.path, answer);
    if (fault.isDelivered && request.name == std::string("login")) {
        // A login that got any answer at all registers the computer.
        service.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
    }
}

void FaultTable::checkFiles(RequestRow const& request, Fault const& fault)
{
    std::string const name = request.name;
    std::set<std::filesystem::path> left;
    if (name == "login") {
        if (fault.isDelivered) {
            left.insert(environment.session());
            EXPECT_EQ(contentOf(environment.session()), "ada@example.com\n" + fault.body + "\n");
        } else {
            EXPECT_FALSE(std::filesystem::exists(environment.cloud())) << "the directory goes with its one file";
        }
    } else if (name == "logout") {
        if (!fault.isDelivered) {
            left.insert(environment.session());
            EXPECT_EQ(contentOf(environment.session()), "");
        }
    } else {
        left.insert(environment.session());
        EXPECT_EQ(contentOf(environment.session()), session);
    }
    if (request.ownFile != nullptr) {
        left.insert(environment.data / request.ownFile);
        EXPECT_EQ(contentOf(environment.data / request.ownFile), "");
    }
    std::set<std::filesystem::path> found;
    for (std::filesystem::path const& folder : {environment.cloud(), environment.feed()}) {
        std::error_code missing;
        for (auto const& entry : std::filesystem::directory_iterator(folder, missing)) {
            found.insert(entry.path());
        }
    }
    EXPECT_EQ(found, left);
    EXPECT_EQ(contentOf(modelFile), modelContent) << "what is sent is never touched";
}

void FaultTable::checkSecrets(RequestRow const& request, Fault const& fault)
{
    EXPECT_EQ(elsewhere.connections(), 0) << "another host heard of it";
    std::vector<std::string> const secrets{orvtext::toUtf8(token), orvtext::toUtf8(password), "correct", cookie,
                                           orvtext::toUtf8(orvweb::APIUtils::apiKey())};
    for (ReceivedRequest const& received : service.requests()) {
        for (std::string const& secret : secrets) {
            EXPECT_EQ(received.target.find(secret), std::string::npos) << "a secret in an address: " << received.target;
        }
    }
    if (fault.isRefused) {
        return;
    }
    // What the service itself must get, the fault has not kept back.
    std::vector<ReceivedRequest> const all = service.requests();
    auto const own =
        std::find_if(all.rbegin(), all.rend(), [&](auto const& received) { return received.path() == request.path; });
    ASSERT_NE(own, all.rend());
    EXPECT_EQ(own->header("X-Api-Key"), orvtext::toUtf8(orvweb::APIUtils::apiKey()));
    std::string const name = request.name;
    bool const isOfCookie = name == "login" || name == "installedDevice" || name == "logout";
    EXPECT_EQ(own->header("Authorization"), isOfCookie ? "" : "Bearer " + orvtext::toUtf8(token));
    EXPECT_EQ(own->header("Cookie"), "orvanta_session=" + cookie);
}

} // namespace orvtest
