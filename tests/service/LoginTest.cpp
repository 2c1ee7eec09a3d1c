#include "host/orvweb/APIUtils.h"
#include "platform/text/Text.h"
#include "service/CloudHelper.h"
#include "service/JobId.h"
#include "support/PluginEnvironment.h"
#include "support/RecordingTransport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/utsname.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

using orvweb::HttpRequest;
using orvweb::HttpResponse;
using testing::ElementsAreArray;

namespace
{

/// What the system calls this computer; empty stands for its own answer.
std::string computerName;

} // namespace

/// Takes the place of the system's function throughout this program.
extern "C" int gethostname(char* buffer, std::size_t size) noexcept
{
    utsname own{};
    if (computerName.empty() && uname(&own) != 0) {
        return -1;
    }
    std::string const name = computerName.empty() ? own.nodename : computerName;
    if (name.size() >= size) {
        return -1;
    }
    std::copy_n(name.c_str(), name.size() + 1, buffer);
    return 0;
}

namespace
{

std::string const token = "0f8fad5b-d9cb-469f-a165-70867728950e";

HttpResponse answer(std::string body)
{
    return {orv::ErrorCode::none, 200, std::move(body)};
}

class Login : public testing::Test
{
protected:
    ~Login() override { computerName.clear(); }

    std::string apiId() const { return orvtext::toUtf8(orvweb::APIUtils::apiId()); }
    std::string apiKey() const { return orvtext::toUtf8(orvweb::APIUtils::apiKey()); }

    orvtest::PluginEnvironment environment;
    orvtest::RecordingTransport network;
};

TEST_F(Login, SendsThePasswordAndThenTheDevice)
{
    computerName = "bench-7";
    network.expect("/api/Login/", token);
    network.expect("/api/InstalledDevice/", "ok");
    EXPECT_EQ(CloudHelper::login(L"ada@example.com", L"p+w d"), orvtext::fromUtf8(token));

    auto const& login = network.sent()[0];
    EXPECT_EQ(login.request.kind, HttpRequest::Kind::formOnce);
    EXPECT_THAT(login.request.fields, ElementsAreArray(std::vector<HttpRequest::Field>{
                                          {"name", apiId()}, {"username", "ada@example.com"}, {"password", "p+w d"}}));
    EXPECT_EQ(login.header("X-Api-Key"), apiKey());
    EXPECT_EQ(login.header("Authorization"), "");

    auto const& device = network.sent()[1];
    EXPECT_EQ(device.request.kind, HttpRequest::Kind::formOnce);
    EXPECT_THAT(
        device.request.fields,
        ElementsAreArray(std::vector<HttpRequest::Field>{
            {"name", apiId()}, {"username", "ada@example.com"}, {"devicename", computerName}, {"devicetype", "pc"}}));
    EXPECT_EQ(device.header("X-Api-Key"), apiKey());
}

TEST_F(Login, NamesTheComputerAsItIs)
{
    // The system of today ends at 64; the request has room for 123.
    for (std::size_t const length : {1U, 62U, 63U, 64U, 123U}) {
        computerName = ("Workstation-of-ADA." + std::string(123, 'x')).substr(0, length);
        network.expect("/api/Login/", token);
        network.expect("/api/InstalledDevice/", "ok");
        CloudHelper::login(L"ada@example.com", L"secret");
        EXPECT_EQ(network.last().field("devicename"), computerName);
    }
}

TEST_F(Login, EndsTheSessionBeforeTheServiceIsAskedAndStartsTheNewOneBeforeTheDevice)
{
    orvtest::writeFile(environment.session(), "old@example.com\nold\nOld\n");
    network.expectHandled("/api/Login/", [&](auto const&) {
        EXPECT_TRUE(std::filesystem::exists(environment.session()));
        EXPECT_EQ(orvtest::contentOf(environment.session()), "");
        return answer(token);
    });
    network.expectHandled("/api/InstalledDevice/", [&](auto const&) {
        EXPECT_EQ(orvtest::contentOf(environment.session()), "ada@example.com\n" + token + "\n");
        return answer("ok");
    });
    CloudHelper::login(L"ada@example.com", L"secret");
    EXPECT_EQ(orvtest::contentOf(environment.session()), "ada@example.com\n" + token + "\n");
}

TEST_F(Login, ThatFailsLeavesNoSessionAndNoDirectory)
{
    network.expectFailure("/api/Login/", orv::ErrorCode::refused, 401);
    EXPECT_EQ(CloudHelper::login(L"ada@example.com", L"wrong"), L"");
    EXPECT_FALSE(std::filesystem::exists(environment.session()));
    EXPECT_FALSE(std::filesystem::exists(environment.cloud()));
    EXPECT_EQ(network.sent().size(), 1U) << "no device is registered";
}

TEST_F(Login, ThatFailsLeavesADirectoryWithOtherFiles)
{
    orvtest::writeFile(environment.cloud("share"), "");
    network.expectFailure("/api/Login/");
    EXPECT_EQ(CloudHelper::login(L"ada@example.com", L"wrong"), L"");
    EXPECT_FALSE(std::filesystem::exists(environment.session()));
    EXPECT_TRUE(std::filesystem::exists(environment.cloud("share")));
}

TEST_F(Login, AfterAFailedOneMakesFileAndDirectoryAgain)
{
    network.expectFailure("/api/Login/");
    CloudHelper::login(L"ada@example.com", L"wrong");
    network.expect("/api/Login/", token);
    network.expect("/api/InstalledDevice/", "ok");
    CloudHelper::login(L"ada@example.com", L"right");
    EXPECT_EQ(orvtest::contentOf(environment.session()), "ada@example.com\n" + token + "\n");
}

TEST_F(Login, GivesAnyAnswerThatTheServiceSendsWithSuccess)
{
    network.expect("/api/Login/", "wrong password");
    network.expect("/api/InstalledDevice/", "ok");
    std::wstring const result = CloudHelper::login(L"ada@example.com", L"wrong");
    EXPECT_EQ(result, L"wrong password");
    EXPECT_FALSE(isLoginToken(result));
    EXPECT_EQ(orvtest::contentOf(environment.session()), "ada@example.com\nwrong password\n");
}

TEST_F(Login, IsNotFailedByTheDevice)
{
    network.expect("/api/Login/", token);
    network.expectFailure("/api/InstalledDevice/", orv::ErrorCode::broken);
    EXPECT_EQ(CloudHelper::login(L"ada@example.com", L"secret"), orvtext::fromUtf8(token));
    EXPECT_EQ(orvtest::contentOf(environment.session()), "ada@example.com\n" + token + "\n");
}

TEST_F(Login, GoesOnWhereTheSessionCantBeWritten)
{
    std::filesystem::create_directories(environment.session() / "in the way");
    network.expect("/api/Login/", token);
    network.expect("/api/InstalledDevice/", "ok");
    EXPECT_EQ(CloudHelper::login(L"ada@example.com", L"secret"), orvtext::fromUtf8(token));
}

TEST_F(Login, KeepsTheSessionForTheUserAlone)
{
    network.expect("/api/Login/", token);
    network.expect("/api/InstalledDevice/", "ok");
    CloudHelper::login(L"ada@example.com", L"secret");
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(environment.session()).permissions(), perms::owner_read | perms::owner_write);
}

