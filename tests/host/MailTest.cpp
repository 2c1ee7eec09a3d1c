#include "host/orv/Mail.h"
#include "host/runtime/Spawn.h"
#include "support/HostSession.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace
{

/// A desktop of its own: the programs that a test puts there are the only ones that are found.
class Mail : public testing::Test
{
protected:
    Mail() : pathBefore(std::getenv("PATH")) { ::setenv("PATH", session.directory().c_str(), 1); }
    ~Mail() override { ::setenv("PATH", pathBefore.c_str(), 1); }

    void install(std::string const& name, std::string const& script)
    {
        fs::path const file = session.directory() / name;
        std::ofstream(file) << "#!/bin/sh\n" << script << "\n";
        fs::permissions(file, fs::perms::owner_all);
    }
    void installClient(std::string const& desktopFile = "thunderbird.desktop")
    {
        install("xdg-mime", "echo '" + desktopFile + "'");
        // Tells its arguments through a pipe: reading it waits until the program has ended.
        install("xdg-email", "for a in \"$@\"; do printf '[%s]' \"$a\"; done > '" + outbox().string() + "'");
        ASSERT_EQ(::mkfifo(outbox().c_str(), 0600), 0);
    }
    fs::path outbox() const { return session.directory() / "outbox"; }
    std::string sent() const
    {
        std::ifstream stream(outbox());
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    orvtest::HostSession session;
    std::string pathBefore;
};

TEST_F(Mail, IsAvailableWithTheToolAndAClientForIt)
{
    EXPECT_FALSE(orv::Mail::isClientAvailable());
    install("xdg-email", "echo 1.1.3");
    EXPECT_FALSE(orv::Mail::isClientAvailable());
    install("xdg-mime", "echo ''");
    EXPECT_FALSE(orv::Mail::isClientAvailable());
    install("xdg-mime", "echo thunderbird.desktop; exit 4");
    EXPECT_FALSE(orv::Mail::isClientAvailable());
    install("xdg-mime", "test \"$*\" = 'query default x-scheme-handler/mailto' && echo thunderbird.desktop");
    EXPECT_TRUE(orv::Mail::isClientAvailable());
    fs::remove(session.directory() / "xdg-email");
    EXPECT_FALSE(orv::Mail::isClientAvailable());
}

TEST_F(Mail, GoesToTheClientWordForWord)
{
    installClient();
    EXPECT_TRUE(orv::Mail().send(nullptr, L"support@orvanta.example", L"$(reboot) `x`; \"q\"", L"line 1\nline 2 \u00e9",
                                 nullptr));
    EXPECT_EQ(sent(), "[mailto:support@orvanta.example?subject=%24%28reboot%29%20%60x%60%3B%20%22q%22"
                      "&body=line%201%0D%0Aline%202%20%C3%A9]");
}

TEST_F(Mail, HasMailsLineEnds)
{
    installClient();
    EXPECT_TRUE(orv::Mail().send(nullptr, L"a+b@c.example", L"", L"\none\r\n\ntwo\rthree\n", nullptr));
    EXPECT_EQ(sent(), "[mailto:a%2Bb@c.example?subject=&body=%0D%0Aone%0D%0A%0D%0Atwo%0Dthree%0D%0A]");
}

TEST_F(Mail, MayBeWithoutABody)
{
    installClient();
    EXPECT_TRUE(orv::Mail().send(nullptr, L"a@b.example", L"s", L"", nullptr));
    EXPECT_EQ(sent(), "[mailto:a@b.example?subject=s]");
    EXPECT_TRUE(orv::Mail().send(nullptr, L"a@b.example", nullptr, nullptr, nullptr));
    EXPECT_EQ(sent(), "[mailto:a@b.example?subject=]");
}

TEST_F(Mail, FitsTheArgumentWhateverItsLength)
{
    installClient();
    std::string const note = "%0D%0A%0D%0A%5BThe%20rest%20was%20too%20long%20for%20the%20mail%20program.%5D";
    for (auto const& [character, encodedLength] : {std::pair(L'x', 1U), std::pair(L'\\', 3U), std::pair(L'\n', 6U),
                                                   std::pair(L'\u65e5', 9U), std::pair(L'\U0001F600', 12U)}) {
        std::wstring const body(131000, character);
        EXPECT_TRUE(orv::Mail().send(nullptr, L"a@b.example", L"s", body.c_str(), nullptr));
        std::string const all = sent();
        EXPECT_LT(all.size(), 131072U);
        EXPECT_GT(all.size(), 129000U) << "as much as fits";
        ASSERT_TRUE(all.ends_with(note + "]")) << all.substr(all.size() - 100);
        // What stands before the note are whole characters.
        std::string const text = all.substr(0, all.size() - note.size() - 1).substr(all.find("body=") + 5);
        EXPECT_EQ(text.size() % encodedLength, 0U);
    }
}

/// The desktop's own script, in front of an opener that writes down what it is given.
TEST_F(Mail, ArrivesThroughTheDesktopsOwnScript)
{
    if (!fs::exists("/usr/bin/xdg-email")) {
        GTEST_SKIP() << "skipped: the desktop's mail script is not installed";
    }
    ::setenv("PATH", (session.directory().string() + ":" + pathBefore).c_str(), 1);
    ::setenv("XDG_CURRENT_DESKTOP", "X-Generic", 1);
    ::unsetenv("MAILER");
    install("xdg-mime", "echo client.desktop");
    install("xdg-open", "printf '[%s]' \"$@\" > '" + outbox().string() + "'");
    ASSERT_EQ(::mkfifo(outbox().c_str(), 0600), 0);
    ASSERT_TRUE(orv::Mail::isClientAvailable());
    std::string const start = "[mailto:a@b.example?subject=S%20%25";
    struct Case {
        wchar_t const* body;
        char const* sent;
    };
    for (Case const& each : {Case{L"", ""}, Case{L"--help", "&body=--help"}, Case{L"-n a", "&body=-n%20a"},
                             Case{L"C:\\new\\temp \\0101 \\c end", "&body=C%3A%5Cnew%5Ctemp%20%5C0101%20%5Cc%20end"},
                             Case{L"a&body=b?#%41 $(x) `y` \"z\"\n\u00e9",
                                  "&body=a%26body%3Db%3F%23%2541%20%24%28x%29%20%60y%60%20%22z%22%0D%0A%C3%A9"}}) {
        EXPECT_TRUE(orv::Mail().send(nullptr, L"a@b.example", L"S %", each.body, nullptr));
        EXPECT_EQ(sent(), start + each.sent + "]");
    }
    std::wstring const endless(200000, L'\u65e5');
    EXPECT_TRUE(orv::Mail().send(nullptr, L"a@b.example", L"S %", endless.c_str(), nullptr));
    std::string const shortened = sent();
    EXPECT_GT(shortened.size(), 129000U);
    EXPECT_TRUE(shortened.ends_with("program.%5D]"));
}

TEST_F(Mail, MayCarryAFile)
{
    installClient();
    EXPECT_TRUE(orv::Mail().send(nullptr, L"a@b.example", L"s", L"b", L"/logs/run 1.txt"));
    EXPECT_EQ(sent(), "[--attach][/logs/run 1.txt][mailto:a@b.example?subject=s&body=b]");
}

TEST_F(Mail, IsNotSentWithoutAnAddressOrATool)
{
    EXPECT_FALSE(orv::Mail().send(nullptr, L"a@b.example", L"s", L"b", nullptr));
    installClient();
    EXPECT_FALSE(orv::Mail().send(nullptr, L"", L"s", L"b", nullptr));
    EXPECT_FALSE(orv::Mail().send(nullptr, nullptr, L"s", L"b", nullptr));
    EXPECT_TRUE(orv::Mail().send(nullptr, L"--help", L"s", L"b", nullptr));
    EXPECT_EQ(sent(), "[mailto:--help?subject=s&body=b]") << "no option of the tool";
}

TEST_F(Mail, AProgramThatPrintsWithoutEndIsStopped)
{
    install("flood", "trap '' PIPE\nwhile :; do echo xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx; done");
    EXPECT_FALSE(orvhost::outputOf({"flood"}).has_value());
    EXPECT_FALSE(orvhost::outputOf({"no such program"}).has_value());
}

} // namespace
