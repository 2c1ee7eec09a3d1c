#include "tests/viewer/ModelFixture.h"

#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCBom.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCPmi.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"
#include "viewer/import/CrashGuard.h"
#include "viewer/import/FileKind.h"
#include "viewer/scene/EdgeRecord.h"

#include <cmath>
#include <map>
#include <random>
#include <set>
#include <stdexcept>

using namespace orvtest;

namespace
{

struct Records {
    explicit Records(std::shared_ptr<orv::IDocument> const& document)
        : topology(orv::recordOf<orvsg::SCSceneTopo>(document)), resources(orv::recordOf<orvsg::SCSceneRes>(document)),
          runtime(orv::recordOf<orvsg::SCSceneRT>(document)), edges(orv::recordOf<orvviewer::EdgeRecord>(document))
    {
    }
    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orvsg::SCSceneRes> resources;
    std::shared_ptr<orvsg::SCSceneRT> runtime;
    std::shared_ptr<orvviewer::EdgeRecord> edges;
};

int partCount(Records const& records)
{
    int count = 0;
    for (auto const& node : records.topology->nodes) {
        count += node.mesh >= 0 ? 1 : 0;
    }
    return count;
}

void expectSoundRecords(std::shared_ptr<orv::IDocument> const& document)
{
    Records const records(document);
    ASSERT_TRUE(records.topology && records.resources && records.runtime && records.edges);
    auto const nodes = records.topology->nodes.size();
    EXPECT_EQ(records.topology->transformOfNode.size(), nodes);
    EXPECT_EQ(records.resources->transforms.size(), nodes);
    EXPECT_EQ(records.resources->initialTransforms.size(), nodes);
    EXPECT_EQ(records.resources->materials.size(), nodes);
    EXPECT_EQ(records.resources->boxes.size(), nodes);
    EXPECT_EQ(records.runtime->visibility.size(), nodes);
    EXPECT_EQ(records.edges->segmentsOfMesh.size(), records.resources->meshes.size());
    for (int i = 0; i < static_cast<int>(nodes); ++i) {
        auto const& node = records.topology->nodes.getValue(i);
        EXPECT_LT(node.parent, i) << "a parent stands before its children";
        EXPECT_FALSE(node.name.empty());
        for (int const child : node.children) {
            EXPECT_EQ(records.topology->nodes.getValue(child).parent, i);
        }
    }
    for (auto const& mesh : records.resources->meshes) {
        EXPECT_EQ(mesh->positions.size(), mesh->normals.size());
        std::size_t covered = 0;
        for (auto const& face : mesh->faces) {
            EXPECT_EQ(face.firstTriangle, covered);
            covered += face.triangleCount;
        }
        EXPECT_EQ(covered * 3, mesh->triangles.size());
        for (auto const index : mesh->triangles) {
            ASSERT_LT(index, mesh->positions.size() / 3);
        }
    }
    EXPECT_TRUE(orv::recordOf<orvgl::SCRenderer>(document));
    EXPECT_TRUE(orv::recordOf<orvsg::SCPmi>(document));
    EXPECT_TRUE(orv::recordOf<orvsg::SCBom>(document, orvsg::SCBom::BOM));
}

/// The volume that the outward triangles enclose; negative where they point inwards.
double enclosedVolume(orvsg::Mesh const& mesh)
{
    double volume = 0.0;
    for (std::size_t t = 0; t + 2 < mesh.triangles.size(); t += 3) {
        double p[3][3];
        for (std::size_t corner = 0; corner < 3; ++corner) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                p[corner][axis] = mesh.positions[3 * std::size_t{mesh.triangles[t + corner]} + axis];
            }
        }
        volume +=
            (p[0][0] * (p[1][1] * p[2][2] - p[1][2] * p[2][1]) - p[0][1] * (p[1][0] * p[2][2] - p[1][2] * p[2][0]) +
             p[0][2] * (p[1][0] * p[2][1] - p[1][1] * p[2][0])) /
            6.0;
    }
    return volume;
}

