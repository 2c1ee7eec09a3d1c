#include "exporters/prcdelaywriter/SceneBuilder.h"

#include "exporters/prcdelaywriter/DocumentMaker.h"
#include "host/orvsgutils/MaterialUtils.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace
{

using orvsgutils::MaterialUtils;
using testing::ElementsAre;

// Finds occurrences by name and tells what they show.
class BuiltScene
{
public:
    explicit BuiltScene(DocumentMaker const& maker, double unit = 1)
        : scene(prcdelay::buildScene(maker.document, unit).value())
    {
        EXPECT_EQ(problemOf(scene), std::nullopt);
    }

    prc::Occurrence const& at(std::string const& name) const
    {
        for (auto const& occurrence : scene.occurrences)
            if (occurrence.name == name && &occurrence != prototypeOf(name))
                return occurrence;
        throw std::out_of_range(name);
    }
    prc::Part const& partAt(std::string const& name) const
    {
        auto const& occurrence = at(name);
        return scene.parts.at(occurrence.part ? *occurrence.part
                                              : scene.occurrences.at(occurrence.prototype.value()).part.value());
    }
    prc::Body const& bodyAt(std::string const& name) const { return partAt(name).bodies.at(0); }
    prc::Mesh const& meshAt(std::string const& name) const { return scene.meshes.at(bodyAt(name).mesh.value()); }
    prc::Style const& styleAt(std::string const& name) const { return scene.styles.at(bodyAt(name).style.value()); }
    std::vector<std::string> childrenOf(std::string const& name) const
    {
        std::vector<std::string> names;
        for (std::size_t const child : at(name).children)
            names.push_back(scene.occurrences[child].name);
        return names;
    }

    prc::Scene scene;

private:
    // Prototypes bear the name of their part and stand before the tree.
    prc::Occurrence const* prototypeOf(std::string const& name) const
    {
        for (auto const& occurrence : scene.occurrences)
            if (occurrence.prototype && scene.occurrences[*occurrence.prototype].name == name)
                return &scene.occurrences[*occurrence.prototype];
        return nullptr;
    }
};

prc::Style styled(int red, int green, int blue, std::uint8_t opacity = 255)
{
    return {{red / 255.0, green / 255.0, blue / 255.0}, opacity};
}

TEST(SceneBuilder, KeepsTheTreeInItsOrder)
{
    DocumentMaker maker;
    int const mesh = maker.addSquare(10);
    maker.addNode(L"Root", -1);
    int const left = maker.addNode(L"Left", 0);
    maker.addNode(L"A", left, mesh);
    maker.addNode(L"B", left, mesh);
    maker.addNode(L"Übergröße 試 \U0001F600", 0, mesh);
    BuiltScene const built(maker);
    EXPECT_EQ(built.scene.occurrences[built.scene.root].name, "Root");
    EXPECT_THAT(built.childrenOf("Root"), ElementsAre("Left", "Übergröße 試 😀"));
    EXPECT_THAT(built.childrenOf("Left"), ElementsAre("A", "B"));
}

TEST(SceneBuilder, StoresARepeatedPartOnce)
{
    DocumentMaker maker;
    int const mesh = maker.addSquare(10);
    maker.addNode(L"Root", -1);
    for (wchar_t const* name : {L"A", L"B", L"C"})
        maker.addNode(name, 0, mesh);
    maker.addNode(L"Other", 0, maker.addSquare(5));
    BuiltScene const built(maker);
    EXPECT_EQ(built.scene.meshes.size(), 2U);
    EXPECT_EQ(built.scene.parts.size(), 2U);
    EXPECT_EQ(built.scene.occurrences.size(), 6U) << "five nodes and a prototype";
    EXPECT_EQ(built.at("B").prototype, built.at("C").prototype);
    EXPECT_TRUE(built.at("Other").part) << "placed once, so without a prototype";
}

TEST(SceneBuilder, TakesCurrentPlacements)
{
    DocumentMaker maker;
    maker.addNode(L"Root", -1);
    int const node = maker.addNode(L"A", 0, maker.addSquare(10));
    maker.move(node, 1, -2.5F, 3);
    BuiltScene const built(maker);
    EXPECT_EQ(built.at("A").placement, (prc::Matrix{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, -2.5, 3, 1}));
    EXPECT_EQ(built.at("Root").placement, prc::identity);
}

TEST(SceneBuilder, TakesNoMatrixThatIsNotSetOrNotFinite)
{
    DocumentMaker maker;
    maker.addNode(L"Root", -1);
    int const notSet = maker.addNode(L"A", 0, maker.addSquare(10));
    orvsg::Transform transform;
    transform.matrix[12] = 5;
    maker.resources->transforms.setValue(notSet, transform);
    maker.move(maker.addNode(L"B", 0), std::numeric_limits<float>::infinity(), 0, 0);
    BuiltScene const built(maker);
    EXPECT_EQ(built.at("A").placement, prc::identity);
    EXPECT_EQ(built.at("B").placement, prc::identity);
}

TEST(SceneBuilder, GivesEachInstanceItsColourAndSharesTheMesh)
{
    DocumentMaker maker;
    int const mesh = maker.addSquare(10);
    maker.addNode(L"Root", -1);
    int const red = maker.addNode(L"Red", 0, mesh);
    maker.addNode(L"Grey", 0, mesh);
    maker.addNode(L"Grey too", 0, mesh);
    maker.setFileColor(red, 0x0000FF);
    BuiltScene const built(maker);
    EXPECT_EQ(built.styleAt("Red"), styled(255, 0, 0));
    EXPECT_EQ(built.styleAt("Grey"), styled(180, 180, 180));
    EXPECT_EQ(built.scene.meshes.size(), 1U);
    EXPECT_EQ(built.scene.parts.size(), 2U);
}

TEST(SceneBuilder, LetsAnAssemblyColourWhatIsBelow)
{
    DocumentMaker maker;
    maker.addNode(L"Root", -1);
    int const assembly = maker.addNode(L"Assembly", 0);
    maker.addNode(L"A", assembly, maker.addSquare(10));
    maker.setFileColor(assembly, 0x102030);
    EXPECT_EQ(BuiltScene(maker).styleAt("A"), styled(0x30, 0x20, 0x10));
}

TEST(SceneBuilder, ColoursSingleFacesUnlessTheUserPaintedOverThem)
{
    DocumentMaker maker;
    int const mesh = maker.addSquare(10, 0x00FF00);
    maker.addNode(L"Root", -1);
    maker.addNode(L"As in the file", 0, mesh);
    int const painted = maker.addNode(L"Painted", 0, mesh);
    MaterialUtils::setNodeColor(painted, 0xFF0000, maker.resources, maker.runtime, maker.topology);
    BuiltScene const built(maker);

    auto const& faces = built.meshAt("As in the file").faces;
    ASSERT_EQ(faces.size(), 2U);
    EXPECT_TRUE(faces[0].styles.empty());
    ASSERT_EQ(faces[1].styles.size(), 1U);
    EXPECT_EQ(built.scene.styles[faces[1].styles[0]], styled(0, 255, 0));

    EXPECT_EQ(built.styleAt("Painted"), styled(0, 0, 255));
    ASSERT_EQ(built.meshAt("Painted").faces.size(), 1U);
    EXPECT_TRUE(built.meshAt("Painted").faces[0].styles.empty());
}

TEST(SceneBuilder, MakesBodyAndFacesTransparent)
{
    DocumentMaker maker;
    int const mesh = maker.addSquare(10, 0x00FF00);
    maker.addNode(L"Root", -1);
    maker.addNode(L"Opaque", 0, mesh);
    int const glass = maker.addNode(L"Glass", 0, mesh);
    MaterialUtils::setNodeTransparency(glass, 0.75F, maker.resources, maker.runtime, maker.topology);
    BuiltScene const built(maker);
    EXPECT_EQ(built.styleAt("Opaque").opacity, 255);
    EXPECT_EQ(built.styleAt("Glass"), styled(180, 180, 180, 64));
    auto const& face = built.meshAt("Glass").faces.at(1);
    EXPECT_EQ(built.scene.styles.at(face.styles.at(0)), styled(0, 255, 0, 64));
}

TEST(SceneBuilder, HidesWhatIsBelowAHiddenNode)
{
    DocumentMaker maker;
    maker.addNode(L"Root", -1);
    int const assembly = maker.addNode(L"Assembly", 0);
    maker.addNode(L"Below", assembly, maker.addSquare(10));
    maker.addNode(L"Beside", 0, maker.addSquare(5));
    maker.hide(assembly);
    BuiltScene const built(maker);
    EXPECT_FALSE(built.at("Root").hidden);
    EXPECT_TRUE(built.at("Assembly").hidden);
    EXPECT_TRUE(built.at("Below").hidden);
    EXPECT_FALSE(built.at("Beside").hidden);
}

TEST(SceneBuilder, ShowsEverythingWithoutRunTimeState)
{
    DocumentMaker maker;
    maker.addNode(L"Root", -1, maker.addSquare(10));
    std::static_pointer_cast<orv::Document>(maker.document)->setSchema(orvsg::SCSceneRT::key, nullptr);
    EXPECT_FALSE(BuiltScene(maker).at("Root").hidden);
}

TEST(SceneBuilder, HangsAnAssemblysOwnGeometryBelowIt)
{
    DocumentMaker maker;
    int const mesh = maker.addSquare(10);
    maker.addNode(L"Root", -1, mesh);
    maker.addNode(L"A", 0, mesh);
    BuiltScene const built(maker);
    auto const& root = built.scene.occurrences[built.scene.root];
    EXPECT_FALSE(root.part || root.prototype);
    ASSERT_EQ(root.children.size(), 2U);
    EXPECT_TRUE(built.scene.occurrences[root.children[0]].prototype);
    EXPECT_EQ(built.scene.occurrences[root.children[1]].name, "A");
}

TEST(SceneBuilder, IsNamedAfterTheFile)
{
    DocumentMaker maker;
    maker.addNode(L"Root", -1);
    EXPECT_EQ(BuiltScene(maker).scene.name, "Root") << "a document without a file";
    maker.info->setFile(L"/models/gear.box.step");
    EXPECT_EQ(BuiltScene(maker).scene.name, "gear.box");
}

TEST(SceneBuilder, ConvertsLengthsAndNothingElse)
{
    DocumentMaker maker;
    maker.addNode(L"Root", -1);
    int const node = maker.addNode(L"A", 0, maker.addSquare(254));
    maker.move(node, 50.8F, 0, 0);
    BuiltScene const built(maker, 25.4);
    EXPECT_EQ(built.scene.unit, 25.4);
    EXPECT_NEAR(built.at("A").placement[12], 2, 1e-6);
    EXPECT_EQ(built.at("A").placement[0], 1);
    EXPECT_NEAR(built.meshAt("A").points[3], 10, 1e-9);
}

TEST(SceneBuilder, SurvivesRecordsThatDontHoldTogether)
{
    DocumentMaker maker;
    maker.addNode(L"Root", -1);
    maker.addNode(L"No such mesh", 0, 99);
    maker.addNode(L"No such parent", 50, maker.addSquare(1));
    maker.addNode(L"Its own parent", 3);
    maker.resources->meshes.push_back(nullptr);
    maker.addNode(L"Empty mesh", 0, 1);
    maker.resources->materials.clear();
    maker.topology->transformOfNode.clear();
    maker.runtime->visibility.clear();
    BuiltScene const built(maker);
    EXPECT_THAT(built.childrenOf("Root"),
                ElementsAre("No such mesh", "No such parent", "Its own parent", "Empty mesh"));
    EXPECT_EQ(built.scene.parts.size(), 1U);
}

TEST(SceneBuilder, GivesNothingWithoutATree)
{
    EXPECT_FALSE(prcdelay::buildScene(nullptr, 1));
    EXPECT_FALSE(prcdelay::buildScene(std::make_shared<orv::Document>(), 1));
    DocumentMaker const empty;
    EXPECT_FALSE(prcdelay::buildScene(empty.document, 1));
}

} // namespace
