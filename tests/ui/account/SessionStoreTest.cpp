#include "ui/account/SessionStore.h"

#include "support/FileWatch.h"
#include "support/OrdinaryUser.h"
#include "support/PluginEnvironment.h"
#include "support/WriteCalls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

using orvtest::contentOf;
using orvtest::writeFile;

namespace
{

std::wstring const token = L"0f8fad5b-d9cb-469f-a165-70867728950e";

class SessionStore : public testing::Test
{
protected:
    SessionStore()
    {
        user.username = L"before";
        user.userid = L"before";
        user.name = L"before";
    }

    orvtest::PluginEnvironment environment;
    orvweb::UserInfo user;
};

TEST_F(SessionStore, LiesInTheCloudDirectoryUnderItsName)
{
    SessionFile const session;
    EXPECT_EQ(std::filesystem::path(session.path()), environment.data / "Cloud/temp");
    EXPECT_EQ(std::filesystem::path(session.directory()), environment.data / "Cloud");
}

TEST_F(SessionStore, WorksOutItsPathAnew)
{
    SessionFile const before;
    orvtest::PluginEnvironment const another;
    EXPECT_NE(SessionFile().path(), before.path());
}

TEST_F(SessionStore, EndsEveryLine)
{
    SessionFile const session;
    session.write(L"ada@example.com", token);
    EXPECT_EQ(contentOf(environment.session()), "ada@example.com\n0f8fad5b-d9cb-469f-a165-70867728950e\n");
    session.write(L"ada@example.com", token, L"Ada");
    EXPECT_EQ(contentOf(environment.session()), "ada@example.com\n0f8fad5b-d9cb-469f-a165-70867728950e\nAda\n");
    session.write(L"", L"");
    EXPECT_EQ(contentOf(environment.session()), "\n\n") << "the longer text before is gone";
}

TEST_F(SessionStore, FlushesAtEachLineEnd)
{
    SessionFile const session;
    orvtest::WriteCalls const calls;
    session.write(L"ada@example.com", L"token", L"Ada");
    EXPECT_EQ(calls.texts(), (std::vector<std::string>{"ada@example.com\n", "token\n", "Ada\n"}));
}

TEST_F(SessionStore, WritesALineOfAnyLengthAtOnce)
{
    SessionFile const session;
    std::wstring const endless(std::size_t{64} << 20U, L'x');
    orvtest::WriteCalls const calls;
    session.write(L"ada@example.com", endless);
    EXPECT_LE(calls.count(), 4U);
    EXPECT_EQ(std::filesystem::file_size(environment.session()), endless.size() + 17);
    session.write(L"ada@example.com", token, endless + L"\u0100");
    EXPECT_LE(calls.count(), 10U);
    EXPECT_EQ(std::filesystem::file_size(environment.session()), endless.size() + 53) << "cut, with no line end";
}

TEST_F(SessionStore, ReadsBackWhatItWrote)
{
    SessionFile().write(L"ada@example.com", token, L"J\u00fcrgen \u00ff");
    ASSERT_TRUE(SessionFile().read(user));
    EXPECT_EQ(user.username, L"ada@example.com");
    EXPECT_EQ(user.userid, token);
    EXPECT_EQ(user.name, L"J\u00fcrgen \u00ff");
    EXPECT_EQ(contentOf(environment.session()).substr(53), "J\xFCrgen \xFF\n") << "one byte a character";
}

TEST_F(SessionStore, ReadsAsManyLinesAsItIsAskedFor)
{
    SessionFile().write(L"ada@example.com", token, L"Ada");
    ASSERT_TRUE(SessionFile().readTwo(user));
    EXPECT_EQ(user.username, L"ada@example.com");
    EXPECT_EQ(user.userid, token);
    EXPECT_EQ(user.name, L"before");
    std::wstring name;
    ASSERT_TRUE(SessionFile().readFirst(name));
    EXPECT_EQ(name, L"ada@example.com");
}

TEST_F(SessionStore, ThatIsMissingChangesNothing)
{
    EXPECT_FALSE(SessionFile().canOpen());
    EXPECT_FALSE(SessionFile().read(user));
    EXPECT_EQ(user.username, L"before");
    EXPECT_EQ(user.userid, L"before");
    std::wstring name = L"before";
    EXPECT_FALSE(SessionFile().readFirst(name));
    EXPECT_EQ(name, L"before");
}

TEST_F(SessionStore, ThatIsADirectoryIsNone)
{
    std::filesystem::create_directories(environment.session() / "inside");
    EXPECT_FALSE(SessionFile().canOpen());
    EXPECT_FALSE(SessionFile().read(user));
    EXPECT_FALSE(SessionFile().readTwo(user));
    EXPECT_FALSE(SessionFile().readFirst(user.name));
    EXPECT_EQ(user.username, L"before");
    EXPECT_EQ(user.userid, L"before");
    EXPECT_EQ(user.name, L"before");
}

TEST_F(SessionStore, IsOpenedOnceToBeTestedAndOnceMoreToBeRead)
{
    using Events = std::vector<std::string>;
    SessionFile const session;
    session.write(L"ada@example.com", token, L"Ada");
    orvtest::FileWatch watch(environment.session());
    EXPECT_TRUE(session.canOpen());
    EXPECT_EQ(watch.events(), (Events{"open", "close"}));
    Events const reading{"open", "close", "open", "read", "close"};
    session.read(user);
    EXPECT_EQ(watch.events(), reading);
    session.readTwo(user);
    EXPECT_EQ(watch.events(), reading);
    session.readFirst(user.name);
    EXPECT_EQ(watch.events(), reading);
}

TEST_F(SessionStore, ThatIsEmptyOpensAndEmptiesTheFirstFieldAlone)
{
    SessionFile().createEmpty();
    EXPECT_TRUE(SessionFile().canOpen());
    ASSERT_TRUE(SessionFile().read(user));
    EXPECT_EQ(user.username, L"");
    EXPECT_EQ(user.userid, L"before");
    EXPECT_EQ(user.name, L"before");
}

TEST_F(SessionStore, LeftEmptyByAFailedLogoutGivesAnEmptyUserAtTheStart)
{
    SessionFile().createEmpty();
    orvweb::UserInfo fresh;
    ASSERT_TRUE(SessionFile().read(fresh));
    EXPECT_EQ(fresh.username, L"");
    EXPECT_EQ(fresh.userid, L"");
    EXPECT_EQ(fresh.name, L"");
}

TEST_F(SessionStore, OfOneLineGivesTheUserNameAlone)
{
    writeFile(environment.session(), "ada@example.com\n");
    ASSERT_TRUE(SessionFile().read(user));
    EXPECT_EQ(user.username, L"ada@example.com");
    EXPECT_EQ(user.userid, L"");
    EXPECT_EQ(user.name, L"before");
}

TEST_F(SessionStore, OfTwoLinesEmptiesTheName)
{
    SessionFile().write(L"ada@example.com", token);
    ASSERT_TRUE(SessionFile().read(user));
    EXPECT_EQ(user.userid, token);
    EXPECT_EQ(user.name, L"");
}

TEST_F(SessionStore, StopsAtTheEndOfTheThirdLine)
{
    writeFile(environment.session(), "ada@example.com\ntoken\nAda\n\nmore\n");
    ASSERT_TRUE(SessionFile().read(user));
    EXPECT_EQ(user.name, L"Ada");
}

TEST_F(SessionStore, ReadsALastLineWithoutItsEnd)
{
    writeFile(environment.session(), "ada@example.com\ntoken\nAda");
    ASSERT_TRUE(SessionFile().read(user));
    EXPECT_EQ(user.name, L"Ada");
}

TEST_F(SessionStore, EmptiesTheFirstFieldBehindALineWithoutItsEnd)
{
    writeFile(environment.session(), "ada@example.com");
    ASSERT_TRUE(SessionFile().read(user));
    EXPECT_EQ(user.username, L"ada@example.com");
    EXPECT_EQ(user.userid, L"");
    EXPECT_EQ(user.name, L"before");
    user.userid = L"before";
    ASSERT_TRUE(SessionFile().readTwo(user));
    EXPECT_EQ(user.userid, L"");

    user.userid = L"before";
    writeFile(environment.session(), "ada@example.com\ntoken");
    ASSERT_TRUE(SessionFile().read(user));
    EXPECT_EQ(user.username, L"ada@example.com");
    EXPECT_EQ(user.userid, L"token");
    EXPECT_EQ(user.name, L"");
}

TEST_F(SessionStore, TakesEveryByteForACharacter)
{
    std::string bytes;
    for (int value = 0; value < 256; ++value) {
        if (value != '\n') {
            bytes.push_back(static_cast<char>(value));
        }
    }
    writeFile(environment.session(), bytes + "\n");
    std::wstring line;
    ASSERT_TRUE(SessionFile().readFirst(line));
    ASSERT_EQ(line.size(), 255U);
    EXPECT_EQ(line[0], L'\0');
    EXPECT_EQ(line[254], L'\u00ff');
    SessionFile().write(line, L"");
    EXPECT_EQ(contentOf(environment.session()), bytes + "\n\n");
}

TEST_F(SessionStore, KeepsWhatStandsBeforeACharacterThatHasNoByteOnce)
{
    EXPECT_NO_THROW(SessionFile().write(L"ada@example.com", token, L"Jos\u00e9 \u0141ukasz"));
    EXPECT_EQ(contentOf(environment.session()), "ada@example.com\n0f8fad5b-d9cb-469f-a165-70867728950e\nJos\xE9 ");
    EXPECT_NO_THROW(SessionFile().write(L"a\U0001f600b", token));
    EXPECT_EQ(contentOf(environment.session()), "a") << "nothing follows, the second line neither";
    EXPECT_NO_THROW(SessionFile().write(L"\u0100", token));
    EXPECT_EQ(contentOf(environment.session()), "");
}

TEST_F(SessionStore, IsEmptiedAndRemoved)
{
    SessionFile const session;
    session.write(L"ada@example.com", token);
    session.createEmpty();
    EXPECT_EQ(contentOf(environment.session()), "");
    EXPECT_TRUE(session.canOpen());
    session.remove();
    EXPECT_FALSE(std::filesystem::exists(environment.session()));
    EXPECT_FALSE(session.canOpen());
    session.remove();
}

TEST_F(SessionStore, LosesItsDirectoryOnlyWhenNothingElseLiesThere)
{
    SessionFile const session;
    writeFile(environment.cloud("share"), "");
    session.removeDirectory();
    EXPECT_TRUE(std::filesystem::exists(environment.cloud("share")));
    std::filesystem::remove(environment.cloud("share"));
    session.removeDirectory();
    EXPECT_FALSE(std::filesystem::exists(environment.cloud()));
    EXPECT_FALSE(session.canOpen());

    SessionFile().write(L"ada@example.com", token);
    EXPECT_TRUE(SessionFile().canOpen()) << "the directory is made again on demand";
}

TEST_F(SessionStore, IsForTheUserAlone)
{
    using std::filesystem::perms;
    SessionFile().write(L"ada@example.com", token);
    EXPECT_EQ(std::filesystem::status(environment.session()).permissions(), perms::owner_read | perms::owner_write);
    SessionFile().createEmpty();
    EXPECT_EQ(std::filesystem::status(environment.session()).permissions(), perms::owner_read | perms::owner_write);
}

TEST_F(SessionStore, TakesTheRightsOfOthersFromAFileThatIsThere)
{
    using std::filesystem::perms;
    perms const forAll = static_cast<perms>(0666);
    perms const forTheUser = perms::owner_read | perms::owner_write;
    SessionFile().createEmpty();
    std::filesystem::permissions(environment.session(), forAll);
    SessionFile().write(L"ada@example.com", token);
    EXPECT_EQ(std::filesystem::status(environment.session()).permissions(), forTheUser);
    std::filesystem::permissions(environment.session(), forAll);
    SessionFile().createEmpty();
    EXPECT_EQ(std::filesystem::status(environment.session()).permissions(), forTheUser);
    EXPECT_EQ(contentOf(environment.session()), "");
}

TEST_F(SessionStore, TakesThePlaceOfAPipe)
{
    for (bool const isLogin : {true, false}) {
        SCOPED_TRACE(isLogin);
        SessionFile const session;
        session.remove();
        ASSERT_EQ(mkfifo(environment.session().c_str(), 0600), 0);
        // With this end open nobody waits at the pipe, so that a failure is no hang.
        int const otherEnd = open(environment.session().c_str(), O_RDWR | O_NONBLOCK);
        EXPECT_FALSE(session.canOpen());
        if (isLogin) {
            session.createEmpty();
        } else {
            session.write(L"ada@example.com", token);
        }
        close(otherEnd);
        ASSERT_TRUE(std::filesystem::is_regular_file(environment.session())); // a pipe would be read for ever
        EXPECT_EQ(contentOf(environment.session()),
                  isLogin ? "" : "ada@example.com\n0f8fad5b-d9cb-469f-a165-70867728950e\n");
    }
}

TEST_F(SessionStore, ThatMayNotBeReadIsNone)
{
    SessionFile const session;
    session.write(L"ada@example.com", token, L"Ada");
    std::filesystem::permissions(environment.session(), std::filesystem::perms::none);
    orvtest::OrdinaryUser const person(environment.data.parent_path());
    EXPECT_FALSE(session.canOpen());
    EXPECT_FALSE(session.read(user));
    EXPECT_FALSE(session.readTwo(user));
    EXPECT_FALSE(session.readFirst(user.name));
    EXPECT_EQ(user.username, L"before");
    EXPECT_EQ(user.userid, L"before");
    EXPECT_EQ(user.name, L"before");
    session.createEmpty(); // the next login
    EXPECT_TRUE(session.canOpen());
}

TEST_F(SessionStore, ReportsNothingWhereItCantBeWritten)
{
    std::filesystem::create_directories(environment.session() / "in the way");
    SessionFile const session;
    EXPECT_NO_THROW(session.createEmpty());
    EXPECT_NO_THROW(session.write(L"ada@example.com", token));
    EXPECT_NO_THROW(session.remove());
    EXPECT_NO_THROW(session.read(user));
}

} // namespace
