#include "tests/viewer/SessionFixture.h"

#include "host/orvgl/ImageRenderer.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneTopo.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/ModelView.h"
#include "viewer/app/RecentFiles.h"
#include "viewer/commands/CommandId.h"
#include "viewer/commands/PartCommands.h"
#include "viewer/plugins/PluginHost.h"
#include "viewer/plugins/SideBar.h"

#include <QDir>
#include <QImage>
#include <QScreen>
#include <QTest>

#include <cmath>
#include <cstring>
#include <set>
#include <vector>

using namespace orvtest;

namespace
{

/// With a display: the window is on the screen and the model is drawn in it.
class WindowTest : public SessionFixture
{
protected:
    void openCubes()
    {
        start();
        ASSERT_TRUE(session->canDraw()) << status();
        session->window().resize(1200, 800);
        session->window().show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&session->window()));
        ASSERT_TRUE(session->openModel(model().wstring())) << status();
        orvplatform::testing::processEvents();
    }

    std::filesystem::path model() const { return writeThreeCubes(folder.path); }
    orvviewer::ModelView& view() { return session->window().view(); }
    orvgl::Camera& camera() { return *orv::recordOf<orvgl::SCRenderer>(session->document())->camera; }
    QPoint middle() { return view().rect().center(); }

    /// The view as it stands on the screen.
    QImage shown()
    {
        orvplatform::testing::processEvents();
        auto const corner = view().mapToGlobal(QPoint(0, 0));
        return view().screen()->grabWindow(0, corner.x(), corner.y(), view().width(), view().height()).toImage();
    }

    std::vector<unsigned char> frame(unsigned side = 128)
    {
        orvgl::ImageRenderer renderer(session->document(), side, side, false);
        auto const pixels = renderer.drawFrame();
        return {pixels.get(), pixels.get() + std::size_t{3} * side * side};
    }
};

double distance(orvmath::Tuple<float, 3> const& a, orvmath::Tuple<float, 3> const& b)
{
    return std::hypot(double{a[0]} - b[0], double{a[1]} - b[1], double{a[2]} - b[2]);
}

} // namespace

TEST_F(WindowTest, StandsAtItsOwnSizeWhereTheScreenHasRoom)
{
    start();
    auto& window = session->window();
    QSize const own = window.size();
    ASSERT_TRUE(window.screen()->availableGeometry().contains(QRect(QPoint(0, 0), own)));
    window.showOnScreen();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_FALSE(window.isMaximized());
    EXPECT_EQ(window.size(), own);
}

TEST_F(WindowTest, LeavesRoomForATitleBar)
{
    start();
    auto& window = session->window();
    QSize const screen = window.screen()->availableSize();
    window.resize(screen); // with a title bar it would stand out of the screen
    window.showOnScreen();
    EXPECT_TRUE(window.windowState().testFlag(Qt::WindowMaximized));
    EXPECT_LT(window.normalGeometry().height(), screen.height());
}

TEST_F(WindowTest, DraggingTurnsTheModel)
{
    openCubes();
    auto const before = camera();
    QTest::mousePress(&view(), Qt::LeftButton, {}, middle());
    QTest::mouseMove(&view(), middle() + QPoint(40, 10));
    QTest::mouseMove(&view(), middle() + QPoint(90, 20));
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, middle() + QPoint(90, 20));
    EXPECT_GT(distance(before.eye, camera().eye), 1.0);
    EXPECT_LT(distance(before.target, camera().target), 1e-4);
    EXPECT_TRUE(session->context().selection().empty()) << "a drag is no click";
}

TEST_F(WindowTest, TheMiddleButtonPansAndTheWheelZooms)
{
    openCubes();
    auto const before = camera();
    QTest::mousePress(&view(), Qt::MiddleButton, {}, middle());
    QTest::mouseMove(&view(), middle() + QPoint(60, 0));
    QTest::mouseRelease(&view(), Qt::MiddleButton, {}, middle() + QPoint(60, 0));
    EXPECT_GT(distance(before.target, camera().target), 1.0);
    auto const panned = camera();
    QWheelEvent wheel(middle(), view().mapToGlobal(middle()), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view(), &wheel);
    EXPECT_LT(distance(camera().eye, camera().target), distance(panned.eye, panned.target));
}

TEST_F(WindowTest, AClickSelectsThePartUnderThePointer)
{
    openCubes();
    QTest::mouseClick(&view(), Qt::LeftButton, {}, middle());
    ASSERT_EQ(session->context().selection().size(), 1U);
    int const node = *session->context().selection().begin();
    EXPECT_GE(orv::recordOf<orvsg::SCSceneTopo>(session->document())->nodes.getValue(node).mesh, 0);
    QTest::mouseClick(&view(), Qt::LeftButton, {}, QPoint(8, view().height() / 2));
    EXPECT_TRUE(session->context().selection().empty());
}

