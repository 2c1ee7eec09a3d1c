#include "ui/feed/FeedBlock.h"
#include "feed/SceneRecords.h"
#include "ui/UiTest.h"
#include "ui/Widgets.h"
#include "ui/feed/Records.h"

#include <map>
#include <string>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr int picture = 2001;
constexpr int content = 2002;
constexpr int date = 2004;
constexpr int deleteButton = 1037;

class FeedBlockTest : public UiTest
{
protected:
    FeedBlockTest()
    {
        signIn();
        block = new FeedBlock;
        EXPECT_TRUE(block->Create(FeedBlock::templateId(), &frame));
        block->ShowWindow(SW_SHOW);
        frame.ShowWindow(SW_SHOW);
    }

    int show(Feed const& feed) { return block->setFeed(feed, user); }
    int showPicture(int width, int height)
    {
        Feed feed = comment(L"hello");
        feed.thumbnail = dataUri(pictureBytes(width, height));
        return show(feed);
    }
    void openModel() { sendHint(*block, codes::documentOpened, scene.document); }
    bool click() { return clickAt(*block, 3, 3); }

    FeedBlock* block = nullptr; // goes with its window
};

} // namespace

TEST_F(FeedBlockTest, StartsWithAHiddenDeleteButton)
{
    EXPECT_EQ(placeOf(*block, deleteButton), CRect(180, 0, 204, 24));
    EXPECT_FALSE(isVisible(*block, deleteButton));
    auto* const button = dynamic_cast<CMFCButton*>(block->GetDlgItem(deleteButton));
    ASSERT_NE(button, nullptr);
    EXPECT_STREQ(button->GetTooltip().GetString(), L"Delete");
    EXPECT_FALSE(resourcePicture(278).isNull());
    EXPECT_EQ(pictureOf(*block, deleteButton), resourcePicture(278));
}

TEST_F(FeedBlockTest, WithoutAThumbnailOnlyTheTextShows)
{
    EXPECT_EQ(show(comment(L"hello")), 35 + 20);
    EXPECT_EQ(placeOf(*block, content), CRect(15, 20, 195, 60));
    EXPECT_EQ(textOf(*block, content), L"hello");
    EXPECT_FALSE(isVisible(*block, picture));
    EXPECT_FALSE(isVisible(*block, date)); // no picture, no date
}

TEST_F(FeedBlockTest, AThumbnailOf23CharactersIsNone)
{
    Feed feed = comment(L"hello");
    feed.thumbnail = L"data:image/jpeg;base64,";
    EXPECT_EQ(show(feed), 55);
    EXPECT_FALSE(isVisible(*block, picture));
}

TEST_F(FeedBlockTest, APictureKeepsItsProportions)
{
    EXPECT_EQ(showPicture(360, 180), 90 + 55);
    EXPECT_EQ(placeOf(*block, picture), CRect(15, 15, 195, 105));
    EXPECT_EQ(placeOf(*block, date), CRect(15, 0, 195, 30));
    EXPECT_EQ(placeOf(*block, content), CRect(15, 110, 195, 150));
    EXPECT_TRUE(isVisible(*block, picture));
    EXPECT_TRUE(isVisible(*block, date));
    EXPECT_EQ(textOf(*block, date), L"Nov 15, 2026 16:11 PM");
    EXPECT_EQ(showPicture(100, 33), 59 + 55); // cut to an integer
}

TEST_F(FeedBlockTest, TheNextRecordReplacesThePicture)
{
    showPicture(360, 180);
    auto* const control = static_cast<CStatic*>(block->GetDlgItem(picture));
    HBITMAP const first = control->GetBitmap();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(showPicture(180, 180), 180 + 55);
    EXPECT_EQ(placeOf(*block, picture), CRect(15, 15, 195, 195));
    HBITMAP const second = control->GetBitmap();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(orvplatform::pixmapOf(second).height(), 180); // set as it came
    EXPECT_EQ(show(comment(L"none")), 55);
    EXPECT_FALSE(isVisible(*block, picture));
}

