// Where the service's cookie is kept, and to whom it goes.

#include "host/orvweb/CurlTransport.h"
#include "support/HostSession.h"
#include "support/ScriptedHttpServer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include <sys/stat.h>

using orvtest::Answer;
using orvtest::ScriptedHttpServer;

namespace
{

std::string const cookieHeader = "Set-Cookie: orvanta_session=abc; Path=/api/; Max-Age=3600; HttpOnly\r\n";
std::string const cookieEnd = "Set-Cookie: orvanta_session=; Path=/api/; Max-Age=0\r\n";

class WebJar : public testing::Test
{
protected:
    /// The cookie that the service got with a request.
    std::string cookieSentTo(ScriptedHttpServer& server, std::string const& moreHeaders = {},
                             std::string const& path = "/api/x")
    {
        return cookieOf(*transport, server, moreHeaders, path);
    }
    /// The same of a request that another viewer may send to the one service.
    std::string sendBy(orvweb::CurlTransport& viewer, std::string const& moreHeaders = {})
    {
        return cookieOf(viewer, service, moreHeaders, "/api/x");
    }
    static std::string cookieOf(orvweb::CurlTransport& viewer, ScriptedHttpServer& server,
                                std::string const& moreHeaders, std::string const& path)
    {
        server.expect("GET", path, Answer::ok("ok", moreHeaders));
        orvweb::HttpRequest request;
        request.url = server.url() + path;
        EXPECT_EQ(viewer.send(request, {}).code, orv::ErrorCode::none);
        return server.last().header("Cookie");
    }
    void restart() { transport = std::make_unique<orvweb::CurlTransport>(); }
    std::filesystem::path jar() const { return session.dataDirectory() / "session-cookie"; }
    std::string content() const
    {
        std::ifstream stream(jar(), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    orvtest::HostSession session;
    ScriptedHttpServer service;
    std::unique_ptr<orvweb::CurlTransport> transport = std::make_unique<orvweb::CurlTransport>();
};

TEST_F(WebJar, SurvivesRestarts)
{
    EXPECT_EQ(cookieSentTo(service, cookieHeader), "");
    for (int run = 0; run < 3; ++run) {
        restart();
        EXPECT_EQ(cookieSentTo(service), "orvanta_session=abc");
    }
}

TEST_F(WebJar, KeepsACookieWithoutAnEndToo)
{
    cookieSentTo(service, "Set-Cookie: orvanta_session=abc; Path=/api/\r\n");
    restart();
    EXPECT_EQ(cookieSentTo(service), "orvanta_session=abc");
}

TEST_F(WebJar, IsForItsOwnerAloneWhateverWasThere)
{
    std::filesystem::create_directories(session.dataDirectory());
    std::ofstream(jar()) << "an older jar";
    ASSERT_EQ(::chmod(jar().c_str(), 0666), 0);
    mode_t const before = ::umask(0);
    cookieSentTo(service, cookieHeader);
    ::umask(before);
    struct stat status {
    };
    ASSERT_EQ(::stat(jar().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
}

TEST_F(WebJar, LiesOutsideTheDirectoryThatAFailedLoginRemoves)
{
    cookieSentTo(service, cookieHeader);
    EXPECT_EQ(jar().parent_path(), session.dataDirectory());
    std::size_t files = 0;
    for (auto const& entry : std::filesystem::recursive_directory_iterator(session.dataDirectory())) {
        files += entry.is_regular_file() ? 1U : 0U;
    }
    EXPECT_EQ(files, 1U);
    std::filesystem::remove_all(session.dataDirectory() / "Cloud");
    restart();
    EXPECT_EQ(cookieSentTo(service), "orvanta_session=abc");
}

TEST_F(WebJar, KeepsServicesOnOneMachineApart)
{
    ScriptedHttpServer other;
    cookieSentTo(service, cookieHeader);
    EXPECT_EQ(cookieSentTo(other), "") << "cookies know no ports, the jar does";
    EXPECT_EQ(cookieSentTo(other, "Set-Cookie: orvanta_session=def; Path=/api/\r\n"), "");
    EXPECT_EQ(cookieSentTo(other), "orvanta_session=def");
    EXPECT_EQ(cookieSentTo(service), "orvanta_session=abc");
    restart();
    EXPECT_EQ(cookieSentTo(other), "orvanta_session=def");
    EXPECT_EQ(cookieSentTo(service), "orvanta_session=abc");
    // One that takes its cookie back takes nobody else's.
    cookieSentTo(service, "Set-Cookie: orvanta_session=; Path=/api/; Max-Age=0\r\n");
    EXPECT_EQ(content(), other.url() + "\t127.0.0.1\tFALSE\t/api/\tFALSE\t0\torvanta_session\tdef\n");
    cookieSentTo(other, "Set-Cookie: orvanta_session=; Path=/api/; Max-Age=0\r\n");
    EXPECT_FALSE(std::filesystem::exists(jar()));
}

TEST_F(WebJar, SendsACookieBelowItsPathAlone)
{
    cookieSentTo(service, cookieHeader);
    EXPECT_EQ(cookieSentTo(service, {}, "/elsewhere"), "");
    EXPECT_EQ(cookieSentTo(service, {}, "/api/Logout/"), "orvanta_session=abc");
}

TEST_F(WebJar, TakesNoCookieForSomebodyElse)
{
    cookieSentTo(service, "Set-Cookie: orvanta_session=abc; Path=/api/; Domain=cloud.example\r\n");
    EXPECT_EQ(cookieSentTo(service), "");
    cookieSentTo(service, "Set-Cookie: orvanta_session=abc; Path=/api/; Domain=0.0.1\r\n");
    EXPECT_EQ(cookieSentTo(service), "");
    EXPECT_FALSE(std::filesystem::exists(jar()));
}

TEST_F(WebJar, DropsACookieWhoseTimeIsOver)
{
    std::filesystem::create_directories(session.dataDirectory());
    std::ofstream(jar()) << service.url() << "\t127.0.0.1\tFALSE\t/api/\tFALSE\t1000\torvanta_session\tabc\n";
    EXPECT_EQ(cookieSentTo(service), "");
    EXPECT_FALSE(std::filesystem::exists(jar()));
}

TEST_F(WebJar, ThatIsBrokenHasNoCookies)
{
    std::filesystem::create_directories(session.dataDirectory());
    std::string const bytes = "127.0.0.1\tFALSE\t/api/\tFALSE\t0\torvanta_session\tabc\n" // names no service
                              + service.url() + "\tALL\n" + service.url() + "\tSet-Cookie: a=b\n" + service.url() +
                              "\t127.0.0.1\tFALSE\t/\n" + std::string(5000, '\0') + "\n\t\t\t\t\t\t\t\n";
    std::ofstream(jar(), std::ios::binary) << bytes;
    EXPECT_EQ(cookieSentTo(service), "");
    cookieSentTo(service, cookieHeader);
    EXPECT_EQ(cookieSentTo(service), "orvanta_session=abc");
}

TEST_F(WebJar, ThatCantBeWrittenIsTriedAgain)
{
    std::filesystem::create_directories(jar() / "in the way");
    cookieSentTo(service, cookieHeader);
    EXPECT_EQ(cookieSentTo(service), "orvanta_session=abc") << "this run has it all the same";
    std::filesystem::remove_all(jar());
    cookieSentTo(service);
    restart();
    EXPECT_EQ(cookieSentTo(service), "orvanta_session=abc");
}

TEST_F(WebJar, IsReadAgainOnceWhatCouldntBeWrittenIsTakenBack)
{
    std::filesystem::create_directories(jar() / "in the way");
    cookieSentTo(service, cookieHeader);
    EXPECT_EQ(cookieSentTo(service, cookieEnd), "orvanta_session=abc") << "signed out again";
    std::filesystem::remove_all(jar());
    orvweb::CurlTransport other;
    sendBy(other, cookieHeader);
    EXPECT_EQ(sendBy(*transport), "orvanta_session=abc") << "of the other viewer's session";
}

TEST_F(WebJar, IsReadAgainWhereAnotherViewerHasWrittenIt)
{
    orvweb::CurlTransport other;
    EXPECT_EQ(sendBy(*transport), "");
    EXPECT_EQ(sendBy(other, cookieHeader), "") << "signs in";
    EXPECT_EQ(sendBy(*transport), "orvanta_session=abc") << "signs out: the service must hear whose session it is";
    EXPECT_EQ(sendBy(*transport, "Set-Cookie: orvanta_session=def; Path=/api/; Max-Age=3600\r\n"),
              "orvanta_session=abc");
    EXPECT_EQ(sendBy(other), "orvanta_session=def");
    EXPECT_EQ(sendBy(other, cookieEnd), "orvanta_session=def");
    EXPECT_EQ(sendBy(*transport), "") << "the jar is gone, and its cookie with it";
    EXPECT_FALSE(std::filesystem::exists(jar()));
}

} // namespace
