#include "exporters/FileSizeLimit.h"
#include "exporters/prc/PrcReader.h"
#include "exporters/prc/PrcWriter.h"
#include "exporters/prc/TestScenes.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace
{

using namespace prc;
using Result = WriteOutcome::Result;

class WriteFile : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string name = testing::TempDir() + "orv-prc-XXXXXX";
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        folder = name;
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        for (auto const& entry : std::filesystem::directory_iterator(folder))
            names.push_back(entry.path().filename());
        return names;
    }

    void put(std::string const& name, std::string const& content) const { std::ofstream(folder / name) << content; }

    std::string contentOf(std::string const& name) const
    {
        std::ifstream stream(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    std::filesystem::path folder;
};

TEST_F(WriteFile, WritesAWholeFileAndNothingElse)
{
    auto const outcome = writeFile(prctest::assembly(), folder / "Größe – 試験.prc");
    EXPECT_TRUE(outcome) << outcome.problem;
    EXPECT_THAT(files(), testing::ElementsAre("Größe – 試験.prc"));
    EXPECT_EQ(readFile(folder / "Größe – 試験.prc").problem, "");
}

TEST_F(WriteFile, ReplacesAFileOfThatName)
{
    put("a.prc", std::string(100000, 'x'));
    EXPECT_TRUE(writeFile(prctest::oneBox(), folder / "a.prc"));
    EXPECT_TRUE(*readFile(folder / "a.prc").scene == prctest::oneBox());
    EXPECT_THAT(files(), testing::ElementsAre("a.prc"));
}

TEST_F(WriteFile, LeavesNothingOfAFileThatIsTooLargeForTheDisk)
{
    put("a.prc", "old");
    prctest::FileSizeLimit const limit(200);
    for (char const* name : {"a.prc", "b.prc"}) {
        auto const outcome = writeFile(prctest::assembly(), folder / name);
        EXPECT_EQ(outcome.result, Result::cannotWrite);
        EXPECT_THAT(outcome.problem, testing::AllOf(testing::StartsWith("Can't write"), testing::HasSubstr(name)));
    }
    EXPECT_THAT(files(), testing::ElementsAre("a.prc"));
    EXPECT_EQ(contentOf("a.prc"), "old");
}

TEST_F(WriteFile, SaysWhyItCannotWrite)
{
    EXPECT_EQ(writeFile(prctest::oneBox(), folder / "missing" / "a.prc").result, Result::cannotWrite);
    EXPECT_EQ(writeFile(prctest::oneBox(), folder).result, Result::cannotWrite) << "a directory has that name";
    EXPECT_EQ(writeFile(prctest::oneBox(), "").result, Result::cannotWrite);
    EXPECT_THAT(files(), testing::IsEmpty());
}

TEST_F(WriteFile, RefusesAnUnsoundSceneBeforeItTouchesTheDisk)
{
    Scene scene = prctest::oneBox();
    scene.root = 5;
    auto const outcome = writeFile(scene, folder / "a.prc");
    EXPECT_EQ(outcome.result, Result::unsound);
    EXPECT_THAT(outcome.problem, testing::HasSubstr("no root"));
    EXPECT_THAT(files(), testing::IsEmpty());
}

TEST_F(WriteFile, ReportsProgressThatRisesToTheEnd)
{
    std::vector<double> steps;
    WriteOptions options;
    options.progress = [&](double done) {
        steps.push_back(done);
        return true;
    };
    EXPECT_TRUE(writeFile(prctest::assembly(), folder / "a.prc", options));
    EXPECT_GE(steps.size(), 3U);
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
    EXPECT_GE(steps.front(), 0);
    EXPECT_DOUBLE_EQ(steps.back(), 1);
}

TEST_F(WriteFile, StopsWhereverItIsCancelled)
{
    int calls = 0;
    WriteOptions options;
    options.progress = [&](double) {
        ++calls;
        return true;
    };
    ASSERT_TRUE(writeFile(prctest::assembly(), folder / "a.prc", options));
    put("a.prc", "old");
    for (int last = 1; last <= calls; ++last) {
        int left = last;
        options.progress = [&](double) { return --left > 0; };
        EXPECT_EQ(writeFile(prctest::assembly(), folder / "a.prc", options).result, Result::cancelled) << last;
        EXPECT_EQ(left, 0) << "asked once more after the cancellation";
        EXPECT_EQ(contentOf("a.prc"), "old");
        EXPECT_THAT(files(), testing::ElementsAre("a.prc"));
    }
}

} // namespace