std::string const cubeStl = [] {
    // A tetrahedron with corners at the origin and at 10 mm on each axis.
    std::string text = "solid corner\n";
    char const* const facets[4][3] = {{"0 0 0", "0 10 0", "10 0 0"},
                                      {"0 0 0", "10 0 0", "0 0 10"},
                                      {"0 0 0", "0 0 10", "0 10 0"},
                                      {"10 0 0", "0 10 0", "0 0 10"}};
    for (auto const& facet : facets) {
        text += "facet normal 0 0 0\nouter loop\n";
        for (auto const* vertex : facet) {
            text += std::string("vertex ") + vertex + "\n";
        }
        text += "endloop\nendfacet\n";
    }
    return text + "endsolid corner\n";
}();

} // namespace

TEST(Import, ReadsTheClassicAssembly)
{
    ORV_NEEDS_SHARED_MODEL("as1-oc-214.stp");
    auto const result = importFile(sharedModel("as1-oc-214.stp"));
    ASSERT_TRUE(result.document) << "an assembly of 28 nodes";
    expectSoundRecords(result.document);
    Records const records(result.document);
    EXPECT_EQ(records.topology->nodes.size(), 28U);
    EXPECT_EQ(partCount(records), 18);
    EXPECT_EQ(records.resources->meshes.size(), 5U) << "repeated parts share a mesh";
    EXPECT_EQ(records.topology->nodes.getValue(0).name, L"as1");
    std::map<std::wstring, int> names;
    for (auto const& node : records.topology->nodes) {
        ++names[node.name];
    }
    EXPECT_EQ(names[L"nut"], 8);
    EXPECT_EQ(names[L"bolt"], 6);
    EXPECT_EQ(names[L"l-bracket"], 2);
    EXPECT_EQ(names[L"plate"], 1);
    EXPECT_EQ(names[L"rod"], 1);
}

TEST(Import, GivesPartsTheColoursOfTheFile)
{
    ORV_NEEDS_SHARED_MODEL("as1-oc-214.stp");
    auto const result = importFile(sharedModel("as1-oc-214.stp"));
    ASSERT_TRUE(result.document);
    orvsgutils::SceneQuery const scene(result.document);
    Records const records(result.document);
    std::map<std::wstring, std::set<unsigned long>> colors;
    for (int node = 0; node < scene.nodeCount(); ++node) {
        if (records.topology->nodes.getValue(node).mesh >= 0) {
            colors[records.topology->nodes.getValue(node).name].insert(scene.color(node));
        }
    }
    EXPECT_EQ(colors[L"nut"].size(), 1U);
    EXPECT_EQ(colors[L"plate"], std::set<unsigned long>{0x00FFCCUL}) << "red 0.8, green 1, blue 0";
    EXPECT_NE(colors[L"nut"], colors[L"bolt"]);
}

TEST(Import, NumbersTheSameFileTheSameWay)
{
    auto const first = importFile(sampleModel());
    auto const second = importFile(sampleModel());
    ASSERT_TRUE(first.document && second.document);
    Records const a(first.document);
    Records const b(second.document);
    ASSERT_EQ(a.topology->nodes.size(), b.topology->nodes.size());
    for (int i = 0; i < static_cast<int>(a.topology->nodes.size()); ++i) {
        EXPECT_EQ(a.topology->nodes.getValue(i), b.topology->nodes.getValue(i));
        EXPECT_EQ(a.resources->transforms.getValue(i), b.resources->transforms.getValue(i));
    }
}

TEST(Import, TriangulatesOutwardsInMillimetres)
{
    auto const result = importFile(sampleModel());
    ASSERT_TRUE(result.document);
    expectSoundRecords(result.document);
    Records const records(result.document);
    for (auto const& mesh : records.resources->meshes) {
        EXPECT_GT(enclosedVolume(*mesh), 0.0);
    }
    auto const info = orv::recordOf<orvsg::SCInfo>(result.document);
    EXPECT_EQ(info->documentKind, orvsg::SCInfo::assembly);
    EXPECT_EQ(info->pushState, 0);
    EXPECT_EQ(std::filesystem::path(info->file()), sampleModel());
}

