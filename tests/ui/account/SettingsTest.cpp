#include "support/OrdinaryUser.h"
#include "ui/UiTest.h"
#include "ui/account/CloudLoginDlg.h"
#include "ui/account/OptionsPage.h"
#include "ui/account/SettingsDlg.h"

#include <afxcontrolbars.h>

#include <functional>
#include <string>
#include <vector>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr int state = stateOfSession;
constexpr int button = loginOrLogout;

/// Counts what the sheet's machinery asks of the page.
class WatchedPage final : public SettingsDlg
{
public:
    using SettingsDlg::SettingsDlg;
    std::vector<std::wstring> captions; ///< of the button, at each exchange with the controls
    int accepted = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        SettingsDlg::DoDataExchange(exchange);
        captions.push_back(textOf(*this, ::button));
    }
    void OnOK() override
    {
        ++accepted;
        SettingsDlg::OnOK();
    }
};

class SettingsTest : public UiTest
{
protected:
    /// Opens the options with the page, as the viewer does.
    void run(std::function<void(WatchedPage&)> const& use)
    {
        WatchedPage page(scene.document, nullptr, user, std::make_shared<CloudSettings>(), helper);
        openOptionsWith(page, modals, [&] { use(page); });
    }
    static void press(CWnd& page) { EXPECT_TRUE(clickButton(page, button)); }
};

} // namespace

TEST_F(SettingsTest, WithoutASessionThePageOffersTheLogin)
{
    run([this](SettingsDlg& page) {
        EXPECT_EQ(textOf(page, state), text(121));
        EXPECT_EQ(textOf(page, button), L"Login");
        EXPECT_STREQ(page.GetCaption().GetString(), L"Cloud");
    });
}

TEST_F(SettingsTest, ASessionShowsItsUserAndTheLogout)
{
    signIn();
    user->username = L"somebody else"; // the file counts, not the object
    run([](SettingsDlg& page) {
        EXPECT_EQ(textOf(page, state), L"You are logged in to Orvanta cloud as ann@example.com");
        EXPECT_EQ(textOf(page, button), L"Logout");
    });
}

TEST_F(SettingsTest, TheControlsAreFilledASecondTimeWithTheTextsInPlace)
{
    configure(L"fr"); // so that the template's own caption is another than the page's
    signIn();
    run([this](WatchedPage& page) {
        ASSERT_EQ(page.captions.size(), 2U);
        EXPECT_EQ(page.captions[1], text(107));
    });
    SessionFile().remove();
    run([this](WatchedPage& page) {
        ASSERT_EQ(page.captions.size(), 2U);
        EXPECT_NE(page.captions[0], text(106));
        EXPECT_EQ(page.captions[1], text(106));
    });
}

TEST_F(SettingsTest, ThePageIsAcceptedAfterTheLoginDialogAlone)
{
    run([this](WatchedPage& page) {
        modals.expectModal<CloudLoginDlg>([&page](CloudLoginDlg&) -> INT_PTR {
            EXPECT_EQ(page.accepted, 0);
            return IDCANCEL;
        });
        press(page);
        EXPECT_EQ(page.accepted, 1);
    });
    signIn();
    network.expect("/api/Logout/", "ok");
    run([](WatchedPage& page) {
        press(page);
        EXPECT_EQ(page.accepted, 0);
    });
}

TEST_F(SettingsTest, AnEmptySessionFileCountsAsSignedIn)
{
    SessionFile().createEmpty();
    run([this](SettingsDlg& page) {
        EXPECT_EQ(textOf(page, state), text(120));
        EXPECT_EQ(textOf(page, button), L"Logout");
    });
}

TEST_F(SettingsTest, ADirectoryInTheSessionFilesPlaceIsNoSession)
{
    std::filesystem::create_directories(SessionFile().path());
    run([this](SettingsDlg& page) {
        EXPECT_EQ(textOf(page, state), text(121));
        EXPECT_EQ(textOf(page, button), L"Login");
    });
}

TEST_F(SettingsTest, ASessionFileThatMayNotBeReadIsNoSession)
{
    signIn();
    run([](SettingsDlg&) {}); // texts and fonts have been read by then
    std::filesystem::permissions(SessionFile().path(), std::filesystem::perms::none);
    OrdinaryUser const person(dataDirectory);
    run([this](SettingsDlg& page) {
        EXPECT_EQ(textOf(page, state), text(121));
        EXPECT_EQ(textOf(page, button), L"Login");
    });
}

