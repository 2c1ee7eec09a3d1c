#include "ui/UiTest.h"
#include "ui/account/BuildSettings.h"
#include "ui/account/CloudLoginDlg.h"
#include "ui/account/FeedLoginDlg.h"

#include <afxcontrolbars.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr int loginButton = 1001;
constexpr int email = 1017;
constexpr int password = 1018;
constexpr int forgotLink = 1023;
constexpr int offerLink = 1037;
constexpr int unusedLink = 1043;
constexpr INT_PTR stillOpen = 77;

class OpenLoginDlg final : public CloudLoginDlg
{
public:
    using CloudLoginDlg::CloudLoginDlg;
    using CWnd::OnNotify;
};

class LoginTest : public UiTest
{
protected:
    LoginTest()
    {
        orvplatform::setOpenAddressHook([this](std::wstring const& address) {
            opened.push_back(address);
            return true;
        });
    }
    ~LoginTest() override { orvplatform::setOpenAddressHook({}); }

    INT_PTR run(std::function<void(CloudLoginDlg&)> const& use)
    {
        modals.expectModal<CloudLoginDlg>([&use](CloudLoginDlg& dialog) -> INT_PTR {
            use(dialog);
            return stillOpen;
        });
        CloudLoginDlg dialog(scene.document, user, helper);
        return dialog.DoModal();
    }
    static void signInAs(CloudLoginDlg& dialog, std::wstring const& name, std::wstring const& secret)
    {
        typeText(dialog, email, name);
        typeText(dialog, password, secret);
        EXPECT_TRUE(clickButton(dialog, loginButton));
    }
    static void signInAsAnn(CloudLoginDlg& dialog) { signInAs(dialog, L"ann@example.com", L"secret"); }
    void expectLogin(std::string const& account)
    {
        network.expect("/api/Login/", tokenBytes);
        network.expect("/api/InstalledDevice/", "ok");
        network.expect("/api/AccountInfo/", account);
    }
    orvweb::UserInfo savedSession() const
    {
        orvweb::UserInfo saved;
        EXPECT_TRUE(SessionFile().read(saved));
        return saved;
    }

    static std::string sessionText()
    {
        std::ifstream file(std::filesystem::path(SessionFile().path()));
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static std::string twoLines() { return std::string("ann@example.com\n") + tokenBytes + "\n"; }

    std::vector<std::wstring> opened;
};

} // namespace

TEST_F(LoginTest, StartsWithEmptyFieldsAndTheOfferOfAnAccount)
{
    user->username = L"ann@example.com";
    EXPECT_EQ(run([this](CloudLoginDlg& dialog) {
                  EXPECT_EQ(textOf(dialog, email), L"");
                  EXPECT_EQ(textOf(dialog, password), L"");
                  CString markup;
                  dialog.GetDlgItem(offerLink)->GetWindowTextW(markup);
                  EXPECT_EQ(markup.GetString(), text(122));
                  EXPECT_FALSE(isVisible(dialog, unusedLink));
                  EXPECT_FALSE(isEnabled(dialog, unusedLink));
                  EXPECT_NE(dialog.GetIcon(FALSE), nullptr);
                  EXPECT_EQ(dialog.GetIcon(FALSE), LoadIconW(ResourceModule::handle(), MAKEINTRESOURCEW(1038)));
                  CString title;
                  dialog.GetWindowTextW(title);
                  EXPECT_STREQ(title.GetString(), L"Login to Orvanta Cloud");
              }),
              stillOpen);
}

TEST_F(LoginTest, ALoginIsRememberedAndTold)
{
    expectLogin(R"({"name":"Ann Müller","email":"ann@example.com"})");
    network.expect("/api/isFilePresent/", jobIdBytes);
    EXPECT_EQ(run(signInAsAnn), IDCANCEL); // closed as if cancelled
    EXPECT_EQ(network.sent()[0].field("username"), "ann@example.com");
    EXPECT_EQ(network.sent()[0].field("password"), "secret");
    EXPECT_EQ(user->username, L"ann@example.com");
    EXPECT_EQ(user->userid, token);
    EXPECT_EQ(user->name, L"Ann M\u00fcller");
    EXPECT_EQ(savedSession().userid, token);
    EXPECT_EQ(savedSession().name, L"Ann M\u00fcller");
    EXPECT_EQ(application->texts, std::vector<std::wstring>{text(130)});
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::signedIn});
    EXPECT_EQ(application->notifier->documents[0], scene.document.get());
    EXPECT_TRUE(exporter->paths.empty()); // the service has the model
}

