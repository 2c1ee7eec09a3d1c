#include "tests/viewer/SaveOutcomes.h"
#include "tests/viewer/SessionFixture.h"

#include "host/orv/IHint.h"
#include "host/orv/SCApplication.h"
#include "host/orvexp/Status.h"
#include "host/orvgl/ImageRenderer.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"
#include "host/orvui/Hint.h"
#include "viewer/app/CommandTable.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Preferences.h"
#include "viewer/app/RecentFiles.h"
#include "viewer/commands/CommandId.h"
#include "viewer/commands/PartCommands.h"
#include "viewer/commands/ViewCommands.h"

#include <cmath>

using namespace orvtest;

namespace
{

class SessionTest : public SessionFixture
{
protected:
    std::filesystem::path cubes() const { return writeThreeCubes(folder.path); }

    /// The cubes unless told otherwise.
    void open(std::filesystem::path model = {})
    {
        start();
        ASSERT_TRUE(session->openModel((model.empty() ? cubes() : model).wstring())) << status();
        topology = orv::recordOf<orvsg::SCSceneTopo>(session->document());
        resources = orv::recordOf<orvsg::SCSceneRes>(session->document());
        runtime = orv::recordOf<orvsg::SCSceneRT>(session->document());
        for (int i = 0; i < static_cast<int>(topology->nodes.size()) && part < 0; ++i) {
            if (topology->nodes.getValue(i).mesh >= 0 && i > 1) {
                part = i;
            }
        }
        ASSERT_GE(part, 0);
    }

    orvsgutils::SceneQuery scene() const { return orvsgutils::SceneQuery(session->document()); }

    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orvsg::SCSceneRes> resources;
    std::shared_ptr<orvsg::SCSceneRT> runtime;
    int part = -1; ///< a leaf that isn't the first
};

} // namespace

TEST_F(SessionTest, OpensAModelAndSaysSo)
{
    open();
    EXPECT_NE(status().find("cubes.obj"), std::string::npos);
    EXPECT_EQ(session->window().windowTitle().toStdString(), "cubes.obj - Orvanta");
    auto const link = orv::recordOf<orv::SCApplication>(session->document());
    ASSERT_TRUE(link);
    EXPECT_EQ(link->application, session->application());
    EXPECT_TRUE(link->application->getViewNotifier());
    EXPECT_NE(link->application->getStatusManager(), nullptr);
}

TEST_F(SessionTest, OpensModelsWhateverTheirNames)
{
    start();
    for (std::string const& name :
         {std::string("gear box v2.final.obj"), std::string("Zahnr\u00e4der.obj"), std::string("\u6b6f\u8eca.obj"),
          std::string("\U0001F600 & co.OBJ"), std::string(251, 'n') + ".obj"}) {
        auto const model = folder.path / name;
        std::filesystem::copy_file(cubes(), model);
        ASSERT_TRUE(session->openModel(orvtext::fromUtf8(model.string()))) << status();
        EXPECT_TRUE(status().starts_with("\"" + name + "\" is open.")) << status();
        EXPECT_EQ(session->window().windowTitle().toStdString(), name + " - Orvanta");
        EXPECT_FALSE(session->exportModel(orvtext::fromUtf8(model.string() + ".prc"))) << "there is no exporter here";
        EXPECT_NE(status().find("prcdelaywriter"), std::string::npos) << status();
        std::filesystem::remove(model);
    }
    EXPECT_FALSE(session->openModel(L"/nowhere/Zahnr\u00e4der.obj"));
    EXPECT_EQ(status(), "\"Zahnr\u00e4der.obj\" doesn't exist. Check the path or choose another file.");
}

TEST_F(SessionTest, ABadFileLeavesTheOpenModelOpen)
{
    open();
    auto const before = session->document();
    EXPECT_FALSE(session->openModel(writeFile(folder.path / "cut.step", "ISO-10303-21;\nHEADER;").wstring()));
    EXPECT_EQ(session->document(), before);
    EXPECT_NE(status().find("ends too early"), std::string::npos);
    EXPECT_FALSE(session->openModel(L"/nowhere/at-all.step"));
    EXPECT_EQ(session->document(), before);
}

TEST_F(SessionTest, ClosingLeavesNoDocument)
{
    open();
    session->closeModel();
    EXPECT_FALSE(session->document());
    EXPECT_EQ(session->window().windowTitle().toStdString(), "Orvanta");
    session->closeModel();
    EXPECT_FALSE(session->runCommand(orvviewer::hideParts));
}

