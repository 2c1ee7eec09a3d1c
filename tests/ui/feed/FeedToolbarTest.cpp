#include "ui/UiTest.h"
#include "ui/Widgets.h"
#include "ui/feed/FeedToolbarDialog.h"
#include "ui/feed/ShareDialog.h"

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr int push = 271;
constexpr int share = 272;

class FeedToolbarTest : public UiTest
{
protected:
    FeedToolbarTest()
    {
        toolbar = new FeedToolbarDialog;
        EXPECT_TRUE(toolbar->Create(FeedToolbarDialog::templateId(), &frame));
        toolbar->ShowWindow(SW_SHOW);
        frame.ShowWindow(SW_SHOW);
        toolbar->SetContext(user, helper);
    }

    bool enabled() const
    {
        EXPECT_EQ(isEnabled(*toolbar, push), isEnabled(*toolbar, share));
        return isEnabled(*toolbar, push);
    }

    FeedToolbarDialog* toolbar = nullptr; // goes with its window
};

} // namespace

TEST_F(FeedToolbarTest, BothButtonsStartDisabledWithTheirTips)
{
    signIn();
    EXPECT_FALSE(enabled());
    EXPECT_STREQ(dynamic_cast<CMFCButton*>(toolbar->GetDlgItem(push))->GetTooltip().GetString(),
                 L"Push to Orvanta Cloud");
    EXPECT_STREQ(dynamic_cast<CMFCButton*>(toolbar->GetDlgItem(share))->GetTooltip().GetString(), L"Share");
}

TEST_F(FeedToolbarTest, EachButtonHasItsPicture)
{
    ASSERT_FALSE(resourcePicture(275).isNull());
    ASSERT_FALSE(resourcePicture(276).isNull());
    EXPECT_NE(resourcePicture(275), resourcePicture(276));
    EXPECT_EQ(pictureOf(*toolbar, push), resourcePicture(275));
    EXPECT_EQ(pictureOf(*toolbar, share), resourcePicture(276));
}

TEST_F(FeedToolbarTest, AnOpenedModelEnablesThemForASignedInUser)
{
    signIn();
    sendHint(*toolbar, codes::documentActivated, scene.document);
    EXPECT_FALSE(enabled());
    sendHint(*toolbar, codes::documentOpened, scene.document);
    EXPECT_TRUE(enabled());
}

TEST_F(FeedToolbarTest, ALoginEnablesThemWithAModelOpen)
{
    sendHint(*toolbar, codes::documentOpened, scene.document);
    EXPECT_FALSE(enabled());
    signIn();
    sendHint(*toolbar, codes::signedIn, scene.document);
    EXPECT_TRUE(enabled());
}

TEST_F(FeedToolbarTest, ALoginWithoutAModelLeavesThemDisabled)
{
    signIn();
    scene.info->setFile(L"");
    sendHint(*toolbar, codes::signedIn, scene.document);
    EXPECT_FALSE(enabled());
}

TEST_F(FeedToolbarTest, ADocumentWithoutAModelLeavesThemAsTheyWere)
{
    signIn();
    sendHint(*toolbar, codes::documentOpened, scene.document);
    TestScene other(L"");
    other.application->application = application;
    sendHint(*toolbar, codes::documentOpened, other.document);
    EXPECT_TRUE(enabled());
    other.document->setSchema(orvsg::SCInfo::key, nullptr);
    sendHint(*toolbar, codes::documentOpened, other.document);
    EXPECT_TRUE(enabled());
}

TEST_F(FeedToolbarTest, ALogoutDisablesThemWithAModelOpen)
{
    signIn();
    sendHint(*toolbar, codes::documentOpened, scene.document);
    sendHint(*toolbar, codes::documentClosed, scene.document);
    EXPECT_TRUE(enabled());
    sendHint(*toolbar, codes::signedOut, scene.document);
    EXPECT_FALSE(enabled());
    toolbar->OnUpdate(nullptr);
    EXPECT_FALSE(enabled());
}