TEST_F(WindowTest, AHiddenPartLeavesThePointerAndComesBackToIt)
{
    openCubes();
    QPoint const beside(8, view().height() / 2);
    QTest::mouseClick(&view(), Qt::LeftButton, {}, middle());
    ASSERT_EQ(session->context().selection().size(), 1U);
    int const node = *session->context().selection().begin();
    auto const before = shown();
    session->runCommand(orvviewer::hideParts);
    auto const hidden = shown();
    EXPECT_NE(hidden, before);
    QTest::mouseMove(&view(), beside);
    EXPECT_EQ(shown(), hidden) << "its hover colour is gone before the pointer moves";

    QTest::mouseClick(&view(), Qt::LeftButton, {}, middle());
    EXPECT_EQ(session->context().selection().count(node), 0U) << "what isn't seen isn't picked";
    session->runCommand(orvviewer::showAllParts);
    orvplatform::testing::processEvents();
    QTest::mouseClick(&view(), Qt::LeftButton, {}, beside);
    QTest::mouseClick(&view(), Qt::LeftButton, {}, middle());
    EXPECT_EQ(session->context().selection(), std::set<int>{node});
}

TEST_F(WindowTest, KeysTurnPanAndZoom)
{
    openCubes();
    view().setFocus();
    auto const before = camera();
    QTest::keyClick(&view(), Qt::Key_Left);
    EXPECT_GT(distance(before.eye, camera().eye), 0.1);
    auto const turned = camera();
    QTest::keyClick(&view(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(distance(turned.target, camera().target), 0.1);
    QTest::keyClick(&view(), Qt::Key_Plus);
    EXPECT_LT(distance(camera().eye, camera().target), distance(before.eye, before.target));
}

TEST_F(WindowTest, PluginsGetFramesOfTheShownScene)
{
    openCubes();
    auto const before = frame();
    EXPECT_EQ(before, frame());
    orvviewer::hideNodes(session->context(), {0});
    EXPECT_NE(before, frame());
    orvviewer::showAllNodes(session->context());
    EXPECT_EQ(before, frame());
}

TEST_F(WindowTest, AFrameFollowsRecordsThatNoHintHasAnnouncedYet)
{
    openCubes();
    auto const before = frame();
    orv::recordOf<orvsg::SCSceneRT>(session->document())->visibility[0] = false;
    EXPECT_NE(before, frame());
}

TEST_F(WindowTest, SavesPicturesAndPreviews)
{
    openCubes();
    auto const picture = folder.path / "view.png";
    EXPECT_TRUE(session->savePicture(picture.wstring(), 320, 200));
    EXPECT_EQ(QImage(QString::fromStdString(picture.string())).size(), QSize(320, 200));
    EXPECT_FALSE(session->savePicture((folder.path / "none" / "view.png").wstring(), 320, 200));
    EXPECT_NE(status().find("can't be written"), std::string::npos);
    EXPECT_FALSE(orvviewer::RecentFiles().previewOf(model().wstring()).isNull());
}

TEST_F(WindowTest, ResizingAndClosingAreSurvived)
{
    openCubes();
    session->window().resize(700, 500);
    orvplatform::testing::processEvents();
    session->closeModel();
    session->window().resize(900, 600);
    orvplatform::testing::processEvents();
    ASSERT_TRUE(session->openModel(model().wstring()));
    session->window().close();
    orvplatform::testing::processEvents();
    session->window().show();
    orvplatform::testing::processEvents();
    session->runCommand(orvviewer::fitAll);
    session.reset();
    openCubes();
}

TEST_F(WindowTest, ShowsTheModelAndThePluginInEachLanguage)
{
    installCloudPlugin();
    std::set<QByteArray> corners;
    for (wchar_t const* const code : {L"en", L"de", L"fr", L"es", L"ja", L"ko", L"zh", L"pt"}) {
        SCOPED_TRACE(orvtext::toUtf8(code));
        session.reset();
        orvhost::Settings settings;
        settings.dataDirectory = (folder.path / "data").wstring();
        settings.libraryDirectory = (folder.path / "lib").wstring();
        settings.language = code;
        session = std::make_unique<orvviewer::ViewerSession>(settings);
        auto& window = session->window();
        window.resize(1280, 760);
        window.move(0, 0);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_TRUE(session->openModel(sampleModel().wstring())) << status();
        orvplatform::testing::processEvents();
        EXPECT_EQ(session->plugins().count(), 1U) << status();
        EXPECT_EQ(session->sideBar().paneCount(), 1);
        view().redrawNow();
        orvplatform::testing::processEvents();
        auto const shown = window.screen()->grabWindow(0, 0, 0, window.width(), window.height()).toImage();
        // To be looked at, in pictures/ of the build.
        ASSERT_TRUE(QDir().mkpath(QStringLiteral(ORV_BINARY_DIR "/pictures")));
        EXPECT_TRUE(shown.save(QStringLiteral(ORV_BINARY_DIR "/pictures/viewer-with-model-") +
                               QString::fromWCharArray(code) + ".png"));
        auto const corner = view().mapTo(&window, QPoint(view().width() - 144, 0));
        auto const cube = shown.copy(QRect(corner, QSize(144, 144))).convertToFormat(QImage::Format_RGB32);
        corners.emplace(reinterpret_cast<char const*>(cube.constBits()), cube.sizeInBytes());
    }
    EXPECT_EQ(corners.size(), 8U) << "the view cube's sides have names in the language";
}
