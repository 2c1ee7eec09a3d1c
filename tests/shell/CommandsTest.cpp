#include "shell/LoadedPlugin.h"
#include "support/FileWatch.h"
#include "support/OrdinaryUser.h"

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr unsigned int share = 102;
constexpr unsigned int push = 118;
constexpr unsigned int feeds = 201;

class CommandsTest : public UiTest
{
protected:
    void openModel() { sendHint(*plugin.operator->(), codes::documentOpened, scene.document); }
    void command(unsigned int number) { plugin->OnCommand(nullptr, number, application); }
    /// The answer doesn't depend on what stood there before.
    bool isEnabled(unsigned int number)
    {
        bool fromTrue = true;
        bool fromFalse = false;
        plugin->OnUpdateCommand(nullptr, number, &fromTrue);
        plugin->OnUpdateCommand(nullptr, number, &fromFalse);
        EXPECT_EQ(fromTrue, fromFalse) << number;
        return fromTrue;
    }
    /// The next modal dialog has this title.
    void expectDialog(std::wstring const& title, INT_PTR result = IDCANCEL)
    {
        modals.expectModal<CDialog>([title, result](CDialog& dialog) {
            CString shown;
            dialog.GetWindowTextW(shown);
            EXPECT_EQ(shown.GetString(), title);
            EXPECT_EQ(AfxGetResourceHandle(), ResourceModule::handle());
            return result;
        });
    }

    LoadedPlugin plugin;
};

} // namespace

TEST_F(CommandsTest, WithoutADocumentCommandsDoNothing)
{
    long const held = application.use_count();
    orvplatform::setConnectedForTest(false);
    command(push);
    command(share);
    EXPECT_TRUE(application->texts.empty());
    EXPECT_EQ(application.use_count(), held); // not stored
}

TEST_F(CommandsTest, TheApplicationOfACommandIsKept)
{
    openModel();
    long const held = application.use_count();
    command(999);
    EXPECT_EQ(application.use_count(), held + 1);
}

TEST_F(CommandsTest, TheApplicationIsKeptWithoutAConnectionToo)
{
    openModel();
    orvplatform::setConnectedForTest(false);
    long const held = application.use_count();
    command(share);
    EXPECT_EQ(application.use_count(), held + 1);
}

TEST_F(CommandsTest, WithoutAConnectionEveryCommandOnlySaysSo)
{
    signIn();
    openModel();
    orvplatform::setConnectedForTest(false);
    for (unsigned int const number : {share, push, 999U}) {
        application->texts.clear();
        command(number);
        EXPECT_EQ(application->texts, std::vector<std::wstring>{text(111)});
    }
}

TEST_F(CommandsTest, SignedInAPushSendsTheModel)
{
    signIn();
    openModel();
    network.expect("/api/UploadInput/", jobIdBytes);
    command(push);
    EXPECT_EQ(network.last().field("username"), "ann@example.com");
    EXPECT_EQ(network.last().header("Authorization"), std::string("Bearer ") + tokenBytes);
    EXPECT_EQ(network.last().field("filename"), "gearbox.step");
}

TEST_F(CommandsTest, APushGoesByTheSessionFileOfThatMoment)
{
    openModel();
    SessionFile().write(L"bob@example.com", token);
    network.expect("/api/UploadInput/", jobIdBytes);
    command(push);
    EXPECT_EQ(network.last().field("username"), "bob@example.com");
}

TEST_F(CommandsTest, AnEmptySessionFilePushesWithEmptyNames)
{
    signIn();
    openModel();
    SessionFile().createEmpty();
    network.expect("/api/UploadInput/", jobIdBytes);
    command(push);
    EXPECT_EQ(network.last().field("username"), "");
    EXPECT_TRUE(isEnabled(share));
}

TEST_F(CommandsTest, AnEmptySessionFileLeavesTheUserIdThatIsKnown)
{
    signIn();
    LoadedPlugin restored; // knows Ann
    sendHint(*restored.operator->(), codes::documentOpened, scene.document);
    SessionFile().createEmpty();
    network.expect("/api/UploadInput/", jobIdBytes);
    restored->OnCommand(nullptr, push, application);
    EXPECT_EQ(network.last().field("username"), "");
    EXPECT_EQ(network.last().header("Authorization"), std::string("Bearer ") + tokenBytes);
}

TEST_F(CommandsTest, AfterAFailedLogoutANewStartPushesWithEmptyNames)
{
    signIn();
    network.expectFailure("/api/Logout/");
    EXPECT_EQ(CloudHelper::logout(user->username), CloudHelper::logoutFailed);
    LoadedPlugin restored;
    sendHint(*restored.operator->(), codes::documentOpened, scene.document);
    network.expect("/api/UploadInput/", jobIdBytes);
    restored->OnCommand(nullptr, push, application); // the push, not the login
    EXPECT_EQ(network.last().field("username"), "");
    EXPECT_EQ(network.last().header("Authorization"), "");
}

