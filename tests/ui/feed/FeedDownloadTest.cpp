#include "feed/SceneRecords.h"
#include "host/orv/FileUtils.h"
#include "ui/UiTest.h"
#include "ui/feed/FeedBlock.h"
#include "ui/feed/Records.h"

#include <optional>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

class FeedDownloadTest : public UiTest
{
protected:
    FeedDownloadTest()
    {
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
            EXPECT_EQ(dialog.m_ofn.Flags & 6U, 6U);
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
    offer(L"stl");
    clickAndSave({});
    EXPECT_EQ(scene.bom->reportLevel, 7);
    offer(L"csv");
    clickAndSave({});
    EXPECT_EQ(scene.bom->reportLevel, 1);
    offer(L"bompdf");
    clickAndSave({});
    EXPECT_EQ(scene.bom->reportLevel, 0);
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
