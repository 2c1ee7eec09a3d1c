#include "feed/CaptureFixture.h"
#include "feed/FeedReader.h"
#include "feed/FeedWriter.h"
#include "feed/Thumbnail.h"
#include "feed/ViewReplay.h"
#include "host/orv/GUID.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "platform/text/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <json/json.h>
#include <turbojpeg.h>

using orvsgutils::MaterialUtils;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

using ViewCapture = orvtest::CaptureTest;

/// The brightness of a JPEG file's pixels, row by row from the top.
struct GreyPicture {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> pixels;

    explicit GreyPicture(std::string const& file)
    {
        std::unique_ptr<void, int (*)(tjhandle)> const reader(tjInitDecompress(), tjDestroy);
        auto const* const bytes = reinterpret_cast<unsigned char const*>(file.data());
        int sampling = 0;
        int colors = 0;
        EXPECT_EQ(tjDecompressHeader3(reader.get(), bytes, file.size(), &width, &height, &sampling, &colors), 0);
        pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
        EXPECT_EQ(tjDecompress2(reader.get(), bytes, file.size(), pixels.data(), width, 0, height, TJPF_GRAY, 0), 0);
    }
    int at(int x, int y) const { return pixels.at(static_cast<std::size_t>(y * width + x)); }
};

/// While it lives, the process is in another time zone.
class TimeZone
{
public:
    explicit TimeZone(char const* zone)
    {
        if (char const* const set = std::getenv("TZ")) {
            before = set;
        }
        setenv("TZ", zone, 1);
        tzset();
    }
    ~TimeZone()
    {
        before ? setenv("TZ", before->c_str(), 1) : unsetenv("TZ");
        tzset();
    }

private:
    std::optional<std::string> before;
};

TEST_F(ViewCapture, FillsTheRecord)
{
    Feed const feed = capture();
    EXPECT_EQ(feed.author, FeedAuthor(L"token", L"Ada", L"ada@example.com", true, true));
    EXPECT_EQ(feed.file, FeedFile(L"file-id", L"gearbox.step"));
    EXPECT_EQ(feed.action, FeedAction(L"view", L" "));
    EXPECT_EQ(feed.comment.commentType, L"text");
    EXPECT_EQ(feed.comment.content, L"look at this");
    EXPECT_EQ(feed.source, L"desktop");
    EXPECT_TRUE(feed.thumbnail.starts_with(L"data:image/jpeg;base64,"));
    EXPECT_TRUE(hasThumbnail(feed));
}

TEST_F(ViewCapture, CarriesTheSameFixedTextsInEveryLanguage)
{
    environment.setLanguage(L"ja");
    Feed const feed = capture();
    EXPECT_EQ(feed.action, FeedAction(L"view", L" "));
    EXPECT_EQ(feed.comment.commentType, L"text");
    EXPECT_EQ(feed.source, L"desktop");
    EXPECT_TRUE(feed.thumbnail.starts_with(L"data:image/jpeg;base64,"));
}

TEST_F(ViewCapture, DrawsAPlainPictureAndPutsTheSwitchesBack)
{
    scene.renderer->settings = {true, false, true};
    capture();
    EXPECT_EQ(renderer->settings, (orvgl::RendererSettings{false, false, false}));
    EXPECT_EQ(renderer->size, std::pair(256U, 256U));
    EXPECT_FALSE(renderer->wasTransparent);
    EXPECT_EQ(scene.renderer->settings, (orvgl::RendererSettings{true, false, true}));
}

TEST_F(ViewCapture, PutsTheSwitchesBackWhereTheDrawingBreaks)
{
    renderer->throws = true;
    EXPECT_THROW(capture(), std::runtime_error);
    EXPECT_EQ(scene.renderer->settings, orvgl::RendererSettings());
}

TEST_F(ViewCapture, SendsThePictureThatItWrote)
{
    Feed const feed = capture();
    std::string const bytes = orvtest::contentOf(picture());
    EXPECT_EQ(bytes.substr(0, 2), "\xFF\xD8") << "a JPEG file";
    EXPECT_EQ(decodeThumbnail(feed), bytes);
}

