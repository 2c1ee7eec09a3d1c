// The viewer's own format: what the exporter writes the viewer opens again.

#include "exporters/ExportLibraries.h"
#include "exporters/FileSizeLimit.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/BBoxUtils.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "host/orvsgutils/SceneQuery.h"
#include "support/TestScene.h"
#include "viewer/ModelFixture.h"
#include "viewer/commands/ViewCommands.h"
#include "viewer/scene/EdgeRecord.h"

#include <algorithm>
#include <cmath>
#include <random>

using namespace orvtest;

namespace
{

struct Records {
    explicit Records(std::shared_ptr<orv::IDocument> const& document)
        : topology(orv::recordOf<orvsg::SCSceneTopo>(document)), resources(orv::recordOf<orvsg::SCSceneRes>(document)),
          runtime(orv::recordOf<orvsg::SCSceneRT>(document)), renderer(orv::recordOf<orvgl::SCRenderer>(document)),
          edges(orv::recordOf<orvviewer::EdgeRecord>(document))
    {
    }
    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orvsg::SCSceneRes> resources;
    std::shared_ptr<orvsg::SCSceneRT> runtime;
    std::shared_ptr<orvgl::SCRenderer> renderer;
    std::shared_ptr<orvviewer::EdgeRecord> edges;
};

orvsg::BBox boxOf(std::shared_ptr<orv::IDocument> const& document)
{
    Records records(document);
    return orvsgutils::BBoxUtils::get(records.resources, records.topology, nullptr, records.runtime,
                                      orvsg::SCInfo::assembly, true, true);
}

void expectSameModel(std::shared_ptr<orv::IDocument> const& before, std::shared_ptr<orv::IDocument> const& after)
{
    Records const a(before);
    Records const b(after);
    ASSERT_TRUE(b.topology && b.resources && b.runtime);
    ASSERT_EQ(a.topology->nodes.size(), b.topology->nodes.size());
    for (int node = 0; a.topology->nodes.contains(node); ++node) {
        EXPECT_EQ(a.topology->nodes.getValue(node), b.topology->nodes.getValue(node)) << node;
        auto const at = a.topology->transformOfNode.getValue(node);
        auto const bt = b.topology->transformOfNode.getValue(node);
        EXPECT_EQ(a.resources->transforms.getValue(at), b.resources->transforms.getValue(bt)) << node;
        EXPECT_EQ(a.resources->initialTransforms.getValue(at), b.resources->initialTransforms.getValue(bt)) << node;
        EXPECT_EQ(a.resources->materials.getValue(node), b.resources->materials.getValue(node)) << node;
    }
    EXPECT_EQ(a.runtime->visibility, b.runtime->visibility);
    EXPECT_TRUE(std::equal(a.runtime->coloredNodes.begin(), a.runtime->coloredNodes.end(),
                           b.runtime->coloredNodes.begin(), b.runtime->coloredNodes.end()));
    EXPECT_TRUE(std::equal(a.runtime->transparentNodes.begin(), a.runtime->transparentNodes.end(),
                           b.runtime->transparentNodes.begin(), b.runtime->transparentNodes.end()));
    EXPECT_EQ(*a.renderer->camera, *b.renderer->camera);
    EXPECT_EQ(boxOf(before), boxOf(after));
    ASSERT_EQ(a.resources->meshes.size(), b.resources->meshes.size());
    for (std::size_t i = 0; i < a.resources->meshes.size(); ++i) {
        auto const& was = *a.resources->meshes[i];
        auto const& is = *b.resources->meshes[i];
        EXPECT_EQ(was.positions, is.positions) << i;
        EXPECT_EQ(was.triangles, is.triangles) << i;
        EXPECT_EQ(was.faces, is.faces) << i;
        ASSERT_EQ(was.normals.size(), is.normals.size()) << i;
        for (std::size_t n = 0; n < was.normals.size(); ++n) {
            ASSERT_NEAR(was.normals[n], is.normals[n], 1e-6) << i;
        }
    }
}

/// Opened once for all tests.
std::shared_ptr<orv::IDocument> sampleDocument()
{
    static auto const sample = importFile(sampleModel()).document;
    return sample;
}

class NativeFile : public testing::Test
{
protected:
    orvexp::Status save(std::shared_ptr<orv::IDocument> const& document)
    {
        return loadExporter("orvwriter")->save(file.wstring().c_str(), document, nullptr, &bar);
    }