TEST_F(FeedToolbarTest, NoOtherHintTouchesThem)
{
    signIn();
    auto const sendOthers = [this](bool before) {
        for (short code = -1; code <= 50; ++code) {
            if (code != codes::documentOpened && code != codes::signedIn && code != codes::signedOut) {
                sendHint(*toolbar, code, scene.document);
                EXPECT_EQ(enabled(), before) << code;
            }
        }
    };
    sendOthers(false);
    sendHint(*toolbar, codes::signedIn, scene.document);
    sendOthers(true);
}

TEST_F(FeedToolbarTest, ThePushTakesTheDocumentOfWhicheverHintCameLast)
{
    signIn();
    TestScene other(L"/models/other.stp");
    other.application->application = application;
    sendHint(*toolbar, codes::documentOpened, scene.document);
    sendHint(*toolbar, codes::documentChanged, other.document);
    network.expect("/api/UploadInput/", jobIdBytes);
    EXPECT_TRUE(clickButton(*toolbar, push));
    EXPECT_EQ(network.last().field("filename"), "other.stp");
}

TEST_F(FeedToolbarTest, AHintWithoutADocumentLeavesTheOneBefore)
{
    sendHint(*toolbar, codes::documentOpened, scene.document);
    sendHint(*toolbar, codes::documentClosed, nullptr);
    signIn();
    sendHint(*toolbar, codes::signedIn, nullptr);
    EXPECT_TRUE(enabled()) << "the model is still open";
    network.expect("/api/UploadInput/", jobIdBytes);
    EXPECT_TRUE(clickButton(*toolbar, push));
    EXPECT_EQ(network.last().field("filename"), "gearbox.step");
    sendHint(*toolbar, codes::signedOut, nullptr);
    EXPECT_FALSE(enabled());
}

TEST_F(FeedToolbarTest, AFailingPushIsToldByThePushAlone)
{
    signIn();
    sendHint(*toolbar, codes::documentOpened, scene.document);
    network.expectFailure("/api/UploadInput/");
    EXPECT_TRUE(clickButton(*toolbar, push));
    EXPECT_EQ(network.sent().size(), 1U);
    EXPECT_TRUE(application->notifier->codes.empty());
    EXPECT_TRUE(enabled());
}

TEST_F(FeedToolbarTest, PushingSendsTheModelAndReloadsNothing)
{
    signIn();
    sendHint(*toolbar, codes::documentOpened, scene.document);
    network.expect("/api/UploadInput/", jobIdBytes);
    EXPECT_TRUE(clickButton(*toolbar, push));
    EXPECT_EQ(exporter->paths.size(), 1U);
    EXPECT_TRUE(application->notifier->codes.empty());
}

TEST_F(FeedToolbarTest, PushingWithoutAConnectionOnlySaysSo)
{
    signIn();
    sendHint(*toolbar, codes::documentOpened, scene.document);
    orvplatform::setConnectedForTest(false);
    EXPECT_TRUE(clickButton(*toolbar, push));
    EXPECT_EQ(application->texts, std::vector<std::wstring>{text(111)});
    EXPECT_TRUE(exporter->paths.empty());
}

TEST_F(FeedToolbarTest, SharingOpensTheDialogAlsoWithoutAConnection)
{
    signIn();
    sendHint(*toolbar, codes::documentOpened, scene.document);
    orvplatform::setConnectedForTest(false);
    AfxSetResourceHandle(nullptr);
    modals.expectModal<sharedlg>([](sharedlg& dialog) -> INT_PTR {
        CString title;
        dialog.GetWindowTextW(title);
        EXPECT_STREQ(title.GetString(), L"Share gearbox.step");
        return IDCANCEL;
    });
    EXPECT_TRUE(clickButton(*toolbar, share));
    EXPECT_EQ(AfxGetResourceHandle(), ResourceModule::handle()); // stays set
    EXPECT_TRUE(application->texts.empty());
}