TEST_F(ViewCapture, PutsTheTopOfTheViewAtThePicturesTop)
{
    renderer->shade = 10;
    renderer->lowerShade = 240;
    GreyPicture const grey(decodeThumbnail(capture()));
    ASSERT_EQ(grey.width, 256);
    ASSERT_EQ(grey.height, 256);
    EXPECT_LT(grey.at(128, 20), 40);
    EXPECT_GT(grey.at(128, 235), 210);
}

TEST_F(ViewCapture, ReplacesThePictureOfTheCommentBefore)
{
    Feed const first = capture();
    renderer->shade = 10;
    Feed const second = capture();
    EXPECT_NE(first.thumbnail, second.thumbnail);
    EXPECT_EQ(decodeThumbnail(second), orvtest::contentOf(picture()));
}

TEST_F(ViewCapture, SendsWhatTheFileHoldsWhereThePictureCantBeWritten)
{
    std::filesystem::create_directories(picture() / "in the way");
    EXPECT_EQ(capture().thumbnail, L"data:image/jpeg;base64,");
}

TEST_F(ViewCapture, NumbersCommentsByGuid)
{
    std::wstring const first = capture().comment.id;
    EXPECT_EQ(first.size(), 36U);
    EXPECT_EQ(orv::GUID(first.c_str()).toString(), L"{" + first + L"}");
    EXPECT_NE(capture().comment.id, first);
}

TEST_F(ViewCapture, TakesOneTimeTwice)
{
    Feed const feed = capture();
    EXPECT_EQ(feed.comment.publishedTime, feed.comment.updatedTime);
    EXPECT_FALSE(feed.comment.publishedTime.empty());
}

TEST_F(ViewCapture, TakesTheLocalTime)
{
    TimeZone const farEast("TEST-14"); // fourteen hours ahead of universal time
    std::time_t const first = std::time(nullptr);
    std::wstring const text = capture().comment.publishedTime;
    std::time_t const last = std::time(nullptr);
    EXPECT_THAT(text,
                testing::AnyOf(commentTimeText(*std::localtime(&first)), commentTimeText(*std::localtime(&last))));
    EXPECT_NE(text, commentTimeText(*std::gmtime(&first)));
    EXPECT_NE(text, commentTimeText(*std::gmtime(&last)));
}

TEST_F(ViewCapture, KeepsTextsOfBlanks)
{
    EXPECT_EQ(capture(L"   ").comment.content, L"   ");
}

TEST_F(ViewCapture, TakesTheCamera)
{
    scene.renderer->camera->eye = Vector3(1, 2, 3);
    scene.renderer->camera->target = Vector3(4, 5, 6);
    scene.renderer->camera->up = Vector3(0, 3, 4);
    EXPECT_EQ(capture().comment.viewport, FeedViewport(Vector3(1, 2, 3), Vector3(4, 5, 6), Vector3(0, 3, 4), 1.0));
}

TEST_F(ViewCapture, OfAnUntouchedModelHasNoObjects)
{
    Feed const feed = capture();
    EXPECT_EQ(feed.comment.objects, FeedObjects());
    EXPECT_EQ(orvtext::toUtf8(FeedWriter().write(feed)).find("objects"), std::string::npos);
}

TEST_F(ViewCapture, TakesColoursByPositionAndByNode)
{
    MaterialUtils::setNodeColor(1, 0x0000FF, scene.resources, scene.runtime, scene.topology);
    MaterialUtils::setNodeColor(4, 0x804000, scene.resources, scene.runtime, scene.topology);
    FeedObjects const objects = capture().comment.objects;
    ASSERT_EQ(objects.colored.size(), 6U);
    EXPECT_EQ(objects.colored[1], Vector3(1, 0, 0));
    EXPECT_EQ(objects.colored[4], Vector3(0, static_cast<float>(64 / 255.0), static_cast<float>(128 / 255.0)));
    EXPECT_EQ(objects.colored[0], Vector3());
    EXPECT_THAT(objects.nodecolor, ElementsAre(std::pair(1, 0x0000FF), std::pair(4, 0x804000)));
}