    TemporaryFolder folder;
    std::filesystem::path file = folder.path / "model.orvanta";
    ProgressBar bar;
};

TEST_F(NativeFile, SampleComesBackAsItWas)
{
    auto const sample = sampleDocument();
    ASSERT_TRUE(sample);
    ASSERT_EQ(save(sample), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document) << testing::PrintToString(again.error);
    expectSameModel(sample, again.document);
}

TEST_F(NativeFile, EdgesComeBackWhereTheFacesMeet)
{
    TestScene scene; // a box of 40 x 20 x 10, of 10 x 2 x 2 and of 4 x 4 x 1
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document);
    auto const edges = Records(again.document).edges->segmentsOfMesh;
    ASSERT_EQ(edges.size(), 3U);
    double const expected[] = {4 * (40 + 20 + 10), 4 * (10 + 2 + 2), 4 * (4 + 4 + 1)};
    for (std::size_t i = 0; i < edges.size(); ++i) {
        EXPECT_EQ(edges[i].size(), std::size_t{12} * 6) << "twelve edges, each once";
        double length = 0;
        for (std::size_t at = 0; at + 5 < edges[i].size(); at += 6) {
            length += std::hypot(edges[i][at] - edges[i][at + 3], edges[i][at + 1] - edges[i][at + 4],
                                 edges[i][at + 2] - edges[i][at + 5]);
        }
        EXPECT_NEAR(length, expected[i], 1e-3) << i;
    }
}

TEST_F(NativeFile, RoundPartsKeepTheirEdgesWithoutSeams)
{
    auto const sample = sampleDocument();
    ASSERT_EQ(save(sample), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document);
    auto const count = [](std::shared_ptr<orv::IDocument> const& document) {
        std::size_t sum = 0;
        for (auto const& segments : Records(document).edges->segmentsOfMesh) {
            EXPECT_FALSE(segments.empty());
            sum += segments.size() / 6;
        }
        return static_cast<double>(sum);
    };
    EXPECT_NEAR(count(again.document) / count(sample), 1.0, 0.1);
}

TEST_F(NativeFile, WhatTheUserDidToTheViewComesBack)
{
    TestScene scene;
    scene.moveTo(3, 1.25F, -7.5F, 0.1F);
    scene.runtime->visibility[4] = false;
    orvsgutils::MaterialUtils::setNodeColor(3, 0x123456, scene.resources, scene.runtime, scene.topology);
    orvsgutils::MaterialUtils::setNodeTransparency(2, 0.25F, scene.resources, scene.runtime, scene.topology);
    scene.renderer->camera->eye = {1.5F, 2.5F, 300.F};
    scene.renderer->camera->orthographic = true;
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document) << testing::PrintToString(again.error);
    expectSameModel(scene.document, again.document);
}

TEST_F(NativeFile, OpensInItsOwnViewAndOthersFitted)
{
    TestScene scene;
    scene.renderer->camera->eye = {1.5F, 2.5F, 300.F};
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document);
    orvviewer::setFirstView(again.document, 1.5);
    EXPECT_EQ(*Records(again.document).renderer->camera, *scene.renderer->camera);

    TestScene fresh; // nobody has looked at it yet
    ASSERT_EQ(save(fresh.document), orvexp::Status::ok);
    auto const fitted = importFile(file);
    orvviewer::setFirstView(fitted.document, 1.5);
    EXPECT_NE(*Records(fitted.document).renderer->camera, orvgl::Camera());
}