TEST_F(SettingsTest, ALogoutSignsOutAndTellsEverybody)
{
    signIn();
    network.expect("/api/Logout/", "ok");
    run([this](SettingsDlg& page) {
        press(page);
        EXPECT_EQ(textOf(page, state), text(121));
        EXPECT_EQ(textOf(page, button), L"Login");
    });
    EXPECT_TRUE(user->username.empty());
    EXPECT_TRUE(user->userid.empty());
    EXPECT_EQ(user->name, L"Ann"); // stays
    EXPECT_FALSE(SessionFile().canOpen());
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::signedOut});
    EXPECT_EQ(application->notifier->documents.at(0), scene.document.get());
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(SettingsTest, AnEmptyAnswerIsALogoutToo)
{
    signIn();
    network.expect("/api/Logout/", "");
    run(press);
    EXPECT_TRUE(user->userid.empty());
}

TEST_F(SettingsTest, AfterALogoutTheSamePageCanLogIn)
{
    signIn();
    scene.info->setFile(L"");
    network.expect("/api/Logout/", "ok");
    run([this](SettingsDlg& page) {
        press(page);
        modals.expectModal<CloudLoginDlg>([](CloudLoginDlg&) -> INT_PTR { return IDCANCEL; });
        press(page);
    });
}

TEST_F(SettingsTest, AFailedLogoutChangesNothingOnThePage)
{
    signIn();
    network.expectFailure("/api/Logout/");
    network.expectFailure("/api/Logout/");
    run([](SettingsDlg& page) {
        press(page);
        EXPECT_EQ(textOf(page, button), L"Logout");
        EXPECT_EQ(textOf(page, state), L"You are logged in to Orvanta cloud as ann@example.com");
        press(page); // repeats the request
    });
    EXPECT_EQ(user->userid, token);
    EXPECT_TRUE(SessionFile().canOpen()); // but empty
    EXPECT_EQ(std::filesystem::file_size(SessionFile().path()), 0U);
    EXPECT_TRUE(application->notifier->codes.empty());
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(SettingsTest, TheConnectionIsNotAskedForALogout)
{
    signIn();
    orvplatform::setConnectedForTest(false);
    network.expectFailure("/api/Logout/");
    run(press);
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(SettingsTest, AServiceThatAnswersFailedIsTakenAtItsWord)
{
    signIn();
    network.expect("/api/Logout/", "Failed");
    run([](SettingsDlg& page) {
        press(page);
        EXPECT_EQ(textOf(page, button), L"Logout");
    });
    EXPECT_EQ(user->userid, token);
}

TEST_F(SettingsTest, WithoutANotifierTheLogoutIsComplete)
{
    signIn();
    application->notifier.reset();
    network.expect("/api/Logout/", "ok");
    run(press);
    EXPECT_TRUE(user->userid.empty());
}

TEST_F(SettingsTest, AfterALoginThePageStaysAsItWas)
{
    scene.info->setFile(L"");
    network.expect("/api/Login/", tokenBytes);
    network.expect("/api/InstalledDevice/", "ok");
    network.expect("/api/AccountInfo/", R"({"name":"Ann"})");
    AfxSetResourceHandle(ResourceModule::handle());
    run([this](SettingsDlg& page) {
        HINSTANCE const other = otherModule();
        ASSERT_NE(other, ResourceModule::handle());
        AfxSetResourceHandle(other);
        modals.expectModal<CloudLoginDlg>([](CloudLoginDlg& dialog) -> INT_PTR {
            EXPECT_EQ(AfxGetResourceHandle(), ResourceModule::handle());
            typeText(dialog, 1017, L"ann@example.com");
            clickButton(dialog, 1001);
            return IDCANCEL;
        });
        press(page);
        EXPECT_EQ(AfxGetResourceHandle(), other); // set back
        AfxSetResourceHandle(ResourceModule::handle());
        EXPECT_EQ(user->userid, token);
        EXPECT_EQ(textOf(page, state), text(121));
        EXPECT_EQ(textOf(page, button), L"Login");
        modals.expectModal<CloudLoginDlg>([](CloudLoginDlg&) -> INT_PTR { return IDCANCEL; });
        press(page);
    });
}

TEST_F(SettingsTest, TheCaptionIsComparedInTheCurrentLanguage)
{
    configure(L"fr");
    signIn();
    network.expect("/api/Logout/", "ok");
    run([this](SettingsDlg& page) {
        EXPECT_EQ(textOf(page, button), text(107));
        EXPECT_NE(text(107), L"Logout");
        press(page);
        EXPECT_EQ(textOf(page, button), text(106));
    });
}