TEST_F(LoginTest, TheDialogIsClosedBeforeTheAccountIsAsked)
{
    network.expect("/api/Login/", tokenBytes);
    network.expect("/api/InstalledDevice/", "ok");
    network.expectHandled("/api/AccountInfo/", [this](SentRequest const&) -> orvweb::HttpResponse {
        EXPECT_EQ(application->texts, std::vector<std::wstring>{text(130)});
        EXPECT_EQ(sessionText(), twoLines());
        throw std::runtime_error("the wire broke"); // shows what had happened by then
    });
    std::vector<std::string> broken;
    orvplatform::setExceptionHandler([&broken](std::string const& why) { broken.push_back(why); });
    EXPECT_EQ(run(signInAsAnn), IDCANCEL);
    orvplatform::setExceptionHandler({});
    EXPECT_EQ(broken, std::vector<std::string>{"the wire broke"});
    EXPECT_EQ(user->userid, token);
    EXPECT_TRUE(application->notifier->codes.empty());
}

TEST_F(LoginTest, TheSessionIsCompleteBeforeTheModelIsAskedFor)
{
    expectLogin(R"({"name":"Ann"})");
    network.expectHandled("/api/isFilePresent/", [this](SentRequest const&) {
        EXPECT_EQ(sessionText(), twoLines() + "Ann\n");
        EXPECT_EQ(user->name, L"Ann");
        EXPECT_TRUE(application->notifier->codes.empty());
        return orvweb::HttpResponse{orv::ErrorCode::none, 200, jobIdBytes};
    });
    run(signInAsAnn);
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::signedIn});
}

TEST_F(LoginTest, AModelThatTheServiceDoesNotHaveIsPushed)
{
    expectLogin(R"({"name":"Ann"})");
    network.expect("/api/isFilePresent/", shortIdBytes);
    network.expect("/api/UploadInput/", jobIdBytes);
    run(signInAsAnn);
    EXPECT_EQ(exporter->paths.size(), 1U);
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::signedIn});
}

TEST_F(LoginTest, APushThatFailsLeavesTheUserSignedIn)
{
    expectLogin(R"({"name":"Ann"})");
    network.expect("/api/isFilePresent/", "");
    network.expectFailure("/api/UploadInput/");
    run(signInAsAnn);
    EXPECT_EQ(user->userid, token);
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::signedIn});
}

TEST_F(LoginTest, WithoutAFileNothingIsPushed)
{
    scene.info->setFile(L"");
    expectLogin(R"({"name":"Ann"})");
    run(signInAsAnn);
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::signedIn});
}

TEST_F(LoginTest, WithoutANotifierTheUserIsSignedIn)
{
    application->notifier.reset();
    scene.info->setFile(L"");
    expectLogin(R"({"name":"Ann"})");
    run(signInAsAnn);
    EXPECT_EQ(user->userid, token);
}

TEST_F(LoginTest, AnAccountAnswerThatIsNoJsonLeavesTwoLines)
{
    for (char const* const answer : {"", "Internal Server Error {"}) {
        user->name = L"Before";
        scene.info->setFile(L"");
        expectLogin(answer);
        run(signInAsAnn);
        EXPECT_EQ(user->userid, token);
        EXPECT_EQ(user->name, L"Before"); // stays
        EXPECT_EQ(sessionText(), twoLines());
    }
}

