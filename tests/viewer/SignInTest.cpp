// Signing in and out in a viewer that was just started: there is no model yet, and every outcome is told all the same.

#include "tests/viewer/SessionFixture.h"

#include "support/ScriptedHttpServer.h"
#include "tour/Driver.h"

#include <QString>

using namespace orvtest;

namespace
{

QString const email = "ann@example.com";
QString const password = "planet carrier 42";
std::string const token = "7c9e6679-7425-40de-944b-e07fc1f90ae7";

class SignInAtTheStart : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        orvplatform::setConnectedForTest(true);
        installCloudPlugin();
    }

    void startDriver()
    {
        orvtour::Driver::Options options;
        options.dataDirectory = (folder.path / "data").wstring();
        options.libraryDirectory = (folder.path / "lib").wstring();
        options.serviceUrl = server.wideUrl();
        options.failure = [](std::string const& why) { ADD_FAILURE() << why; };
        driver = std::make_unique<orvtour::Driver>(options);
        ASSERT_TRUE(driver->showWindow());
        ASSERT_FALSE(driver->document());
    }
    void expectLogin()
    {
        server.expect("POST", "/api/Login/", Answer::ok(token));
        server.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
        server.expect("GET", "/api/AccountInfo/", Answer::ok(R"({"name":"Ann"})"));
    }
    void expectRefusal(char const* sentence)
    {
        bool stillOpen = false;
        QString typed;
        ASSERT_TRUE(driver->trySignIn(email, password, stillOpen, typed));
        EXPECT_EQ(driver->status().toStdString(), sentence);
        EXPECT_TRUE(stillOpen);
        EXPECT_EQ(typed.toStdString(), email.toStdString());
        EXPECT_TRUE(driver->hasPrompt());
        EXPECT_FALSE(std::filesystem::exists(sessionFile()));
    }
    std::filesystem::path sessionFile() const { return folder.path / "data" / "Cloud" / "temp"; }

    ScriptedHttpServer server;
    std::unique_ptr<orvtour::Driver> driver;
};

} // namespace

TEST_F(SignInAtTheStart, IsToldAndChangesThePane)
{
    startDriver();
    ASSERT_TRUE(driver->hasPrompt());
    expectLogin();
    ASSERT_TRUE(driver->signIn(email, password));
    EXPECT_TRUE(driver->status().startsWith("Successfully logged in to ")) << driver->status().toStdString();
    EXPECT_FALSE(driver->hasPrompt()) << "signed in, no model";
    EXPECT_FALSE(driver->hasCommentBox());
    EXPECT_TRUE(driver->blocks().empty());
    EXPECT_EQ(contentOf(sessionFile()), "ann@example.com\n" + token + "\nAnn\n");
    EXPECT_FALSE(driver->document());

    // The first model finds the user signed in; it isn't sent by itself, and its feed is asked for.
    server.expect("GET", "/api/isFilePresent/", Answer::ok(""));
    ASSERT_TRUE(driver->openModel(writeThreeCubes(folder.path).wstring())) << driver->status().toStdString();
    EXPECT_FALSE(driver->hasPrompt());
}

TEST_F(SignInAtTheStart, ThatFailsSaysSo)
{
    startDriver();
    server.expect("POST", "/api/Login/", Answer::status(401, "wrong"));
    expectRefusal("Login failed, please login again.");
}

TEST_F(SignInAtTheStart, WithoutAConnectionSaysSo)
{
    startDriver();
    orvplatform::setConnectedForTest(false);
    expectRefusal("Something went wrong, Check your network connection.");
}

TEST_F(SignInAtTheStart, CanBeUndoneBeforeAModelIsOpen)
{
    startDriver();
    expectLogin();
    ASSERT_TRUE(driver->signIn(email, password));
    server.expect("POST", "/api/Logout/", Answer::ok("ok"));
    ASSERT_TRUE(driver->signOut());
    EXPECT_TRUE(driver->hasPrompt());
    EXPECT_FALSE(std::filesystem::exists(sessionFile()));
}

TEST_F(SignInAtTheStart, OfAnEarlierRunShowsNoPrompt)
{
    std::filesystem::create_directories(sessionFile().parent_path());
    writeFile(sessionFile(), "ann@example.com\n" + token + "\nAnn\n");
    startDriver();
    EXPECT_FALSE(driver->hasPrompt());
    EXPECT_FALSE(driver->hasCommentBox());
    driver->activateFeeds(); // asks nothing: there is no model
    EXPECT_TRUE(driver->blocks().empty());
}

TEST_F(SignInAtTheStart, AfterAModelWasClosedIsToldAsWell)
{
    startDriver();
    ASSERT_TRUE(driver->openModel(writeThreeCubes(folder.path).wstring())) << driver->status().toStdString();
    driver->session().closeModel();
    server.expect("POST", "/api/Login/", Answer::status(401, "wrong"));
    expectRefusal("Login failed, please login again.");
}
