// When the pane fetches a feed, and what becomes of the answer.

#include "ui/feed/FeedPaneFixture.h"

#include <json/json.h>

using namespace orvtest;
namespace codes = orv::HintCode;

namespace
{
using Titles = std::vector<std::wstring>;
} // namespace

TEST_F(FeedPaneTest, ActivationLoadsTheFeedInTheServicesOrder)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Cid", "Ann", "Bob"});
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"Add Comment", L"Cid", L"Ann", L"Bob"}));
    EXPECT_EQ(visibleBlocks(), 3);
    EXPECT_EQ(tabTitle(), L"Feeds - 3");
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::feedReloaded});
    EXPECT_EQ(application->notifier->documents.at(0), scene.document.get());
    ASSERT_EQ(network.sent().size(), 2U);
    EXPECT_EQ(network.sent()[0].field("filename"), "gearbox.step");
    EXPECT_EQ(network.sent()[1].field("jobid"), jobIdBytes);
}

TEST_F(FeedPaneTest, OpeningADocumentFetchesNothing)
{
    signIn();
    openPaneWithModel();
    EXPECT_TRUE(network.sent().empty());
}

TEST_F(FeedPaneTest, LeavingTheTabDoesNothing)
{
    signIn();
    openPaneWithModel();
    pane->OnActivateChange(false);
    EXPECT_TRUE(network.sent().empty());
}

TEST_F(FeedPaneTest, ActivationGoesByTheUserNameAlone)
{
    openPaneWithModel();
    pane->OnActivateChange(true);
    user->userid = token;
    pane->OnActivateChange(true);
    EXPECT_TRUE(network.sent().empty());
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(FeedPaneTest, AnEmptyFeedLeavesToolsAndCommentBox)
{
    signIn();
    openPaneWithModel();
    loadFeed(std::vector<std::string>());
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"Add Comment"}));
    EXPECT_EQ(tabTitle(), L"Feeds - 0");
}

TEST_F(FeedPaneTest, WithoutAConnectionTheOldFeedStays)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann", "Bob"});
    orvplatform::setConnectedForTest(false);
    pane->OnActivateChange(true);
    EXPECT_EQ(visibleBlocks(), 2);
    EXPECT_EQ(tabTitle(), L"Feeds - 2");
    EXPECT_EQ(application->texts, Titles{text(111)});
}

TEST_F(FeedPaneTest, AJobIdOf35CharactersMeansThatTheFileIsNotThere)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann"});
    network.expect("/api/isFilePresent/", shortIdBytes);
    pane->OnActivateChange(true);
    EXPECT_EQ(visibleBlocks(), 0);
    EXPECT_EQ(tabTitle(), L"Feeds - 0");
}

TEST_F(FeedPaneTest, AFailedQuestionLooksLikeAFileThatWasNeverUploaded)
{
    signIn();
    openPaneWithModel();
    network.expectFailure("/api/isFilePresent/");
    pane->OnActivateChange(true);
    EXPECT_EQ(tabTitle(), L"Feeds - 0");
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(FeedPaneTest, AFeedThatFailsOrIsNoFeedIsEmpty)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann"});
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expectFailure("/api/CommentSync/");
    pane->OnActivateChange(true);
    EXPECT_EQ(tabTitle(), L"Feeds - 0");

    loadFeed({"Ann"});
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "<html>");
    pane->OnActivateChange(true);
    EXPECT_EQ(tabTitle(), L"Feeds - 0");
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(FeedPaneTest, AMalformedFeedThrowsAndLeavesTheOldOne)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann", "Bob"});
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", R"({"a":1})");
    EXPECT_THROW(pane->OnActivateChange(true), Json::Exception);
    EXPECT_EQ(visibleBlocks(), 2);
    EXPECT_EQ(tabTitle(), L"Feeds - 2");
}

TEST_F(FeedPaneTest, ACommentAddedOrDeletedReloadsTheFeed)
{
    signIn();
    openPaneWithModel();
    for (short const code : {codes::commentAdded, codes::commentDeleted}) {
        expectFeed({"Ann"});
        sendHint(*pane, code, scene.document);
        EXPECT_EQ(visibleBlocks(), 1);
    }
}

TEST_F(FeedPaneTest, ACommentAddedOrDeletedReloadsTheFeedAlsoWhenNobodyIsSignedIn)
{
    openPaneWithModel();
    for (short const code : {codes::commentAdded, codes::commentDeleted}) {
        network.expect("/api/isFilePresent/", "");
        tab.SetWindowTextW(L"Feeds");
        sendHint(*pane, code, scene.document);
        EXPECT_EQ(network.last().field("filename"), "gearbox.step") << code;
        EXPECT_EQ(network.last().field("username"), "") << code;
        EXPECT_EQ(tabTitle(), L"Feeds - 0") << code;
    }
    EXPECT_EQ(network.sent().size(), 2U);
}

