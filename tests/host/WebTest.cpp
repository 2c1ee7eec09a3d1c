#include "host/orv/Authenticator.h"
#include "host/orv/GetAPI.h"
#include "host/orv/IStatusUpdator.h"
#include "host/orv/PostAPI.h"
#include "host/orv/Sharer.h"
#include "host/orv/Uploader.h"
#include "host/orvweb/APIUtils.h"
#include "host/orvweb/WebApiUtils.h"
#include "support/HostSession.h"
#include "support/RecordingTransport.h"
#include "support/ScriptedHttpServer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <sys/stat.h>

using orv::ErrorCode;
using orvtest::Answer;
using orvtest::ReceivedRequest;

namespace
{

/// Keeps what a web class says during a request.
class Listener final : public orv::IStatusUpdator
{
public:
    void updateResponse(int kind, std::wstring const& text) override
    {
        ++deliveries;
        responseKind = kind;
        response = text;
    }
    void updateProgress(int kind, int const& percent) override { progress.emplace_back(kind, percent); }

    int deliveries = 0;
    int responseKind = -1;
    std::wstring response;
    std::vector<std::pair<int, int>> progress;
};

class Web : public testing::Test
{
protected:
    orv::OmniInfo record(std::wstring const& path, std::vector<std::pair<std::wstring, std::wstring>> const& tokens)
    {
        orv::OmniInfo info;
        info.tokens.push_back(orvweb::WebApiUtils::createToken(path, L""));
        for (auto const& [name, value] : tokens) {
            info.tokens.push_back(orvweb::WebApiUtils::createToken(name, value));
        }
        return info;
    }
    std::wstring root() const { return orvweb::APIUtils::rootUrl(); }
    std::string readFile(std::filesystem::path const& file) const
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    orvtest::ScriptedHttpServer server;
    orvtest::HostSession session{server.wideUrl()};
    Listener listener;
};

TEST_F(Web, ReadsWithAQueryInTokenOrderAndKeepsSecretsOutOfIt)
{
    server.expect("GET", "/api/isFilePresent/", Answer::ok("the job id"));
    orv::GetAPI api(root());
    auto const info = record(L"/api/isFilePresent/", {{L"name", L"orvanta"},
                                                      {L"key", L"a-secret"},
                                                      {L"username", L"ann@example.com"},
                                                      {L"userid", L"a-token"},
                                                      {L"filename", L"gear box+1&2=3%.step"}});
    EXPECT_EQ(api.get(info, &listener), ErrorCode::none);
    EXPECT_EQ(listener.response, L"the job id");
    EXPECT_EQ(listener.deliveries, 1);
    EXPECT_EQ(listener.responseKind, 1);

    ReceivedRequest const request = server.last();
    EXPECT_EQ(request.target, "/api/isFilePresent/?name=orvanta&username=ann%40example.com"
                              "&filename=gear%20box%2B1%262%3D3%25.step");
    EXPECT_EQ(request.header("X-Api-Key"), "a-secret");
    EXPECT_EQ(request.header("Authorization"), "Bearer a-token");
    EXPECT_EQ(request.body, "");
}

TEST_F(Web, PostsAForm)
{
    server.expect("POST", "/api/CommentSync/", Answer::ok("ok"));
    orv::PostAPI api(root());
    auto const info = record(L"/api/CommentSync/", {{L"name", L"n"},
                                                    {L"key", L"k"},
                                                    {L"userid", L"u"},
                                                    {L"comment", L"a%2bb\n\u00e9\U0001F600"},
                                                    {L"empty", L""}});
    EXPECT_EQ(api.post(info, &listener), ErrorCode::none);
    ReceivedRequest const request = server.last();
    EXPECT_EQ(request.header("Content-Type"), "application/x-www-form-urlencoded");
    EXPECT_EQ(request.body, "name=n&comment=a%252bb%0A%C3%A9%F0%9F%98%80&empty=");
    EXPECT_EQ(request.target, "/api/CommentSync/");
    EXPECT_FALSE(request.hasHeader("Expect"));
}

TEST_F(Web, EveryByteButTheUnreservedOnesIsEncoded)
{
    std::wstring all;
    std::string encoded;
    char const* const digits = "0123456789ABCDEF";
    for (int c = 1; c < 0x80; ++c) {
        all += static_cast<wchar_t>(c);
        if (std::isalnum(c) != 0 || c == '-' || c == '.' || c == '_' || c == '~') {
            encoded += static_cast<char>(c);
        } else {
            encoded += {'%', digits[c >> 4], digits[c & 15]};
        }
    }
    server.expect("POST", "/x", Answer::ok(""));
    EXPECT_EQ(orv::Sharer(root()).share(record(L"/x", {{L"v", all}}), &listener), ErrorCode::none);
    EXPECT_EQ(server.last().body, "v=" + encoded);
}

TEST_F(Web, ALargeFormWaitsForNoLeave)
{
    server.expect("POST", "/api/CommentSync/", Answer::ok("ok"));
    std::wstring const large(3 << 20, L'x');
    EXPECT_EQ(orv::PostAPI(root()).post(record(L"/api/CommentSync/", {{L"comment", large}}), &listener),
              ErrorCode::none);
    EXPECT_EQ(server.last().body.size(), large.size() + 8);
    EXPECT_FALSE(server.last().hasHeader("Expect"));
}

TEST_F(Web, TheAuthenticatorPostsThePasswordInTheBody)
{
    server.expect("POST", "/api/Login/", Answer::ok("token"));
    auto const info =
        record(L"/api/Login/", {{L"name", L"n"}, {L"key", L"k"}, {L"username", L"u"}, {L"password", L"p w"}});
    EXPECT_EQ(orv::Authenticator(root()).login(info, &listener), ErrorCode::none);
    EXPECT_EQ(server.last().body, "name=n&username=u&password=p%20w");
    EXPECT_FALSE(server.last().hasHeader("Authorization"));
}

TEST_F(Web, NobodySignedInSendsNoToken)
{
    server.expect("GET", "/api/CommentSync/", Answer::ok("[]"));
    EXPECT_EQ(orv::GetAPI(root()).get(record(L"/api/CommentSync/", {{L"userid", L""}}), &listener), ErrorCode::none);
    EXPECT_FALSE(server.last().hasHeader("Authorization"));
    EXPECT_EQ(server.last().target, "/api/CommentSync/");
}

TEST_F(Web, StreamsAFileAfterTheParameters)
{
    std::string content;
    for (int i = 0; i < 300000; ++i) {
        content += static_cast<char>(i * 7 % 256);
    }
    std::ofstream(session.directory() / "gear box.prc", std::ios::binary) << content;
    server.expect("POST", "/api/UploadInput/", Answer::ok("a job id"));
    auto info = record(
        L"/api/UploadInput/",
        {{L"name", L"n"}, {L"key", L"k"}, {L"userid", L"u"}, {L"type", L"prc"}, {L"filename", L"g\u00e9 1.step"}});
    info.file = session.path("gear box.prc");
    EXPECT_EQ(orv::Uploader(root()).uploadFile(info, &listener), ErrorCode::none);
    EXPECT_EQ(listener.response, L"a job id");

    ReceivedRequest const request = server.last();
    std::string const type = request.header("Content-Type");
    std::string const mark = "multipart/form-data; boundary=";
    ASSERT_EQ(type.rfind(mark, 0), 0U) << type;
    std::string const line = "--" + type.substr(mark.size());
    auto const field = [&](std::string const& name, std::string const& value) {
        return line + "\r\nContent-Disposition: form-data; name=\"" + name + "\"\r\n\r\n" + value + "\r\n";
    };
    EXPECT_EQ(request.body, field("name", "n") + field("type", "prc") + field("filename", "g\xC3\xA9 1.step") + line +
                                "\r\nContent-Disposition: form-data; name=\"file\"; filename=\"gear box.prc\"\r\n"
                                "Content-Type: application/octet-stream\r\n\r\n" +
                                content + "\r\n" + line + "--\r\n");
    EXPECT_EQ(request.header("Content-Length"), std::to_string(request.body.size()));
    ASSERT_FALSE(listener.progress.empty());
    EXPECT_EQ(listener.progress.front().first, 0);
    bool const isDone =
        std::find(listener.progress.begin(), listener.progress.end(), std::pair(0, 100)) != listener.progress.end();
    EXPECT_TRUE(isDone) << "the upload never came to 100 per cent";
}

TEST_F(Web, AnEmptyFileIsSent)
{
    std::ofstream(session.directory() / "empty.prc");
    server.expect("POST", "/api/Upload/", Answer::ok("id"));
    auto info = record(L"/api/Upload/", {});
    info.file = session.path("empty.prc");
    EXPECT_EQ(orv::Uploader(root()).uploadFile(info, &listener), ErrorCode::none);
}

TEST_F(Web, AFileThatCantBeReadIsNotSent)
{
    for (std::wstring const& file : {session.path("missing.prc"), session.directory().wstring(), std::wstring()}) {
        auto info = record(L"/api/Upload/", {});
        info.file = file;
        EXPECT_EQ(orv::Uploader(root()).uploadFile(info, &listener), ErrorCode::unreadableFile);
    }
    EXPECT_EQ(listener.deliveries, 0);
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(Web, TheRequestsOwnFileIsLeftAlone)
{
    std::ofstream(session.directory() / "temp") << "the session";
    server.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
    auto info = record(L"/api/InstalledDevice/", {});
    info.file = session.path("temp");
    EXPECT_EQ(orv::Authenticator(root()).login(info, &listener), ErrorCode::none);
    EXPECT_EQ(readFile(session.directory() / "temp"), "the session");
}

TEST_F(Web, TheAnswerComesOneCharacterAByteWithNothingLost)
{
    std::string bytes;
    std::wstring characters;
    for (int c = 0; c < 256; ++c) {
        bytes += static_cast<char>(c);
        characters += static_cast<wchar_t>(c);
    }
    server.expect("GET", "/a", Answer::ok(bytes));
    EXPECT_EQ(orv::GetAPI(root()).get(record(L"/a", {}), &listener), ErrorCode::none);
    EXPECT_EQ(listener.response, characters);
}

TEST_F(Web, ConnectionsAreKeptBetweenRequests)
{
    for (int i = 0; i < 3; ++i) {
        server.expect("GET", "/a", Answer::ok("x"));
        EXPECT_EQ(orv::GetAPI(root()).get(record(L"/a", {}), &listener), ErrorCode::none);
    }
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(Web, ANullUpdaterIsAllowed)
{
    server.expect("GET", "/a", Answer::ok("x"));
    EXPECT_EQ(orv::GetAPI(root()).get(record(L"/a", {}), nullptr), ErrorCode::none);
}

TEST_F(Web, ARecordWithoutAPathIsNotSent)
{
    EXPECT_EQ(orv::GetAPI(root()).get({}, &listener), ErrorCode::invalidRequest);
    EXPECT_EQ(orv::GetAPI(root()).get(record(L"", {}), &listener), ErrorCode::invalidRequest);
    EXPECT_EQ(orv::GetAPI(root()).get(record(L"@example.com/", {}), &listener), ErrorCode::invalidRequest);
}

TEST_F(Web, ASecretWithALineBreakIsNotSent)
{
    auto const info = record(L"/a", {{L"userid", L"token\r\nX-Other: 1"}});
    EXPECT_EQ(orv::GetAPI(root()).get(info, &listener), ErrorCode::invalidRequest);
}

TEST_F(Web, AnUpdaterThatThrowsEndsTheTransferAlone)
{
    class Thrower final : public orv::IStatusUpdator
    {
    public:
        void updateResponse(int, std::wstring const&) override { ADD_FAILURE() << "delivered"; }
        void updateProgress(int, int const&) override { throw std::runtime_error("no"); }
    } thrower;
    server.expect("GET", "/a", Answer::ok("some text"));
    EXPECT_EQ(orv::GetAPI(root()).get(record(L"/a", {}), &thrower), ErrorCode::broken);
}

TEST_F(Web, ARegisteredTransportTakesTheProductsPlace)
{
    {
        orvtest::RecordingTransport recording;
        recording.expect("/a", "recorded");
        recording.expectFailure("/b");
        EXPECT_EQ(orv::GetAPI(root()).get(record(L"/a", {{L"v", L"1"}}), &listener), ErrorCode::none);
        EXPECT_EQ(orv::PostAPI(root()).post(record(L"/b", {}), nullptr), ErrorCode::unreachable);
        EXPECT_EQ(listener.response, L"recorded");
        EXPECT_EQ(recording.sent().front().field("v"), "1");
    }
    EXPECT_TRUE(server.requests().empty());
    server.expect("GET", "/a", Answer::ok("x"));
    EXPECT_EQ(orv::GetAPI(root()).get(record(L"/a", {}), &listener), ErrorCode::none);
}

TEST_F(Web, TheSessionCookieIsKeptAcrossRunsForItsUserAlone)
{
    server.expect("POST", "/api/Login/",
                  Answer::ok("token", "Set-Cookie: orvanta=abc; Path=/api/; HttpOnly; SameSite=Strict\r\n"));
    server.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
    orv::Authenticator(root()).login(record(L"/api/Login/", {}), &listener);
    orv::Authenticator(root()).login(record(L"/api/InstalledDevice/", {}), &listener);
    EXPECT_FALSE(server.requests()[0].hasHeader("Cookie"));
    EXPECT_EQ(server.requests()[1].header("Cookie"), "orvanta=abc");

    auto const jar = session.dataDirectory() / "session-cookie";
    struct stat status {
    };
    ASSERT_EQ(::stat(jar.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);

    // Another user's data directory has a jar of its own, and coming back to this one brings the cookie back.
    orvtest::HostSession other(server.wideUrl());
    server.expect("POST", "/api/Logout/", Answer::ok("ok"));
    orv::Authenticator(root()).login(record(L"/api/Logout/", {}), &listener);
    EXPECT_FALSE(server.last().hasHeader("Cookie"));

    session.reconfigure([](orvhost::Settings&) {});
    server.expect("POST", "/api/Logout/", Answer::ok("ok", "Set-Cookie: orvanta=; Path=/api/; Max-Age=0\r\n"));
    orv::Authenticator(root()).login(record(L"/api/Logout/", {}), &listener);
    EXPECT_EQ(server.last().header("Cookie"), "orvanta=abc");
    EXPECT_FALSE(std::filesystem::exists(jar));
}

TEST_F(Web, ABrokenJarHasNoCookies)
{
    std::filesystem::create_directories(session.dataDirectory());
    std::ofstream(session.dataDirectory() / "session-cookie", std::ios::binary)
        << std::string(5000, '\0') << "\nALL\nSet-Cookie: a=b\n127.0.0.1\tFALSE\t/\n";
    server.expect("GET", "/a", Answer::ok("x"));
    EXPECT_EQ(orv::GetAPI(root()).get(record(L"/a", {}), &listener), ErrorCode::none);
    EXPECT_FALSE(server.last().hasHeader("Cookie"));
}

} // namespace
