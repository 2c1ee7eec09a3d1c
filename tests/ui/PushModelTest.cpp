#include "ui/PushModel.h"

#include "ui/UiTest.h"
#include "ui/feed/FeedToolbarDialog.h"
#include "ui/feed/ShareDialog.h"

using namespace orvtest;
using namespace orvplatform::testing;

namespace
{

class PushModel : public UiTest
{
protected:
    PushModel() { signIn(); }

    std::wstring push(bool directly)
    {
        CloudSettings settings;
        settings.uploadDirect = directly;
        return pushModel(settings, *helper, scene.document, application, user);
    }
};

} // namespace

TEST_F(PushModel, GoesDirectlyAsTheSettingsSayFromTheStart)
{
    EXPECT_TRUE(CloudSettings().uploadDirect);
    network.expect("/api/UploadInput/", jobIdBytes);
    EXPECT_EQ(push(true), jobId);
    EXPECT_EQ(exporter->paths.size(), 1U) << "a converted copy";
    EXPECT_EQ(network.sent().size(), 1U);
}

TEST_F(PushModel, GoesWithAPreviewWhereTheSettingsSaySo)
{
    network.expect("/api/Upload/", "native-job");
    network.expect("/api/Upload/", jobIdBytes);
    EXPECT_EQ(push(false), jobId);
    EXPECT_EQ(network.last().field("type"), "png");
    EXPECT_TRUE(exporter->paths.empty()) << "the deferred exporter is the other route's";
    EXPECT_EQ(application->lastText(), L"gearbox.step " + text(117)) << "said through the application that was given";
}

TEST_F(PushModel, OfThePanesToolbarIsAlwaysDirect)
{
    auto* const toolbar = new FeedToolbarDialog; // goes with its window
    ASSERT_TRUE(toolbar->Create(FeedToolbarDialog::templateId(), &frame));
    toolbar->ShowWindow(SW_SHOW);
    frame.ShowWindow(SW_SHOW);
    toolbar->SetContext(user, helper); // is told nothing of the settings
    sendHint(*toolbar, orv::HintCode::documentOpened, scene.document);
    network.expect("/api/UploadInput/", jobIdBytes);
    EXPECT_TRUE(clickButton(*toolbar, 271));
    EXPECT_EQ(exporter->paths.size(), 1U);
}

TEST_F(PushModel, OfTheShareDialogIsAlwaysDirect)
{
    network.expect("/api/UploadInput/", jobIdBytes);
    network.expect("/api/Share/", "1");
    modals.expectModal<sharedlg>([](sharedlg& dialog) -> INT_PTR {
        EXPECT_TRUE(typeText(dialog, 1034, L"bob@example.com"));
        EXPECT_TRUE(clickButton(dialog, IDOK));
        return IDCANCEL;
    });
    sharedlg dialog(scene.document, user, helper);
    dialog.DoModal();
    EXPECT_EQ(exporter->paths.size(), 1U);
}
