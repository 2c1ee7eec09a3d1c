// The commands of the loaded plug-in over loopback: to a server that fails on any request it was not told to expect,
// and to the real service.

#include "shell/LoadedPlugin.h"
#include "support/RealService.h"
#include "ui/account/AccountTest.h"

using namespace orvtest;
using namespace orvplatform::testing;
using namespace std::string_literals;
namespace codes = orv::HintCode;

namespace
{

constexpr unsigned int share = 102;
constexpr unsigned int push = 118;
constexpr unsigned int feeds = 201;
constexpr int sharePrompt = 1034;

class CommandsOverHttp : public AccountTest
{
protected:
    CommandsOverHttp() { scene.info->setFile(L"/models/gearbox.step"); }

    /// A new run of the viewer's plug-in, with the model open unless it is said otherwise.
    void start(bool withModel = true)
    {
        plugin = std::make_unique<LoadedPlugin>();
        if (withModel) {
            sendHint(*plugin->operator->(), codes::documentOpened, scene.document);
        }
    }
    void command(unsigned int number) { (*plugin)->OnCommand(nullptr, number, viewer); }
    bool isEnabled(unsigned int number)
    {
        bool enabled = number == share;
        (*plugin)->OnUpdateCommand(nullptr, number, &enabled);
        return enabled;
    }
    void expectDialog(std::function<void(CDialog&)> const& use)
    {
        modals.expectModal<CDialog>([use](CDialog& dialog) -> INT_PTR {
            use(dialog);
            return IDCANCEL;
        });
    }
    static void logIn(CDialog& dialog, std::wstring const& name, std::wstring const& secret)
    {
        typeText(dialog, emailBox, name);
        typeText(dialog, passwordBox, secret);
        EXPECT_TRUE(clickButton(dialog, loginButton));
    }
    static void logInAsAnn(CDialog& dialog) { logIn(dialog, L"ann@example.com", L"secret"); }
    /// Presses the button of the plug-in's own page in the options.
    void pressSettingsButton()
    {
        CMFCPropertySheet sheet(L"Options");
        EXPECT_TRUE(sheet.Create(&frame));
        (*plugin)->AddToPropertySheet(sheet.GetSafeHwnd(), std::make_shared<FakeResourceManager>());
        ASSERT_EQ(sheet.GetPageCount(), 1);
        EXPECT_TRUE(sheet.SetActivePage(0));
        sheet.ShowWindow(SW_SHOW);
        frame.ShowWindow(SW_SHOW);
        EXPECT_TRUE(clickButton(*sheet.GetPage(0), 1022));
        sheet.DestroyWindow();
    }
    std::vector<std::string> pushCourse(std::string const& session) const
    {
        std::string const in = " {" + session + "}";
        std::string const uploading = "status " + narrow(116) + in;
        return {uploading,
                "progress on",
                "progress 20",
                "progress 42", // the exporter's own
                "progress 50",
                uploading,
                "/api/UploadInput/" + in,
                "progress 80",
                "status gearbox.step " + narrow(117) + in,
                "progress 100",
                "progress off"};
    }

