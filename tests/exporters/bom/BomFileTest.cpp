// Bills of materials as a buyer gets them.

#include "exporters/CommandOutput.h"
#include "exporters/ExportLibraries.h"
#include "exporters/FileSizeLimit.h"
#include "exporters/bom/Csv.h"
#include "host/orvsg/SCBom.h"
#include "support/TestScene.h"
#include "viewer/ModelFixture.h"

#include <gmock/gmock.h>

#include <sstream>

using namespace orvtest;
using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

class BomFile : public testing::Test
{
protected:
    void rename(int node, std::wstring const& name)
    {
        auto record = scene.topology->nodes.getValue(node);
        record.name = name;
        scene.topology->nodes.setValue(node, record);
    }
    std::filesystem::path save(char const* name)
    {
        auto const file = folder.path / name;
        EXPECT_EQ(loadExporter("bomwriter")->save(file.wstring().c_str(), scene.document, nullptr, nullptr),
                  orvexp::Status::ok);
        return file;
    }
    std::string pdfText(std::filesystem::path const& file) const
    {
        return outputOf("pdftotext -layout '" + file.string() + "' -");
    }

    TestScene scene;
    TemporaryFolder folder;
};

TEST_F(BomFile, CsvByPartCountsEachPartOverTheWholeModel)
{
    scene.bom->reportLevel = 0;
    EXPECT_EQ(parseCsv(contentOf(save("a.csv"))),
              (CsvLines{{"Item", "Part", "Quantity"}, {"1", "housing", "1"}, {"2", "shaft", "1"}, {"3", "gear", "2"}}));
}

TEST_F(BomFile, CsvByLevelFollowsTheTree)
{
    scene.bom->reportLevel = 1;
    EXPECT_EQ(parseCsv(contentOf(save("A.CSV"))), (CsvLines{{"Item", "Level", "Part", "Quantity", "Total"},
                                                            {"1", "1", "housing", "1", "1"},
                                                            {"2", "1", "shaft assembly", "1", "1"},
                                                            {"2.1", "2", "shaft", "1", "1"},
                                                            {"2.2", "2", "gear", "2", "2"}}));
}

TEST_F(BomFile, NamesThatLookLikeFormulasAreText)
{
    scene.bom->reportLevel = 0;
    struct Name {
        wchar_t const* model;
        char const* cell;
    };
    for (Name const& name :
         {Name{L"=HYPERLINK(\"http://example.com\",\"x\")", "'=HYPERLINK(\"http://example.com\",\"x\")"},
          Name{L"+1", "'+1"}, Name{L"-1+1", "'-1+1"}, Name{L"@SUM(A1)", "'@SUM(A1)"}, Name{L"\t=1", "'\t=1"},
          Name{L"\r=1", "'\r=1"}, Name{L"  =1", "'  =1"}, Name{L"a=b", "a=b"}, Name{L"M8-20", "M8-20"},
          Name{L"   ", "   "}}) {
        rename(1, name.model);
        auto const lines = parseCsv(contentOf(save("a.csv")));
        ASSERT_GE(lines.size(), 2U);
        EXPECT_EQ(lines[1][1], name.cell);
    }
}

TEST_F(BomFile, TotalsMultiplyDownTheTree)
{
    // A second shaft assembly like the first one, with all that is in it.
    std::vector<orvsg::Node> nodes(scene.topology->nodes.begin(), scene.topology->nodes.end());
    nodes[0].children.push_back(6);
    nodes.push_back(nodes[2]);
    nodes[6].children = {7, 8, 9};
    for (int i = 3; i <= 5; ++i) {
        nodes.push_back(nodes[static_cast<std::size_t>(i)]);
        nodes.back().parent = 6;
    }
    scene.topology->nodes = orvsg::Container<int, orvsg::Node>(nodes);
    scene.bom->reportLevel = 1;
    auto const lines = parseCsv(contentOf(save("a.csv")));
    EXPECT_THAT(lines.at(2), ElementsAre("2", "1", "shaft assembly", "2", "2"));
    EXPECT_THAT(lines.at(4), ElementsAre("2.2", "2", "gear", "2", "4"));
}