TEST_F(ViewCapture, TakesBlackAsNoColourByPosition)
{
    MaterialUtils::setNodeColor(3, 0, scene.resources, scene.runtime, scene.topology);
    FeedObjects const objects = capture().comment.objects;
    EXPECT_THAT(objects.nodecolor, ElementsAre(std::pair(3, 0)));
    EXPECT_EQ(objects.colored[3], Vector3());
}

TEST_F(ViewCapture, SkipsPlacesWithoutANode)
{
    scene.runtime->coloredNodes = orvsg::Container<int, int>({-1, -1});
    scene.runtime->transparentNodes = orvsg::Container<int, int>({-1, 3, -1});
    FeedObjects const objects = capture().comment.objects;
    EXPECT_EQ(objects.colored.size(), 6U) << "the list isn't empty";
    EXPECT_THAT(objects.nodecolor, IsEmpty());
    EXPECT_THAT(objects.transparent, ElementsAre(3));
}

TEST_F(ViewCapture, TakesNodesOutsideTheModelWithoutHarm)
{
    scene.runtime->coloredNodes = orvsg::Container<int, int>({99, -7});
    FeedObjects const objects = capture().comment.objects;
    EXPECT_EQ(objects.colored.size(), 6U);
    EXPECT_EQ(objects.nodecolor.size(), 2U);
}

TEST_F(ViewCapture, TakesTransparentNodesInTheirOrder)
{
    MaterialUtils::setNodeTransparency(4, 0.3F, scene.resources, scene.runtime, scene.topology);
    MaterialUtils::setNodeTransparency(1, 0.9F, scene.resources, scene.runtime, scene.topology);
    EXPECT_THAT(capture().comment.objects.transparent, ElementsAre(4, 1));
}

TEST_F(ViewCapture, RecordsNoDegreeOfTransparency)
{
    MaterialUtils::setNodeTransparency(4, 0.3F, scene.resources, scene.runtime, scene.topology);
    Feed feed = capture();
    MaterialUtils::setNodeTransparency(4, 0.9F, scene.resources, scene.runtime, scene.topology);
    EXPECT_EQ(capture().comment.objects, feed.comment.objects);
}

TEST_F(ViewCapture, TakesColoursInTheOrderOfNodesWhateverTheOrderOfTheList)
{
    for (int const node : {5, 1, 4}) {
        MaterialUtils::setNodeColor(node, 0x010203, scene.resources, scene.runtime, scene.topology);
    }
    FeedObjects const objects = capture().comment.objects;
    EXPECT_THAT(objects.nodecolor, ElementsAre(std::pair(1, 0x010203), std::pair(4, 0x010203), std::pair(5, 0x010203)));
    EXPECT_EQ(objects.colored[5], objects.colored[1]);
}

TEST_F(ViewCapture, TakesADamagedPlacementAsItStands)
{
    float const nan = std::numeric_limits<float>::quiet_NaN();
    scene.moveTo(4, nan, 0, 0);
    FeedObjects const objects = capture().comment.objects;
    ASSERT_TRUE(objects.nodetransform.contains(4));
    EXPECT_TRUE(std::isnan(objects.nodetransform.at(4)[12]));
}

TEST_F(ViewCapture, TakesHiddenNodesAscending)
{
    scene.runtime->visibility[5] = false;
    scene.runtime->visibility[0] = false;
    scene.runtime->visibility[3] = false;
    EXPECT_THAT(capture().comment.objects.hidden, ElementsAre(0, 3, 5));
}

TEST_F(ViewCapture, TakesMovedNodesWithTheirMatrices)
{
    scene.moveTo(4, 1, 2, 30);
    FeedObjects const objects = capture().comment.objects;
    ASSERT_EQ(objects.nodetransform.size(), 1U);
    EXPECT_EQ(objects.nodetransform.at(4), scene.resources->transforms.getValue(4).matrix);
    EXPECT_EQ(objects.nodetransform.at(4)[14], 30.0F);
}

