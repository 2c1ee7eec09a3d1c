#include "feed/ViewCapture.h"

#include "feed/FeedReader.h"
#include "feed/FeedWriter.h"
#include "feed/ForeignTimes.h"
#include "feed/Thumbnail.h"
#include "feed/ViewReplay.h"
#include "host/orv/GUID.h"
#include "host/orvsgutils/MaterialUtils.h"
#include "host/runtime/IFrameRenderer.h"
#include "platform/text/Text.h"
#include "support/PluginEnvironment.h"
#include "support/TestScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <cwchar>
#include <filesystem>
#include <limits>
#include <locale>
#include <memory>
#include <optional>
#include <stdexcept>
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

/// Keeps what the picture was asked for.
class FakeRenderer final : public orvhost::IFrameRenderer
{
public:
    bool drawFrame(std::shared_ptr<orv::IDocument> const& document, unsigned int width, unsigned int height,
                   bool transparent, unsigned char* pixels) override
    {
        auto const record = orv::recordOf<orvgl::SCRenderer>(document);
        settings = record ? std::optional(record->settings) : std::nullopt;
        size = {width, height};
        wasTransparent = transparent;
        if (throws) {
            throw std::runtime_error("no picture");
        }
        std::size_t const half = std::size_t{3} * width * height / 2;
        std::fill_n(pixels, half, shade);
        std::fill_n(pixels + half, half, lowerShade.value_or(shade));
        return true;
    }

    std::optional<orvgl::RendererSettings> settings;
    std::pair<unsigned int, unsigned int> size;
    bool wasTransparent = true;
    bool throws = false;
    unsigned char shade = 128;
    std::optional<unsigned char> lowerShade; ///< of the lower half, where it differs
};

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

class ViewCapture : public testing::Test
{
protected:
    ViewCapture() : before(orvhost::setFrameRenderer(renderer))
    {
        user.userid = L"token";
        user.username = L"ada@example.com";
        user.name = L"Ada";
    }
    ~ViewCapture() override { orvhost::setFrameRenderer(before); }

    Feed capture(std::wstring const& text = L"look at this")
    {
        return captureView(scene.document, user, text, L"file-id", thumbnailPath());
    }
    std::filesystem::path picture() const { return environment.cloud("image.jpeg"); }

    orvtest::PluginEnvironment environment;
    orvtest::TestScene scene;
    orvweb::UserInfo user;
    std::shared_ptr<FakeRenderer> renderer = std::make_shared<FakeRenderer>();
    std::shared_ptr<orvhost::IFrameRenderer> before;
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
    for (short const key : {orvsg::SCSceneRT::key, orvgl::SCRenderer::key, orvsg::SCInfo::key, orvsg::SCSceneTopo::key,
                            orvsg::SCSceneRes::key, orv::SCApplication::key}) {
        scene.document->setSchema(key, nullptr);
        EXPECT_EQ(capture().comment.content, L"look at this") << "without record " << key;
    }
    EXPECT_EQ(capture().file.name, L"");
    EXPECT_EQ(captureView(nullptr, user, L"x", L"f", thumbnailPath()).comment.content, L"x");
}

TEST(CommentTime, HasTheMonthInTheMinutesPlace)
{
    std::tm moment{};
    moment.tm_year = 2026 - 1900;
    moment.tm_mon = 10;
    moment.tm_mday = 15;
    moment.tm_hour = 16;
    moment.tm_min = 41;
    EXPECT_EQ(commentTimeText(moment), L"Nov 15, 2026 16:11 PM");
    moment.tm_hour = 4;
    moment.tm_mon = 2;
    moment.tm_mday = 5;
    EXPECT_EQ(commentTimeText(moment), L"Mar 05, 2026 04:03 AM");
}

/// Writes nothing, where streams are left to the locale of the process.
class SilentTimes : public std::time_put<wchar_t>
{
protected:
    iter_type do_put(iter_type place, std::ios_base&, wchar_t, std::tm const*, char, char) const override
    {
        return place;
    }
};

TEST(CommentTime, IsEnglishWhateverTheLocale)
{
    std::tm moment{};
    moment.tm_year = 2026 - 1900;
    moment.tm_mon = 10;
    moment.tm_mday = 15;
    moment.tm_hour = 16;
    orvtest::ForeignTimes const foreign;
    if (!foreign.isSet) {
        GTEST_SKIP() << "skipped: this system has no compiled locale to change";
    }
    wchar_t text[32];
    ASSERT_NE(std::wcsftime(text, 32, L"%b %p", &moment), 0U);
    ASSERT_STREQ(text, L"Xyz QM") << "the locale is in force";
    std::locale const before = std::locale::global(std::locale(std::locale::classic(), new SilentTimes));
    std::wstring const written = commentTimeText(moment);
    std::locale::global(before);
    EXPECT_EQ(written, L"Nov 15, 2026 16:11 PM");
}

TEST(CommentTime, IsEmptyWhereItDoesNotFit)
{
    std::tm moment{};
    moment.tm_mday = 1;
    EXPECT_EQ(commentTimeText(moment).size(), 21U);
    EXPECT_EQ(commentTimeText(moment, 22).size(), 21U);
    EXPECT_EQ(commentTimeText(moment, 21), L"") << "the closing zero needs room as well";
}

TEST(EncodedFile, IsOneLineOfBase64)
{
    orvtest::PluginEnvironment const environment;
    orvtest::writeFile(environment.data / "picture", std::string(300, '\xFF'));
    std::wstring const text = encodeFileBase64((environment.data / "picture").wstring());
    EXPECT_EQ(text, std::wstring(400, L'/'));
    orvtest::writeFile(environment.data / "picture", "f");
    EXPECT_EQ(encodeFileBase64((environment.data / "picture").wstring()), L"Zg==");
}

TEST(EncodedFile, IsEmptyWhereThereIsNone)
{
    orvtest::PluginEnvironment const environment;
    EXPECT_EQ(encodeFileBase64((environment.data / "nothing").wstring()), L"");
    EXPECT_EQ(encodeFileBase64(environment.data.wstring()), L"") << "a directory";
    orvtest::writeFile(environment.data / "empty", "");
    EXPECT_EQ(encodeFileBase64((environment.data / "empty").wstring()), L"");
}

} // namespace