TEST_F(LoginTest, AFailedLoginLeavesNoSessionAndTheDialogOpen)
{
    network.expectFailure("/api/Login/", orv::ErrorCode::refused, 401);
    EXPECT_EQ(run([](CloudLoginDlg& dialog) {
                  signInAsAnn(dialog);
                  EXPECT_EQ(textOf(dialog, email), L"ann@example.com");
                  EXPECT_EQ(textOf(dialog, password), L"secret");
              }),
              stillOpen);
    EXPECT_EQ(application->texts, std::vector<std::wstring>{text(131)});
    EXPECT_FALSE(SessionFile().canOpen());
    EXPECT_TRUE(user->userid.empty());
    EXPECT_TRUE(application->notifier->codes.empty());
}

TEST_F(LoginTest, AnAnswerOfAnotherLengthIsAFailedLogin)
{
    for (std::string const& answer : {std::string(shortIdBytes), std::string(tokenBytes) + "x", std::string()}) {
        network.expect("/api/Login/", answer);
        network.expect("/api/InstalledDevice/", "ok");
        EXPECT_EQ(run(signInAsAnn), stillOpen);
        EXPECT_EQ(application->lastText(), text(131));
        EXPECT_FALSE(SessionFile().canOpen());
    }
}

TEST_F(LoginTest, AFailedLoginCanBeTriedAgain)
{
    scene.info->setFile(L"");
    network.expectFailure("/api/Login/", orv::ErrorCode::refused, 401);
    expectLogin(R"({"name":"Ann"})");
    EXPECT_EQ(run([](CloudLoginDlg& dialog) {
                  signInAsAnn(dialog);
                  EXPECT_TRUE(clickButton(dialog, loginButton));
              }),
              IDCANCEL);
    EXPECT_TRUE(SessionFile().canOpen());
}

TEST_F(LoginTest, WithoutAConnectionNothingIsTried)
{
    signIn();
    user->userid.clear();
    orvplatform::setConnectedForTest(false);
    EXPECT_EQ(run(signInAsAnn), stillOpen);
    EXPECT_EQ(application->texts, std::vector<std::wstring>{text(111)});
    EXPECT_EQ(savedSession().userid, token); // untouched
}

TEST_F(LoginTest, EmptyFieldsGoToTheServiceAsTheyAre)
{
    network.expectFailure("/api/Login/", orv::ErrorCode::refused, 401);
    run([](CloudLoginDlg& dialog) { clickButton(dialog, loginButton); });
    EXPECT_EQ(network.last().field("username"), "");
    EXPECT_EQ(network.last().field("password"), "");
}

TEST_F(LoginTest, APasswordOfAnyCharactersGoesUnchanged)
{
    network.expectFailure("/api/Login/", orv::ErrorCode::refused, 401);
    run([](CloudLoginDlg& dialog) { signInAs(dialog, L"ann@example.com", L"päß+%日\U0001F600"); });
    EXPECT_EQ(network.last().field("password"), "p\xc3\xa4\xc3\x9f+%\xe6\x97\xa5\xf0\x9f\x98\x80");
}

TEST_F(LoginTest, EnterLogsInAndEscapeCancels)
{
    network.expectFailure("/api/Login/", orv::ErrorCode::refused, 401);
    EXPECT_EQ(run([](CloudLoginDlg& dialog) {
                  typeText(dialog, email, L"ann@example.com");
                  pressKey(*dialog.GetDlgItem(email), VK_RETURN);
                  pressKey(dialog, VK_ESCAPE);
              }),
              IDCANCEL);
    EXPECT_EQ(network.sent().size(), 1U);
    EXPECT_TRUE(user->userid.empty());
}

TEST_F(LoginTest, TheServicesLinkOpensTheBrowser)
{
    EXPECT_EQ(run([](CloudLoginDlg& dialog) { EXPECT_TRUE(clickLink(dialog, offerLink, buildSettings::serviceUrl)); }),
              stillOpen);
    EXPECT_EQ(opened, std::vector<std::wstring>{buildSettings::serviceUrl});
}

TEST_F(LoginTest, TheResetLinkOpensTheBrowserAndLeavesTheDialogOpen)
{
    EXPECT_EQ(run([](CloudLoginDlg& dialog) { EXPECT_TRUE(clickButton(dialog, forgotLink)); }), stillOpen);
    EXPECT_EQ(opened, std::vector<std::wstring>{std::wstring(buildSettings::serviceUrl) + L"/reset"});
}