TEST_F(FeedPaneTest, ChangesOfTheDocumentReloadNothing)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann"});
    for (short const code : {codes::documentChanged, codes::unitsChanged, codes::viewChanged, codes::selectionChanged,
                             codes::sceneChanged, codes::viewRestored, codes::visibilityChanged}) {
        sendHint(*pane, code, scene.document);
        EXPECT_EQ(visibleBlocks(), 1) << code;
    }
    EXPECT_EQ(network.sent().size(), 2U);
}

TEST_F(FeedPaneTest, AHintWithoutADocumentKeepsTheOneBefore)
{
    signIn();
    openPaneWithModel();
    sendHint(*pane, codes::documentChanged, nullptr);
    loadFeed({"Ann"});
    EXPECT_EQ(visibleBlocks(), 1);
}

TEST_F(FeedPaneTest, TheDocumentOfAChangeIsTheOneThatIsLoaded)
{
    signIn();
    openPaneWithModel();
    TestScene other(L"/models/other.stp");
    other.application->application = application;
    sendHint(*pane, codes::documentChanged, other.document);
    loadFeed({"Ann"});
    EXPECT_EQ(network.sent()[0].field("filename"), "other.stp");
}

TEST_F(FeedPaneTest, LoadingEndsSilentlyWithoutWhatItNeeds)
{
    signIn();
    openPane();
    pane->OnActivateChange(true); // no document
    sendHint(*pane, codes::documentChanged, scene.document);
    scene.info->setFile(L"");
    pane->OnActivateChange(true); // no path
    scene.document->setSchema(orvsg::SCInfo::key, nullptr);
    pane->OnActivateChange(true); // no SCInfo
    EXPECT_TRUE(network.sent().empty());
    EXPECT_TRUE(application->texts.empty());
    EXPECT_EQ(tabTitle(), L"Feeds");
}

TEST_F(FeedPaneTest, LoadingEndsSilentlyWithoutAnApplication)
{
    signIn();
    openPaneWithModel();
    scene.document->setSchema(orv::SCApplication::key, nullptr);
    orvplatform::setConnectedForTest(false); // not asked either
    pane->OnActivateChange(true);
    EXPECT_TRUE(network.sent().empty());
    EXPECT_TRUE(application->texts.empty());
    EXPECT_EQ(tabTitle(), L"Feeds");
}

TEST_F(FeedPaneTest, TheConnectionIsAskedBeforeThePathAndAfterTheRecords)
{
    signIn();
    openPaneWithModel();
    orvplatform::setConnectedForTest(false);
    scene.info->setFile(L"");
    pane->OnActivateChange(true);
    EXPECT_EQ(application->texts, Titles{text(111)});
    scene.document->setSchema(orvsg::SCInfo::key, nullptr);
    pane->OnActivateChange(true);
    EXPECT_EQ(application->texts.size(), 1U);
}

TEST_F(FeedPaneTest, TheCountStandsBeforeTheBlocksAreBuilt)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann"});
    std::wstring titleAtTheHint;
    int blocksAtTheHint = -1;
    application->notifier->deliver = [&](orv::IHint* hint) {
        titleAtTheHint = tabTitle();
        blocksAtTheHint = visibleBlocks();
        pane->OnUpdate(hint);
    };
    loadFeed({"Ann", "Bob"});
    EXPECT_EQ(titleAtTheHint, L"Feeds - 2");
    EXPECT_EQ(blocksAtTheHint, 1);
    EXPECT_EQ(visibleBlocks(), 2);
}

TEST_F(FeedPaneTest, EveryRequestCarriesTheUser)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann"});
    ASSERT_EQ(network.sent().size(), 2U);
    for (auto const& request : network.sent()) {
        EXPECT_EQ(request.field("username"), "ann@example.com");
        EXPECT_EQ(request.header("Authorization"), std::string("Bearer ") + tokenBytes);
    }
}

TEST_F(FeedPaneTest, WithoutANotifierTheCountIsWrittenAndNothingIsRebuilt)
{
    signIn();
    openPaneWithModel();
    application->notifier.reset();
    loadFeed({"Ann"});
    EXPECT_EQ(tabTitle(), L"Feeds - 1");
    EXPECT_EQ(visibleBlocks(), 0);
}