TEST_F(SessionTest, HidesIsolatesAndShowsParts)
{
    open();
    auto& context = session->context();
    context.select({part});
    EXPECT_TRUE(session->runCommand(orvviewer::hideParts));
    EXPECT_FALSE(scene().isShown(part));
    EXPECT_TRUE(session->runCommand(orvviewer::isolateParts));
    EXPECT_TRUE(scene().isShown(part));
    int shown = 0;
    for (int i = 0; i < scene().nodeCount(); ++i) {
        shown += scene().isShown(i) && topology->nodes.getValue(i).mesh >= 0 ? 1 : 0;
    }
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(session->runCommand(orvviewer::showAllParts));
    for (int i = 0; i < scene().nodeCount(); ++i) {
        EXPECT_TRUE(scene().isShown(i));
    }
}

TEST_F(SessionTest, ColoursAndTransparencyAreOverridesThatGoAgain)
{
    open();
    auto& context = session->context();
    auto const before = scene().color(part);
    orvviewer::colourNodes(context, {part}, 0x123456);
    EXPECT_EQ(scene().color(part), 0x123456UL);
    EXPECT_EQ(runtime->coloredNodes.getValue(0), part);
    orvviewer::colourNodes(context, {0}, 0x0000FF);
    EXPECT_EQ(scene().color(part), 0x0000FFUL) << "the whole takes its parts along";
    orvviewer::uncolourNodes(context, {0});
    EXPECT_EQ(scene().color(part), before);

    orvviewer::makeTransparent(context, {part}, 0.5F);
    EXPECT_FLOAT_EQ(scene().transparency(part), 0.5F);
    orvviewer::makeTransparent(context, {0}, 0.75F);
    EXPECT_FLOAT_EQ(scene().transparency(part), 0.75F);
    orvviewer::makeTransparent(context, {part}, 0.0F);
    EXPECT_FLOAT_EQ(scene().transparency(part), 0.0F);
    EXPECT_FLOAT_EQ(scene().transparency(0), 0.75F);
    orvviewer::makeTransparent(context, {0}, 0.0F);
    EXPECT_FLOAT_EQ(scene().transparency(0), 0.0F);
}

TEST_F(SessionTest, MovesPartsAlongTheModelsAxes)
{
    open(sampleModel());
    for (part = scene().nodeCount() - 1; topology->nodes.getValue(part).mesh < 0;) {
        --part;
    }
    auto const before = scene().worldMatrix(part);
    orvviewer::moveNodes(session->context(), {part}, 10.0, -5.0, 2.5);
    auto const after = scene().worldMatrix(part);
    EXPECT_NEAR(after[12] - before[12], 10.0, 1e-3);
    EXPECT_NEAR(after[13] - before[13], -5.0, 1e-3);
    EXPECT_NEAR(after[14] - before[14], 2.5, 1e-3);
    EXPECT_TRUE(resources->transforms.getValue(topology->transformOfNode.getValue(part)).isSet);
}

TEST_F(SessionTest, APartOfAMovedWholeMovesOnce)
{
    open();
    auto const before = scene().worldMatrix(part);
    orvviewer::moveNodes(session->context(), {0, part}, 7.0, 0.0, 0.0);
    EXPECT_NEAR(scene().worldMatrix(part)[12] - before[12], 7.0, 1e-3);
}

TEST_F(SessionTest, ResetBringsBackWhatTheFileSays)
{
    open();
    auto& context = session->context();
    auto const color = scene().color(part);
    auto const transforms = resources->transforms;
    orvviewer::colourNodes(context, {part}, 0x112233);
    orvviewer::makeTransparent(context, {part}, 0.9F);
    orvviewer::moveNodes(context, {part}, 1.0, 2.0, 3.0);
    orvviewer::hideNodes(context, {part});
    EXPECT_TRUE(session->runCommand(orvviewer::resetParts));
    EXPECT_EQ(scene().color(part), color);
    EXPECT_FLOAT_EQ(scene().transparency(part), 0.0F);
    EXPECT_TRUE(scene().isShown(part));
    for (int i = 0; i < static_cast<int>(transforms.size()); ++i) {
        EXPECT_EQ(resources->transforms.getValue(i), transforms.getValue(i));
    }
}

TEST_F(SessionTest, NodesOutsideTheModelAreIgnored)
{
    open();
    auto& context = session->context();
    for (int const node : {-1, -2147483647, 100000}) {
        context.select({node});
        EXPECT_TRUE(context.selection().empty());
        orvviewer::hideNodes(context, {node});
        orvviewer::showNodes(context, {node});
        orvviewer::colourNodes(context, {node}, 1);
        orvviewer::makeTransparent(context, {node}, 0.5F);
        orvviewer::moveNodes(context, {node}, 1.0, 1.0, 1.0);
        orvviewer::fitNodes(context, {node});
    }
}