TEST_F(LoginTest, AnyOtherTargetDoesNothing)
{
    run([this](CloudLoginDlg& dialog) {
        NMLINK click{};
        click.hdr = {dialog.GetDlgItem(offerLink)->GetSafeHwnd(), offerLink, static_cast<UINT>(NM_CLICK)};
        for (std::wstring const& target : {std::wstring(buildSettings::serviceUrl) + L"/", std::wstring(L"")}) {
            std::copy(target.c_str(), target.c_str() + target.size() + 1, click.item.szUrl);
            EXPECT_EQ(dialog.SendMessage(WM_NOTIFY, offerLink, reinterpret_cast<LPARAM>(&click)), 0);
        }
        EXPECT_TRUE(opened.empty());
    });
}

TEST_F(LoginTest, AClickOnALinkIsAnsweredWithZeroWhateverItsTarget)
{
    modals.expectModal<OpenLoginDlg>([](OpenLoginDlg& dialog) -> INT_PTR {
        NMLINK click{};
        click.hdr = {dialog.GetDlgItem(offerLink)->GetSafeHwnd(), offerLink, static_cast<UINT>(NM_CLICK)};
        for (std::wstring const& target : {std::wstring(buildSettings::serviceUrl),
                                           std::wstring(buildSettings::supportAddress), std::wstring(L"elsewhere")}) {
            std::copy(target.c_str(), target.c_str() + target.size() + 1, click.item.szUrl);
            LRESULT result = 7;
            EXPECT_TRUE(dialog.OnNotify(offerLink, reinterpret_cast<LPARAM>(&click), &result));
            EXPECT_EQ(result, 0);
        }
        return IDCANCEL;
    });
    scene.document->setSchema(orv::SCApplication::key, nullptr); // no mail goes out
    OpenLoginDlg dialog(scene.document, user, helper);
    dialog.DoModal();
}

TEST_F(LoginTest, TheLinksAreTheSameInEveryLanguage)
{
    for (wchar_t const* const language : {L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"}) {
        configure(language);
        opened.clear();
        run([](CloudLoginDlg& dialog) {
            EXPECT_TRUE(clickLink(dialog, offerLink, buildSettings::serviceUrl));
            std::wstring const support = std::wstring(L"\"") + buildSettings::supportAddress + L"\"";
            CString markup;
            dialog.GetDlgItem(offerLink)->GetWindowTextW(markup);
            EXPECT_NE(std::wstring(markup.GetString()).find(support), std::wstring::npos);
        });
        EXPECT_EQ(opened.size(), 1U);
    }
}

TEST_F(LoginTest, ThePromptOpensTheDialog)
{
    auto* const prompt = new FeedLoginDlg;
    ASSERT_TRUE(prompt->Create(FeedLoginDlg::templateId(), &frame));
    prompt->ShowWindow(SW_SHOW);
    frame.ShowWindow(SW_SHOW);
    EXPECT_EQ(placeOf(*prompt, 270), CRect(0, 0, 220, 40));
    EXPECT_STREQ(dynamic_cast<CMFCButton*>(prompt->GetDlgItem(270))->GetTooltip().GetString(),
                 L"Login to Orvanta Cloud");
    prompt->SetContext(user, helper);
    prompt->OnUpdate(nullptr);
    sendHint(*prompt, codes::documentActivated, scene.document);
    sendHint(*prompt, codes::documentActivated, nullptr); // keeps the one before
    scene.info->setFile(L"");
    expectLogin(R"({"name":"Ann"})");
    AfxSetResourceHandle(nullptr);
    modals.expectModal<CloudLoginDlg>([](CloudLoginDlg& dialog) -> INT_PTR {
        signInAsAnn(dialog);
        return stillOpen;
    });
    EXPECT_TRUE(clickButton(*prompt, 270));
    EXPECT_EQ(user->userid, token);
    EXPECT_EQ(application->notifier->documents.at(0), scene.document.get());
    EXPECT_EQ(AfxGetResourceHandle(), ResourceModule::handle()); // stays set
}
