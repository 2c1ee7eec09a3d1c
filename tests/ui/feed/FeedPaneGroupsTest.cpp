// Which groups the pane shows in which state, their places and titles.

#include "ui/feed/FeedPaneFixture.h"

using namespace orvtest;
namespace codes = orv::HintCode;

namespace
{
using Titles = std::vector<std::wstring>;
} // namespace

TEST_F(FeedPaneTest, ANullHintIsIgnored)
{
    openPane().OnUpdate(nullptr);
    EXPECT_TRUE(groups().empty());
}

TEST_F(FeedPaneTest, NothingShowsBeforeTheFirstHint)
{
    frame.ShowWindow(SW_SHOW);
    openPane();
    orvplatform::testing::processEvents();
    EXPECT_EQ(windowsBelow<FeedBlock>(list()).size(), 100U);
    EXPECT_EQ(shownBelow<CDialog>(list()), 0);
    for (CMFCButton* const button : windowsBelow<CMFCButton>(list())) {
        EXPECT_FALSE(button->IsWindowVisible());
    }
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

TEST_F(FeedPaneTest, GroupsCannotBeCollapsed)
{
    signIn();
    frame.ShowWindow(SW_SHOW);
    openPaneWithModel();
    EXPECT_FALSE(list().CollapseGroup(0, TRUE));
    CRect const group = list().GetTaskGroup(0)->m_rect;
    constexpr int captionStrip = 20;
    orvplatform::testing::clickAt(list(), group.left + 20, group.top + captionStrip + 4); // its title
    EXPECT_FALSE(list().GetTaskGroup(0)->m_bIsCollapsed);
    EXPECT_EQ(shownBelow<FeedToolbarDialog>(list()), 1);
}

TEST_F(FeedPaneTest, AGroupIsAsHighAsItsBlockSays)
{
    signIn();
    openPaneWithModel();
    Feed withPicture = comment(L"hello");
    withPicture.thumbnail = dataUri(pictureBytes(360, 180));
    loadRecords({withPicture, comment(L"hello")});
    ASSERT_EQ(groups().size(), 4U);
    EXPECT_EQ(groups()[2].height, 145);
    EXPECT_EQ(groups()[3].height, 55);
    CRect place;
    childOf(2).GetClientRect(&place);
    EXPECT_EQ(place.Height(), 145);
}

TEST_F(FeedPaneTest, TheLastCommentThatIsDeletedLeavesAnEmptyFeed)
{
    signIn();
    user->username = L"x@example.com"; // the author of what loadFeed gives
    openPaneWithModel();
    loadFeed({"Ann"});
    network.expect("/api/DeleteComment/", "ok");
    expectFeed({});
    EXPECT_TRUE(orvplatform::testing::clickButton(childOf(2), 1037));
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"Add Comment"}));
    EXPECT_EQ(visibleBlocks(), 0);
    EXPECT_EQ(tabTitle(), L"Feeds - 0");
    EXPECT_EQ(application->notifier->documents.at(1), scene.document.get()); // of hint 39
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

TEST_F(FeedPaneTest, TheBlocksOfAReloadedFeedShowAlsoWhenNobodyIsSignedIn)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann", "Bob"});
    user->username.clear();
    user->userid.clear();
    sendHint(*pane, codes::feedReloaded, scene.document);
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"", L"Ann", L"Bob"}));
    EXPECT_EQ(visibleBlocks(), 2);
}

TEST_F(FeedPaneTest, TheBlocksOfAReloadedFeedShowAlsoWithoutAModel)
{
    signIn();
    openPaneWithModel();
    loadFeed({"Ann", "Bob"});
    scene.info->setFile(L"");
    sendHint(*pane, codes::feedReloaded, scene.document);
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"Ann", L"Bob"}));
    EXPECT_EQ(visibleBlocks(), 2);
}

TEST_F(FeedPaneTest, AUserIdAloneIsASignedInUserExceptForTheActivation)
{
    user->userid = token;
    openPaneWithModel();
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"Add Comment"}));
    EXPECT_TRUE(orvplatform::testing::isEnabled(childOf(0), 271));
    pane->OnActivateChange(true);
    EXPECT_TRUE(network.sent().empty());
}

TEST_F(FeedPaneTest, AUserNameAloneIsNobodyExceptForTheActivation)
{
    user->username = L"ann@example.com";
    openPaneWithModel();
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L""}));
    EXPECT_FALSE(orvplatform::testing::isEnabled(childOf(0), 271));
    loadFeed({"Ann"});
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"", L"Ann"}));
}

TEST_F(FeedPaneTest, ACommentWhoseDeletionFailsStillStandsAfterTheReload)
{
    signIn();
    user->username = L"x@example.com"; // the author of what loadFeed gives
    openPaneWithModel();
    loadFeed({"Ann", "Bob"});
    network.expectFailure("/api/DeleteComment/", orv::ErrorCode::refused, 403);
    expectFeed({"Ann", "Bob"});
    EXPECT_TRUE(orvplatform::testing::clickButton(childOf(2), 1037));
    EXPECT_EQ(titles(), (Titles{L"Feed Tools", L"Add Comment", L"Ann", L"Bob"}));
    EXPECT_EQ(visibleBlocks(), 2);
    EXPECT_EQ(tabTitle(), L"Feeds - 2");
    EXPECT_TRUE(application->texts.empty());
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
        for (auto const& [group, height] : {std::pair(0U, tools), std::pair(1U, commentBox)}) {
            CRect client;
            childOf(group).GetClientRect(&client);
            EXPECT_EQ(client.Height(), height) << dpi;
        }
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

TEST_F(FeedPaneTest, AFeedOfThousandsOfEntriesIsShownWhole)
{
    signIn();
    openPaneWithModel();
    loadFeed(std::vector<std::string>(10'003, "Ann"));
    EXPECT_EQ(visibleBlocks(), 10'003);
    EXPECT_EQ(groups().size(), 10'005U);
    EXPECT_EQ(tabTitle(), L"Feeds - 10003");
}

TEST_F(FeedPaneTest, BlocksAreAddedWhicheverModuleIsSet)
{
    signIn();
    openPaneWithModel();
    HINSTANCE const other = emptyModule();
    AfxSetResourceHandle(other);
    loadFeed(std::vector<std::string>(101, "Ann"));
    EXPECT_EQ(AfxGetResourceHandle(), other); // set back
    ASSERT_EQ(visibleBlocks(), 101);
    EXPECT_EQ(pictureOf(childOf(102), 1037), resourcePicture(278));
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