class Logout : public Login
{
protected:
    void SetUp() override { orvtest::writeFile(environment.session(), "ada@example.com\n" + token + "\nAda\n"); }
};

TEST_F(Logout, NamesTheUserAloneAndRemovesTheSession)
{
    network.expectHandled("/api/Logout/", [&](auto const&) {
        EXPECT_TRUE(std::filesystem::exists(environment.session()));
        EXPECT_EQ(orvtest::contentOf(environment.session()), "") << "emptied before the service is asked";
        return answer("ok");
    });
    EXPECT_EQ(CloudHelper::logout(L"ada@example.com"), L"ok");
    auto const& sent = network.last();
    EXPECT_EQ(sent.request.kind, HttpRequest::Kind::formOnce);
    EXPECT_THAT(sent.request.fields, ElementsAreArray(std::vector<HttpRequest::Field>{
                                         {"name", apiId()}, {"username", "ada@example.com"}, {"tokenID", "default"}}));
    EXPECT_EQ(sent.header("X-Api-Key"), apiKey());
    EXPECT_EQ(sent.header("Authorization"), "");
    EXPECT_FALSE(std::filesystem::exists(environment.session()));
}

TEST_F(Logout, ThatFailsSaysSoAndLeavesAnEmptySession)
{
    network.expectFailure("/api/Logout/");
    EXPECT_EQ(CloudHelper::logout(L"ada@example.com"), L"Failed");
    EXPECT_TRUE(std::filesystem::exists(environment.session()));
    EXPECT_EQ(orvtest::contentOf(environment.session()), "");
}

TEST_F(Logout, WithAnEmptyAnswerHasSucceeded)
{
    network.expect("/api/Logout/", "");
    EXPECT_NE(CloudHelper::logout(L"ada@example.com"), CloudHelper::logoutFailed);
    EXPECT_FALSE(std::filesystem::exists(environment.session()));
}

TEST_F(Logout, WithoutAUserNameStillSendsAllTokens)
{
    network.expect("/api/Logout/", "ok");
    CloudHelper::logout(L"");
    EXPECT_THAT(network.last().request.fields, ElementsAreArray(std::vector<HttpRequest::Field>{
                                                   {"name", apiId()}, {"username", ""}, {"tokenID", "default"}}));
}

} // namespace
