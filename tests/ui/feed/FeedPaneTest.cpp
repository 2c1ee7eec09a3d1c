#include "ui/feed/FeedPane.h"
#include "ui/UiTest.h"
#include "ui/feed/FeedBlock.h"
#include "ui/feed/Records.h"

#include <json/json.h>

#include <optional>

using namespace orvtest;
namespace codes = orv::HintCode;

namespace
{

struct ShownGroup {
    std::wstring title;
    HWND window = nullptr;
    int height = 0;
};

class FeedPaneTest : public UiTest
{
protected:
    FeedPaneTest()
    {
        EXPECT_TRUE(tab.Create(L"OrvTestTab", L"Feeds", WS_CHILD | WS_VISIBLE, CRect(0, 0, 320, 800), &frame, 9));
    }

    /// Makes the pane with its window, and hands it all hints that are raised.
    FeedPane& openPane()
    {
        pane = new FeedPane(user, helper);
        EXPECT_TRUE(pane->Create(CRect(0, 0, 300, 700), &tab, 201));
        application->notifier->deliver = [this](orv::IHint* hint) { pane->OnUpdate(hint); };
        return *pane;
    }
    FeedPane& openPaneWithModel()
    {
        openPane();
        sendHint(*pane, codes::documentActivated, scene.document);
        sendHint(*pane, codes::documentOpened, scene.document);
        return *pane;
    }
    void expectFeed(std::vector<std::string> const& authors)
    {
        network.expect("/api/isFilePresent/", jobIdBytes);
        network.expect("/api/CommentSync/", feedJson(authors));
    }
    void loadFeed(std::vector<std::string> const& authors)
    {
        expectFeed(authors);
        pane->OnActivateChange(true);
    }

    CTaskPane& list() const { return *dynamic_cast<CTaskPane*>(pane->GetDlgItem(202)); }
    std::vector<ShownGroup> groups() const
    {
        std::vector<ShownGroup> shown;
        for (int i = 0; i < list().GetGroupCount(); ++i) {
            auto const* const group = list().GetTaskGroup(i);
            auto const& task = group->m_lstTasks.at(0);
            shown.push_back({group->m_strName.GetString(), task.m_hwndTask, task.m_nWindowHeight});
        }
        return shown;
    }
    std::vector<std::wstring> titles() const
    {
        std::vector<std::wstring> found;
        for (auto const& group : groups()) {
            found.push_back(group.title);
        }
        return found;
    }
    std::wstring tabTitle() const
    {
        CString title;
        tab.GetWindowTextW(title);
        return title.GetString();
    }
    /// The list's place in the pane.
    CRect listPlace() const { return placeOf(*pane, 202); }
    int visibleBlocks() const
    {
        int count = 0;
        for (auto const& group : groups()) {
            if (dynamic_cast<FeedBlock*>(CWnd::FromHandle(group.window)) != nullptr &&
                (GetWindowLongPtrW(group.window, GWL_STYLE) & WS_VISIBLE) != 0) {
                ++count;
            }
        }
        return count;
    }

    CWnd tab;
    FeedPane* pane = nullptr; // goes with its window
};

using Titles = std::vector<std::wstring>;

} // namespace

TEST_F(FeedPaneTest, ANullHintIsIgnored)
{
    openPane().OnUpdate(nullptr);
    EXPECT_TRUE(groups().empty());
}

TEST_F(FeedPaneTest, SignedOutTheListShowsToolsAndPrompt)
{
    openPane();
    sendHint(*pane, codes::documentActivated, scene.document);
    ASSERT_EQ(titles(), (Titles{L"Feed Tools", L""}));
    EXPECT_EQ(groups()[1].height, 40);
    sendHint(*pane, codes::documentOpened, scene.document);
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L""}));
}

TEST_F(FeedPaneTest, SignedInWithoutAFileTheListShowsToolsAlone)
{
    signIn();
    scene.info->setFile(L"");
    openPaneWithModel();
    EXPECT_EQ(titles(), Titles{L"Feed Tools"});
}

TEST_F(FeedPaneTest, SignedInWithAModelTheListOffersAComment)
{
    signIn();
    openPane();
    sendHint(*pane, codes::documentActivated, scene.document);
    EXPECT_EQ(titles(), Titles{L"Feed Tools"});
    sendHint(*pane, codes::documentOpened, scene.document);
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"Add Comment"}));
}

TEST_F(FeedPaneTest, GroupTitlesAreBlackAlsoUnderThePointer)
{
    signIn();
    openPaneWithModel();
    for (int i = 0; i < list().GetGroupCount(); ++i) {
        auto const* const group = list().GetTaskGroup(i);
        EXPECT_EQ(group->m_clrText, RGB(0, 0, 0));
        EXPECT_EQ(group->m_clrTextHot, RGB(0, 0, 0));
        EXPECT_TRUE(group->m_bIsSpecial);
        EXPECT_FALSE(group->m_bIsBottom);
        EXPECT_EQ(group->m_hIcon, nullptr);
        EXPECT_FALSE(group->m_lstTasks.at(0).m_bAutoDestroyWindow);
    }
}

TEST_F(FeedPaneTest, ActivationLoadsTheFeedInTheServicesOrder)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Cid", "Ann", "Bob"});
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"Add Comment", L"Cid", L"Ann", L"Bob"}));
    EXPECT_EQ(visibleBlocks(), 3);
    EXPECT_EQ(tabTitle(), L"Feeds - 3");
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::feedReloaded});
    EXPECT_EQ(application->notifier->documents.at(0), scene.document);
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
    loadFeed({});
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

