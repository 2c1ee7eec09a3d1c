// The quantities of real assemblies, compared with what their STEP files' text says, and bills of what nobody expects.

#include "exporters/CommandOutput.h"
#include "exporters/ExportLibraries.h"
#include "exporters/bom/Csv.h"
#include "exporters/bom/StepCount.h"
#include "host/orvsg/SCBom.h"
#include "support/TestScene.h"
#include "viewer/ModelFixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include <sys/resource.h>

using namespace orvtest;
using testing::HasSubstr;

namespace
{

/// The text of a table's page without its blanks: how a report wraps a long name is its own business.
std::string withoutBlanks(std::string text)
{
    std::erase_if(text, [](unsigned char c) { return std::isspace(c) != 0; });
    return text;
}

class BillFiles
{
public:
    /// Saves the document's bill of one report level: 0 by part, 1 by level.
    std::filesystem::path save(std::shared_ptr<orv::IDocument> const& document, int level, char const* name)
    {
        orv::recordOf<orvsg::SCBom>(document, orvsg::SCBom::BOM)->reportLevel = level;
        auto const file = folder.path / name;
        EXPECT_EQ(loadExporter("bomwriter")->save(file.wstring().c_str(), document, nullptr, &bar), orvexp::Status::ok);
        return file;
    }
    CsvLines csv(std::shared_ptr<orv::IDocument> const& document, int level)
    {
        return parseCsv(contentOf(save(document, level, "bill.csv")));
    }
    std::string pdfText(std::shared_ptr<orv::IDocument> const& document, int level)
    {
        return outputOf("pdftotext -layout '" + save(document, level, "bill.bompdf").string() + "' -");
    }