TEST_F(FeedBlockTest, ABrokenThumbnailCountsAsNone)
{
    Feed feed = comment(L"hello");
    feed.thumbnail = dataUri("not a picture at all");
    EXPECT_EQ(show(feed), 55);
    EXPECT_FALSE(isVisible(*block, picture));
    EXPECT_FALSE(isVisible(*block, date));
    EXPECT_EQ(placeOf(*block, content), CRect(15, 20, 195, 60));
    feed.thumbnail = dataUri(pictureBytes(360, 180).substr(0, 10)); // ends in the middle of its header
    EXPECT_EQ(show(feed), 55);
    EXPECT_FALSE(isVisible(*block, picture));
}

TEST_F(FeedBlockTest, APictureIsShownHoweverTallItIs)
{
    EXPECT_EQ(showPicture(100, 16000), 28800 + 55);
    EXPECT_TRUE(isVisible(*block, picture));
    EXPECT_EQ(placeOf(*block, picture), CRect(15, 15, 195, 28815));
    EXPECT_EQ(showPicture(1, 1000), 180000 + 55);
    EXPECT_EQ(placeOf(*block, picture).Height(), 180000);
    EXPECT_EQ(placeOf(*block, content).top, 180020);
    EXPECT_EQ(showPicture(1000, 1), 55); // a height of nothing, but a picture
    EXPECT_TRUE(isVisible(*block, date));
}

TEST_F(FeedBlockTest, ThePrefixIsSkippedByTheSource)
{
    Feed feed = comment(L"hello");
    feed.thumbnail = L"data:image/png;base64," + dataUri(pictureBytes(360, 180)).substr(23);
    feed.source = L"web";
    EXPECT_EQ(show(feed), 90 + 55);
    feed.source = L"Web"; // not "web": one character of the payload is skipped
    EXPECT_EQ(show(feed), 55);
}

TEST_F(FeedBlockTest, AnEscapedPlusIsUndoneInLowerCaseOnly)
{
    // 0xFB 0xEF 0xBE gives "++++" in base64, and the header is as long as whole groups: all pixels are plus signs.
    std::string bytes = pictureBytes(60, 30);
    for (std::size_t at = bytes.size() - std::size_t{60} * 30 * 3; at < bytes.size(); at += 3) {
        bytes.replace(at, 3, "\xfb\xef\xbe");
    }
    std::wstring uri = dataUri(bytes);
    ASSERT_NE(uri.find(L"++++"), std::wstring::npos);
    Feed feed = comment(L"hello");
    feed.thumbnail = uri;
    int const plain = show(feed);
    ASSERT_EQ(plain, 90 + 55);
    auto const escape = [&uri](wchar_t const* with) {
        std::wstring escaped;
        for (wchar_t const c : uri) {
            escaped += c == L'+' ? std::wstring(with) : std::wstring(1, c);
        }
        return escaped;
    };
    feed.thumbnail = escape(L"%2b");
    EXPECT_EQ(show(feed), plain);
    feed.thumbnail = uri.substr(0, 40) + L"%2B" + uri.substr(40); // ends the payload
    EXPECT_EQ(show(feed), 55);
}

TEST_F(FeedBlockTest, LinesAreMeasuredAsOneLineOfText)
{
    CClientDC context(block);
    context.SelectObject(block->GetFont());
    bool sawOne = false;
    bool sawTwo = false;
    for (std::wstring text = L"a"; text.size() < 120; text += L"i") {
        SIZE size{};
        GetTextExtentPoint32W(context.GetSafeHdc(), text.c_str(), static_cast<int>(text.size()), &size);
        int const lines = size.cx / 180 + 1;
        EXPECT_EQ(show(comment(text)), 35 + lines * 20);
        EXPECT_EQ(placeOf(*block, content).Height(), lines * 20 + 20);
        sawOne = sawOne || lines == 1;
        sawTwo = sawTwo || lines == 2;
    }
    EXPECT_TRUE(sawOne);
    EXPECT_TRUE(sawTwo);
    EXPECT_EQ(show(comment(L"")), 55);        // an empty text is one line
    EXPECT_EQ(show(comment(L"a\nb\nc")), 55); // line breaks start none
}

