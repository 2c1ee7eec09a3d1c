// What the viewer's idle pass costs in system calls, counted by strace. The viewer asks for every command of the ribbon
// whenever it is idle, so a call too many here is one too many all day.

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <system_error>

namespace
{

namespace fs = std::filesystem;

constexpr int times = 50;
constexpr int share = 102;
constexpr int push = 118;
constexpr int feeds = 201;

/// The calls between the marks by name, and what the program printed.
struct Traced {
    std::map<std::string, int> calls;
    std::string output;

    /// What a library says on its own account stands before it.
    bool saidEnabled() const { return output == "enabled\n" || output.ends_with("\nenabled\n"); }
    bool saidDisabled() const { return output == "disabled\n" || output.ends_with("\ndisabled\n"); }
    int count(std::string const& name) const
    {
        auto const found = calls.find(name);
        return found == calls.end() ? 0 : found->second;
    }
    int total() const
    {
        int sum = 0;
        for (auto const& [name, number] : calls) {
            sum += number;
        }
        return sum;
    }
    std::string list() const
    {
        std::string text;
        for (auto const& [name, number] : calls) {
            text += name + " " + std::to_string(number) + "\n";
        }
        return text;
    }
};

/// Runs a command line of fixed words and paths that the test made; its exit status, and what it printed.
int run(std::string const& line, std::string& output)
{
    FILE* const pipe = popen((line + " 2>&1").c_str(), "r");
    if (pipe == nullptr) {
        return -1;
    }
    char buffer[4096];
    while (std::size_t const count = fread(buffer, 1, sizeof buffer, pipe)) {
        output.append(buffer, count);
    }
    return pclose(pipe);
}

std::string quoted(fs::path const& path)
{
    std::string text = "'";
    text += path.string();
    text += '\'';
    return text;
}

class SystemCallsTest : public ::testing::Test
{
protected:
    SystemCallsTest()
    {
        std::string name = (fs::temp_directory_path() / "orvanta-calls-XXXXXX").string();
        EXPECT_NE(mkdtemp(name.data()), nullptr);
        root = name;
        fs::create_directories(root / "data" / "Cloud");
    }
    ~SystemCallsTest() override
    {
        std::error_code error;
        fs::remove_all(root, error);
    }

    void SetUp() override
    {
        std::string words;
        ASSERT_EQ(run("strace -V", words), 0) << "strace is missing; install the packages of packages.txt: " << words;
        words.clear();
        if (run("strace -o " + quoted(root / "probe") + " true", words) != 0) {
            GTEST_SKIP() << "skipped: this machine lets no program trace another: " << words;
        }
    }

    void signIn() const { std::ofstream(root / "data" / "Cloud" / "temp") << "ann@example.com\ntoken\nAnn\n"; }

    /// `times` passes for one command.
    Traced trace(int command) const
    {
        fs::path const log = root / "trace";
        Traced traced;
        std::string const line = "strace -f -qq -e signal=none -o " + quoted(log) + " " +
                                 quoted(ORV_UPDATE_COMMAND_PROGRAM) + " " + quoted(root / "data") + " " +
                                 std::to_string(command) + " " + std::to_string(times);
        EXPECT_EQ(run(line, traced.output), 0) << traced.output;
        std::ifstream stream(log);
        std::string thread; // the one that makes the passes; others may wake meanwhile
        bool within = false;
        bool ended = false;
        for (std::string text; std::getline(stream, text);) {
            auto const nameAt = text.find_first_not_of(' ', text.find(' '));
            std::string const number = text.substr(0, text.find(' '));
            if (text.find("\"begin of the passes\"") != std::string::npos) {
                within = true;
                thread = number;
            } else if (text.find("\"end of the passes\"") != std::string::npos) {
                within = false;
                ended = true;
            } else if (within && number == thread && nameAt != std::string::npos && text[nameAt] != '<') {
                ++traced.calls[text.substr(nameAt, text.find('(', nameAt) - nameAt)];
            }
        }
        EXPECT_TRUE(ended) << "the marks are not in the trace";
        return traced;
    }

    fs::path root;
};

} // namespace

TEST_F(SystemCallsTest, AskingForTheShareCommandOpensAndClosesTheSessionFileOnceAndReadsNothing)
{
    signIn();
    Traced const traced = trace(share);
    EXPECT_TRUE(traced.saidEnabled()) << traced.output;
    EXPECT_EQ(traced.count("open") + traced.count("openat"), times) << traced.list();
    EXPECT_EQ(traced.count("close"), times) << traced.list();
    for (char const* const reading : {"read", "pread64", "readv", "mmap", "lseek"}) {
        EXPECT_EQ(traced.count(reading), 0) << traced.list();
    }
}

TEST_F(SystemCallsTest, SignedOutNothingIsOpened)
{
    Traced const traced = trace(share);
    EXPECT_TRUE(traced.saidDisabled()) << traced.output;
    EXPECT_EQ(traced.count("close"), 0) << traced.list();
    EXPECT_EQ(traced.count("read"), 0) << traced.list();
}

TEST_F(SystemCallsTest, TheOtherCommandsAskTheSystemForNothing)
{
    signIn();
    for (int const command : {push, feeds}) {
        Traced const traced = trace(command);
        EXPECT_TRUE(traced.saidEnabled()) << traced.output;
        EXPECT_EQ(traced.total(), 0) << traced.list();
    }
}
