// A view of a real assembly into a record, through its text, and back: the records are equal bit for bit, and so are
// the pictures.

#include "tests/e2e/RoadTest.h"

#include "feed/FeedReader.h"
#include "feed/FeedWriter.h"
#include "feed/ViewCapture.h"
#include "feed/ViewReplay.h"
#include "platform/testing/Input.h"
#include "platform/text/Text.h"
#include "tests/support/RandomView.h"
#include "tour/SceneState.h"
#include "viewer/commands/PartCommands.h"
#include "viewer/commands/ViewCommands.h"

#include <json/json.h>

#include <QFile>

#include <bit>
#include <cstdint>

namespace
{

struct Model {
    char const* name;
    QString path;
};

std::vector<Model> models()
{
    QString const shared = ORV_SHARED_DIR "/models/";
    return {{"Sample", ORV_BINARY_DIR "/samples/planetary-gearbox.step"},
            {"As1", shared + "as1-oc-214.stp"},
            {"As1WithoutColours", shared + "as1_pe_203.stp"},
            {"OnePartOfManyFaces", shared + "io1-cm-214.stp"},
            {"RoundedCube", shared + "rounded-cube.step"}};
}

template <std::size_t N>
std::vector<std::uint32_t> bitsOf(orvmath::Tuple<float, N> const& tuple)
{
    std::vector<std::uint32_t> bits;
    for (unsigned char i = 0; i < N; ++i) {
        bits.push_back(std::bit_cast<std::uint32_t>(tuple[i]));
    }
    return bits;
}

std::map<int, std::vector<std::uint32_t>> bitsOf(std::map<int, Matrix4> const& matrices)
{
    std::map<int, std::vector<std::uint32_t>> bits;
    for (auto const& [node, matrix] : matrices) {
        bits.emplace(node, bitsOf(matrix));
    }
    return bits;
}

class ViewRoundTrip : public RoadTest, public testing::WithParamInterface<Model>
{
protected:
    void SetUp() override
    {
        if (!QFile::exists(GetParam().path)) {
            GTEST_SKIP() << "skipped: the public test models are not beside this checkout";
        }
        driver = startViewer();
        ASSERT_TRUE(driver->openModel(GetParam().path.toStdWString())) << driver->status();
    }

    Feed capture(QString const& picture)
    {
        orvweb::UserInfo user;
        user.userid = L"7c9e6679-7425-40de-944b-e07fc1f90ae7";
        user.username = L"ann@example.com";
        user.name = L"Ann";
        return captureView(driver->document(), user, L"a remark", std::wstring(36, L'f'),
                           data.filePath(picture).toStdWString());
    }

    /// As the service hands it back.
    static Feed throughTheText(Feed const& feed)
    {
        Json::Value response(Json::arrayValue);
        response[0U]["Content"] = orvtext::toUtf8(FeedWriter().write(feed));
        auto const feeds =
            FeedReader().read(orvtext::fromUtf8(Json::writeString(Json::StreamWriterBuilder(), response)));
        EXPECT_EQ(feeds.size(), 1U);
        return feeds.empty() ? Feed() : feeds[0];
    }

    static void expectSameView(FeedComment const& actual, FeedComment const& expected)
    {
        EXPECT_EQ(bitsOf(actual.viewport.eye), bitsOf(expected.viewport.eye));
        EXPECT_EQ(bitsOf(actual.viewport.target), bitsOf(expected.viewport.target));
        EXPECT_EQ(bitsOf(actual.viewport.up), bitsOf(expected.viewport.up));
        EXPECT_EQ(actual.objects.hidden, expected.objects.hidden);
        EXPECT_EQ(actual.objects.transparent, expected.objects.transparent);
        EXPECT_EQ(actual.objects.nodecolor, expected.objects.nodecolor);
        EXPECT_EQ(bitsOf(actual.objects.nodetransform), bitsOf(expected.objects.nodetransform));
    }

    /// The view on the screen, when all that is under way has been drawn.
    QImage picture() const
    {
        orvplatform::testing::processEvents();
        return driver->viewPicture();
    }

    std::unique_ptr<orvtour::Driver> driver;
};

TEST_P(ViewRoundTrip, BringsBackRecordsAndPicturesExactly)
{
    for (unsigned int seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        orvviewer::resetNodes(driver->context());
        orvviewer::setFirstView(driver->document(), 1.0);
        orvtest::arrangeRandomView(driver->context(), seed);
        QImage const before = picture();
        orvtour::SceneState const scene = orvtour::readScene(driver->document());
        Feed const first = capture("first.jpeg");
        ASSERT_FALSE(first.comment.objects.transparent.empty() && first.comment.objects.nodecolor.empty());
        ASSERT_FALSE(first.comment.objects.nodetransform.empty());
        ASSERT_EQ(orvtour::difference(orvtour::readScene(driver->document()), scene), "") << "Capturing only reads.";
        Feed const record = throughTheText(first);
        expectSameView(record.comment, first.comment);

        orvtest::arrangeRandomView(driver->context(), 1000 + seed);
        ASSERT_NE(orvtour::difference(orvtour::readScene(driver->document()), scene), "");
        ASSERT_GT(orvtour::pictureDifference(picture(), before), 0.01);

        restoreView(driver->document(), record);
        EXPECT_EQ(orvtour::difference(orvtour::readScene(driver->document()), scene), "");
        Feed const second = capture("second.jpeg");
        expectSameView(second.comment, first.comment);
        EXPECT_TRUE(second.thumbnail == first.thumbnail) << "The snapshots differ.";
        QImage const after = picture();
        EXPECT_TRUE(after == before) << orvtour::pictureDifference(after, before) << ' ' << keepPictures(before, after);
    }
}

TEST_P(ViewRoundTrip, OfATransparencyBringsBackHalf)
{
    orvviewer::makeTransparent(driver->context(), {0}, 0.8F);
    Feed const record = throughTheText(capture("first.jpeg"));
    EXPECT_EQ(record.comment.objects.transparent, std::vector<int>{0});
    orvviewer::resetNodes(driver->context());
    restoreView(driver->document(), record);
    EXPECT_EQ(orvtour::readScene(driver->document()).transparency.at(0), 0.5F);
}

INSTANTIATE_TEST_SUITE_P(Models, ViewRoundTrip, testing::ValuesIn(models()),
                         [](testing::TestParamInfo<Model> const& each) { return std::string(each.param.name); });

} // namespace
