#include "ui/feed/ShareDialog.h"
#include "ui/UiTest.h"

#include <functional>

using namespace orvtest;
using namespace orvplatform::testing;

namespace
{

constexpr int to = 1034;
constexpr int message = 1035;
constexpr int error = 1036;

class ShareDialogTest : public UiTest
{
protected:
    ShareDialogTest() { signIn(); }

    /// Runs the dialog; it closes when the user does it, or by itself.
    INT_PTR run(std::function<void(sharedlg&)> const& use)
    {
        modals.expectModal<sharedlg>([&use](sharedlg& dialog) -> INT_PTR {
            use(dialog);
            return IDCLOSED;
        });
        sharedlg dialog(scene.document, user, helper);
        return dialog.DoModal();
    }
    static void share(sharedlg& dialog) { EXPECT_TRUE(clickButton(dialog, IDOK)); }

    /// The script's answer where the dialog was still open at the end; no dialog ends with it.
    static constexpr INT_PTR IDCLOSED = 77;
};

} // namespace

TEST_F(ShareDialogTest, OpensWithPromptsTitleAndNoError)
{
    EXPECT_EQ(run([](sharedlg& dialog) {
                  EXPECT_EQ(promptOf(dialog, to), L"Enter comma separated email addresses");
                  EXPECT_EQ(promptOf(dialog, message), L"(Optional)");
                  EXPECT_EQ(textOf(dialog, to), L"");
                  EXPECT_FALSE(isVisible(dialog, error));
                  CString title;
                  dialog.GetWindowTextW(title);
                  EXPECT_STREQ(title.GetString(), L"Share gearbox.step");
                  EXPECT_NE(dialog.GetIcon(FALSE), nullptr);
              }),
              IDCLOSED);
}

TEST_F(ShareDialogTest, PushesTheModelAndSendsTheInvitations)
{
    network.expect("/api/UploadInput/", jobIdBytes);
    network.expect("/api/Share/", "2");
    EXPECT_EQ(run([](sharedlg& dialog) {
                  typeText(dialog, to, L"bob@example.com,cid@example.com");
                  typeText(dialog, message, L"Have a look");
                  share(dialog);
              }),
              IDCANCEL);
    auto const& sent = network.last();
    EXPECT_EQ(sent.field("fileid"), jobIdBytes);
    EXPECT_EQ(sent.field("shareto"), "bob@example.com,cid@example.com");
    EXPECT_EQ(sent.field("comment"), "Have a look");
    EXPECT_EQ(sent.field("username"), "ann@example.com");
    EXPECT_EQ(application->lastText(), L"gearbox.step shared successfully. ");
}

TEST_F(ShareDialogTest, AnEmptyMessageIsSentEmpty)
{
    network.expect("/api/UploadInput/", jobIdBytes);
    network.expect("/api/Share/", "1");
    run([](sharedlg& dialog) {
        typeText(dialog, to, L"bob@example.com");
        share(dialog);
    });
    bool found = false;
    for (auto const& [name, value] : network.last().request.fields) {
        found = found || (name == "comment" && value.empty());
    }
    EXPECT_TRUE(found);
}

TEST_F(ShareDialogTest, EnterShares)
{
    network.expect("/api/UploadInput/", jobIdBytes);
    network.expect("/api/Share/", "1");
    EXPECT_EQ(run([](sharedlg& dialog) {
                  typeText(dialog, to, L"bob@example.com");
                  pressKey(*dialog.GetDlgItem(to), VK_RETURN);
              }),
              IDCANCEL);
}

TEST_F(ShareDialogTest, AddressListsThatPass)
{
    for (wchar_t const* const list :
         {L"a@b.cc,d@e.ff", L",a@b.cc", L"a@b.cc,", L"a@b.cc,,d@e.ff", L",,a@b.cc,,", L"first.last@mail.b.cc"}) {
        network.expect("/api/UploadInput/", jobIdBytes);
        network.expect("/api/Share/", "1");
        EXPECT_EQ(run([list](sharedlg& dialog) {
                      typeText(dialog, to, list);
                      share(dialog);
                  }),
                  IDCANCEL);
        EXPECT_EQ(network.last().field("shareto"), std::string(list, list + std::wcslen(list))); // as typed
    }
}

TEST_F(ShareDialogTest, AddressListsThatFailKeepTheDialogOpen)
{
    for (wchar_t const* const list :
         {L"", L",", L",,", L"a@b.cc, d@e.ff", L"a.b.c@d.ee", L"a-b@c.dd", L"a@b", L"a@b.cc,nobody", L" a@b.cc"}) {
        EXPECT_EQ(run([list](sharedlg& dialog) {
                      typeText(dialog, to, list);
                      share(dialog);
                      EXPECT_TRUE(isVisible(dialog, error));
                      EXPECT_EQ(textOf(dialog, error), L"Please enter valid email addresses.");
                      EXPECT_EQ(textOf(dialog, to), list);
                  }),
                  IDCLOSED);
    }
    EXPECT_TRUE(network.sent().empty());
    EXPECT_TRUE(application->texts.empty());
}

TEST_F(ShareDialogTest, TheErrorStaysAfterACorrection)
{
    run([](sharedlg& dialog) {
        typeText(dialog, to, L"bob");
        share(dialog);
        typeText(dialog, to, L"@example.com");
        EXPECT_TRUE(isVisible(dialog, error));
        orvplatform::setConnectedForTest(false);
        share(dialog);
        EXPECT_TRUE(isVisible(dialog, error));
    });
}

TEST_F(ShareDialogTest, WithoutAConnectionTheInputStaysAndIsNotChecked)
{
    orvplatform::setConnectedForTest(false);
    EXPECT_EQ(run([](sharedlg& dialog) {
                  typeText(dialog, to, L"nonsense");
                  share(dialog);
                  EXPECT_FALSE(isVisible(dialog, error));
                  EXPECT_EQ(textOf(dialog, to), L"nonsense");
              }),
              IDCLOSED);
    EXPECT_EQ(application->texts, std::vector<std::wstring>{text(111)});
}

TEST_F(ShareDialogTest, AFailedPushEndsTheDialogWithAWord)
{
    network.expectFailure("/api/UploadInput/");
    EXPECT_EQ(run([](sharedlg& dialog) {
                  typeText(dialog, to, L"bob@example.com");
                  share(dialog);
              }),
              IDCANCEL);
    EXPECT_EQ(application->lastText(), text(133));
}

TEST_F(ShareDialogTest, AJobIdOf35CharactersIsAFailedPush)
{
    network.expect("/api/UploadInput/", shortIdBytes);
    run([](sharedlg& dialog) {
        typeText(dialog, to, L"bob@example.com");
        share(dialog);
    });
    EXPECT_EQ(application->lastText(), text(133));
}

TEST_F(ShareDialogTest, AFailedInvitationLooksLikeSuccess)
{
    network.expect("/api/UploadInput/", jobIdBytes);
    network.expectFailure("/api/Share/", orv::ErrorCode::refused, 500);
    run([](sharedlg& dialog) {
        typeText(dialog, to, L"bob@example.com");
        share(dialog);
    });
    EXPECT_EQ(application->lastText(), L"gearbox.step shared successfully. ");
}