TEST_F(BomFile, RecordOfTheModelStaysAsItIs)
{
    scene.bom->reportLevel = 1;
    scene.bom->items = {{L"kept", 0, 7}};
    save("a.csv");
    EXPECT_EQ(scene.bom->items.size(), 1U);
    EXPECT_EQ(scene.bom->reportLevel, 1);
}

TEST_F(BomFile, CsvKeepsAnyName)
{
    rename(1, L"Gehäuse, \"oben\"\r\n歯車");
    rename(3, L" leading blank");
    EXPECT_EQ(parseCsv(contentOf(save("a.csv"))).at(1).at(1), "Gehäuse, \"oben\"\r\n歯車");
    EXPECT_EQ(parseCsv(contentOf(save("a.csv"))).at(2).at(1), " leading blank");
}

TEST_F(BomFile, PdfSaysWhatABuyerNeeds)
{
    scene.bom->reportLevel = 0;
    auto const text = pdfText(save("gearbox_PartLevel.bompdf"));
    EXPECT_THAT(text, HasSubstr("gearbox"));
    EXPECT_THAT(text, HasSubstr("Bill of materials by part"));
    EXPECT_THAT(text, testing::ContainsRegex("20[0-9][0-9]-[01][0-9]-[0-3][0-9]"));
    EXPECT_THAT(text, testing::ContainsRegex("Item +Part +Quantity"));
    EXPECT_THAT(text, testing::ContainsRegex("3 +gear +2"));
    EXPECT_THAT(text, HasSubstr("3 items"));
    EXPECT_THAT(text, HasSubstr("4 pieces"));
    EXPECT_THAT(text, HasSubstr("Page 1 of 1"));
}

TEST_F(BomFile, PdfByLevelFollowsTheTree)
{
    scene.bom->reportLevel = 1;
    auto const text = pdfText(save("a.bompdf"));
    EXPECT_THAT(text, HasSubstr("Bill of materials by level"));
    EXPECT_THAT(text, testing::ContainsRegex("2\\.2 +gear +2 +2"));
}

TEST_F(BomFile, PdfByLevelShowsTheItemsOfDeepTreesWhole)
{
    for (int const depth : {12, 60}) {
        std::vector<orvsg::Node> nodes{scene.topology->nodes.getValue(0)};
        nodes[0].children.clear();
        std::string item;
        for (int i = 1; i <= depth; ++i) {
            nodes.back().children.push_back(i);
            nodes.push_back({L"level " + std::to_wstring(i), i - 1, {}, -1});
            item += i > 1 ? ".1" : "1";
        }
        nodes.back().mesh = 0;
        scene.topology->nodes = orvsg::Container<int, orvsg::Node>(nodes);
        scene.bom->reportLevel = 1;
        auto text = pdfText(save("a.bompdf"));
        EXPECT_EQ(text.find("\u2026"), std::string::npos) << "nothing is cut off";
        EXPECT_EQ(text.find(item) != std::string::npos, depth == 12) << "that of the deepest tree takes several lines";
        EXPECT_THAT(text, HasSubstr("level " + std::to_string(depth)));
        // The numbers of all items are there, whatever their lines.
        std::ptrdiff_t const points = std::count(text.begin(), text.end(), '.');
        EXPECT_EQ(points, depth * (depth - 1) / 2);
    }
}

TEST_F(BomFile, PdfByLevelHasRoomForTheWidestItemNotTheOneOfMostSigns)
{
    std::vector<orvsg::Node> nodes{scene.topology->nodes.getValue(0)};
    nodes[0].children.clear();
    auto const add = [&](int parent, std::wstring const& name) {
        int const number = static_cast<int>(nodes.size());
        nodes[static_cast<std::size_t>(parent)].children.push_back(number);
        nodes.push_back({name, parent, {}, -1});
        return number;
    };
    std::string narrow = "1"; // a chain of 12 levels: 23 signs, of which 11 are points
    for (int level = 0, parent = 0; level < 12; ++level) {
        parent = add(parent, L"chain " + std::to_wstring(level));
        narrow += level > 0 ? ".1" : "";
    }
    std::string wide; // 22 signs, of which 7 are points
    int parent = 0;
    for (int level = 0; level < 7; ++level) {
        for (int place = level == 0 ? 2 : 1; place < 10; ++place) {
            nodes[static_cast<std::size_t>(add(parent, L"leaf " + std::to_wstring(place)))].mesh = 0;
        }
        parent = add(parent, L"tenth " + std::to_wstring(level));
        wide += "10.";
    }
    nodes[static_cast<std::size_t>(add(parent, L"last"))].mesh = 0;
    wide += "1";
    ASSERT_LT(wide.size(), narrow.size());
    scene.topology->nodes = orvsg::Container<int, orvsg::Node>(nodes);
    scene.bom->reportLevel = 1;
    auto const text = pdfText(save("a.bompdf"));
    EXPECT_THAT(text, HasSubstr(narrow));
    EXPECT_THAT(text, HasSubstr(wide)) << "on one line";
}