TEST_F(FeedBlockTest, A179PixelsOfTextAreOneLineAnd180AreTwo)
{
    CClientDC context(block);
    context.SelectObject(block->GetFont());
    std::map<int, std::wstring> textOfWidth;
    for (std::size_t wide = 0; wide < 30; ++wide) {
        for (std::size_t narrow = 0; narrow < 60; ++narrow) {
            std::wstring const text = std::wstring(wide, L'm') + std::wstring(narrow, L'i');
            SIZE size{};
            GetTextExtentPoint32W(context.GetSafeHdc(), text.c_str(), static_cast<int>(text.size()), &size);
            textOfWidth.emplace(size.cx, text);
        }
    }
    for (int const width : {179, 180, 359, 360}) {
        ASSERT_TRUE(textOfWidth.contains(width)) << width;
        EXPECT_EQ(show(comment(textOfWidth[width])), 35 + (width / 180 + 1) * 20) << width;
    }
}

TEST_F(FeedBlockTest, TheTextStandsAsItCame)
{
    show(comment(L"a & b <b>not bold</b> 50%"));
    EXPECT_EQ(textOf(*block, content), L"a & b <b>not bold</b> 50%");
}

TEST_F(FeedBlockTest, TheAuthorAloneMayDelete)
{
    struct {
        wchar_t const* email;
        bool flag;
        bool shown;
    } const cases[] = {{L"ann@example.com", false, true},
                       {L"ann@example.com", true, true},
                       {L"bob@example.com", true, false},
                       {L"Ann@example.com", true, false}};
    for (auto const& [email, flag, shown] : cases) {
        Feed feed = comment(L"hello", L"Somebody", email);
        feed.author.canDelete = flag;
        feed.author.canEdit = flag;
        show(feed);
        EXPECT_EQ(isVisible(*block, deleteButton), shown);
    }
}

TEST_F(FeedBlockTest, TheSizeOfTheBlockChangesNothingInside)
{
    int const height = showPicture(360, 180);
    block->MoveWindow(0, 0, 700, height);
    EXPECT_EQ(placeOf(*block, picture), CRect(15, 15, 195, 105));
    EXPECT_EQ(placeOf(*block, content), CRect(15, 110, 195, 150));
    EXPECT_EQ(placeOf(*block, deleteButton), CRect(180, 0, 204, 24));
}

TEST_F(FeedBlockTest, EnterAndEscapeHaveNoEffect)
{
    show(comment(L"hello"));
    pressKey(*block, VK_ESCAPE);
    pressKey(*block, VK_RETURN);
    EXPECT_TRUE(IsWindow(block->GetSafeHwnd()));
    EXPECT_TRUE(block->IsWindowVisible());
    EXPECT_TRUE(network.sent().empty());
}

TEST_F(FeedBlockTest, AClickWithoutADocumentDoesNothing)
{
    show(comment(L"hello"));
    sendHint(*block, codes::documentActivated, scene.document); // not one that a block takes it from
    block->OnUpdate(nullptr);
    click();
    EXPECT_TRUE(application->notifier->codes.empty());
}

TEST_F(FeedBlockTest, SixHintsCarryTheDocument)
{
    for (short const code : {codes::documentOpened, codes::documentClosed, codes::visibilityChanged,
                             codes::appearanceChanged, codes::sceneChanged, codes::viewRestored}) {
        auto* const fresh = new FeedBlock;
        ASSERT_TRUE(fresh->Create(FeedBlock::templateId(), &frame));
        fresh->setFeed(comment(L"hello"), user);
        fresh->ShowWindow(SW_SHOW);
        sendHint(*fresh, code, scene.document);
        sendHint(*fresh, code, nullptr); // leaves the one before
        application->notifier->codes.clear();
        clickAt(*fresh, 3, 3);
        EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::viewRestored}) << code;
        fresh->DestroyWindow();
    }
}