TEST_F(SessionTest, ViewCommandsMoveTheCameraRecord)
{
    open();
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(session->document());
    EXPECT_TRUE(session->runCommand(orvviewer::viewFront));
    EXPECT_LT(renderer->camera->eye[1], renderer->camera->target[1]);
    EXPECT_NEAR(renderer->camera->eye[0], renderer->camera->target[0], 1e-3);
    EXPECT_TRUE(session->runCommand(orvviewer::togglePerspective));
    EXPECT_TRUE(renderer->camera->orthographic);
    auto const distance = renderer->camera->target[1] - renderer->camera->eye[1];
    EXPECT_TRUE(session->runCommand(orvviewer::zoomIn));
    EXPECT_LT(renderer->camera->target[1] - renderer->camera->eye[1], distance);
}

TEST_F(SessionTest, OpensFittedInEitherProjection)
{
    open();
    auto const fitted = *orv::recordOf<orvgl::SCRenderer>(session->document())->camera;
    EXPECT_FALSE(fitted.orthographic);
    auto preferences = orvviewer::ViewerPreferences::load();
    preferences.startInPerspective = false;
    preferences.save();
    open();
    auto camera = *orv::recordOf<orvgl::SCRenderer>(session->document())->camera;
    EXPECT_TRUE(camera.orthographic);
    camera.orthographic = false;
    EXPECT_EQ(camera, fitted);
}

TEST_F(SessionTest, CommandsNeedWhatTheyWorkOn)
{
    start();
    for (auto const id : {orvviewer::closeFile, orvviewer::exportFile, orvviewer::fitAll, orvviewer::hideParts,
                          orvviewer::moveParts, orvviewer::resetParts}) {
        EXPECT_FALSE(session->commands().isEnabled(id)) << id;
    }
    EXPECT_TRUE(session->commands().isEnabled(orvviewer::openFile));
    ASSERT_TRUE(session->openModel(cubes().wstring()));
    EXPECT_TRUE(session->commands().isEnabled(orvviewer::fitAll));
    EXPECT_FALSE(session->commands().isEnabled(orvviewer::hideParts));
    session->context().select({0});
    EXPECT_TRUE(session->commands().isEnabled(orvviewer::hideParts));
    EXPECT_FALSE(session->runCommand(999999));
}

TEST_F(SessionTest, RemembersWhatWasOpened)
{
    open();
    orvviewer::RecentFiles const recent;
    ASSERT_EQ(recent.paths().size(), 1U);
    EXPECT_EQ(std::filesystem::path(recent.paths()[0]), cubes());
    auto const copy = folder.path / "copy.obj";
    std::filesystem::copy_file(cubes(), copy);
    ASSERT_TRUE(session->openModel(copy.wstring()));
    ASSERT_EQ(recent.paths().size(), 2U);
    EXPECT_EQ(std::filesystem::path(recent.paths()[0]), copy);
    std::filesystem::remove(copy);
    EXPECT_EQ(recent.paths().size(), 1U) << "what is gone isn't offered";
}

TEST_F(SessionTest, SavingWithoutAnExporterIsASentenceAndAStatus)
{
    open();
    auto const path = (folder.path / "out.stl").wstring();
    SaveOutcomes outcomes;
    session->application()->saveFile(path.c_str(), outcomes.completion());
    ASSERT_EQ(outcomes.told.size(), 1U);
    EXPECT_EQ(outcomes.told[0],
              (SaveOutcome{static_cast<int>(orvexp::Status::noLibrary), path, session->application()}));
    EXPECT_EQ(status(), "\"out.stl\" can't be saved: its exporter isn't installed. Choose another format.");
    EXPECT_FALSE(session->exportModel((folder.path / "out.prc").wstring()));
    EXPECT_NE(status().find("prcdelaywriter"), std::string::npos);
}

TEST_F(SessionTest, TheApplicationOutlivesItsWindowInSilence)
{
    open();
    auto const application = session->application();
    auto const document = session->document();
    session.reset();
    application->showStatus(L"Nobody reads this.", 0);
    EXPECT_FALSE(application->getViewNotifier());
    application->getStatusManager()->setProgress(5, 1);
    SaveOutcomes outcomes;
    application->saveFile(L"/nowhere.stl", outcomes.completion());
    ASSERT_EQ(outcomes.told.size(), 1U);
    EXPECT_NE(outcomes.told[0].status, 0);
    EXPECT_EQ(outcomes.told[0].path, L"/nowhere.stl");
    EXPECT_EQ(outcomes.told[0].application, application.get());
    EXPECT_EQ(orvgl::ImageRenderer(document, 8, 8, false).drawFrame().get()[0], 255) << "nothing draws any more";
}

TEST_F(SessionTest, OneViewerMayFollowAnother)
{
    for (int i = 0; i < 3; ++i) {
        open();
        EXPECT_TRUE(session->document());
        session.reset();
    }
}