TEST(Import, ReadsFilesOfOtherSystems)
{
    ORV_NEEDS_SHARED_MODEL("as1_pe_203.stp");
    for (auto const* name : {"as1_pe_203.stp", "io1-cm-214.stp", "rounded-cube.step"}) {
        auto const result = importFile(sharedModel(name));
        ASSERT_TRUE(result.document) << name;
        expectSoundRecords(result.document);
        EXPECT_GT(partCount(Records(result.document)), 0) << name;
    }
}

TEST(Import, ReadsATriangulatedFileWithCreases)
{
    TemporaryFolder const folder;
    auto const result = importFile(writeFile(folder.path / "corner.stl", cubeStl));
    ASSERT_TRUE(result.document);
    expectSoundRecords(result.document);
    Records const records(result.document);
    ASSERT_EQ(records.resources->meshes.size(), 1U);
    EXPECT_NEAR(enclosedVolume(*records.resources->meshes[0]), 1000.0 / 6.0, 1e-3);
    EXPECT_EQ(records.resources->meshes[0]->positions.size(), 4U * 3U * 3U) << "sharp edges aren't shaded over";
    EXPECT_EQ(records.edges->segmentsOfMesh[0].size(), 6U * 6U) << "a tetrahedron has six edges";
    EXPECT_EQ(records.topology->nodes.getValue(0).name, L"corner");
    EXPECT_EQ(orv::recordOf<orvsg::SCInfo>(result.document)->documentKind, orvsg::SCInfo::part);
}

TEST(Import, ReadsWavefrontFiles)
{
    TemporaryFolder const folder;
    auto const result = importFile(
        writeFile(folder.path / "flat.obj", "# a square\nv 0 0 0\nv 5 0 0\nv 5 5 0\nv 0 5 0\nf 1 2 3\nf 1 3 4\n"));
    ASSERT_TRUE(result.document);
    expectSoundRecords(result.document);
    auto const box = Records(result.document).resources->boxes;
    bool found = false;
    for (auto const& own : box) {
        found = found || (!own.isEmpty && own.maximum == orvmath::Tuple<float, 3>(5.0F, 5.0F, 0.0F));
    }
    EXPECT_TRUE(found) << "units are taken as millimetres";
}

TEST(Import, ReadsGroupsAsParts)
{
    TemporaryFolder const folder;
    auto const result = importFile(writeThreeCubes(folder.path));
    ASSERT_TRUE(result.document);
    expectSoundRecords(result.document);
    Records const records(result.document);
    EXPECT_EQ(partCount(records), 3);
    for (auto const& mesh : records.resources->meshes) {
        EXPECT_NEAR(enclosedVolume(*mesh), 1000.0, 1e-3);
    }
}

TEST(Import, AnswersBadFilesWithASentence)
{
    TemporaryFolder const folder;
    std::string const png = "\x89PNG\r\n\x1a\n" + std::string(500, 'x');
    auto const whole = contentOf(sampleModel());
    struct Case {
        char const* name;
        std::string content;
        wchar_t const* says;
    };
    Case const cases[] = {
        {"empty.step", "", L"is empty"},
        {"picture.step", png, L"isn't what its ending says"},
        {"cut.step", whole.substr(0, whole.size() / 2), L"ends too early"},
        {"head.step", whole.substr(0, 300), L"ends too early"},
        {"hollow.step", "ISO-10303-21;\nHEADER;\nENDSEC;\nDATA;\nENDSEC;\nEND-ISO-10303-21;\n", L"hollow.step"},
        {"garbage.step", "ISO-10303-21;\n" + std::string(4000, '#') + "\nEND-ISO-10303-21;\n", L"garbage.step"},
        {"picture.iges", png, L"isn't what its ending says"},
        {"picture.brep", png, L"isn't what its ending says"},
        {"cut.brep", "DBRep_DrawableShape\n\nCASCADE Topology V1, (c) Matra-Datavision\nLocations 1\n", L"cut.brep"},
        {"cut.stl", cubeStl.substr(0, cubeStl.size() / 2), L"ends too early"},
        {"picture.stl", png, L"isn't what its ending says"},
        {"picture.obj", png + std::string(1, '\0'), L"isn't what its ending says"},
        {"cut.gltf", "{\"asset\":{\"version\":\"2.0\"},\"meshes\":[", L"ends too early"},
        {"hollow.gltf", "{\"asset\":{\"version\":\"2.0\"}}", L"hollow.gltf"},
        {"cut.glb", std::string("glTF\x02\0\0\0\xff\xff\0\0", 12), L"ends too early"},
        {"notes.txt", "some notes", L"type that can't be opened"},
    };
    for (auto const& entry : cases) {
        auto const result = importFile(writeFile(folder.path / entry.name, entry.content));
        EXPECT_FALSE(result.document) << entry.name;
        EXPECT_FALSE(result.stopped) << entry.name;
        EXPECT_NE(result.error.find(entry.says), std::wstring::npos)
            << entry.name << ": " << std::filesystem::path(result.error).string();
        EXPECT_TRUE(result.error.ends_with(L".")) << entry.name;
    }
    EXPECT_NE(importFile(folder.path / "missing.step").error.find(L"doesn't exist"), std::wstring::npos);
    EXPECT_NE(importFile(folder.path).error.find(L"is a folder"), std::wstring::npos);
}