TEST_F(FeedPaneTest, LogoutShowsThePromptAndNoBlock)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann"});
    user->username.clear();
    user->userid.clear();
    sendHint(*pane, codes::signedOut, scene.document);
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L""}));
    EXPECT_EQ(visibleBlocks(), 0);
    EXPECT_EQ(tabTitle(), L"Feeds - 0");
}

TEST_F(FeedPaneTest, AnotherDocumentTakesTheBlocksAwayAndKeepsTheCount)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann"});
    sendHint(*pane, codes::documentOpened, scene.document);
    EXPECT_EQ(visibleBlocks(), 0);
    EXPECT_EQ(tabTitle(), L"Feeds - 1");
}

TEST_F(FeedPaneTest, AClosedDocumentLeavesTheBlocksUntilTheNextRebuild)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann"});
    sendHint(*pane, codes::documentClosed, scene.document);
    EXPECT_EQ(visibleBlocks(), 1);
    EXPECT_EQ(tabTitle(), L"Feeds - 0");
    sendHint(*pane, codes::feedReloaded, scene.document);
    EXPECT_EQ(visibleBlocks(), 0);
}

TEST_F(FeedPaneTest, ALoginRebuildsTwice)
{
    openPaneWithModel();
    signIn();
    expectFeed({"Ann", "Bob"});
    std::vector<std::size_t> beforeEach;
    application->notifier->deliver = [&](orv::IHint* hint) {
        beforeEach.push_back(groups().size());
        pane->OnUpdate(hint);
    };
    sendHint(*pane, codes::signedIn, scene.document);
    EXPECT_EQ(beforeEach, std::vector<std::size_t>{2}); // built once, without blocks, when hint 40 goes out
    EXPECT_EQ(groups().size(), 4U);
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

TEST_F(FeedPaneTest, WithoutANotifierTheCountIsWrittenAndNothingIsRebuilt)
{
    signIn();
    openPaneWithModel();
    application->notifier.reset();
    loadFeed({"Ann"});
    EXPECT_EQ(tabTitle(), L"Feeds - 1");
    EXPECT_EQ(visibleBlocks(), 0);
}

TEST_F(FeedPaneTest, TheTitleCarriesOneCount)
{
    openPane();
    struct {
        wchar_t const* before;
        wchar_t const* after;
    } const cases[] = {{L"Feeds", L"Feeds - 0"},
                       {L"Feeds - 17", L"Feeds - 0"},
                       {L"-Feeds", L"-Feeds - 0"},
                       {L"A-B", L" - 0"},
                       {L"One - two - 3", L"One - 0"}};
    for (auto const& [before, after] : cases) {
        tab.SetWindowTextW(before);
        pane->UpdateTitle(true);
        EXPECT_EQ(tabTitle(), after) << "from " << std::string(before, before + std::wcslen(before));
    }
    tab.SetWindowTextW(L"Feeds");
    pane->UpdateTitle(false);
    EXPECT_EQ(tabTitle(), L"Feeds");
}

TEST_F(FeedPaneTest, TheListsCaptionIsMovedOutOfSightAtSomeResolutions)
{
    struct {
        double dpi;
        int offset; // -1: not moved at all
    } const cases[] = {{72, -1}, {96, 20}, {97, -1}, {119, -1}, {120, 40}, {144, 40}, {192, 40}};
    for (auto const& [dpi, offset] : cases) {
        configure(L"en", dpi);
        openPane();
        CRect const before = listPlace();
        pane->MoveWindow(0, 0, 310, 650);
        orvplatform::testing::processEvents();
        CRect const now = listPlace();
        if (offset < 0) {
            EXPECT_EQ(now, before) << dpi;
        } else {
            EXPECT_EQ(now, CRect(0, -offset, 310, 650)) << dpi;
        }
        pane->DestroyWindow();
    }
}

TEST_F(FeedPaneTest, GroupHeightsFollowTheResolution)
{
    signIn();
    struct {
        double dpi;
        int tools;
        int comment;
    } const cases[] = {{72, 100, 120},  {96, 100, 120},  {119, 100, 120}, {120, 125, 150},
                       {143, 125, 150}, {144, 150, 180}, {191, 150, 180}, {192, 175, 210}};
    for (auto const& [dpi, tools, commentBox] : cases) {
        configure(L"en", dpi);
        openPaneWithModel();
        ASSERT_EQ(groups().size(), 2U);
        EXPECT_EQ(groups()[0].height, tools) << dpi;
        EXPECT_EQ(groups()[1].height, commentBox) << dpi;
        pane->DestroyWindow();
    }
}

TEST_F(FeedPaneTest, AFeedOfMoreThanAHundredEntriesIsShownWhole)
{
    signIn();
    openPaneWithModel();
    loadFeed(std::vector<std::string>(123, "Ann"));
    EXPECT_EQ(visibleBlocks(), 123);
    EXPECT_EQ(tabTitle(), L"Feeds - 123");
    // A click on one of the added blocks works like on any other.
    auto* const last = CWnd::FromHandle(groups().back().window);
    EXPECT_TRUE(orvplatform::testing::clickAt(*last, 5, 5));
    EXPECT_EQ(application->notifier->codes.back(), codes::viewRestored);
    loadFeed({"Ann"});
    EXPECT_EQ(visibleBlocks(), 1);
}

TEST_F(FeedPaneTest, BlocksKeepTheirWindowsAcrossReloads)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann", "Bob"});
    HWND const first = groups()[2].window;
    loadFeed({"Cid"});
    EXPECT_EQ(groups()[2].window, first);
    EXPECT_TRUE(IsWindow(first));
}

TEST_F(FeedPaneTest, TheListHasItsOwnTexts)
{
    configure(L"de");
    signIn();
    openPaneWithModel();
    EXPECT_EQ(titles(), (Titles{text(218), text(216)}));
    EXPECT_NE(text(218), L"Feed Tools");
}
