// The whole road of one comment: open, sign in, arrange a view, comment on it, lose the view, and get it back by a
// click.

#include "tests/e2e/RoadTest.h"
#include "tour/ReviewView.h"
#include "tour/SceneState.h"

#include <QFile>
#include <QRegularExpression>

namespace
{

constexpr double samePicture = 0.002; // share of pixels that may differ visibly

struct Model {
    char const* name;
    std::wstring path;
};

std::vector<Model> models()
{
    QString const shared = ORV_SHARED_DIR "/models/as1-oc-214.stp";
    return {{"Sample", QStringLiteral(ORV_BINARY_DIR "/samples/planetary-gearbox.step").toStdWString()},
            {"As1", shared.toStdWString()}};
}

/// The count behind the hyphen of the pane's title; -1 without one.
int countIn(QString const& title)
{
    static QRegularExpression const pattern("^Feeds - (\\d+)$");
    auto const match = pattern.match(title);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

class RoadOfOneComment : public RoadTest, public testing::WithParamInterface<Model>
{
};

TEST_P(RoadOfOneComment, EndsInTheViewWhereItBegan)
{
    if (!QFile::exists(QString::fromStdWString(GetParam().path))) {
        GTEST_SKIP() << "skipped: the public test models are not beside this checkout";
    }
    ASSERT_NO_FATAL_FAILURE(startService());
    auto driver = startViewer();
    ASSERT_TRUE(driver->openModel(GetParam().path)) << driver->status();
    ASSERT_TRUE(driver->hasPrompt());
    EXPECT_FALSE(driver->hasCommentBox());

    // Signing in pushes the model by itself, which brings its automatic entries.
    ASSERT_TRUE(driver->signIn(email, password)) << driver->status();
    EXPECT_FALSE(driver->hasPrompt());
    EXPECT_TRUE(driver->hasCommentBox());
    EXPECT_TRUE(driver->status().contains(" is successfully uploaded to ")) << driver->status();
    int const before = countIn(driver->paneTitle());
    EXPECT_EQ(before, 6) << driver->paneTitle();

    ASSERT_TRUE(orvtour::arrangeReviewView(*driver));
    orvtour::SceneState const captured = orvtour::readScene(driver->document());
    QImage const capturedPicture = driver->viewPicture();
    EXPECT_EQ(captured.coloredNodes.size(), 1U);
    EXPECT_EQ(captured.transparentNodes.size(), 1U);

    QString const text = "Bolt 3 + washer: 100% \"wrong\" size, naïve 日本語 😀";
    ASSERT_TRUE(driver->typeComment(text));
    ASSERT_TRUE(driver->submitComment());
    EXPECT_EQ(driver->status(), "Comment added successfully.");
    EXPECT_EQ(driver->typedComment(), "");
    EXPECT_EQ(orvtour::difference(orvtour::readScene(driver->document()), captured), "") << "Capturing must only read.";
    EXPECT_EQ(countIn(driver->paneTitle()), before + 1) << driver->paneTitle();

    auto const blocks = driver->blocks();
    ASSERT_EQ(blocks.size(), static_cast<std::size_t>(before + 1));
    EXPECT_TRUE(blocks[0].hasPicture);
    EXPECT_TRUE(blocks[0].hasDelete);
    EXPECT_EQ(blocks[0].text, text);
    static QRegularExpression const time("^[A-Z][a-z]{2} \\d{2}, \\d{4} \\d{2}:\\d{2} [AP]M$");
    EXPECT_TRUE(time.match(blocks[0].date).hasMatch()) << blocks[0].date;
    EXPECT_FALSE(blocks[1].hasDelete) << "The automatic entries are the service's.";

    // The view goes, and the click brings it back.
    ASSERT_TRUE(orvtour::resetView(*driver));
    orvtour::SceneState const reset = orvtour::readScene(driver->document());
    EXPECT_EQ(orvtour::difference(reset, captured), "visibility, colours, transparency, placements, camera");
    EXPECT_GT(orvtour::pictureDifference(driver->viewPicture(), capturedPicture), 0.02);
    for (int click = 0; click < 2; ++click) {
        ASSERT_TRUE(driver->clickBlock(0));
        EXPECT_EQ(orvtour::difference(orvtour::readScene(driver->document()), captured), "");
    }
    QImage const restored = driver->viewPicture();
    double const differing = orvtour::pictureDifference(restored, capturedPicture);
    EXPECT_LT(differing, samePicture) << keepPictures(capturedPicture, restored);

    // A second run finds the session and is signed in from the start.
    driver.reset();
    driver = startViewer();
    ASSERT_TRUE(driver->openModel(GetParam().path)) << driver->status();
    EXPECT_FALSE(driver->hasPrompt());
    EXPECT_TRUE(driver->hasCommentBox());
    driver->activateFeeds();
    ASSERT_EQ(driver->blocks().size(), static_cast<std::size_t>(before + 1));
    EXPECT_EQ(driver->blocks()[0].text, text);
    ASSERT_TRUE(driver->clickBlock(0));
    EXPECT_EQ(orvtour::difference(orvtour::readScene(driver->document()), captured), "");

    ASSERT_TRUE(driver->signOut());
    EXPECT_TRUE(driver->hasPrompt());
    EXPECT_FALSE(driver->hasCommentBox());
    EXPECT_TRUE(driver->blocks().empty());
    EXPECT_EQ(countIn(driver->paneTitle()), 0) << driver->paneTitle();
    EXPECT_FALSE(QFile::exists(sessionFile()));
}

INSTANTIATE_TEST_SUITE_P(Models, RoadOfOneComment, testing::ValuesIn(models()),
                         [](testing::TestParamInfo<Model> const& each) { return std::string(each.param.name); });

} // namespace
