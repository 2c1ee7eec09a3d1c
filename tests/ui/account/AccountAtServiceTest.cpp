// The account's windows against the real service: what succeeds, and that nothing a user can type harms it.

#include "support/RealService.h"
#include "ui/account/AccountTest.h"
#include "ui/account/SettingsDlg.h"

#include <ostream>

using namespace orvtest;
using namespace orvplatform::testing;
using namespace std::string_literals;

namespace
{

class AccountAtService : public AccountTest
{
protected:
    AccountAtService() { useService(service.wideUrl()); }
    ~AccountAtService() override { EXPECT_TRUE(server.requests().empty()); }

    static void signInAsServicesAnn(CloudLoginDlg& dialog) { signInAs(dialog, L"ann@example.org", L"ann's password"); }
    void signOut()
    {
        SettingsDlg page(scene.document, nullptr, user, std::make_shared<CloudSettings>(), helper);
        CMFCPropertySheet sheet(L"Options");
        sheet.AddPage(&page);
        modals.expectModal<CMFCPropertySheet>([&](CMFCPropertySheet&) -> INT_PTR {
            EXPECT_TRUE(clickButton(page, 1022));
            return IDCANCEL;
        });
        sheet.DoModal();
    }
    std::string userid() const { return orvtext::toUtf8(user->userid); }

    RealService service;
};

TEST_F(AccountAtService, FromLoginToLogout)
{
    scene.info->setFile(L"/models/gearbox.step");
    EXPECT_EQ(openLogin(signInAsServicesAnn), IDCANCEL);
    EXPECT_EQ(user->username, L"ann@example.org");
    EXPECT_EQ(user->userid.size(), 36U);
    EXPECT_EQ(user->name, L"\u00c4ann");
    std::string const two = "ann@example.org|" + userid() + "|";
    EXPECT_EQ(sessionState(), two + "\xC4"s + "ann|");
    EXPECT_EQ(requests(), (std::vector<std::string>{"/api/Login/ {}", "/api/InstalledDevice/ {" + two + "}",
                                                    "/api/AccountInfo/ {" + two + "}",
                                                    "/api/isFilePresent/ {" + two + "\xC4"s + "ann|}",
                                                    "/api/UploadInput/ {" + two + "\xC4"s + "ann|}"}));
    EXPECT_EQ(texts().front(), narrow(130));
    EXPECT_EQ(texts().back(), "gearbox.step " + narrow(117));
    EXPECT_EQ(hints().size(), 1U);
    viewer->events.clear();

    signOut();
    EXPECT_EQ(viewer->events, (std::vector<std::string>{"/api/Logout/ {}", "hint 42 {none}"}));
    EXPECT_EQ(user->userid, L"");
}

TEST_F(AccountAtService, ASecondLoginDoesNotPushTheModelAgain)
{
    scene.info->setFile(L"/models/gearbox.step");
    openLogin(signInAsServicesAnn);
    ASSERT_EQ(exporter->paths.size(), 1U);
    openLogin(signInAsServicesAnn);
    EXPECT_EQ(exporter->paths.size(), 1U);
    EXPECT_EQ(requests().back().substr(0, 19), "/api/isFilePresent/");
    EXPECT_EQ(hints().size(), 2U);
}

TEST_F(AccountAtService, ThePromptSignsInAsWell)
{
    openPrompt(signInAsServicesAnn);
    EXPECT_EQ(user->name, L"\u00c4ann");
    EXPECT_EQ(hints().size(), 1U);
}

TEST_F(AccountAtService, ALogoutEndsTheTokenAtTheService)
{
    openLogin(signInAsServicesAnn);
    orvcloud::testing::SignedIn const ann{"ann@example.org", userid(), {}};
    EXPECT_EQ(service.get(ann, "/api/AccountInfo/", {}).status, 200);
    signOut();
    EXPECT_EQ(service.get(ann, "/api/AccountInfo/", {}).status, 401);
}

TEST_F(AccountAtService, AWrongPasswordIsAFailedLogin)
{
    EXPECT_EQ(openLogin([](CloudLoginDlg& dialog) {
                  signInAs(dialog, L"ann@example.org", L"bob's password");
                  EXPECT_EQ(textOf(dialog, emailBox), L"ann@example.org");
              }),
              stillOpen);
    EXPECT_EQ(viewer->events,
              (std::vector<std::string>{"/api/Login/ {}", "status " + narrow(131) + " {no directory}"}));
    EXPECT_EQ(sessionState(), "none");
}

TEST_F(AccountAtService, ALogoutWhileTheServiceIsDownCanBeRepeated)
{
    openLogin(signInAsServicesAnn);
    std::string const secret = userid();
    service.stop();
    signOut();
    EXPECT_EQ(sessionState(), "");
    EXPECT_EQ(userid(), secret);
    service.start(); // on another port
    useService(service.wideUrl());
    signOut();
    EXPECT_EQ(sessionState(), "none");
    EXPECT_EQ(userid(), "");
}

struct Typed {
    char const* name;
    std::wstring text;
};
std::ostream& operator<<(std::ostream& stream, Typed const& each)
{
    return stream << each.name;
}

/// What somebody may type or paste into either box, in either dialog.
class TypedAtService : public AccountAtService, public testing::WithParamInterface<Typed>
{
protected:
    void expectRefused()
    {
        EXPECT_EQ(viewer->events,
                  (std::vector<std::string>{"/api/Login/ {}", "status " + narrow(131) + " {no directory}"}));
        EXPECT_EQ(sessionState(), "none");
        EXPECT_EQ(user->userid, L"");
        viewer->events.clear();
        openLogin(signInAsServicesAnn); // the service lives
        EXPECT_EQ(user->userid.size(), 36U);
        std::string const typed = orvtext::toUtf8(GetParam().text);
        for (int const status : {service.login(typed, typed).status, service.login("bob@example.org", typed).status}) {
            // 413 is for a form that is longer than any login has need for.
            EXPECT_TRUE(status == 400 || status == 401 || (status == 413 && typed.size() >= 10000)) << status;
        }
    }
};

TEST_P(TypedAtService, AsAnEmailAddressIsRefused)
{
    openLogin([](CloudLoginDlg& dialog) { signInAs(dialog, GetParam().text, L"ann's password"); });
    expectRefused();
}

TEST_P(TypedAtService, AsAPasswordIsRefused)
{
    openLogin([](CloudLoginDlg& dialog) { signInAs(dialog, L"ann@example.org", GetParam().text); });
    expectRefused();
}

TEST_P(TypedAtService, ThroughThePromptIsRefused)
{
    openPrompt([](CloudLoginDlg& dialog) { signInAs(dialog, GetParam().text, GetParam().text); });
    expectRefused();
}

INSTANTIATE_TEST_SUITE_P(
    Fields, TypedAtService,
    testing::Values(Typed{"Empty", L""}, Typed{"Of10000Characters", std::wstring(10000, L'x')},
                    Typed{"Of10000CharactersBeyondTheBasicPlane", std::wstring(10000, L'\U0001F600')},
                    Typed{"WithLineFeeds", L"ann@example.org\nX-Api-Key: x\r\n\r\n"},
                    Typed{"BeyondTheBasicPlane", L"a\U0001F600n"}, Typed{"WithAQuote", L"ann@example.org' OR '1'='1"}),
    NameOfCase());

} // namespace