TEST_F(NativeFile, AnyMatrixComesBackExactly)
{
    TestScene scene;
    orvsg::Transform mirrored;
    mirrored.isSet = true;
    mirrored.matrix[0] = -2.F;
    mirrored.matrix[5] = 0.3F;
    mirrored.matrix[4] = 0.7F;
    scene.resources->transforms.setValue(scene.topology->transformOfNode.getValue(2), mirrored);
    orvsg::Transform flat; // no volume is left of what it places
    flat.isSet = true;
    flat.matrix[10] = 0.F;
    scene.resources->transforms.setValue(scene.topology->transformOfNode.getValue(1), flat);
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document) << testing::PrintToString(again.error);
    expectSameModel(scene.document, again.document);
}

TEST_F(NativeFile, NamesInAnyScriptComeBack)
{
    TestScene scene;
    auto node = scene.topology->nodes.getValue(4);
    node.name = L"歯車 №2 \"größer\" \U0001F600";
    scene.topology->nodes.setValue(4, node);
    node = scene.topology->nodes.getValue(5);
    node.name = L"";
    scene.topology->nodes.setValue(5, node);
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document);
    expectSameModel(scene.document, again.document);
}

TEST_F(NativeFile, ColorsOfFacesComeBack)
{
    TestScene scene;
    auto painted = std::make_shared<orvsg::Mesh>(*scene.resources->meshes[0]);
    painted->faces[2].color = 0x0080FF;
    painted->faces[5].color = 0x010203;
    scene.resources->meshes[0] = painted;
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document);
    expectSameModel(scene.document, again.document);
}

TEST_F(NativeFile, SinglePartComesBack)
{
    TestScene whole;
    TestScene scene;
    orvsg::Node only = whole.topology->nodes.getValue(1);
    only.parent = -1;
    scene.topology->nodes = orvsg::Container<int, orvsg::Node>({only});
    scene.topology->transformOfNode = orvsg::Container<int, int>({1});
    scene.resources->meshes.resize(1);
    scene.runtime->visibility.resize(1);
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document) << testing::PrintToString(again.error);
    Records const records(again.document);
    EXPECT_EQ(records.topology->nodes.size(), 1U);
    EXPECT_EQ(records.topology->nodes.getValue(0).name, L"housing");
    auto const box = boxOf(again.document);
    EXPECT_EQ(box.maximum, (orvmath::Tuple<float, 3>{40, 20, 10}));
}

TEST_F(NativeFile, GeometryOfAnAssemblysOwnHangsBelowIt)
{
    TestScene scene;
    auto node = scene.topology->nodes.getValue(2);
    node.mesh = 1;
    scene.topology->nodes.setValue(2, node);
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    auto const again = importFile(file);
    ASSERT_TRUE(again.document);
    EXPECT_EQ(Records(again.document).topology->nodes.size(), 7U);
    EXPECT_EQ(boxOf(scene.document), boxOf(again.document));
}

TEST_F(NativeFile, CutOrChangedFilesAreRefusedWithASentence)
{
    TestScene scene;
    ASSERT_EQ(save(scene.document), orvexp::Status::ok);
    std::string const whole = contentOf(file);
    std::mt19937 random(7);
    for (std::size_t length : {std::size_t{0}, std::size_t{5}, std::size_t{30}, whole.size() / 2, whole.size() - 1}) {
        writeFile(file, whole.substr(0, length));
        auto const result = importFile(file);
        EXPECT_FALSE(result.document) << length;
        EXPECT_FALSE(result.error.empty());
    }
    for (int i = 0; i < 40; ++i) {
        std::string changed = whole;
        changed[random() % changed.size()] ^= static_cast<char>(1U << (random() % 8));
        writeFile(file, changed);
        auto const result = importFile(file);
        EXPECT_FALSE(result.document) << i;
        EXPECT_FALSE(result.error.empty());
    }
}

TEST_F(NativeFile, ShowsProgressThatRisesToTheEnd)
{
    auto const sample = sampleDocument();
    ASSERT_EQ(save(sample), orvexp::Status::ok);
    EXPECT_GE(bar.percents.size(), 10U);
    EXPECT_TRUE(std::is_sorted(bar.percents.begin(), bar.percents.end()));
    EXPECT_EQ(bar.percents.back(), 100);
}

} // namespace
