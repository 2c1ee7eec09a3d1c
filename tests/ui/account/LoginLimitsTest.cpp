// A login at the edges: answers that fill memory, a directory that can't be had, computers with odd names.

#include "support/ComputerName.h"
#include "support/WriteCalls.h"
#include "ui/account/AccountTest.h"

#include <cstddef>

using namespace orvtest;

namespace
{

constexpr std::size_t endless = std::size_t{64} << 20U;
/// The streams' calls and those of the server's thread; one a character would be millions.
constexpr std::size_t fewCalls = 20000;

class LoginLimits : public AccountTest
{
protected:
    std::string deviceName()
    {
        std::string const body = server.requests().at(1).body;
        std::size_t const begin = body.find("&devicename=") + 12;
        return body.substr(begin, body.find('&', begin) - begin);
    }
};

} // namespace

TEST_F(LoginLimits, AnEndlessAnswerIsAFailedLoginAndHoldsNothingUp)
{
    server.expect("POST", "/api/Login/", Answer::ok(std::string(endless, 'x')));
    server.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
    WriteCalls const calls;
    EXPECT_EQ(openLogin(signInAsAnn), stillOpen);
    EXPECT_LT(calls.count(), fewCalls);
    EXPECT_EQ(texts(), std::vector<std::string>{narrow(131)});
    EXPECT_EQ(sessionState(), "none");
    EXPECT_EQ(user->userid, L"");
}

TEST_F(LoginLimits, AnEndlessAccountNameIsKeptAndHoldsNothingUp)
{
    expectLogin(Answer::ok(R"({"name":")" + std::string(endless, 'x') + R"("})"));
    WriteCalls const calls;
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    EXPECT_LT(calls.count(), fewCalls);
    EXPECT_EQ(user->name.size(), endless);
    EXPECT_EQ(std::filesystem::file_size(cloudDirectory() / "temp"), twoLines().size() + endless + 1);
}

TEST_F(LoginLimits, WithoutADirectoryForTheSessionTheUserIsSignedInForThisRun)
{
    std::ofstream(cloudDirectory()) << "in the way";
    expectLogin();
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    EXPECT_EQ(texts(), std::vector<std::string>{narrow(130)});
    EXPECT_EQ(hints().size(), 1U);
    EXPECT_TRUE(hints().at(0).starts_with("hint 41")) << hints().at(0);
    EXPECT_EQ(user->username, L"ann@example.com");
    EXPECT_EQ(user->userid, token);
    EXPECT_EQ(user->name, L"Ann");
    EXPECT_FALSE(SessionFile().canOpen());
    EXPECT_TRUE(std::filesystem::is_regular_file(cloudDirectory())) << "what is in the way stays";

    server.expect("POST", "/api/Login/", Answer::status(401));
    EXPECT_EQ(openLogin(signInAsAnn), stillOpen);
    EXPECT_TRUE(std::filesystem::is_regular_file(cloudDirectory()));
}

TEST_F(LoginLimits, TheComputersNameIsPassedOnInFullUpTo123Characters)
{
    struct Case {
        std::string name;
        std::string sent;
    };
    for (Case const& each : {Case{"Drawing-Office_7", "Drawing-Office_7"},
                             Case{std::string(123, 'n'), std::string(123, 'n')}, Case{std::string(124, 'n'), ""},
                             Case{std::string(200, 'n'), ""}, Case{std::string(300, 'n'), ""}, Case{"", ""}}) {
        SCOPED_TRACE(each.name);
        ComputerName const name(each.name.c_str());
        expectLogin();
        EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
        auto const sent = server.requests();
        std::string const body = sent.at(sent.size() - 2).body;
        EXPECT_NE(body.find("&devicename=" + each.sent + "&devicetype=pc"), std::string::npos) << body;
    }
}

TEST_F(LoginLimits, AComputerWithoutANameIsRegisteredWithAnEmptyOne)
{
    ComputerName const none(nullptr);
    expectLogin();
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    EXPECT_EQ(user->userid, token);
    EXPECT_EQ(deviceName(), "");
}
