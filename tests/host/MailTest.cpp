#include "host/orv/Mail.h"
#include "host/runtime/Spawn.h"
#include "support/HostSession.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

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
    EXPECT_EQ(sent(),
              "[--utf8][--subject][$(reboot) `x`; \"q\"][--body][line 1\nline 2 \xC3\xA9][support@orvanta.example]");
}

TEST_F(Mail, MayCarryAFile)
{
    installClient();
    EXPECT_TRUE(orv::Mail().send(nullptr, L"a@b.example", L"s", L"b", L"/logs/run 1.txt"));
    EXPECT_EQ(sent(), "[--utf8][--subject][s][--body][b][--attach][/logs/run 1.txt][a@b.example]");
}

TEST_F(Mail, IsNotSentWithoutAnAddressOrATool)
{
    EXPECT_FALSE(orv::Mail().send(nullptr, L"a@b.example", L"s", L"b", nullptr));
    installClient();
    EXPECT_FALSE(orv::Mail().send(nullptr, L"", L"s", L"b", nullptr));
    EXPECT_FALSE(orv::Mail().send(nullptr, nullptr, L"s", L"b", nullptr));
    EXPECT_FALSE(orv::Mail().send(nullptr, L"--help", L"s", L"b", nullptr));
}

TEST_F(Mail, AProgramThatPrintsWithoutEndIsStopped)
{
    install("flood", "trap '' PIPE\nwhile :; do echo xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx; done");
    EXPECT_FALSE(orvhost::outputOf({"flood"}).has_value());
    EXPECT_FALSE(orvhost::outputOf({"no such program"}).has_value());
}

} // namespace
