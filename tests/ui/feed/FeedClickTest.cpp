#include "feed/SceneRecords.h"
#include "support/ListeningDocument.h"
#include "ui/UiTest.h"
#include "ui/feed/FeedBlock.h"
#include "ui/feed/Records.h"

#include <gmock/gmock.h>

#include <functional>
#include <utility>

using namespace orvtest;
using namespace orvplatform::testing;
using testing::ElementsAreArray;
namespace codes = orv::HintCode;

namespace
{

/// Tells when a click reaches the window's default handling.
class WatchedBlock final : public FeedBlock
{
public:
    std::function<void()> onDefault;

private:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_LBUTTONDOWN && onDefault) {
            onDefault();
        }
        return FeedBlock::DefWindowProc(message, wParam, lParam);
    }
};

class FeedClickTest : public UiTest
{
protected:
    FeedClickTest()
    {
        signIn();
        EXPECT_TRUE(block->Create(FeedBlock::templateId(), &frame));
        block->ShowWindow(SW_SHOW);
        frame.ShowWindow(SW_SHOW);
    }

    void openModel() { sendHint(*block, codes::documentOpened, document); }
    /// Clicks an entry of that kind and gives the keys of the records that were asked for.
    std::vector<short> keysOfAClick(std::wstring type, std::wstring action)
    {
        Feed feed = comment(L"hello");
        feed.comment.commentType = std::move(type);
        feed.action = FeedAction(std::move(action), L"stl");
        block->setFeed(feed, user);
        document->keys.clear();
        clickAt(*block, 3, 3);
        return document->keys;
    }
    void expectTheSaveDialog()
    {
        modals.expectModal<CFileDialog>([](CFileDialog&) -> INT_PTR { return IDCANCEL; });
    }

    WatchedBlock* block = new WatchedBlock; // goes with its window
    std::shared_ptr<ListeningDocument> document = std::make_shared<ListeningDocument>(scene.document);
    std::vector<short> const allRecords{orvsg::SCSceneRes::key,  orvsg::SCSceneTopo::key, orvsg::SCPmi::key,
                                        orvsg::SCSceneRT::key,   orvsg::SCInfo::key,      orvgl::SCRenderer::key,
                                        orv::SCApplication::key, orvsg::SCBom::BOM};
};

} // namespace

TEST_F(FeedClickTest, FetchesTheRecordsInTheirOrderWhateverTheEntry)
{
    openModel();
    std::vector<short> withTheHint = allRecords;
    withTheHint.push_back(orv::SCApplication::key);
    EXPECT_THAT(keysOfAClick(L"text", L"view"), ElementsAreArray(withTheHint));
    EXPECT_THAT(keysOfAClick(L"auto", L"view"), ElementsAreArray(allRecords));
    expectTheSaveDialog();
    EXPECT_THAT(keysOfAClick(L"auto", L"download"), ElementsAreArray(allRecords));
}

TEST_F(FeedClickTest, AsksForTheBillOfMaterialsAgainWhereTheHostWasToMakeIt)
{
    openModel();
    scene.document->setSchema(orvsg::SCBom::BOM, nullptr);
    std::vector<short> withTheBill = allRecords;
    withTheBill.push_back(orvsg::SCBom::BOM);
    expectTheSaveDialog();
    EXPECT_THAT(keysOfAClick(L"auto", L"download"), ElementsAreArray(withTheBill));
}

TEST_F(FeedClickTest, GoesThroughTheWindowsOwnHandlingFirst)
{
    int defaults = 0;
    block->onDefault = [&] {
        ++defaults;
        EXPECT_TRUE(document->keys.empty()) << "before anything is asked of the model";
        EXPECT_TRUE(application->notifier->codes.empty());
    };
    keysOfAClick(L"text", L"view");
    EXPECT_EQ(defaults, 1) << "without a model";
    openModel();
    keysOfAClick(L"text", L"view");
    EXPECT_EQ(defaults, 2);
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::viewRestored});
}