TEST(Import, SurvivesEveryCutOfAFileThatClaimsToBeWhole)
{
    // The end marker is there, but what stands before it was cut at many places.
    TemporaryFolder const folder;
    auto const whole = contentOf(sampleModel());
    for (std::size_t part = 1; part < 8; ++part) {
        auto const text = whole.substr(0, whole.size() * part / 8) + "\nENDSEC;\nEND-ISO-10303-21;\n";
        auto const result = importFile(writeFile(folder.path / "cut.step", text));
        EXPECT_TRUE(result.document || !result.error.empty());
    }
}

TEST(Import, SurvivesWrongReferences)
{
    // Every reference of the geometry is there but means something else: readers trip over that in many places.
    TemporaryFolder const folder;
    auto const whole = contentOf(sampleModel());
    for (unsigned seed = 1; seed <= 6; ++seed) {
        std::mt19937 random(seed);
        std::string text = whole;
        for (int change = 0; change < 40; ++change) {
            auto const at = text.find("(#", random() % text.size());
            auto const end = text.find_first_of(",)", at == std::string::npos ? 0 : at);
            if (at != std::string::npos && end != std::string::npos && end - at < 12) {
                text.replace(at, end - at, "(#" + std::to_string(1 + random() % 900));
            }
        }
        auto const result = importFile(writeFile(folder.path / "wrong.step", text));
        EXPECT_TRUE(result.document || result.error.ends_with(L".")) << seed;
    }
}

TEST(Import, AReadersCrashEndsTheReadingAlone)
{
    volatile int* const nowhere = nullptr;
    EXPECT_FALSE(orvviewer::runGuarded([&] { *nowhere = 1; }));
    EXPECT_FALSE(orvviewer::runGuarded([&] { *nowhere = 2; })) << "and the next one's, too";
    EXPECT_TRUE(orvviewer::runGuarded([] {}));
    EXPECT_THROW(orvviewer::runGuarded([] { throw std::runtime_error("passes"); }), std::runtime_error);
    EXPECT_TRUE(importFile(sampleModel()).document);
}

TEST(Import, StopsWhenAskedTo)
{
    orvviewer::ImportProgress progress;
    progress.stopRequested = true;
    auto const result = orvviewer::importModel(sampleModel().wstring(), progress);
    EXPECT_FALSE(result.document);
    EXPECT_TRUE(result.stopped);
    EXPECT_NE(result.error.find(L"was stopped"), std::wstring::npos);
}

TEST(Import, ReportsItsProgressToTheEnd)
{
    orvviewer::ImportProgress progress;
    ASSERT_TRUE(orvviewer::importModel(sampleModel().wstring(), progress).document);
    EXPECT_EQ(progress.percent, 100);
}

TEST(Import, KnowsExtensionsInAnyCase)
{
    EXPECT_EQ(orvviewer::kindOfExtension(L"/a/b.STEP"), orvviewer::FileKind::step);
    EXPECT_EQ(orvviewer::kindOfExtension(L"b.Stp"), orvviewer::FileKind::step);
    EXPECT_EQ(orvviewer::kindOfExtension(L"b.igs"), orvviewer::FileKind::iges);
    EXPECT_EQ(orvviewer::kindOfExtension(L"b"), orvviewer::FileKind::unknown);
}
