// Signing in over loopback: every step's effect on the session file, every way in which the service can fail, and the
// bytes that go over the wire.

#include "ui/account/LoginOverHttp.h"

#include <chrono>

using namespace orvtest;
using namespace orvplatform::testing;
using namespace std::string_literals;

namespace
{

TEST_F(LoginOverHttp, TakesItsWholeCourseInItsOrder)
{
    SessionFile().write(L"bob@example.com", L"an older token", L"Bob");
    scene.info->setFile(L"/models/gearbox.step");
    expectLogin();
    server.expect("GET", "/api/isFilePresent/", Answer::ok(shortIdBytes));
    server.expect("POST", "/api/UploadInput/", Answer::ok(jobIdBytes));
    viewer->onDelivered = [this](orvui::Hint& hint) {
        EXPECT_EQ(hint.getDocument(), scene.document);
        expectSignedIn();
        EXPECT_EQ(user->name, L"Ann");
    };
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    std::string const two = " {" + twoLines() + "}";
    std::string const three = " {" + twoLines() + "Ann|}";
    std::string const uploading = "status " + narrow(116) + three;
    EXPECT_EQ(viewer->events,
              (std::vector<std::string>{
                  "/api/Login/ {}", "/api/InstalledDevice/" + two, "status " + narrow(130) + two,
                  "/api/AccountInfo/" + two, "/api/isFilePresent/" + three, uploading, "progress on", "progress 20",
                  "progress 50", uploading, "/api/UploadInput/" + three, "progress 80",
                  "status gearbox.step " + narrow(117) + three, "progress 100", "progress off", "hint 41" + three}));
    EXPECT_EQ(exporter->paths.size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(exporter->paths.at(0))) << "the copy that was sent goes";
    EXPECT_EQ(busyCursors, (std::vector<int>{0, 0, 0, 0, 1})) << "for the push alone";
}

TEST_F(LoginOverHttp, SendsTheseBytes)
{
    scene.info->setFile(L"/models/gearbox.step");
    server.expect("POST", "/api/Login/",
                  Answer::ok(tokenBytes, "Set-Cookie: orvanta_session=crumb; Path=/; HttpOnly; SameSite=Strict\r\n"));
    server.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
    server.expect("GET", "/api/AccountInfo/", Answer::ok(R"({"name":"Ann"})"));
    server.expect("GET", "/api/isFilePresent/", Answer::ok(""));
    server.expect("POST", "/api/UploadInput/", Answer::ok(jobIdBytes));
    openLogin(signInAsAnn);
    auto const sent = server.requests();
    ASSERT_EQ(sent.size(), 5U);
    std::string const key = orvtext::toUtf8(orvweb::APIUtils::apiKey());
    for (std::size_t i = 0; i < sent.size(); ++i) {
        EXPECT_EQ(sent[i].header("X-Api-Key"), key);
        EXPECT_EQ(sent[i].header("Authorization"), i < 2 ? ""s : "Bearer "s + tokenBytes);
        EXPECT_EQ(sent[i].bytes.find("secret") != std::string::npos, i == 0) << "the password goes once";
        EXPECT_EQ(sent[i].target.find(tokenBytes), std::string::npos);
    }
    wchar_t computer[124] = {};
    DWORD size = 124;
    GetComputerNameW(computer, &size);
    EXPECT_EQ(sent[0].body, form("password=secret"));
    EXPECT_EQ(sent[1].body, form("devicename=" + orvtext::toUtf8(computer) + "&devicetype=pc"));
    EXPECT_EQ(sent[1].header("Cookie"), "orvanta_session=crumb");
    EXPECT_EQ(sent[2].query(), form("").substr(0, form("").size() - 1));
    EXPECT_EQ(sent[3].query(), form("filename=gearbox.step"));
    for (std::string const& part : {"name=\"username\"\r\n\r\nann@example.com\r\n"s, "name=\"type\"\r\n\r\nprc\r\n"s,
                                    "name=\"filename\"\r\n\r\ngearbox.step\r\n"s, "\r\n\r\nPRC\r\n"s}) {
        EXPECT_NE(sent[4].body.find(part), std::string::npos) << part;
    }
}

TEST_F(LoginOverHttp, APasswordOfAnyCharactersGoesAsItStands)
{
    server.expect("POST", "/api/Login/", Answer::status(401));
    openLogin(
        [](CloudLoginDlg& dialog) { signInAs(dialog, L"ann@example.com", L"p\u00e4\u00df+%2b \u65e5\U0001F600"); });
    EXPECT_EQ(body(0), form("password=p%C3%A4%C3%9F%2B%252b%20%E6%97%A5%F0%9F%98%80"));
}

TEST_F(LoginOverHttp, WithoutAConnectionTheServiceIsNotAsked)
{
    signIn();
    *user = {};
    orvplatform::setConnectedForTest(false);
    std::string const before = sessionState();
    EXPECT_EQ(openLogin(signInAsAnn), stillOpen);
    EXPECT_EQ(viewer->events, std::vector<std::string>{"status " + narrow(111) + " {" + before + "}"});
    EXPECT_EQ(sessionState(), before);
    EXPECT_EQ(server.connections(), 0);
    expectNobody();
}

TEST_F(LoginOverHttp, CancelChangesNothing)
{
    signIn();
    std::string const before = sessionState();
    EXPECT_EQ(openLogin([](CloudLoginDlg& dialog) {
                  typeText(dialog, emailBox, L"bob@example.com");
                  typeText(dialog, passwordBox, L"secret");
                  pressKey(dialog, VK_ESCAPE);
              }),
              IDCANCEL);
    EXPECT_TRUE(viewer->events.empty());
    EXPECT_EQ(sessionState(), before);
    EXPECT_EQ(user->username, L"ann@example.com");
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(LoginOverHttp, WithoutAFileNothingIsAskedOfTheModel)
{
    expectLogin();
    openLogin(signInAsAnn);
    expectSignedIn();
    EXPECT_EQ(requests().size(), 3U);
    EXPECT_EQ(hints(), std::vector<std::string>{"hint 41 {" + twoLines() + "Ann|}"});
}

TEST_F(LoginOverHttp, AModelThatIsThereIsNotPushedAgain)
{
    scene.info->setFile(L"/models/gearbox.step");
    expectLogin();
    server.expect("GET", "/api/isFilePresent/", Answer::ok(jobIdBytes));
    openLogin(signInAsAnn);
    EXPECT_TRUE(exporter->paths.empty());
    EXPECT_EQ(texts(), std::vector<std::string>{narrow(130)});
    EXPECT_EQ(hints().size(), 1U);
}

TEST_F(LoginOverHttp, AQuestionThatFailsCountsAsAModelThatIsNotThere)
{
    scene.info->setFile(L"/models/gearbox.step");
    expectLogin();
    server.expect("GET", "/api/isFilePresent/", Answer::status(500, jobIdBytes));
    server.expect("POST", "/api/UploadInput/", Answer::ok(jobIdBytes));
    openLogin(signInAsAnn);
    EXPECT_EQ(exporter->paths.size(), 1U);
    EXPECT_EQ(hints().size(), 1U);
}

TEST_F(LoginOverHttp, APushThatFailsLeavesTheUserSignedIn)
{
    scene.info->setFile(L"/models/gearbox.step");
    expectLogin();
    server.expect("GET", "/api/isFilePresent/", Answer::ok(""));
    server.expect("POST", "/api/UploadInput/", Answer::status(503));
    openLogin(signInAsAnn);
    expectSignedIn();
    EXPECT_EQ(texts(), (std::vector<std::string>{narrow(130), narrow(116), narrow(116), narrow(129)}));
    EXPECT_EQ(viewer->events.back(), "hint 41 {" + twoLines() + "Ann|}");
    EXPECT_FALSE(std::filesystem::exists(exporter->paths.at(0)));
}

TEST_F(LoginOverHttp, AfterAFailedOneMakesFileAndDirectoryAgain)
{
    server.expect("POST", "/api/Login/", Answer::status(401, "wrong"));
    expectLogin();
    EXPECT_EQ(openLogin([](CloudLoginDlg& dialog) {
                  signInAsAnn(dialog);
                  std::filesystem::remove(cloudDirectory());
                  EXPECT_TRUE(clickButton(dialog, loginButton)); // with what still stands in the boxes
              }),
              IDCANCEL);
    expectSignedIn();
    EXPECT_EQ(sessionState(), twoLines() + "Ann|");
}

TEST_F(LoginOverHttp, CanBeTriedAnyNumberOfTimes)
{
    constexpr int tries = 12;
    for (int i = 0; i < tries; ++i) {
        server.expect("POST", "/api/Login/", Answer::status(i % 2 == 0 ? 401 : 429));
    }
    EXPECT_EQ(openLogin([](CloudLoginDlg& dialog) {
                  signInAsAnn(dialog);
                  for (int i = 1; i < tries; ++i) {
                      EXPECT_TRUE(clickButton(dialog, loginButton));
                      EXPECT_EQ(sessionState(), "none");
                  }
              }),
              stillOpen);
    EXPECT_EQ(texts(), std::vector<std::string>(tries, narrow(131)));
}

TEST_F(LoginOverHttp, WorksInEveryLanguage)
{
    for (wchar_t const* const language : {L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"}) {
        configure(language);
        useService(server.wideUrl());
        viewer->events.clear();
        server.expect("POST", "/api/Login/", Answer::status(401));
        expectLogin();
        EXPECT_EQ(openLogin([](CloudLoginDlg& dialog) {
                      signInAsAnn(dialog);
                      EXPECT_TRUE(clickButton(dialog, loginButton));
                  }),
                  IDCANCEL);
        EXPECT_EQ(texts(), (std::vector<std::string>{narrow(131), narrow(130)}));
        EXPECT_EQ(hints().size(), 1U);
    }
}

TEST_F(LoginOverHttp, LeavesACloudDirectoryThatHoldsOtherFiles)
{
    std::filesystem::create_directories(cloudDirectory());
    std::ofstream(cloudDirectory() / "share").put('x');
    server.expect("POST", "/api/Login/", Answer::status(401));
    openLogin(signInAsAnn);
    EXPECT_EQ(viewer->events.back(), "status " + narrow(131) + " {none}");
    EXPECT_TRUE(std::filesystem::exists(cloudDirectory() / "share"));
}

TEST_F(LoginOverHttp, AServiceThatIsGoneIsAFailedLogin)
{
    server.stop();
    EXPECT_EQ(openLogin(signInAsAnn), stillOpen);
    EXPECT_EQ(viewer->events,
              (std::vector<std::string>{"/api/Login/ {}", "status " + narrow(131) + " {no directory}"}));
    EXPECT_EQ(sessionState(), "none");
    expectNobody();
}

TEST_F(LoginOverHttp, ARedirectToAnotherHostIsNotFollowed)
{
    ScriptedHttpServer other;
    server.expect("POST", "/api/Login/", Answer::redirect(other.url() + "/api/Login/"));
    EXPECT_EQ(openLogin(signInAsAnn), stillOpen);
    EXPECT_EQ(other.connections(), 0);
    EXPECT_EQ(texts(), std::vector<std::string>{narrow(131)});
    EXPECT_EQ(sessionState(), "none");
}

class FailedLogin : public LoginOverHttp, public testing::WithParamInterface<NamedAnswer>
{
};

TEST_P(FailedLogin, SaysSoAndLeavesTheDialogOpenAndNoSession)
{
    SessionFile().write(L"bob@example.com", token, L"Bob");
    server.expect("POST", "/api/Login/", GetParam().answer);
    EXPECT_EQ(openLogin([](CloudLoginDlg& dialog) {
                  signInAsAnn(dialog);
                  EXPECT_EQ(textOf(dialog, emailBox), L"ann@example.com");
                  EXPECT_EQ(textOf(dialog, passwordBox), L"secret");
                  EXPECT_TRUE(isEnabled(dialog, loginButton));
              }),
              stillOpen);
    EXPECT_EQ(viewer->events,
              (std::vector<std::string>{"/api/Login/ {}", "status " + narrow(131) + " {no directory}"}));
    EXPECT_EQ(sessionState(), "none");
    expectNobody();
}

INSTANTIATE_TEST_SUITE_P(Answers, FailedLogin,
                         testing::Values(NamedAnswer{"WrongPassword", Answer::status(401, "Wrong e-mail or password.")},
                                         NamedAnswer{"TooManyTries", Answer::status(429, "", "Retry-After: 60\r\n")},
                                         NamedAnswer{"ServiceError", Answer::status(500, tokenBytes)},
                                         NamedAnswer{"Unavailable", Answer::status(503)},
                                         NamedAnswer{"HangsUp", Answer::hangUp()},
                                         NamedAnswer{"CutInMidBody", Answer::cut(tokenBytes, 40)},
                                         NamedAnswer{"StaysSilent", Answer::silence()}),
                         NameOfCase());

class WrongToken : public LoginOverHttp, public testing::WithParamInterface<NamedAnswer>
{
};

// The service has said yes, so the session is written and the device registered before the length is looked at. The
// text comes first, then the file goes; its directory stays.
TEST_P(WrongToken, IsAFailedLoginAfterAll)
{
    std::string const& whole = GetParam().answer.bytes;
    std::string const answer = whole.substr(whole.find("\r\n\r\n") + 4);
    std::string session = "ann@example.com\n" + answer + "\n";
    std::replace(session.begin(), session.end(), '\n', '|');
    server.expect("POST", "/api/Login/", GetParam().answer);
    server.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
    EXPECT_EQ(openLogin(signInAsAnn), stillOpen);
    EXPECT_EQ(viewer->events, (std::vector<std::string>{"/api/Login/ {}", "/api/InstalledDevice/ {" + session + "}",
                                                        "status " + narrow(131) + " {" + session + "}"}));
    EXPECT_EQ(sessionState(), "none");
    EXPECT_TRUE(std::filesystem::exists(cloudDirectory()));
    expectNobody();
}

INSTANTIATE_TEST_SUITE_P(
    Answers, WrongToken,
    testing::Values(NamedAnswer{"Empty", Answer::ok("")}, NamedAnswer{"Of35Characters", Answer::ok(shortIdBytes)},
                    NamedAnswer{"Of37Characters", Answer::ok(tokenBytes + "x"s)},
                    NamedAnswer{"WithALineFeedBehind", Answer::ok(tokenBytes + "\n"s)},
                    NamedAnswer{"AText", Answer::ok("wrong password")},
                    NamedAnswer{"AnHtmlPage", Answer::ok("<html>\n<body>It works!</body>\n</html>\n")}),
    NameOfCase());

// One byte is one character, whatever the bytes mean.
TEST_F(LoginOverHttp, ATokenIs36CharactersOfAnyContent)
{
    for (std::string const& answer :
         {std::string(36, ' '), std::string(34, '"') + "\xC3\xA9", std::string(36, '\xFF')}) {
        server.expect("POST", "/api/Login/", Answer::ok(answer));
        server.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
        server.expect("GET", "/api/AccountInfo/", Answer::ok(R"({"name":"Ann"})"));
        EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
        EXPECT_EQ(user->userid, orvtext::widenBytes(answer));
        EXPECT_EQ(sessionState(), "ann@example.com|" + answer + "|Ann|");
    }
}

// It can't travel in a header, so no request goes out in its name: the name stays unknown and the push fails.
TEST_F(LoginOverHttp, ATokenWithALineFeedSignsInAndIsSentToNobody)
{
    scene.info->setFile(L"/models/gearbox.step");
    std::string const answer = std::string(20, 'a') + "\n" + std::string(15, 'b');
    server.expect("POST", "/api/Login/", Answer::ok(answer));
    server.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    EXPECT_EQ(server.requests().size(), 2U);
    EXPECT_EQ(sessionState(), "ann@example.com|" + std::string(20, 'a') + "|" + std::string(15, 'b') + "|");
    EXPECT_EQ(texts().back(), narrow(129));
    EXPECT_EQ(hints().size(), 1U);
}

class SilentService : public LoginOverHttp
{
protected:
    SilentService() : begun(std::chrono::steady_clock::now()) {}
    ~SilentService() override
    {
        EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(20));
        EXPECT_EQ(orvplatform::waitCursorDepth(), 0);
    }

    std::chrono::steady_clock::time_point begun;
};

TEST_F(SilentService, AtTheQuestionForTheModelLeadsToThePush)
{
    scene.info->setFile(L"/models/gearbox.step");
    expectLogin();
    server.expect("GET", "/api/isFilePresent/", Answer::silence());
    server.expect("POST", "/api/UploadInput/", Answer::ok(jobIdBytes));
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    EXPECT_EQ(texts().back(), "gearbox.step " + narrow(117));
    EXPECT_EQ(hints().size(), 1U);
}

TEST_F(SilentService, AtThePushIsAFailedPush)
{
    scene.info->setFile(L"/models/gearbox.step");
    expectLogin();
    server.expect("GET", "/api/isFilePresent/", Answer::ok(""));
    server.expect("POST", "/api/UploadInput/", Answer::silence());
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    EXPECT_EQ(texts().back(), narrow(129));
    expectSignedIn();
    EXPECT_EQ(viewer->events.back(), "hint 41 {" + twoLines() + "Ann|}");
    EXPECT_FALSE(std::filesystem::exists(exporter->paths.at(0)));
}

TEST_F(SilentService, InMidBodyOfTheAccountsNameLeavesTwoLines)
{
    expectLogin(Answer::raw("HTTP/1.1 200 OK\r\nContent-Length: 40\r\n\r\n{\"name\":\"An", false));
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    expectSignedIn();
    EXPECT_EQ(sessionState(), twoLines());
    EXPECT_EQ(hints().size(), 1U);
}

TEST_F(SilentService, ThroughThePromptLeavesThePromptUsable)
{
    server.expect("POST", "/api/Login/", Answer::silence());
    expectLogin();
    openPrompt([](CloudLoginDlg& dialog) {
        signInAsAnn(dialog);
        EXPECT_EQ(orvplatform::waitCursorDepth(), 0);
        EXPECT_TRUE(clickButton(dialog, loginButton));
    });
    EXPECT_EQ(texts(), (std::vector<std::string>{narrow(131), narrow(130)}));
    expectSignedIn();
}

} // namespace