TEST_F(BomFile, LongListsHaveAHeadAndANumberOnEachPage)
{
    std::vector<orvsg::Node> nodes{scene.topology->nodes.getValue(0)};
    nodes[0].children.clear();
    for (int i = 1; i <= 120; ++i) {
        orvsg::Node node;
        node.name = L"part number " + std::to_wstring(i);
        node.parent = 0;
        node.mesh = 0;
        nodes[0].children.push_back(i);
        nodes.push_back(node);
    }
    scene.topology->nodes = orvsg::Container<int, orvsg::Node>(nodes);
    auto const file = save("a.bompdf");
    auto const text = pdfText(file);
    std::size_t pages = 0;
    std::size_t heads = 0;
    for (std::size_t at = text.find("Quantity"); at != std::string::npos; at = text.find("Quantity", at + 1)) {
        ++heads;
    }
    for (char const c : text) {
        pages += c == '\f' ? 1 : 0;
    }
    EXPECT_GE(pages, 3U);
    EXPECT_EQ(heads, pages);
    for (std::size_t page = 1; page <= pages; ++page) {
        EXPECT_THAT(text, HasSubstr("Page " + std::to_string(page) + " of " + std::to_string(pages)));
    }
    for (int i = 1; i <= 120; ++i) {
        EXPECT_THAT(text, HasSubstr("part number " + std::to_string(i) + " "));
    }
}

TEST_F(BomFile, LongAndForeignNamesAreWrappedAndTheirFontsEmbedded)
{
    rename(1, L"Gehäuse 歯車箱 " + std::wstring(150, L'x') + L" Ende");
    auto const file = save("a.bompdf");
    auto const text = pdfText(file);
    EXPECT_THAT(text, HasSubstr("歯車箱"));
    EXPECT_THAT(text, HasSubstr("Ende"));
    auto const fonts = outputOf("pdffonts '" + file.string() + "'");
    std::istringstream lines(fonts);
    std::string line;
    std::size_t count = 0;
    while (std::getline(lines, line)) {
        if (line.find("Type") != std::string::npos || line.find("TrueType") != std::string::npos) {
            count += line.find("name") == std::string::npos ? 1 : 0;
        }
        EXPECT_EQ(line.find(" no  yes"), std::string::npos) << line;
    }
    EXPECT_GE(count, 2U) << fonts;
    EXPECT_THAT(outputOf("qpdf --check '" + file.string() + "' 2>&1"),
                HasSubstr("No syntax or stream encoding errors"));
}

TEST_F(BomFile, NameLongerThanAPageIsCutInPrintOnly)
{
    std::wstring const longName(100000, L'W');
    rename(1, longName);
    EXPECT_THAT(pdfText(save("a.bompdf")), HasSubstr("gear"));
    EXPECT_EQ(parseCsv(contentOf(save("a.csv"))).at(1).at(1).size(), longName.size());
}

TEST_F(BomFile, SizeThatTheDiskRefusesLeavesNothing)
{
    for (char const* name : {"a.csv", "a.bompdf"}) {
        prctest::FileSizeLimit const limit(10);
        auto const file = folder.path / name;
        EXPECT_EQ(loadExporter("bomwriter")->save(file.wstring().c_str(), scene.document, nullptr, nullptr),
                  orvexp::Status::fileTooLarge);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path));
}

} // namespace
