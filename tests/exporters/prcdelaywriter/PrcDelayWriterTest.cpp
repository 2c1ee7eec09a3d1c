#include "exporters/prcdelaywriter/PrcDelayWriter.h"

#include "exporters/ExportLibraries.h"
#include "exporters/FileSizeLimit.h"
#include "exporters/prc/PrcReader.h"
#include "exporters/prcdelaywriter/DocumentMaker.h"
#include "host/orv/Preferences.h"
#include "host/orvsg/Value.h"
#include "platform/text/Text.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

namespace
{

using orvexp::Status;
using testing::ElementsAre;

class PrcDelayWriterTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string name = testing::TempDir() + "orv-delay-XXXXXX";
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        folder = name;
        maker.addNode(L"Root", -1);
        maker.move(maker.addNode(L"Square", 0, maker.addSquare(1000)), 2000, 0, 0);
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::wstring pathOf(char const* name) const { return orvtext::fromUtf8((folder / name).string()); }
    Status save(char const* name, std::shared_ptr<orv::Preferences> const& preferences = nullptr)
    {
        return writer.save(pathOf(name).c_str(), maker.document, preferences, &bar);
    }
    prc::Scene saved(char const* name) const
    {
        auto const result = prc::readFile(folder / name);
        EXPECT_EQ(result.problem, "");
        return result.scene.value();
    }
    bool isEmptyFolder() const { return std::filesystem::is_empty(folder); }

    std::filesystem::path folder;
    DocumentMaker maker;
    orvtest::ProgressBar bar;
    prcdelay::PrcDelayWriter writer;
};

TEST_F(PrcDelayWriterTest, WritesTheModel)
{
    EXPECT_EQ(save("Modell №1.prc"), Status::ok);
    auto const scene = saved("Modell №1.prc");
    EXPECT_EQ(scene.unit, 1);
    EXPECT_EQ(scene.occurrences.at(scene.root).name, "Root");
    EXPECT_EQ(scene.meshes.at(0).triangleCount(), 2U);
}

TEST_F(PrcDelayWriterTest, ReportsItsProgressAndLeavesTheBarItself)
{
    save("a.prc");
    EXPECT_GE(bar.percents.size(), 3U);
    EXPECT_TRUE(std::is_sorted(bar.percents.begin(), bar.percents.end()));
    EXPECT_LT(bar.percents.front(), 50) << "a long export would stand still";
    EXPECT_EQ(bar.percents.back(), 100);
}

TEST_F(PrcDelayWriterTest, WorksWithoutAProgressBar)
{
    EXPECT_EQ(writer.save(pathOf("a.prc").c_str(), maker.document, nullptr, nullptr), Status::ok);
}

TEST_F(PrcDelayWriterTest, TakesTheUnitFromTheSettings)
{
    struct Case {
        int choice;
        double millimetres;
    };
    for (auto const& [choice, millimetres] :
         {Case{0, 1000}, Case{1, 1}, Case{2, 10}, Case{3, 25.4}, Case{4, 304.8}, Case{5, 1}, Case{-1, 1}}) {
        auto preferences = std::make_shared<orv::Preferences>();
        preferences->add(std::make_shared<orvsg::Value<bool, 0>>(L"PREVIEW_IMAGE", false), nullptr);
        preferences->add(std::make_shared<orvsg::Value<int, 3>>(L"EXPORT_UNIT", choice), nullptr);
        ASSERT_EQ(save("a.prc", preferences), Status::ok);
        auto const scene = saved("a.prc");
        EXPECT_EQ(scene.unit, millimetres) << choice;
        EXPECT_NEAR(scene.meshes.at(0).points.at(3) * millimetres, 1000, 1e-9) << choice;
    }
}

TEST_F(PrcDelayWriterTest, IgnoresASettingOfAnotherType)
{
    auto preferences = std::make_shared<orv::Preferences>();
    preferences->add(std::make_shared<orvsg::Value<bool, 0>>(L"EXPORT_UNIT", true), nullptr);
    ASSERT_EQ(save("a.prc", preferences), Status::ok);
    EXPECT_EQ(saved("a.prc").unit, 1);
}

TEST_F(PrcDelayWriterTest, SaysThatThereIsNothingToWrite)
{
    EXPECT_EQ(writer.save(pathOf("a.prc").c_str(), nullptr, nullptr, &bar), Status::nothingToWrite);
    EXPECT_EQ(writer.save(pathOf("a.prc").c_str(), std::make_shared<orv::Document>(), nullptr, &bar),
              Status::nothingToWrite);
    EXPECT_TRUE(isEmptyFolder());
}

TEST_F(PrcDelayWriterTest, SaysThatItCannotWrite)
{
    EXPECT_EQ(save("missing/a.prc"), Status::noFolder);
    EXPECT_EQ(save((std::string(252, 'n') + ".prc").c_str()), Status::nameTooLong);
    EXPECT_EQ(writer.save(L"", maker.document, nullptr, &bar), Status::cannotWrite);
    EXPECT_EQ(writer.save(nullptr, maker.document, nullptr, &bar), Status::cannotWrite);
    EXPECT_TRUE(isEmptyFolder());
}

TEST_F(PrcDelayWriterTest, LeavesNoPartOfAFileThatIsTooLargeForTheDisk)
{
    Status status = Status::ok;
    {
        prctest::FileSizeLimit const limit(100);
        status = save("a.prc");
    }
    EXPECT_EQ(status, Status::fileTooLarge);
    EXPECT_TRUE(isEmptyFolder());
}

} // namespace
