// The lists of coloured and of transparent nodes in a file of the viewer's own, where they don't say what the nodes
// say.

#include "exporters/ExportLibraries.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "host/orvsgutils/SceneQuery.h"
#include "support/TestScene.h"
#include "viewer/ModelFixture.h"

#include <gmock/gmock.h>

#include <vector>

using namespace orvtest;
using orvsgutils::MaterialUtils;
using testing::ElementsAre;

namespace
{

class NativeLists : public testing::Test
{
protected:
    NativeLists()
    {
        MaterialUtils::setNodeColor(4, 0x00FF00, scene.resources, scene.runtime, scene.topology);
        MaterialUtils::setNodeColor(1, 0xFF0000, scene.resources, scene.runtime, scene.topology);
        MaterialUtils::setNodeTransparency(5, 0.25F, scene.resources, scene.runtime, scene.topology);
        MaterialUtils::setNodeTransparency(3, 0.75F, scene.resources, scene.runtime, scene.topology);
    }

    /// Writes the scene to a file and opens that.
    void reopen()
    {
        ASSERT_EQ(loadExporter("orvwriter")->save(file.wstring().c_str(), scene.document, nullptr, &bar),
                  orvexp::Status::ok);
        document = importFile(file).document;
        ASSERT_TRUE(document);
        resources = orv::recordOf<orvsg::SCSceneRes>(document);
        runtime = orv::recordOf<orvsg::SCSceneRT>(document);
        topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    }
    static std::vector<int> nodesOf(orvsg::NodeList const& list) { return {list.begin(), list.end()}; }
    void expectNothingStandsAfterAReset()
    {
        MaterialUtils::resetAll(resources, runtime, topology);
        orvsgutils::SceneQuery const query(document);
        for (int node = 0; node < query.nodeCount(); ++node) {
            EXPECT_FALSE(query.isColoredByUser(node)) << node;
            EXPECT_EQ(query.transparency(node), 0.0F) << node;
        }
    }

    TemporaryFolder folder;
    std::filesystem::path file = folder.path / "model.orvanta";
    ProgressBar bar;
    TestScene scene;
    std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<orvsg::SCSceneRes> resources;
    std::shared_ptr<orvsg::SCSceneRT> runtime;
    std::shared_ptr<orvsg::SCSceneTopo> topology;
};

TEST_F(NativeLists, ComeBackInTheirOrder)
{
    reopen();
    EXPECT_THAT(nodesOf(runtime->coloredNodes), ElementsAre(4, 1));
    EXPECT_THAT(nodesOf(runtime->transparentNodes), ElementsAre(5, 3));
    expectNothingStandsAfterAReset();
}

TEST_F(NativeLists, ThatAreMissingAreMadeFromTheNodes)
{
    scene.runtime->coloredNodes.clear();
    scene.runtime->transparentNodes.clear();
    reopen();
    EXPECT_THAT(nodesOf(runtime->coloredNodes), ElementsAre(1, 4));
    EXPECT_THAT(nodesOf(runtime->transparentNodes), ElementsAre(3, 5));
    expectNothingStandsAfterAReset();
}

TEST_F(NativeLists, ThatAreTooShortTakeUpTheRest)
{
    scene.runtime->coloredNodes = orvsg::Container<int, int>({4});
    scene.runtime->transparentNodes = orvsg::Container<int, int>({-1});
    reopen();
    EXPECT_THAT(nodesOf(runtime->coloredNodes), ElementsAre(4, 1));
    EXPECT_THAT(nodesOf(runtime->transparentNodes), ElementsAre(3, 5));
    expectNothingStandsAfterAReset();
}

TEST_F(NativeLists, LoseNodesThatAreNotSoMarkedAndTwins)
{
    scene.runtime->coloredNodes = orvsg::Container<int, int>({4, 2, 4, 1, 99});
    scene.runtime->transparentNodes = orvsg::Container<int, int>({5, 3, 0});
    reopen();
    EXPECT_THAT(nodesOf(runtime->coloredNodes), ElementsAre(4, -1, -1, 1, -1));
    EXPECT_THAT(nodesOf(runtime->transparentNodes), ElementsAre(5, 3, -1));
    expectNothingStandsAfterAReset();
}

} // namespace