TEST_F(FeedBlockTest, AClickBringsTheViewBack)
{
    Feed feed = comment(L"hello");
    feed.comment.objects.hidden = {4};
    feed.comment.viewport = FeedViewport({1, 2, 3}, {4, 5, 6}, {0, 0, 1}, 1.0);
    show(feed);
    openModel();
    scene.runtime->visibility[1] = false;
    ASSERT_TRUE(click());
    EXPECT_TRUE(scene.runtime->visibility[1]);
    EXPECT_FALSE(scene.runtime->visibility[4]);
    EXPECT_EQ(scene.renderer->camera->eye, (Vector3{1, 2, 3}));
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::viewRestored});
    EXPECT_EQ(application->notifier->documents.at(0), scene.document.get());
    auto const visibility = scene.runtime->visibility;
    click(); // starts from a full reset, so a second click gives the same
    EXPECT_EQ(scene.runtime->visibility, visibility);
    EXPECT_EQ(scene.renderer->camera->eye, (Vector3{1, 2, 3}));
}

TEST_F(FeedBlockTest, AClickOnTextAndPictureCounts)
{
    showPicture(360, 180);
    openModel();
    EXPECT_TRUE(clickAt(*block, 60, 60));  // the picture
    EXPECT_TRUE(clickAt(*block, 30, 120)); // the text
    EXPECT_EQ(application->notifier->codes.size(), 2U);
}

TEST_F(FeedBlockTest, TheTypeIsComparedExactly)
{
    Feed feed = comment(L"hello");
    feed.comment.commentType = L"Auto";
    feed.action.type = L"download";
    show(feed);
    openModel();
    click();
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::viewRestored});
}

TEST_F(FeedBlockTest, AnAutomaticEntryThatIsNoDownloadDoesNothing)
{
    Feed feed = comment(L"hello");
    feed.comment.commentType = L"auto";
    feed.comment.objects.hidden = {4};
    show(feed);
    openModel();
    click();
    EXPECT_TRUE(scene.runtime->visibility[4]);
    EXPECT_TRUE(application->notifier->codes.empty());
}

TEST_F(FeedBlockTest, WithoutANotifierTheViewStillComesBack)
{
    Feed feed = comment(L"hello");
    feed.comment.objects.hidden = {4};
    show(feed);
    openModel();
    application->notifier.reset();
    click();
    EXPECT_FALSE(scene.runtime->visibility[4]);
}

TEST_F(FeedBlockTest, DeletingAsksTheServiceAndReloads)
{
    show(comment(L"hello"));
    openModel();
    orvplatform::setConnectedForTest(false); // not asked
    network.expect("/api/DeleteComment/", "ok");
    EXPECT_TRUE(clickButton(*block, deleteButton));
    EXPECT_EQ(network.last().field("commentid"), "c0ffee00-0000-4000-8000-000000000001");
    EXPECT_EQ(network.last().field("jobid"), jobIdBytes);
    EXPECT_EQ(network.last().field("username"), "ann@example.com");
    EXPECT_EQ(network.last().header("Authorization"), std::string("Bearer ") + tokenBytes);
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::commentDeleted});
    EXPECT_EQ(application->notifier->documents.at(0), scene.document.get());
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(FeedBlockTest, ADeletionThatFailsIsNotNoticed)
{
    show(comment(L"hello"));
    openModel();
    network.expectFailure("/api/DeleteComment/", orv::ErrorCode::refused, 403);
    EXPECT_TRUE(clickButton(*block, deleteButton));
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::commentDeleted});
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(FeedBlockTest, DeletingWithoutANotifierOnlyAsksTheService)
{
    show(comment(L"hello"));
    openModel();
    application->notifier.reset();
    network.expect("/api/DeleteComment/", "ok");
    EXPECT_TRUE(clickButton(*block, deleteButton));
}
