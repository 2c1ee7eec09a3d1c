// The same road with the service gone at each step: the given words, no hang, no crash, and the typed text kept
// wherever the attempt can be repeated.

#include "tests/e2e/RoadTest.h"
#include "tour/ReviewView.h"
#include "tour/SceneState.h"

#include "platform/Process.h"

#include <QElapsedTimer>
#include <QFile>

namespace
{

constexpr qint64 limit = 45000; // milliseconds; connect and low-speed limits of the web classes lie below

class ServiceStopsHalfWay : public RoadTest
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(startService());
        driver = startViewer();
        ASSERT_TRUE(driver->openModel(sampleModel())) << driver->status();
        timer.start();
    }
    void TearDown() override { EXPECT_LT(timer.elapsed(), limit); }

    std::unique_ptr<orvtour::Driver> driver;
    QElapsedTimer timer;
};

TEST_F(ServiceStopsHalfWay, BeforeSigningInTheDialogStaysWithWhatWasTyped)
{
    ASSERT_TRUE(service->stop());
    expectLoginToFail(*driver);

    // Once it is back, the same road goes on.
    ASSERT_TRUE(service->start(service->port())) << service->errorText();
    ASSERT_TRUE(driver->signIn(email, password));
    EXPECT_TRUE(driver->hasCommentBox());
}

TEST_F(ServiceStopsHalfWay, BeforeSubmittingTheViewerLivesOnAndSaysTheGivenWords)
{
    ASSERT_TRUE(driver->signIn(email, password)) << driver->status();
    ASSERT_TRUE(orvtour::arrangeReviewView(*driver));
    auto const arranged = orvtour::readScene(driver->document());
    ASSERT_TRUE(driver->typeComment("Is anybody there?"));
    ASSERT_TRUE(service->stop());
    ASSERT_TRUE(driver->submitComment());
    // The words follow the sending, not the answer; the reload then shows an empty feed. Both are meant.
    EXPECT_EQ(driver->status(), "Comment added successfully.");
    EXPECT_TRUE(driver->blocks().empty());
    EXPECT_EQ(driver->paneTitle(), "Feeds - 0");
    EXPECT_EQ(orvtour::difference(orvtour::readScene(driver->document()), arranged), "");

    // The feed as it was is back as soon as the service is.
    ASSERT_TRUE(service->start(service->port())) << service->errorText();
    driver->activateFeeds();
    EXPECT_EQ(driver->paneTitle(), "Feeds - 6");
}

TEST_F(ServiceStopsHalfWay, WithoutAConnectionTheCommentStaysInItsBox)
{
    ASSERT_TRUE(driver->signIn(email, password)) << driver->status();
    std::size_t const shown = driver->blocks().size();
    ASSERT_TRUE(driver->typeComment("Kept until the cable is back"));
    orvplatform::setConnectedForTest(false);
    ASSERT_TRUE(driver->submitComment());
    EXPECT_EQ(driver->status(), "Something went wrong, Check your network connection.");
    EXPECT_EQ(driver->typedComment(), "Kept until the cable is back");
    EXPECT_EQ(driver->blocks().size(), shown);

    orvplatform::setConnectedForTest(std::nullopt);
    ASSERT_TRUE(driver->submitComment());
    EXPECT_EQ(driver->status(), "Comment added successfully.");
    ASSERT_EQ(driver->blocks().size(), shown + 1);
    EXPECT_EQ(driver->blocks()[0].text, "Kept until the cable is back");
}

TEST_F(ServiceStopsHalfWay, ASignOutThatFailsLeavesTheUserSignedIn)
{
    ASSERT_TRUE(driver->signIn(email, password)) << driver->status();
    ASSERT_TRUE(service->stop());
    ASSERT_TRUE(driver->signOut());
    EXPECT_FALSE(driver->hasPrompt());
    EXPECT_TRUE(driver->hasCommentBox());
    QFile left(sessionFile());
    ASSERT_TRUE(left.open(QIODevice::ReadOnly));
    EXPECT_EQ(left.readAll(), QByteArray()) << "A failed sign-out leaves the file behind, empty.";
}

} // namespace