    TemporaryFolder folder;
    ProgressBar bar;
};

class BillOfModel : public testing::TestWithParam<char const*>, protected BillFiles
{
protected:
    std::filesystem::path model() const
    {
        return std::string(GetParam()) == "sample" ? sampleModel() : sharedModel(GetParam());
    }
};

TEST_P(BillOfModel, CountsWhatTheFileSays)
{
    if (!std::filesystem::exists(model())) {
        GTEST_SKIP() << "skipped: the public test models are not there";
    }
    auto const document = importFile(model()).document;
    ASSERT_TRUE(document);
    auto const expected = countedInStep(model());
    ASSERT_FALSE(expected.empty());

    std::map<std::string, int> byPart;
    auto const parts = csv(document, 0);
    for (std::size_t i = 1; i < parts.size(); ++i) {
        EXPECT_TRUE(byPart.emplace(parts[i].at(1), std::stoi(parts[i].at(2))).second) << parts[i][1] << " stands twice";
    }
    EXPECT_EQ(byPart, expected);

    // By level: a row with none below it is a part.
    std::map<std::string, int> byLevel;
    auto const rows = csv(document, 1);
    for (std::size_t i = 1; i < rows.size(); ++i) {
        bool const isAssembly = i + 1 < rows.size() && std::stoi(rows[i + 1].at(1)) > std::stoi(rows[i].at(1));
        if (!isAssembly) {
            byLevel[rows[i].at(2)] += std::stoi(rows[i].at(4));
        }
    }
    EXPECT_EQ(byLevel, expected);

    auto const text = withoutBlanks(pdfText(document, 0));
    for (auto const& [name, quantity] : expected) {
        EXPECT_THAT(text, HasSubstr(withoutBlanks(name) + std::to_string(quantity)));
    }
}

INSTANTIATE_TEST_SUITE_P(Models, BillOfModel,
                         testing::Values("sample", "as1-oc-214.stp", "as1_pe_203.stp", "io1-cm-214.stp",
                                         "rounded-cube.step"),
                         [](auto const& tested) {
                             std::string name = tested.param;
                             std::replace_if(
                                 name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
                             return name;
                         });

class UnusualBill : public testing::Test, protected BillFiles
{
protected:
    /// A flat assembly of parts with these names.
    void setNames(std::vector<std::wstring> const& names)
    {
        std::vector<orvsg::Node> nodes{scene.topology->nodes.getValue(0)};
        nodes[0].children.clear();
        for (auto const& name : names) {
            orvsg::Node node;
            node.name = name;
            node.parent = 0;
            node.mesh = 0;
            nodes[0].children.push_back(static_cast<int>(nodes.size()));
            nodes.push_back(node);
        }
        scene.topology->nodes = orvsg::Container<int, orvsg::Node>(nodes);
    }

    TestScene scene;
};

TEST_F(UnusualBill, OfTenThousandDifferentParts)
{
    constexpr std::size_t count = 10000;
    std::vector<std::wstring> names;
    for (std::size_t i = 1; i <= count; ++i) {
        names.push_back(L"Bracket " + std::to_wstring(i) + L" of the frame");
    }
    setNames(names);
    auto const lines = csv(scene.document, 0);
    ASSERT_EQ(lines.size(), count + 1);
    EXPECT_EQ(lines[count], (std::vector<std::string>{"10000", "Bracket 10000 of the frame", "1"}));

    bar.percents.clear();
    rusage before{};
    getrusage(RUSAGE_SELF, &before);
    auto const text = pdfText(scene.document, 0);
    rusage after{};
    getrusage(RUSAGE_SELF, &after);
    EXPECT_GE(bar.percents.size(), 90U) << "the bar moves all the time";
    EXPECT_TRUE(std::is_sorted(bar.percents.begin(), bar.percents.end()));
    auto const pages = static_cast<int>(std::count(text.begin(), text.end(), '\f'));
    EXPECT_THAT(text, HasSubstr("Page " + std::to_string(pages) + " of " + std::to_string(pages)));
    EXPECT_GT(pages, 200);
    EXPECT_LT(pages, 400) << "rows stand close";
    std::size_t found = 0;
    for (std::size_t i = 1; i <= count; ++i) {
        found += text.find("Bracket " + std::to_string(i) + " of the frame") != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(found, count);
    constexpr long mostKilobytes = 100 * 1024;
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, mostKilobytes);
    RecordProperty("pages", pages);
    RecordProperty("kilobytes", static_cast<int>(after.ru_maxrss - before.ru_maxrss));
}

TEST_F(UnusualBill, OfNamesInManyScripts)
{
    setNames({L"חלק עליון", L"جزء علوي", L"上部ハウジング", L"齿轮箱", L"기어 하우징", L"Ζάντα", L"Шестерня",
              L"Écrou \"M8\"", L"bolt \U0001F529", L"a\u202Egnp.exe"});
    auto const lines = csv(scene.document, 0);
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_EQ(lines[1][1], "חלק עליון");
    EXPECT_EQ(lines[2][1], "جزء علوي");
    EXPECT_EQ(lines[8][1], "Écrou \"M8\"");
    EXPECT_EQ(lines[9][1], "bolt \U0001F529");
    auto const file = save(scene.document, 0, "scripts.bompdf");
    auto const text = outputOf("pdftotext -layout '" + file.string() + "' -");
    for (char const* const name : {"上部ハウジング", "齿轮箱", "기어", "Ζάντα", "Шестерня", "Écrou \"M8\""}) {
        EXPECT_THAT(text, HasSubstr(name));
    }
    EXPECT_THAT(withoutBlanks(text), HasSubstr("עליון"));
    EXPECT_THAT(text, HasSubstr("agnp.exe")) << "nothing turns a name around so that it reads as another";
    EXPECT_THAT(outputOf("qpdf --check '" + file.string() + "' 2>&1"),
                HasSubstr("No syntax or stream encoding errors"));
}

TEST_F(UnusualBill, OfNamesThatArentNames)
{
    setNames({L"", L"   ", L"two\r\nlines", L"tab\tinside", L"nul\u0001and\u001Bescape", L"\xD800lone", L"\"", L",,,",
              L"=1+1", std::wstring(3000, L'x')});
    for (int const level : {0, 1}) {
        auto const lines = csv(scene.document, level);
        std::size_t const name = level == 0 ? 1 : 2;
        ASSERT_EQ(lines.size(), 11U);
        EXPECT_EQ(lines[1][name], "");
        EXPECT_EQ(lines[2][name], "   ");
        EXPECT_EQ(lines[3][name], "two\r\nlines");
        EXPECT_EQ(lines[7][name], "\"");
        EXPECT_EQ(lines[8][name], ",,,");
        EXPECT_EQ(lines[9][name], "'=1+1");
        auto const file = save(scene.document, level, "odd.bompdf");
        EXPECT_THAT(outputOf("qpdf --check '" + file.string() + "' 2>&1"),
                    HasSubstr("No syntax or stream encoding errors"));
        auto const text = outputOf("pdftotext -layout '" + file.string() + "' -");
        EXPECT_THAT(text, HasSubstr("two lines"));
        EXPECT_THAT(text, HasSubstr("=1+1")) << "on paper a formula is no danger, and the name is as it was given";
        EXPECT_THAT(text, HasSubstr("10 items"));
    }
}

} // namespace
