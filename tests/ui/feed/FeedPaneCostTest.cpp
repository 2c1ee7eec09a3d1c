// What the pane does no more often than it must.

#include "support/CopiedText.h"
#include "support/PictureDecodes.h"
#include "support/PictureFiles.h"
#include "ui/feed/FeedPaneFixture.h"

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

TEST_F(FeedPaneTest, ARebuildDecodesNoPictureOfWhicheverFormat)
{
    signIn();
    openPaneWithModel();
    QImage source(36, 18, QImage::Format_RGB32);
    source.fill(Qt::darkGreen);
    std::vector<Feed> feeds;
    for (char const* const format : {"JPEG", "PNG", "BMP", "TIFF", "ICO"}) {
        feeds.push_back(comment(L"hello"));
        feeds.back().thumbnail = dataUri(encoded(source, format));
    }
    feeds.push_back(comment(L"hello"));
    feeds.back().thumbnail = dataUri(gifFile(QSize(36, 18)));
    int const before = pictureDecodes();
    loadRecords(feeds);
    sendHint(*pane, codes::feedReloaded, scene.document);
    EXPECT_EQ(pictureDecodes(), before);
    ASSERT_EQ(groups().size(), 2 + feeds.size());
    for (std::size_t i = 2; i < groups().size(); ++i) {
        EXPECT_EQ(groups()[i].height, 90 + 55) << "picture " << i - 2;
    }
    frame.ShowWindow(SW_SHOW); // now they are seen
    processEvents();
    EXPECT_GT(pictureDecodes(), before);
}

TEST_F(FeedPaneTest, AHintCopiesNoFeed)
{
    signIn();
    openPaneWithModel();
    constexpr std::size_t large = std::size_t{1} << 20;
    Feed feed = comment(L"hello");
    feed.thumbnail = L"data:image/jpeg;base64," + std::wstring(large, L'A');
    loadRecords({feed, feed, feed});
    for (short const code : {codes::selectionChanged, codes::viewChanged, codes::sceneChanged, codes::documentChanged,
                             codes::unitsChanged, codes::visibilityChanged}) {
        std::size_t const before = copiedText();
        sendHint(*pane, code, scene.document);
        EXPECT_LT(copiedText() - before, large) << "code " << code;
    }
    std::size_t const before = copiedText();
    Feed const copy = feed;
    EXPECT_GT(copiedText() - before, large) << "the count is right";
}
