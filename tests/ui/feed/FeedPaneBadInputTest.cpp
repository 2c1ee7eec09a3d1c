// What the pane makes of a feed that no client of ours would write.

#include "support/PictureFiles.h"
#include "ui/feed/FeedPaneFixture.h"

#include "platform/qt/Native.h"

#include <QAbstractScrollArea>
#include <QImage>
#include <QScrollBar>

#include <map>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr int picture = 2001;
constexpr int content = 2002;
constexpr int date = 2004;
constexpr std::size_t firstBlock = 2; // after the tools and the comment box
constexpr int oneLine = 55;           // a block's height with a line of text and no picture

std::string encodedAs(char const* format)
{
    QImage image(36, 18, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    image.setPixelColor(7, 7, Qt::red);
    return encoded(image, format);
}

/// A PNG whose container is whole and whose pixels are none.
std::string unreadablePng()
{
    std::string bytes = encodedAs("PNG");
    return bytes.replace(bytes.find("IDAT") + 4, 8, 8, '\xff');
}

std::string tooLargePng()
{
    std::string bytes = encodedAs("PNG");
    for (std::size_t const at : {std::size_t{16}, std::size_t{20}}) {
        bytes.replace(at, 4, std::string("\x00\x00\x75\x30", 4)); // 30,000 pixels
    }
    return bytes;
}

constexpr char svgFile[] =
    "<svg xmlns='http://www.w3.org/2000/svg' width='36' height='18'><rect width='9' height='9'/></svg>";

std::string zipFile()
{
    return std::string("PK\x03\x04\x14\x00\x00\x00", 8) + std::string(200, 'x');
}

Feed withPicture(std::string const& bytes)
{
    Feed feed = comment(L"hello");
    feed.thumbnail = dataUri(bytes);
    return feed;
}

class FeedPaneBadInputTest : public FeedPaneTest
{
protected:
    FeedPaneBadInputTest()
    {
        signIn();
        frame.ShowWindow(SW_SHOW);
        openPaneWithModel();
    }
    CWnd& block(std::size_t index) const { return childOf(firstBlock + index); }
    int heightOf(std::size_t index) const { return groups().at(firstBlock + index).height; }
    CRect placeOfBlock(std::size_t index) const
    {
        CRect place;
        block(index).GetWindowRect(&place);
        return place;
    }
};

} // namespace

TEST_F(FeedPaneBadInputTest, WhatIsNoWholePictureIsNoThumbnail)
{
    std::map<std::string, std::string> const cases = {
        {"cut JPEG", encodedAs("JPEG").substr(0, encodedAs("JPEG").size() - 20)},
        {"cut PNG", encodedAs("PNG").substr(0, encodedAs("PNG").size() - 20)},
        {"cut BMP", pictureBytes(36, 18).substr(0, 1000)},
        {"30,000 by 30,000", tooLargePng()},
        {"SVG", svgFile},
        {"zip", zipFile()},
        {"text", "no picture at all, but long enough"}};
    for (auto const& [what, bytes] : cases) {
        loadRecords({withPicture(bytes), comment(L"next")});
        processEvents();
        EXPECT_EQ(heightOf(0), oneLine) << what;
        EXPECT_FALSE(isVisible(block(0), picture)) << what;
        EXPECT_FALSE(isVisible(block(0), date)) << what;
        EXPECT_EQ(placeOf(block(0), content), CRect(15, 20, 195, 60)) << what;
        EXPECT_EQ(textOf(block(0), content), L"hello") << what;
        EXPECT_EQ(textOf(block(1), content), L"next") << what;
    }
}

TEST_F(FeedPaneBadInputTest, TheFormatsOfTheImageClassAreShown)
{
    loadRecords({withPicture(encodedAs("JPEG")), withPicture(encodedAs("PNG")), withPicture(encodedAs("BMP")),
                 withPicture(gifFile(QSize(2, 2)))});
    processEvents();
    for (std::size_t const i : {0U, 1U, 2U}) {
        EXPECT_EQ(heightOf(i), 90 + oneLine);
        EXPECT_TRUE(isVisible(block(i), picture));
    }
    EXPECT_EQ(heightOf(3), 180 + oneLine);
}

