// What a capture asks of the system and of the viewer, in what order. This program answers some of the questions
// itself: its definitions come before those of the libraries, note the question and hand it on.

#include "exporters/FileSizeLimit.h"
#include "feed/CaptureFixture.h"
#include "feed/Thumbnail.h"
#include "host/orvgl/CameraHelper.h"
#include "host/orvglutils/MarkupUtils.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "host/orvsgutils/ResourceLoader.h"
#include "support/ListeningDocument.h"
#include "support/NextFunction.h"
#include "support/StringTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

using orvsgutils::MaterialUtils;
using orvtest::nextFunction;
using testing::ElementsAre;

namespace
{

std::function<void(std::string const&)> noteStep;

void note(std::string const& step)
{
    if (noteStep) {
        noteStep(step);
    }
}

} // namespace

extern "C" std::time_t time(std::time_t* result) noexcept
{
    note("time");
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    if (result != nullptr) {
        *result = now.tv_sec;
    }
    return now.tv_sec;
}

std::wstring orvsgutils::ResourceLoader::getString(std::wstring const& library, int const& id)
{
    static auto* const whole = nextFunction(&ResourceLoader::getString);
    EXPECT_EQ(library, L"cloudplugin.dll");
    note("text " + std::to_string(id));
    return whole(library, id);
}

void orvgl::CameraHelper::getEyeTargetUp(std::shared_ptr<Camera> const& camera, Point& eye, Point& target, Point& right,
                                         Point& up, bool orthonormal)
{
    static auto* const whole = nextFunction(&CameraHelper::getEyeTargetUp);
    EXPECT_FALSE(orthonormal);
    note("camera");
    whole(camera, eye, target, right, up, orthonormal);
}

unsigned long orvsgutils::MaterialUtils::getNodeColor(int node, Res& resources, Topo& topology)
{
    static auto* const whole = nextFunction(&MaterialUtils::getNodeColor);
    note("colour of " + std::to_string(node));
    return whole(node, resources, topology);
}

void orvglutils::MarkupUtils::getMovedComponents(std::shared_ptr<orvsg::SCSceneRes> resources,
                                                 std::shared_ptr<orvsg::SCSceneTopo> topology, std::set<int>& moved)
{
    static auto* const whole = nextFunction(&MarkupUtils::getMovedComponents);
    note("moved nodes");
    whole(std::move(resources), std::move(topology), moved);
}

namespace
{

class CaptureSteps : public orvtest::CaptureTest
{
protected:
    CaptureSteps()
    {
        noteStep = [this](std::string const& step) {
            steps.push_back(step);
            if (auto const found = during.find(step); found != during.end()) {
                found->second();
            }
        };
        renderer->onDraw = [] { note("draw"); };
    }
    ~CaptureSteps() override { noteStep = nullptr; }

    std::vector<std::string> steps;
    std::map<std::string, std::function<void()>> during; ///< what a test does at a step
};

TEST_F(CaptureSteps, ComeInTheirOrder)
{
    MaterialUtils::setNodeColor(4, 0x0000FF, scene.resources, scene.runtime, scene.topology);
    MaterialUtils::setNodeColor(1, 0x00FF00, scene.resources, scene.runtime, scene.topology);
    capture();
    EXPECT_THAT(steps, ElementsAre("draw", "time", "text 207", "text 208", "text 206", "text 205", "text 209", "camera",
                                   "colour of 4", "colour of 1", "moved nodes"));
}

TEST_F(CaptureSteps, AskForTheRecordsBeforeAnythingElse)
{
    auto const document = std::make_shared<orvtest::ListeningDocument>(scene.document);
    document->onAsked = [](short key) { note("record " + std::to_string(key)); };
    captureView(document, user, L"x", L"f", thumbnailPath());
    std::set<std::string> asked;
    for (std::size_t i = 0; i < steps.size() && steps[i] != "draw"; ++i) {
        asked.insert(steps[i]);
    }
    for (short const key : {orvsg::SCSceneRT::key, orvgl::SCRenderer::key, orvsg::SCInfo::key, orvsg::SCSceneTopo::key,
                            orvsg::SCSceneRes::key, orv::SCApplication::key}) {
        EXPECT_TRUE(asked.contains("record " + std::to_string(key))) << key;
    }
}

TEST_F(CaptureSteps, RecordWhatTheDrawingLeft)
{
    during["draw"] = [this] {
        scene.renderer->camera->eye = Vector3(7, 8, 9);
        scene.runtime->visibility[3] = false;
    };
    Feed const feed = capture();
    EXPECT_EQ(feed.comment.viewport.eye, Vector3(7, 8, 9));
    EXPECT_THAT(feed.comment.objects.hidden, ElementsAre(3));
}

TEST_F(CaptureSteps, HaveTheSwitchesBackBeforeTheTimeAndTheTexts)
{
    orvgl::RendererSettings const noted{true, false, true};
    scene.renderer->settings = noted;
    int compared = 0;
    for (char const* const step : {"time", "text 207", "text 208", "text 206", "text 205", "text 209", "camera"}) {
        during[step] = [&] {
            ++compared;
            EXPECT_EQ(scene.renderer->settings, noted);
            EXPECT_TRUE(std::filesystem::exists(picture())) << "written by then";
        };
    }
    capture();
    EXPECT_EQ(compared, 7);
}

TEST_F(CaptureSteps, ReadThePictureAfterTheLastText)
{
    during["text 209"] = [this] { orvtest::writeFile(picture(), "another"); };
    EXPECT_EQ(decodeThumbnail(capture()), "another");
}

TEST_F(CaptureSteps, TakeTheCameraAfterTheTexts)
{
    during["text 209"] = [this] { scene.renderer->camera->eye = Vector3(4, 4, 4); };
    EXPECT_EQ(capture().comment.viewport.eye, Vector3(4, 4, 4));
}

TEST_F(CaptureSteps, FetchTheFixedTextsAtEachCapture)
{
    capture();
    orvtest::StringTable texts;
    texts.set(205, L"another source");
    texts.set(206, L"another kind");
    texts.set(207, L"another action");
    texts.set(208, L"another value");
    texts.set(209, L"another prefix,");
    texts.registerAs(L"cloudplugin.dll", environment.data / "other.res");
    Feed const feed = capture();
    EXPECT_EQ(feed.source, L"another source");
    EXPECT_EQ(feed.comment.commentType, L"another kind");
    EXPECT_EQ(feed.action, FeedAction(L"another action", L"another value"));
    EXPECT_TRUE(feed.thumbnail.starts_with(L"another prefix,/9j/")) << "a JPEG file's first bytes";
}

TEST_F(CaptureSteps, LeaveOutTheFixedTextsThatAreLacking)
{
    orvtest::StringTable().registerAs(L"cloudplugin.dll", environment.data / "empty.res");
    Feed const feed = capture();
    EXPECT_EQ(feed.source, L"");
    EXPECT_EQ(feed.comment.commentType, L"");
    EXPECT_EQ(feed.action, FeedAction(L"", L""));
    EXPECT_TRUE(feed.thumbnail.starts_with(L"/9j/"));
}

TEST_F(CaptureSteps, SendThePictureBeforeWhereANewOneCantBeWritten)
{
    Feed const first = capture();
    renderer->shade = 10;
    Feed second;
    {
        prctest::FileSizeLimit const full(16);
        second = capture();
    }
    EXPECT_EQ(second.thumbnail, first.thumbnail);
    EXPECT_NE(capture().thumbnail, first.thumbnail) << "there is room again";
}

} // namespace
