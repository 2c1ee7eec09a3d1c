#include "viewer/app/CommandLine.h"
#include "tests/support/ScopedVariables.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <initializer_list>
#include <vector>

namespace
{

orvviewer::CommandLine read(std::initializer_list<char const*> arguments)
{
    std::vector<char const*> all{"orvanta"};
    all.insert(all.end(), arguments);
    return orvviewer::readCommandLine(static_cast<int>(all.size()), all.data());
}

} // namespace

TEST(CommandLine, TakesAFileAndAllOptions)
{
    auto const line = read({"model.step", "--service", "https://a.example", "--data", "/d", "--language", "de",
                            "--export", "a.prc", "--export=b.stl", "--screenshot", "c.png"});
    EXPECT_TRUE(line.error.empty());
    EXPECT_EQ(line.file, L"model.step");
    EXPECT_EQ(line.serviceUrl, L"https://a.example");
    EXPECT_EQ(line.dataDirectory, L"/d");
    EXPECT_EQ(line.language, L"de");
    EXPECT_EQ(line.exports, (std::vector<std::wstring>{L"a.prc", L"b.stl"}));
    EXPECT_EQ(line.screenshot, L"c.png");
    EXPECT_TRUE(line.isHeadless());
}

TEST(CommandLine, OpensAWindowWithoutOptions)
{
    auto const line = read({});
    EXPECT_TRUE(line.error.empty());
    EXPECT_FALSE(line.isHeadless());
    EXPECT_TRUE(line.file.empty());
}

TEST(CommandLine, FilesMayBeginWithADashBehindTwoDashes)
{
    EXPECT_EQ(read({"--", "--odd.step"}).file, L"--odd.step");
    EXPECT_EQ(read({"\xC3\xA4.step"}).file, L"\u00E4.step");
}

TEST(CommandLine, AnswersMistakesWithASentence)
{
    for (auto const& arguments : {std::initializer_list<char const*>{"--frobnicate"},
                                  {"--data"},
                                  {"a.step", "b.step"},
                                  {"--language", "german"},
                                  {"--export", "a.prc"},
                                  {"--screenshot", "a.png"}}) {
        auto const line = read(arguments);
        EXPECT_FALSE(line.error.empty()) << *arguments.begin();
        EXPECT_TRUE(line.error.ends_with(L"."));
    }
}

TEST(CommandLine, TellsTheFirstMistakeInTheLanguageThatFollowsIt)
{
    auto const line = read(
        {"--frobnicate", "--language", "de", "--export", "a.prc", "--data", "/d", "--language=german", "--service"});
    EXPECT_EQ(line.error, L"The option \"--frobnicate\" isn't known. Use --help to see all options.");
    EXPECT_EQ(line.language, L"de") << "no code, no language";
    EXPECT_EQ(line.dataDirectory, L"/d") << "the options' language is found by it";
}

TEST(CommandLine, AWrongLanguageIsNone)
{
    for (char const* const code : {"german", "DE", "d", ""}) {
        auto const line = read({"--language", code});
        EXPECT_EQ(line.error, L"The language must be a code of two letters, such as \"de\".") << code;
        EXPECT_EQ(line.language, L"") << "the words of the answer are those of the options or the system";
    }
}

TEST(CommandLine, KnowsTheSystemsLanguage)
{
    orvtest::ScopedVariables const earlier{"LC_ALL"};
    ::setenv("LC_ALL", "fr_FR.UTF-8", 1);
    EXPECT_EQ(orvviewer::systemLanguage(), L"fr");
    ::setenv("LC_ALL", "C", 1);
    EXPECT_EQ(orvviewer::systemLanguage(), L"en");
}