TEST_F(FeedPaneBadInputTest, APictureWhosePixelsCannotBeReadMakesRoomWhenItComesIntoSight)
{
    loadRecords({withPicture(unreadablePng()), comment(L"next")});
    EXPECT_EQ(heightOf(0), 90 + oneLine); // its header is good
    CRect const before = placeOfBlock(1);
    processEvents(); // it is drawn
    EXPECT_EQ(heightOf(0), oneLine);
    EXPECT_FALSE(isVisible(block(0), picture));
    EXPECT_FALSE(isVisible(block(0), date));
    EXPECT_EQ(placeOf(block(0), content), CRect(15, 20, 195, 60));
    EXPECT_EQ(placeOfBlock(1).top, before.top - 90); // the next one closes the gap
    // The block is used again: a good picture shows.
    loadRecords({withPicture(encodedAs("PNG"))});
    processEvents();
    EXPECT_EQ(heightOf(0), 90 + oneLine);
    EXPECT_TRUE(isVisible(block(0), picture));
    EXPECT_TRUE(isVisible(block(0), date));
}

TEST_F(FeedPaneBadInputTest, AReportThatComesLateLeavesTheNextPictureAlone)
{
    loadRecords({withPicture(encodedAs("PNG"))});
    UINT const message = RegisterWindowMessageW(L"OrvPictureUnreadable");
    block(0).SendMessage(message, picture, 12345); // of a bitmap that is gone
    auto* const control = static_cast<CStatic*>(block(0).GetDlgItem(picture));
    block(0).SendMessage(message, date, reinterpret_cast<LPARAM>(control->GetBitmap()));
    EXPECT_EQ(heightOf(0), 90 + oneLine);
    EXPECT_TRUE(isVisible(block(0), picture));
}

TEST_F(FeedPaneBadInputTest, TextsOfAnyKindStandAsTheyCame)
{
    std::wstring const huge(std::size_t{1} << 20, L'x'); // one word of a million letters
    std::vector<std::wstring> const texts = {
        huge,
        L"شكراً، راجع الغلاف من فضلك",
        L"a\x01\x02\x07\x1b[31mred\x7f",
        L"one\ttwo\nthree\n\n\nfour",
        L"Donaudampfschifffahrtselektrizitätenhauptbetriebswerkbauunterbeamtengesellschaft",
        L"\U0001F600 e\u0301 \u202Eabc",
        L"   ",
    };
    std::vector<Feed> feeds;
    for (std::wstring const& each : texts) {
        feeds.push_back(comment(each));
    }
    loadRecords(feeds);
    processEvents();
    ASSERT_EQ(visibleBlocks(), static_cast<int>(texts.size()));
    CClientDC context(&block(0));
    context.SelectObject(block(0).GetFont());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(textOf(block(i), content), texts[i]) << i;
        SIZE size{};
        GetTextExtentPoint32W(context.GetSafeHdc(), texts[i].c_str(), static_cast<int>(texts[i].size()), &size);
        int const lines = size.cx / 180 + 1;
        EXPECT_EQ(heightOf(i), 35 + lines * 20) << i;
        EXPECT_EQ(placeOf(block(i), content).Height(), lines * 20 + 20) << i;
    }
    EXPECT_GT(heightOf(0), 100'000);
}

TEST_F(FeedPaneBadInputTest, AnEmptyAuthorGivesACardWithoutATitle)
{
    loadRecords({comment(L"hello", L"", L""), comment(L"next", L"Bob", L"bob@example.com")});
    EXPECT_EQ(titles(), (std::vector<std::wstring>{L"Feed Tools", L"Add Comment", L"", L"Bob"}));
    EXPECT_EQ(heightOf(0), oneLine);
    EXPECT_FALSE(isVisible(block(0), 1037)); // nobody's own
}

TEST_F(FeedPaneBadInputTest, NodeNumbersOutsideTheModelAreIgnored)
{
    Feed feed = comment(L"hello");
    feed.comment.objects.hidden = {-1, 4, 6, 2147483647, -2147483647 - 1};
    feed.comment.viewport = FeedViewport({1, 2, 3}, {4, 5, 6}, {0, 0, 1}, 1.0);
    loadRecords({feed});
    auto visible = scene.runtime->visibility;
    EXPECT_TRUE(clickAt(block(0), 3, 3));
    visible[4] = false;
    EXPECT_EQ(scene.runtime->visibility, visible);
    EXPECT_EQ(application->notifier->codes.back(), codes::viewRestored);
}