    std::unique_ptr<LoadedPlugin> plugin;
};

TEST_F(CommandsOverHttp, SignedInAPushTakesItsCourse)
{
    signIn();
    start();
    server.expect("POST", "/api/UploadInput/", Answer::ok(jobIdBytes));
    command(push);
    EXPECT_EQ(viewer->events, pushCourse(twoLines() + "Ann|"));
    EXPECT_EQ(server.last().header("Authorization"), "Bearer "s + tokenBytes);
    EXPECT_NE(server.last().body.find("copy 1 with preferences"), std::string::npos);
}

TEST_F(CommandsOverHttp, SignedOutAPushLogsInAndPushesByItself)
{
    start();
    EXPECT_FALSE(isEnabled(share));
    expectLogin();
    server.expect("GET", "/api/isFilePresent/", Answer::ok(""));
    server.expect("POST", "/api/UploadInput/", Answer::ok(jobIdBytes));
    expectDialog(logInAsAnn);
    command(push);
    EXPECT_TRUE(isEnabled(share));
    EXPECT_EQ(requests().size(), 5U);
    EXPECT_EQ(viewer->events.back(), "hint 41 {" + twoLines() + "Ann|}");
    EXPECT_EQ(texts().back(), "gearbox.step " + narrow(117));
}

TEST_F(CommandsOverHttp, ALoginThatIsCancelledPushesNothing)
{
    start();
    expectDialog([](CDialog& dialog) { pressKey(dialog, VK_ESCAPE); });
    command(push);
    EXPECT_TRUE(viewer->events.empty());
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(CommandsOverHttp, WithoutADocumentNothingHappens)
{
    signIn();
    start(false);
    long const held = viewer.use_count();
    orvplatform::setConnectedForTest(false);
    command(push);
    command(share);
    orvplatform::setConnectedForTest(true);
    command(push);
    command(share);
    EXPECT_TRUE(viewer->events.empty());
    EXPECT_EQ(viewer.use_count(), held) << "the application isn't kept";
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(CommandsOverHttp, OfflineBothCommandsOnlySaySo)
{
    signIn();
    start();
    orvplatform::setConnectedForTest(false);
    command(share);
    command(push);
    SessionFile().remove();
    command(push); // not the login either
    EXPECT_EQ(texts(), std::vector<std::string>(3, narrow(111)));
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(CommandsOverHttp, AnEmptySessionFilePushesWithEmptyNames)
{
    SessionFile().createEmpty();
    start();
    EXPECT_TRUE(isEnabled(share));
    server.expect("POST", "/api/UploadInput/", Answer::status(401));
    command(push);
    EXPECT_FALSE(server.last().hasHeader("Authorization"));
    EXPECT_NE(server.last().body.find("name=\"username\"\r\n\r\n\r\n"), std::string::npos);
    EXPECT_EQ(texts().back(), narrow(129));
}

TEST_F(CommandsOverHttp, ASessionFileOfOneLineCountsAsASessionForTheCommands)
{
    std::ofstream(std::filesystem::path(SessionFile().path())) << "ann@example.com\n";
    start();
    EXPECT_TRUE(isEnabled(share));
    server.expect("POST", "/api/UploadInput/", Answer::status(401));
    command(push);
    EXPECT_FALSE(server.last().hasHeader("Authorization"));
    EXPECT_NE(server.last().body.find("name=\"username\"\r\n\r\nann@example.com\r\n"), std::string::npos);
}

// The file's empty first line empties the name; the second is never reached, so the token stays that of this run.
TEST_F(CommandsOverHttp, APushAfterAFailedLogoutInTheSameRunKeepsTheToken)
{
    signIn();
    start();
    server.expect("POST", "/api/Logout/", Answer::status(500));
    pressSettingsButton();
    EXPECT_EQ(sessionState(), "");
    EXPECT_TRUE(isEnabled(share));
    server.expect("POST", "/api/UploadInput/", Answer::ok(jobIdBytes));
    command(push);
    EXPECT_EQ(server.last().header("Authorization"), "Bearer "s + tokenBytes);
    EXPECT_NE(server.last().body.find("name=\"username\"\r\n\r\n\r\n"), std::string::npos);
    server.expect("POST", "/api/Logout/", Answer::ok("ok"));
    pressSettingsButton();
    EXPECT_EQ(server.last().body, "name=" + apiId() + "&username=&tokenID=default");
    EXPECT_FALSE(isEnabled(share));
}

TEST_F(CommandsOverHttp, ARevokedSessionShowsAsAFailedPush)
{
    signIn();
    start();
    server.expect("POST", "/api/UploadInput/", Answer::status(401));
    command(push);
    EXPECT_EQ(texts().back(), narrow(129));
    EXPECT_EQ(sessionState(), twoLines() + "Ann|");
    EXPECT_TRUE(isEnabled(share));
}

TEST_F(CommandsOverHttp, ASilentServiceEndsThePushWithItsWords)
{
    signIn();
    start();
    server.expect("POST", "/api/UploadInput/", Answer::silence());
    command(push);
    EXPECT_EQ(texts().back(), narrow(129));
    EXPECT_EQ(viewer->events.back(), "progress off");
}

TEST_F(CommandsOverHttp, ShareOpensItsDialogAndAsksForNothingYet)
{
    signIn();
    start();
    expectDialog([this](CDialog& dialog) {
        EXPECT_NE(dialog.GetDlgItem(sharePrompt), nullptr);
        EXPECT_EQ(server.connections(), 0);
    });
    command(share);
}

TEST_F(CommandsOverHttp, ADocumentMarkedToStayDisablesBothButNotTheTab)
{
    signIn();
    scene.info->pushState = 1;
    start();
    EXPECT_FALSE(isEnabled(push));
    EXPECT_FALSE(isEnabled(share));
    EXPECT_TRUE(isEnabled(feeds));
    SessionFile().remove();
    EXPECT_TRUE(isEnabled(feeds));
}

class CommandsAtService : public CommandsOverHttp
{
protected:
    CommandsAtService() { useService(service.wideUrl()); }

    RealService service;
};

TEST_F(CommandsAtService, FromPushToLogout)
{
    start();
    expectDialog([](CDialog& dialog) { logIn(dialog, L"ann@example.org", L"ann's password"); });
    command(push);
    EXPECT_EQ(texts().back(), "gearbox.step " + narrow(117));
    EXPECT_TRUE(isEnabled(share));
    viewer->events.clear();
    command(push); // a new version, with the session of the file
    EXPECT_EQ(requests().size(), 1U);
    EXPECT_EQ(texts().back(), "gearbox.step " + narrow(117));

    start(); // a later run finds the session
    viewer->events.clear();
    command(push);
    EXPECT_EQ(texts().back(), "gearbox.step " + narrow(117));
    pressSettingsButton();
    EXPECT_EQ(viewer->events.back(), "hint 42 {none}");
    EXPECT_FALSE(isEnabled(share));
}

TEST_F(CommandsAtService, AnEmptySessionIsRefusedByTheService)
{
    SessionFile().createEmpty();
    start();
    command(push);
    EXPECT_EQ(texts().back(), narrow(129));
    EXPECT_EQ(sessionState(), "");
}

} // namespace