TEST_F(ViewCapture, ComesBackThroughItsTextIntoAnotherScene)
{
    scene.renderer->camera->eye = Vector3(0.1F, -7.25F, 1e6F);
    scene.runtime->visibility[3] = false;
    scene.moveTo(4, 1, 2, 30);
    MaterialUtils::setNodeColor(1, 0x0000FF, scene.resources, scene.runtime, scene.topology);
    MaterialUtils::setNodeTransparency(5, 0.5F, scene.resources, scene.runtime, scene.topology);
    Feed const sent = capture(L"a \"remark\"\n\u65e5");

    Json::Value response(Json::arrayValue);
    response[0]["Content"] = orvtext::toUtf8(FeedWriter().write(sent));
    std::vector<Feed> const received = FeedReader().read(orvtext::fromUtf8(response.toStyledString()));
    ASSERT_EQ(received.size(), 1U);
    Feed expected = sent;
    expected.comment.objects.colored.clear();
    EXPECT_EQ(received[0], expected);

    orvtest::TestScene const other;
    other.runtime->visibility[0] = false;
    restoreView(other.document, received[0]);
    scene.document = other.document;
    Feed const again = capture();
    EXPECT_EQ(again.comment.objects, sent.comment.objects);
    EXPECT_EQ(again.comment.viewport, sent.comment.viewport);
    EXPECT_NE(again.comment.id, sent.comment.id);
}

TEST_F(ViewCapture, LeavesTheSceneAlone)
{
    scene.moveTo(4, 1, 2, 30);
    MaterialUtils::setNodeColor(1, 0x0000FF, scene.resources, scene.runtime, scene.topology);
    orvsg::SCSceneRT const runtime = *scene.runtime;
    orvgl::Camera const camera = *scene.renderer->camera;
    capture();
    EXPECT_EQ(scene.runtime->visibility, runtime.visibility);
    EXPECT_EQ(*scene.renderer->camera, camera);
    EXPECT_EQ(scene.resources->materials.getValue(1).color, 0x0000FFU);
}

TEST_F(ViewCapture, DoesWhatItCanWithoutRecords)
{
    scene.renderer->camera->eye = Vector3(1, 2, 3);
    scene.runtime->visibility[3] = false;
    scene.moveTo(4, 1, 2, 30);
    MaterialUtils::setNodeColor(1, 0x0000FF, scene.resources, scene.runtime, scene.topology);
    MaterialUtils::setNodeTransparency(5, 0.5F, scene.resources, scene.runtime, scene.topology);
    Feed const whole = capture();
    auto const without = [this](short key) {
        auto const record = scene.document->getSchema(key);
        scene.document->setSchema(key, nullptr);
        Feed feed = capture();
        scene.document->setSchema(key, record);
        return feed;
    };
    FeedObjects const& all = whole.comment.objects;
    FeedObjects const movedAlone({}, {}, {}, all.nodetransform, {});
    FeedObjects const shownAlone({}, all.transparent, all.hidden, {}, {});
    EXPECT_EQ(without(orvsg::SCSceneRT::key).comment.objects, movedAlone);
    EXPECT_EQ(without(orvsg::SCSceneTopo::key).comment.objects, shownAlone);
    EXPECT_EQ(without(orvsg::SCSceneRes::key).comment.objects, shownAlone);
    EXPECT_EQ(without(orvgl::SCRenderer::key).comment.viewport, FeedViewport(Vector3(), Vector3(), Vector3(), 1.0));
    EXPECT_EQ(without(orvgl::SCRenderer::key).comment.objects, all);
    EXPECT_EQ(without(orvsg::SCInfo::key).file, FeedFile(L"file-id", L""));
    EXPECT_EQ(without(orvsg::SCInfo::key).comment.objects, all);
    EXPECT_EQ(without(orv::SCApplication::key).comment.objects, all);
    scene.document = nullptr;
    EXPECT_EQ(capture().comment.objects, FeedObjects());
    EXPECT_EQ(capture().comment.content, L"look at this");
}

} // namespace