TEST_F(FeedPaneBadInputTest, ATitleOfAnyLengthStaysInItsCard)
{
    loadRecords({comment(L"hello", std::wstring(10'000, L'W')), comment(L"next", L"a\nb\tc")});
    processEvents();
    EXPECT_EQ(titles().at(firstBlock).size(), 10'000U);
    EXPECT_EQ(placeOfBlock(0).Width(), placeOfBlock(1).Width());
    EXPECT_EQ(heightOf(0), oneLine);
}

TEST_F(FeedPaneBadInputTest, AGoodRecordBehindManyBadOnesIsRight)
{
    std::wstring const huge(std::size_t{1} << 20, L'x');
    Feed good = withPicture(encodedAs("PNG"));
    good.comment.content = L"good";
    std::vector<Feed> const feeds = {withPicture(unreadablePng()), // in sight, so that it is found out
                                     withPicture(encodedAs("JPEG").substr(0, encodedAs("JPEG").size() - 20)),
                                     withPicture(zipFile()),
                                     withPicture(svgFile),
                                     withPicture(tooLargePng()),
                                     comment(huge),
                                     comment(L"شكراً، راجع الغلاف من فضلك"),
                                     comment(L"a\x01\x02\x07\x1b[31mred\x7f"),
                                     comment(L"hello", L"", L""),
                                     good};
    loadRecords(feeds);
    processEvents();
    ASSERT_EQ(visibleBlocks(), static_cast<int>(feeds.size()));
    EXPECT_EQ(tabTitle(), L"Feeds - 10");
    int top = placeOfBlock(0).top;
    for (std::size_t i = 0; i < feeds.size(); ++i) {
        EXPECT_EQ(textOf(block(i), content), feeds[i].comment.content) << i;
        EXPECT_EQ(isVisible(block(i), picture), i + 1 == feeds.size()) << i;
        EXPECT_EQ(titles().at(firstBlock + i), feeds[i].author.name) << i;
        EXPECT_GE(placeOfBlock(i).top, top) << i;
        top = placeOfBlock(i).bottom;
    }
    std::size_t const last = feeds.size() - 1;
    EXPECT_EQ(heightOf(last), 90 + oneLine);
    EXPECT_EQ(placeOf(block(last), picture), CRect(15, 15, 195, 105));
    EXPECT_EQ(placeOf(block(last), content), CRect(15, 110, 195, 150));
    EXPECT_EQ(textOf(block(last), date), L"Nov 15, 2026 16:11 PM");
    EXPECT_TRUE(isVisible(block(last), 1037));
    EXPECT_TRUE(clickAt(block(last), 3, 3));
    EXPECT_EQ(application->notifier->codes.back(), codes::viewRestored);
}

TEST_F(FeedPaneBadInputTest, ARecordBehindHundredsOfTheTallestPicturesCanBeReached)
{
    QImage tall(1, 16'384, QImage::Format_Mono);
    tall.fill(1);
    std::vector<Feed> feeds(800, withPicture(encoded(tall, "PNG")));
    feeds.push_back(withPicture(encodedAs("PNG")));
    loadRecords(feeds);
    std::size_t const last = feeds.size() - 1;
    EXPECT_EQ(heightOf(0), 16'384 * 180 + oneLine);
    auto* const area = orvplatform::widgetOf(list())->findChild<QAbstractScrollArea*>();
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    processEvents();
    EXPECT_EQ(heightOf(last), 90 + oneLine);
    EXPECT_EQ(textOf(block(last), content), L"hello");
    auto* const widget = orvplatform::widgetOf(block(last));
    QRect const place(widget->mapTo(area->viewport(), QPoint()), widget->size());
    EXPECT_TRUE(area->viewport()->rect().contains(place));
    EXPECT_EQ(widget->height(), 90 + oneLine);
    QImage const shown = area->viewport()->grab(place).toImage();
    EXPECT_EQ(shown.pixelColor(15 + 3 * 5, 15 + 3 * 5), QColor(Qt::darkGreen)) << "its picture is seen";
    EXPECT_TRUE(clickAt(block(last), 3, 3));
    EXPECT_EQ(application->notifier->codes.back(), codes::viewRestored);
}
