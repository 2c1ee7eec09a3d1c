// The PRC stream of a 3D PDF holds the model: read back, parts, triangles and box are the scene's.

#include "exporters/CommandOutput.h"
#include "exporters/ExportLibraries.h"
#include "exporters/ModelFacts.h"
#include "exporters/pdf/Instances.h"
#include "exporters/pdf/StoredView.h"
#include "viewer/ModelFixture.h"

#include <gmock/gmock.h>

using namespace orvtest;
using testing::HasSubstr;

namespace
{

Facts factsOf(prc::Scene const& scene)
{
    Facts facts;
    eachInstance(scene, [&](prc::Occurrence const&, prc::Part const& part, prc::Matrix const& world) {
        ++facts.parts;
        for (auto const& body : part.bodies) {
            auto const& mesh = scene.meshes[body.mesh.value()];
            facts.triangles += mesh.triangleCount();
            for (std::size_t i = 0; i < mesh.points.size(); i += 3) {
                auto const point = pointIn(world, &mesh.points[i]);
                facts.add(point[0], point[1], point[2]);
            }
        }
    });
    return facts;
}

class PdfModel : public testing::TestWithParam<char const*>
{
};

TEST_P(PdfModel, StandsInTheStreamAsInTheViewer)
{
    auto const model = std::string(GetParam()) == "sample" ? sampleModel() : sharedModel(GetParam());
    if (!std::filesystem::exists(model)) {
        GTEST_SKIP() << "skipped: the public test models are not there";
    }
    auto const document = importFile(model).document;
    ASSERT_TRUE(document);
    TemporaryFolder const folder;
    auto const file = folder.path / "model.pdf";
    ProgressBar bar;
    ASSERT_EQ(loadExporter("pdfwriter")->save(file.wstring().c_str(), document, nullptr, &bar), orvexp::Status::ok);
    auto const before = orvtest::factsOf(document);
    auto const after = factsOf(storedView(file).artwork);
    EXPECT_GT(before.triangles, 0U);
    EXPECT_EQ(after.parts, before.parts);
    EXPECT_EQ(after.triangles, before.triangles);
    expectSameBox(before, after, 1e-3);
    EXPECT_THAT(outputOf("qpdf --check '" + file.string() + "' 2>&1"),
                HasSubstr("No syntax or stream encoding errors"));
    auto const text = outputOf("pdftotext -layout '" + file.string() + "' -");
    EXPECT_THAT(text, HasSubstr(model.stem().string()));
    EXPECT_THAT(text, HasSubstr(std::to_string(before.triangles) + " triangle"));
    EXPECT_THAT(outputOf("pdfinfo '" + file.string() + "'"), testing::ContainsRegex("Pages: +1\n"));
}

INSTANTIATE_TEST_SUITE_P(Models, PdfModel,
                         testing::Values("sample", "as1-oc-214.stp", "as1_pe_203.stp", "io1-cm-214.stp",
                                         "rounded-cube.step"),
                         [](auto const& tested) {
                             std::string name = tested.param;
                             std::replace_if(
                                 name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
                             return name;
                         });

/// Many instances of few parts, as large assemblies are.
TEST(PdfOfManyParts, ShowsItsCourse)
{
    auto const document = importFile(sampleModel()).document;
    ASSERT_TRUE(document);
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    auto const resources = orv::recordOf<orvsg::SCSceneRes>(document);
    std::vector<orvsg::Node> nodes(topology->nodes.begin(), topology->nodes.end());
    std::size_t const before = nodes.size();
    constexpr std::size_t most = 10000;
    int pin = 0; // one of the smallest parts, many times over
    for (std::size_t i = 0; i < before; ++i) {
        pin = nodes[i].name == L"Planet pin 1" ? static_cast<int>(i) : pin;
    }
    ASSERT_GT(pin, 0);
    while (nodes.size() < most) {
        auto copy = nodes[static_cast<std::size_t>(pin)];
        copy.parent = 0;
        nodes[0].children.push_back(static_cast<int>(nodes.size()));
        topology->transformOfNode.append(static_cast<int>(resources->transforms.size()));
        orvsg::Transform placement;
        placement.matrix[12] = static_cast<float>(nodes.size() % 100) * 20;
        placement.matrix[13] = static_cast<float>(nodes.size() / 100) * 20;
        placement.isSet = true;
        resources->transforms.append(placement);
        resources->materials.append(resources->materials.getValue(pin));
        resources->boxes.append(resources->boxes.getValue(pin));
        nodes.push_back(copy);
    }
    topology->nodes = orvsg::Container<int, orvsg::Node>(nodes);
    TemporaryFolder const folder;
    auto const file = folder.path / "many.pdf";
    ProgressBar bar;
    ASSERT_EQ(loadExporter("pdfwriter")->save(file.wstring().c_str(), document, nullptr, &bar), orvexp::Status::ok);
    EXPECT_TRUE(std::is_sorted(bar.percents.begin(), bar.percents.end()));
    EXPECT_GE(bar.percents.size(), 10U);
    EXPECT_EQ(bar.percents.back(), 100);
    auto const facts = orvtest::factsOf(document);
    auto const after = factsOf(storedView(file).artwork);
    EXPECT_EQ(after.parts, facts.parts);
    EXPECT_EQ(after.triangles, facts.triangles);
    EXPECT_LT(std::filesystem::file_size(file), 3'000'000U) << "each part's mesh stands in the file once";
}

} // namespace
