// Assemblies of other systems, written by each mesh exporter and read again with Assimp.

#include "exporters/ExportLibraries.h"
#include "exporters/mesh/SceneFacts.h"
#include "viewer/ModelFixture.h"

#include <assimp/Importer.hpp>

using namespace orvtest;

namespace
{

class PublicModel : public testing::TestWithParam<char const*>
{
};

TEST_P(PublicModel, IsTheSameInEachMeshFormat)
{
    ORV_NEEDS_SHARED_MODEL(GetParam());
    auto const document = importFile(sharedModel(GetParam())).document;
    ASSERT_TRUE(document);
    auto const before = factsOf(document);
    ASSERT_GT(before.triangles, 0U);
    double const size = before.maximum[0] - before.minimum[0];
    TemporaryFolder const folder;
    struct Format {
        char const* library;
        char const* extension;
        bool keepsParts;
    };
    for (auto const& [library, extension, keepsParts] :
         {Format{"3dswriter", "3ds", true}, Format{"objwriter", "obj", true}, Format{"stlwriter", "stl", false}}) {
        auto const file = folder.path / (std::string("model.") + extension);
        ASSERT_EQ(loadExporter(library)->save(file.wstring().c_str(), document, nullptr, nullptr), orvexp::Status::ok);
        Assimp::Importer reader;
        auto const* const found = reader.ReadFile(file.string(), 0);
        ASSERT_NE(found, nullptr) << reader.GetErrorString();
        auto const after = factsOf(*found);
        EXPECT_EQ(after.parts, keepsParts ? before.parts : 1U) << extension;
        EXPECT_EQ(after.triangles, before.triangles) << extension;
        expectSameBox(before, after, 1e-5 * size);
    }
}

INSTANTIATE_TEST_SUITE_P(Models, PublicModel,
                         testing::Values("as1-oc-214.stp", "as1_pe_203.stp", "io1-cm-214.stp", "rounded-cube.step"),
                         [](auto const& tested) {
                             std::string name = tested.param;
                             std::replace_if(
                                 name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
                             return name;
                         });

} // namespace
