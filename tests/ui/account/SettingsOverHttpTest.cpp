// Signing out over loopback, from the options page: the session file at every step, the order of what follows, and
// every way in which the service can fail.

#include "ui/account/AccountTest.h"
#include "ui/account/OptionsPage.h"
#include "ui/account/SettingsDlg.h"

#include <chrono>
#include <ostream>

using namespace orvtest;
using namespace orvplatform::testing;
using namespace std::string_literals;

namespace
{

constexpr int state = stateOfSession;
constexpr int button = loginOrLogout;

class SettingsOverHttp : public AccountTest
{
protected:
    SettingsOverHttp() { signIn(); }

    /// Opens the options with the page, as the viewer does.
    void openOptions(std::function<void(SettingsDlg&)> const& use)
    {
        SettingsDlg page(scene.document, nullptr, user, std::make_shared<CloudSettings>(), helper);
        openOptionsWith(page, modals, [&] { use(page); });
    }
    static void press(CWnd& page) { EXPECT_TRUE(clickButton(page, button)); }
    void expectPage(CWnd& page, std::wstring const& words, int caption) const
    {
        EXPECT_EQ(textOf(page, state), words);
        EXPECT_EQ(textOf(page, button), text(caption));
    }
    void expectSignedOut(CWnd& page) const { expectPage(page, text(121), 106); }
    void expectAnnsPage(CWnd& page) const { expectPage(page, text(120) + L"ann@example.com", 107); }
    void expectAnn() const
    {
        EXPECT_EQ(user->username, L"ann@example.com");
        EXPECT_EQ(user->userid, token);
        EXPECT_EQ(user->name, L"Ann");
    }
};

TEST_F(SettingsOverHttp, ALogoutTakesItsCourseInItsOrder)
{
    server.expect("POST", "/api/Logout/", Answer::ok("ok"));
    openOptions([this](SettingsDlg& page) {
        expectAnnsPage(page);
        viewer->onDelivered = [&](orvui::Hint& hint) {
            EXPECT_EQ(hint.getDocument(), scene.document);
            EXPECT_EQ(user->username, L"");
            EXPECT_EQ(user->userid, L"");
            expectSignedOut(page); // the page's texts stand before anybody is told
        };
        press(page);
        viewer->onDelivered = {};
        expectSignedOut(page);
    });
    EXPECT_EQ(viewer->events, (std::vector<std::string>{"/api/Logout/ {}", "hint 42 {none}"}));
    EXPECT_EQ(user->name, L"Ann") << "it alone stays";
    EXPECT_EQ(server.last().body, "name=" + apiId() + "&username=ann%40example.com&tokenID=default");
    EXPECT_EQ(server.last().header("X-Api-Key"), orvtext::toUtf8(orvweb::APIUtils::apiKey()));
    EXPECT_EQ(server.last().bytes.find(tokenBytes), std::string::npos) << "the token isn't sent";
}

TEST_F(SettingsOverHttp, ALogoutWithoutAUserNameSendsAllItsFields)
{
    user->username.clear();
    server.expect("POST", "/api/Logout/", Answer::ok("ok"));
    openOptions(press);
    EXPECT_EQ(server.last().body, "name=" + apiId() + "&username=&tokenID=default");
}

TEST_F(SettingsOverHttp, AnEmptyAnswerIsALogoutToo)
{
    server.expect("POST", "/api/Logout/", Answer::ok(""));
    openOptions([this](SettingsDlg& page) {
        press(page);
        expectSignedOut(page);
    });
    EXPECT_EQ(sessionState(), "none");
    EXPECT_EQ(hints().size(), 1U);
}

// The word alone tells a failure from a success, so a service that says it is believed, although the file is gone.
TEST_F(SettingsOverHttp, AServiceThatAnswersFailedIsTakenAtItsWord)
{
    server.expect("POST", "/api/Logout/", Answer::ok("Failed"));
    server.expect("POST", "/api/Logout/", Answer::ok("failed"));
    openOptions([this](SettingsDlg& page) {
        press(page);
        expectAnnsPage(page);
        expectAnn();
        EXPECT_TRUE(hints().empty());
        EXPECT_EQ(sessionState(), "none");
        press(page); // any other word is a success
        expectSignedOut(page);
    });
    EXPECT_EQ(hints().size(), 1U);
}

TEST_F(SettingsOverHttp, WithoutAConnectionTheRequestFailsAsAnyOther)
{
    orvplatform::setConnectedForTest(false);
    server.stop();
    openOptions([this](SettingsDlg& page) {
        press(page);
        expectAnnsPage(page);
    });
    expectAnn();
    EXPECT_EQ(viewer->events, std::vector<std::string>{"/api/Logout/ {}"});
    EXPECT_EQ(sessionState(), "");
}

TEST_F(SettingsOverHttp, AfterAFailedLogoutTheFileIsEmptyAndThePageSaysSo)
{
    server.expect("POST", "/api/Logout/", Answer::status(500));
    openOptions(press);
    EXPECT_EQ(sessionState(), "");
    server.expect("POST", "/api/Logout/", Answer::ok("ok"));
    openOptions([this](SettingsDlg& page) {
        expectPage(page, text(120), 107); // nobody's name behind the words
        press(page);
        expectSignedOut(page);
    });
    EXPECT_EQ(sessionState(), "none");
    EXPECT_EQ(server.last().body, "name=" + apiId() + "&username=ann%40example.com&tokenID=default")
        << "the run still knows its user";
}

TEST_F(SettingsOverHttp, FromLogoutToLoginOnOnePage)
{
    server.expect("POST", "/api/Logout/", Answer::ok("ok"));
    expectLogin();
    expectLogin();
    openOptions([this](SettingsDlg& page) {
        press(page);
        expectLoginDialog(signInAsAnn);
        press(page);
        expectSignedOut(page); // until the page opens anew
        expectAnn();
        expectLoginDialog(signInAsAnn);
        press(page); // opens the login again, though somebody is signed in
    });
    EXPECT_EQ(hints(), (std::vector<std::string>{"hint 42 {none}", "hint 41 {" + twoLines() + "Ann|}",
                                                 "hint 41 {" + twoLines() + "Ann|}"}));
    openOptions([this](SettingsDlg& page) { expectAnnsPage(page); });
}

TEST_F(SettingsOverHttp, AFailedLoginFromThePageLeavesItAsItWas)
{
    SessionFile().remove();
    *user = {};
    server.expect("POST", "/api/Login/", Answer::status(401));
    openOptions([this](SettingsDlg& page) {
        expectSignedOut(page);
        expectLoginDialog(signInAsAnn);
        press(page);
        expectSignedOut(page);
    });
    EXPECT_EQ(sessionState(), "none");
    EXPECT_EQ(user->userid, L"");
    EXPECT_TRUE(hints().empty());
}

TEST_F(SettingsOverHttp, EveryLanguageTellsLoginFromLogout)
{
    for (wchar_t const* const language : {L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"}) {
        configure(language);
        useService(server.wideUrl());
        EXPECT_NE(text(106), text(107));
        signIn();
        server.expect("POST", "/api/Logout/", Answer::ok("ok"));
        openOptions([this](SettingsDlg& page) {
            expectAnnsPage(page);
            press(page);
            expectSignedOut(page);
            expectLoginDialog([](CloudLoginDlg&) {});
            press(page);
        });
    }
    EXPECT_EQ(requests().size(), 8U);
}

class FailedLogout : public SettingsOverHttp, public testing::WithParamInterface<NamedAnswer>
{
};

TEST_P(FailedLogout, ChangesNothingButTheFileAndCanBeRepeated)
{
    auto const begun = std::chrono::steady_clock::now();
    server.expect("POST", "/api/Logout/", GetParam().answer);
    server.expect("POST", "/api/Logout/", GetParam().answer);
    openOptions([this](SettingsDlg& page) {
        for (int i = 0; i < 2; ++i) {
            press(page);
            expectAnnsPage(page);
            EXPECT_TRUE(isEnabled(page, button));
            EXPECT_EQ(orvplatform::waitCursorDepth(), 0);
            EXPECT_EQ(sessionState(), "");
        }
    });
    expectAnn();
    EXPECT_EQ(viewer->events, (std::vector<std::string>{"/api/Logout/ {}", "/api/Logout/ {}"})) << "no word, no hint";
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(20));
}

INSTANTIATE_TEST_SUITE_P(
    Answers, FailedLogout,
    testing::Values(NamedAnswer{"Refused", Answer::status(401)}, NamedAnswer{"Error", Answer::status(500, "ok")},
                    NamedAnswer{"Unavailable", Answer::status(503)}, NamedAnswer{"HangsUp", Answer::hangUp()},
                    NamedAnswer{"CutInMidBody", Answer::cut("o", 2)}, NamedAnswer{"StaysSilent", Answer::silence()},
                    NamedAnswer{"Redirects", Answer::redirect("http://127.0.0.2:9/api/Logout/")}),
    NameOfCase());

} // namespace
