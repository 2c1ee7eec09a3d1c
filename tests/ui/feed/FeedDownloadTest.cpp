#include "feed/SceneRecords.h"
#include "host/orv/FileUtils.h"
#include "host/orvsgutils/BOMUtils.h"
#include "support/NextFunction.h"
#include "ui/UiTest.h"
#include "ui/feed/FeedBlock.h"
#include "ui/feed/Records.h"

#include <optional>
#include <utility>
#include <vector>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

/// A bill of materials that the host was to make.
struct MadeBill {
    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orvsg::SCBom> bom;
    int level = -1;
};
std::vector<MadeBill> madeBills;

} // namespace

// This program's own stands before the host's, notes the call and hands it on.
void orvsgutils::BOMUtils::createBOM(std::shared_ptr<orvsg::SCSceneTopo> topology, std::shared_ptr<orvsg::SCBom> bom,
                                     int const& level)
{
    static auto* const whole = orvtest::nextFunction(&BOMUtils::createBOM);
    madeBills.push_back({topology, bom, level});
    whole(std::move(topology), std::move(bom), level);
}

namespace
{

class FeedDownloadTest : public UiTest
{
protected:
    FeedDownloadTest()
    {
        madeBills.clear();
        signIn();
        block = new FeedBlock;
        EXPECT_TRUE(block->Create(FeedBlock::templateId(), &frame));
        block->ShowWindow(SW_SHOW);
        frame.ShowWindow(SW_SHOW);
        sendHint(*block, codes::documentOpened, scene.document);
    }

    void offer(std::wstring kind)
    {
        Feed feed = comment(L"Output");
        feed.comment.commentType = L"auto";
        feed.action = FeedAction(L"download", std::move(kind));
        block->setFeed(feed, user);
    }
    void click() { clickAt(*block, 3, 3); }
    /// Clicks the block and answers the save dialog.
    void clickAndSave(std::optional<std::wstring> const& path)
    {
        modals.expectModal<CFileDialog>([this, path](CFileDialog& dialog) -> INT_PTR {
            EXPECT_FALSE(dialog.m_bOpenFileDialog);
            EXPECT_EQ(dialog.m_ofn.Flags, 6U);
            EXPECT_EQ(dialog.m_ofn.hwndOwner, nullptr);
            levelAtTheDialog = scene.bom->reportLevel;
            billsAtTheDialog = madeBills.size();
            proposedName = dialog.GetFileName().GetString();
            extension = dialog.m_ofn.lpstrDefExt == nullptr ? L"" : dialog.m_ofn.lpstrDefExt;
            filter = dialog.m_ofn.lpstrFilter == nullptr ? L"" : dialog.m_ofn.lpstrFilter;
            if (!path) {
                return IDCANCEL;
            }
            choosePath(dialog, *path);
            return IDOK;
        });
        click();
    }

    FeedBlock* block = nullptr; // goes with its window
    std::wstring proposedName;
    std::wstring extension;
    std::wstring filter; // the description alone
    int levelAtTheDialog = -1;
    std::size_t billsAtTheDialog = 0;
};

} // namespace

TEST_F(FeedDownloadTest, EveryKindHasItsNameAndFilter)
{
    struct {
        wchar_t const* kind;
        wchar_t const* name;
        wchar_t const* filter;
    } const cases[] = {{L"3ds", L"gearbox.3ds", L"3DS (*.3ds)"},
                       {L"obj", L"gearbox.obj", L"OBJ (*.obj)"},
                       {L"stl", L"gearbox.stl", L"STL (*.stl)"},
                       {L"pdf", L"gearbox.pdf", L"PDF (*.pdf)"},
                       {L"csv", L"gearbox.csv", L"BOM Report (*.csv)"},
                       {L"bompdf", L"gearbox_PartLevel.bompdf", L"BOM Report (*.bompdf)"},
                       {L"STL", L"gearbox.STL", L""},
                       {L" ", L"gearbox. ", L""}};
    for (auto const& [kind, name, description] : cases) {
        offer(kind);
        clickAndSave({});
        EXPECT_EQ(proposedName, name);
        EXPECT_EQ(extension, kind);
        EXPECT_EQ(filter, description);
    }
    EXPECT_TRUE(application->saved.empty()); // all were cancelled
    EXPECT_TRUE(application->texts.empty());
    EXPECT_TRUE(network.sent().empty());
}

TEST_F(FeedDownloadTest, AnAcceptedPathGoesToTheApplication)
{
    offer(L"stl");
    clickAndSave(L"/out/gearbox.stl");
    EXPECT_EQ(application->saved, std::vector<std::wstring>{L"/out/gearbox.stl"});
    EXPECT_EQ(application->lastText(), orv::FileUtils::getStatusFileName(L"/out/gearbox.stl") + L" saved");
}

TEST_F(FeedDownloadTest, AFailedSaveShowsTheNameAlone)
{
    application->saveStatus = 3;
    offer(L"stl");
    clickAndSave(L"/out/gearbox.stl");
    EXPECT_EQ(application->lastText(), orv::FileUtils::getStatusFileName(L"/out/gearbox.stl"));
}

TEST_F(FeedDownloadTest, TheOutcomeMayComeAfterTheBlockIsGone)
{
    block->DestroyWindow();
    int const ok = 0;
    FeedBlock::onSaved(&ok, L"/out/gearbox.stl", application.get());
    EXPECT_EQ(application->lastText(), orv::FileUtils::getStatusFileName(L"/out/gearbox.stl") + L" saved");
}

TEST_F(FeedDownloadTest, TheReportLevelIsSetBeforeTheDialogOpens)
{
    scene.bom->reportLevel = 7;
    for (auto const& [kind, level] : {std::pair{L"stl", 7}, {L"csv", 1}, {L"bompdf", 0}}) {
        offer(kind);
        clickAndSave({});
        EXPECT_EQ(levelAtTheDialog, level) << level;
        EXPECT_EQ(scene.bom->reportLevel, level) << "also where the user cancels";
    }
    EXPECT_TRUE(madeBills.empty()) << "the document has one";
}

TEST_F(FeedDownloadTest, TheHostIsToMakeAMissingBillOfMaterialsBeforeAnyKindOfDownload)
{
    scene.document->setSchema(orvsg::SCBom::BOM, nullptr);
    for (wchar_t const* const kind : {L"stl", L"csv", L"bompdf", L"3ds", L"unknown"}) {
        madeBills.clear();
        offer(kind);
        clickAndSave({});
        ASSERT_EQ(madeBills.size(), 1U);
        EXPECT_EQ(billsAtTheDialog, 1U) << "before the dialog opens";
        EXPECT_EQ(madeBills[0].topology, scene.topology);
        EXPECT_EQ(madeBills[0].bom, nullptr);
        EXPECT_EQ(madeBills[0].level, 0);
    }
}

TEST_F(FeedDownloadTest, ADocumentWithoutABillOfMaterialsStillOffersEveryOutput)
{
    scene.document->setSchema(orvsg::SCBom::BOM, nullptr);
    for (wchar_t const* const kind : {L"csv", L"bompdf", L"stl"}) {
        offer(kind);
        clickAndSave(L"/out/a");
    }
    EXPECT_EQ(application->saved.size(), 3U);
}

TEST_F(FeedDownloadTest, ADownloadRestoresNoView)
{
    scene.runtime->visibility[1] = false;
    offer(L"stl");
    clickAndSave({});
    EXPECT_FALSE(scene.runtime->visibility[1]);
    EXPECT_TRUE(application->notifier->codes.empty());
}