TEST_F(CommandsTest, APushTestsTheSessionFileAndOpensItOnceMore)
{
    signIn();
    openModel();
    network.expect("/api/UploadInput/", jobIdBytes);
    FileWatch watch(SessionFile().path());
    command(push);
    EXPECT_EQ(watch.events(), (std::vector<std::string>{"open", "close", "open", "read", "close"}));
}

TEST_F(CommandsTest, AnUpdatePassOpensTheSessionFileOnceAndReadsNothing)
{
    signIn();
    FileWatch watch(SessionFile().path());
    bool enabled = false;
    plugin->OnUpdateCommand(nullptr, share, &enabled);
    EXPECT_TRUE(enabled);
    EXPECT_EQ(watch.events(), (std::vector<std::string>{"open", "close"}));
    isEnabled(push);
    isEnabled(feeds);
    EXPECT_TRUE(watch.events().empty());
}

TEST_F(CommandsTest, ADirectoryInTheSessionFilesPlaceIsNoSession)
{
    std::filesystem::create_directories(SessionFile().path());
    openModel();
    EXPECT_FALSE(isEnabled(share));
    expectDialog(L"Login to Orvanta Cloud");
    command(push);
}

TEST_F(CommandsTest, ASessionFileThatMayNotBeReadIsNoSession)
{
    signIn();
    openModel();
    std::filesystem::permissions(SessionFile().path(), std::filesystem::perms::none);
    OrdinaryUser const person(dataDirectory);
    EXPECT_FALSE(isEnabled(share));
    EXPECT_TRUE(isEnabled(push));
    expectDialog(L"Login to Orvanta Cloud");
    command(push);
}

TEST_F(CommandsTest, AFileInThePlaceOfTheDirectoryLeavesShareDisabled)
{
    std::ofstream(dataDirectory / "Cloud") << "in the way";
    openModel();
    EXPECT_FALSE(isEnabled(share));
    expectDialog(L"Login to Orvanta Cloud");
    command(push);
}

TEST_F(CommandsTest, SignedOutAPushOpensTheLogin)
{
    openModel();
    expectDialog(L"Login to Orvanta Cloud");
    command(push);
}

TEST_F(CommandsTest, ShareOpensItsDialog)
{
    signIn();
    openModel();
    expectDialog(L"Share gearbox.step");
    command(share);
}

TEST_F(CommandsTest, DialogsLeaveTheViewersResourcesInPlace)
{
    openModel();
    HINSTANCE const before = otherModule();
    AfxSetResourceHandle(before);
    expectDialog(L"Login to Orvanta Cloud");
    command(push);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST_F(CommandsTest, OtherCommandsAreIgnored)
{
    signIn();
    openModel();
    command(feeds);
    command(0);
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(CommandsTest, CommandsAreEnabledByDocumentAndSession)
{
    EXPECT_TRUE(isEnabled(push));
    EXPECT_FALSE(isEnabled(share));
    EXPECT_TRUE(isEnabled(feeds));
    signIn();
    EXPECT_TRUE(isEnabled(push));
    EXPECT_TRUE(isEnabled(share)); // and does nothing when pressed
    openModel();
    EXPECT_TRUE(isEnabled(push));
    EXPECT_TRUE(isEnabled(share));
    SessionFile().remove();
    EXPECT_TRUE(isEnabled(push));
    EXPECT_FALSE(isEnabled(share));
    EXPECT_TRUE(isEnabled(feeds));
}

TEST_F(CommandsTest, ADocumentWithoutAFileDisablesBoth)
{
    signIn();
    scene.info->setFile(L"");
    openModel();
    EXPECT_FALSE(isEnabled(push));
    EXPECT_FALSE(isEnabled(share));
    EXPECT_TRUE(isEnabled(feeds));
}

TEST_F(CommandsTest, ADocumentThatStaysHereDisablesBoth)
{
    signIn();
    scene.info->pushState = orvsg::SCInfo::notPushable;
    openModel();
    EXPECT_FALSE(isEnabled(push));
    EXPECT_FALSE(isEnabled(share));
    EXPECT_TRUE(isEnabled(feeds));
    scene.info->pushState = 2;
    EXPECT_TRUE(isEnabled(push));
}

TEST_F(CommandsTest, ADocumentWithoutItsRecordEnablesThePush)
{
    openModel();
    scene.document->setSchema(orvsg::SCInfo::key, nullptr);
    EXPECT_TRUE(isEnabled(push));
    EXPECT_FALSE(isEnabled(share));
}

TEST_F(CommandsTest, AnyOtherCommandFollowsTheDocument)
{
    EXPECT_TRUE(isEnabled(999));
    scene.info->setFile(L"");
    openModel();
    EXPECT_FALSE(isEnabled(999));
}
