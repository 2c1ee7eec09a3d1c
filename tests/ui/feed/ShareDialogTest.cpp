// The share dialog, the plug-in's operations and the web classes as they are, to a server that takes down every byte.

#include "host/orvweb/APIUtils.h"
#include "host/orvweb/RequestObserver.h"
#include "platform/text/Text.h"
#include "support/RecordingApplication.h"
#include "support/ScriptedHttpServer.h"
#include "ui/ResourceModule.h"
#include "ui/feed/ShareFixture.h"

#include <gmock/gmock.h>

#include <functional>
#include <utility>

using namespace orvtest;
using namespace orvplatform::testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class ShareDialog : public ShareTest
{
protected:
    ShareDialog()
    {
        useService(server.wideUrl());
        signIn();
        scene.application->application = viewer;
        observer = orvweb::setRequestObserver([this](orvweb::ObservedRequest const& call) {
            viewer->events.push_back(orvtext::toUtf8(call.record.tokens.at(0).at(0)));
            if (onRequest) {
                onRequest();
            }
        });
    }
    ~ShareDialog() override { orvweb::setRequestObserver(observer); }

    void expectPush(Answer answer) { server.expect("POST", "/api/UploadInput/", std::move(answer)); }
    void expectPush() { expectPush(Answer::ok(jobIdBytes)); }
    void expectShare(Answer answer) { server.expect("POST", "/api/Share/", std::move(answer)); }
    void expectShare() { expectShare(Answer::ok("1")); }

    /// The form of an invitation, with the two values percent-encoded by hand.
    static std::string form(std::string const& shareto, std::string const& comment, std::string const& job = jobIdBytes)
    {
        return "name=" + orvtext::toUtf8(orvweb::APIUtils::apiId()) + "&username=ann%40example.com&fileid=" + job +
               "&shareto=" + shareto + "&comment=" + comment;
    }
    std::string narrow(int textId) const { return orvtext::toUtf8(text(textId)); }
    std::string pushed() const { return "gearbox.step " + narrow(117); }
    std::string shared() const { return "gearbox.step " + narrow(132); }
    std::vector<std::string> course(std::string const& pushEnd) const
    {
        return {"status " + narrow(116), "progress on", "progress 20",       "progress 50",  "status " + narrow(116),
                "/api/UploadInput/",     "progress 80", "status " + pushEnd, "progress 100", "progress off"};
    }

    std::shared_ptr<RecordingApplication> viewer = std::make_shared<RecordingApplication>();
    ScriptedHttpServer server;
    std::function<void()> onRequest;

private:
    orvweb::RequestObserver observer;
};

} // namespace

TEST_F(ShareDialog, OpensWithPromptsTitleAndNoError)
{
    EXPECT_EQ(run([](sharedlg& dialog) {
                  EXPECT_EQ(promptOf(dialog, to), L"Enter comma separated email addresses");
                  EXPECT_EQ(promptOf(dialog, message), L"(Optional)");
                  EXPECT_EQ(textOf(dialog, to), L"");
                  EXPECT_EQ(textOf(dialog, message), L"");
                  EXPECT_FALSE(isVisible(dialog, error));
                  CString title;
                  dialog.GetWindowTextW(title);
                  EXPECT_STREQ(title.GetString(), L"Share gearbox.step");
                  EXPECT_NE(dialog.GetIcon(FALSE), nullptr);
                  EXPECT_EQ(dialog.GetIcon(FALSE), LoadIconW(ResourceModule::handle(), MAKEINTRESOURCEW(1038)));
              }),
              stillOpen);
    EXPECT_THAT(viewer->events, IsEmpty());
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ShareDialog, PromptsStayWhileAnEmptyBoxHasTheFocus)
{
    run([](sharedlg& dialog) {
        for (auto const& [box, prompt] :
             {std::pair(message, L"(Optional)"), std::pair(to, L"Enter comma separated email addresses")}) {
            CWnd* const control = dialog.GetDlgItem(box);
            control->SendMessage(WM_SETFOCUS); // nothing is on show here that could have the focus
            EXPECT_EQ(promptOf(dialog, box), prompt);
            control->SendMessage(EM_SETCUEBANNER, FALSE, reinterpret_cast<LPARAM>(prompt));
            control->SendMessage(WM_SETFOCUS);
            EXPECT_EQ(promptOf(dialog, box), L"") << "one that isn't asked to stay";
        }
    });
}

TEST_F(ShareDialog, EnterSharesFromEitherBox)
{
    for (int const box : {to, message}) {
        expectPush();
        expectShare();
        EXPECT_EQ(run([box](sharedlg& dialog) {
                      EXPECT_TRUE(typeText(dialog, to, L"bob@example.com"));
                      EXPECT_TRUE(pressKey(*dialog.GetDlgItem(box), VK_RETURN));
                  }),
                  IDCANCEL);
    }
}

TEST_F(ShareDialog, SendsTheseBytes)
{
    expectPush();
    expectShare();
    EXPECT_EQ(shareWith(L",bob@example.com,,cid@example.com,", L"Schau \u00e4+b & c=d \U0001F600"), IDCANCEL);
    auto const request = server.last();
    EXPECT_EQ(request.header("Content-Type"), "application/x-www-form-urlencoded");
    EXPECT_EQ(request.header("Authorization"), std::string("Bearer ") + tokenBytes);
    EXPECT_EQ(request.header("X-Api-Key"), orvtext::toUtf8(orvweb::APIUtils::apiKey()));
    EXPECT_EQ(request.query(), "");
    EXPECT_EQ(request.body, form("%2Cbob%40example.com%2C%2Ccid%40example.com%2C",
                                 "Schau%20%C3%A4%2Bb%20%26%20c%3Dd%20%F0%9F%98%80"));
}

TEST_F(ShareDialog, KeepsItsOrder)
{
    expectPush();
    expectShare();
    EXPECT_EQ(shareWith(L"bob@example.com"), IDCANCEL);
    auto expected = course(pushed());
    expected.push_back("/api/Share/");
    expected.push_back("status " + shared());
    EXPECT_EQ(viewer->events, expected);
    EXPECT_EQ(shared().back(), ' ') << "the text keeps its closing blank";
}

TEST_F(ShareDialog, StaysOpenWhileItWorks)
{
    expectPush();
    expectShare();
    EXPECT_EQ(run([this](sharedlg& dialog) {
                  int seen = 0;
                  onRequest = [&] {
                      ++seen;
                      EXPECT_TRUE(dialog.IsWindowVisible());
                      EXPECT_EQ(textOf(dialog, to), L"bob@example.com");
                      EXPECT_EQ(orvplatform::waitCursorDepth(), seen == 1 ? 1 : 0) << "busy during the push alone";
                  };
                  fillAndShare(dialog, L"bob@example.com", {});
                  EXPECT_EQ(seen, 2);
                  onRequest = {};
              }),
              IDCANCEL);
}

TEST_F(ShareDialog, UploadsTheModelAnewEachTimeAndNeverAsksForIt)
{
    for (int i = 0; i < 3; ++i) {
        expectPush();
        expectShare();
        EXPECT_EQ(shareWith(L"bob@example.com"), IDCANCEL);
    }
    EXPECT_EQ(server.requests().size(), 6U);
    EXPECT_EQ(exporter->paths.size(), 3U);
}

TEST_F(ShareDialog, AnEmptyMessageIsSentEmptyAndThePromptNever)
{
    expectPush();
    expectShare();
    run([](sharedlg& dialog) {
        EXPECT_EQ(promptOf(dialog, message), L"(Optional)");
        fillAndShare(dialog, L"bob@example.com", {});
    });
    EXPECT_EQ(server.last().body, form("bob%40example.com", ""));
}

TEST_F(ShareDialog, ThePromptForAddressesIsNoAddress)
{
    EXPECT_EQ(run([](sharedlg& dialog) {
                  fillAndShare(dialog, {}, L"Hello");
                  EXPECT_TRUE(isVisible(dialog, error));
              }),
              stillOpen);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ShareDialog, ListsWhoseEveryPieceIsAnAddressPass)
{
    struct List {
        wchar_t const* typed;
        char const* sent;
    };
    for (List const& list :
         {List{L"a@b.cc,d@e.ff", "a%40b.cc%2Cd%40e.ff"}, List{L",a@b.cc", "%2Ca%40b.cc"},
          List{L"a@b.cc,", "a%40b.cc%2C"}, List{L"a@b.cc,,d@e.ff", "a%40b.cc%2C%2Cd%40e.ff"},
          List{L",,a@b.cc,,,d@e.ff,,", "%2C%2Ca%40b.cc%2C%2C%2Cd%40e.ff%2C%2C"},
          List{L"first.last@mail.b.cc", "first.last%40mail.b.cc"}, List{L"first_.last@b.cc", "first_.last%40b.cc"},
          List{L"a@b.cc,a@b.cc", "a%40b.cc%2Ca%40b.cc"}}) {
        expectPush();
        expectShare();
        EXPECT_EQ(shareWith(list.typed), IDCANCEL) << list.sent;
        EXPECT_EQ(server.last().body, form(list.sent, "")) << "as it was typed";
    }
}

TEST_F(ShareDialog, ListsWithAnyOtherPieceKeepTheDialogAndItsInput)
{
    for (wchar_t const* const list : {L"", L",", L",,,", L" ", L"a@b.cc, d@e.ff", L"a@b.cc ,d@e.ff", L" a@b.cc",
                                      L"a@b.cc ", L"one.two.three@b.cc", L"a-b@c.dd", L"a@b-c.dd", L"a+b@c.dd", L"a@b",
                                      L"a@b.cc,nobody", L"nobody,a@b.cc", L"a@b.cc;d@e.ff", L"@b.cc", L"a@b.cc,\t"}) {
        EXPECT_EQ(run([&](sharedlg& dialog) {
                      fillAndShare(dialog, list, L"Hello");
                      EXPECT_TRUE(isVisible(dialog, error)) << orvtext::toUtf8(list);
                      EXPECT_EQ(textOf(dialog, error), L"Please enter valid email addresses.");
                      EXPECT_EQ(textOf(dialog, message), L"Hello");
                  }),
                  stillOpen);
    }
    EXPECT_THAT(viewer->events, IsEmpty());
    EXPECT_EQ(server.connections(), 0);
    EXPECT_THAT(exporter->paths, IsEmpty());
}

TEST_F(ShareDialog, AnyNumberOfAddressesMayBeGiven)
{
    std::wstring list;
    std::string sent;
    for (int i = 0; i < 500; ++i) {
        list += L"person" + std::to_wstring(i) + L"@example.com,";
        sent += "person" + std::to_string(i) + "%40example.com%2C";
    }
    expectPush();
    expectShare(Answer::ok("500"));
    EXPECT_EQ(shareWith(list), IDCANCEL);
    EXPECT_EQ(server.last().body, form(sent, ""));
}

TEST_F(ShareDialog, OfflineNothingIsCheckedAndNothingIsLost)
{
    orvplatform::setConnectedForTest(false);
    EXPECT_EQ(run([&](sharedlg& dialog) {
                  fillAndShare(dialog, L"nonsense, and more", L"Hello");
                  EXPECT_FALSE(isVisible(dialog, error));
                  EXPECT_EQ(textOf(dialog, to), L"nonsense, and more");
                  EXPECT_EQ(textOf(dialog, message), L"Hello");
              }),
              stillOpen);
    EXPECT_THAT(viewer->events, ElementsAre("status Something went wrong, Check your network connection."));
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ShareDialog, TheErrorStaysUntilTheDialogCloses)
{
    expectPush();
    expectShare();
    EXPECT_EQ(run([this](sharedlg& dialog) {
                  fillAndShare(dialog, L"bob", {});
                  EXPECT_TRUE(isVisible(dialog, error));
                  EXPECT_TRUE(typeText(dialog, to, L"@example.com"));
                  EXPECT_TRUE(isVisible(dialog, error)) << "also once the text is right";
                  bool wasThere = true;
                  onRequest = [&] { wasThere = wasThere && isVisible(dialog, error); };
                  EXPECT_TRUE(clickButton(dialog, IDOK));
                  EXPECT_TRUE(wasThere);
                  onRequest = {};
              }),
              IDCANCEL);
    EXPECT_EQ(server.last().body, form("bob%40example.com", ""));
}

TEST_F(ShareDialog, APushThatFailsInvitesNobody)
{
    std::vector<Answer> const failures{Answer::status(401), Answer::status(413), Answer::status(500), Answer::hangUp(),
                                       Answer::cut(jobIdBytes, 100)};
    for (Answer const& failure : failures) {
        viewer->events.clear();
        expectPush(failure);
        EXPECT_EQ(shareWith(L"bob@example.com"), IDCANCEL);
        auto expected = course(narrow(129));
        expected.push_back("status File sharing has failed. Please try again.");
        EXPECT_EQ(viewer->events, expected);
    }
    EXPECT_EQ(server.requests().size(), failures.size());
}

TEST_F(ShareDialog, AnAnswerBelow36CharactersIsNoJobId)
{
    for (std::string const& answer :
         {std::string(), std::string("Failed"), std::string(shortIdBytes), std::string(35, 'x')}) {
        viewer->events.clear();
        expectPush(Answer::ok(answer));
        EXPECT_EQ(shareWith(L"bob@example.com"), IDCANCEL);
        auto expected = course(pushed()); // the push itself takes any answer for a success
        expected.push_back("status " + narrow(133));
        EXPECT_EQ(viewer->events, expected) << answer;
    }
}

TEST_F(ShareDialog, AnyAnswerFrom36CharactersOnIsTheFileid)
{
    for (std::string const& answer : {std::string(36, 'x'), std::string(jobIdBytes) + "0123456789"}) {
        expectPush(Answer::ok(answer));
        expectShare();
        EXPECT_EQ(shareWith(L"bob@example.com"), IDCANCEL);
        EXPECT_EQ(server.last().body, form("bob%40example.com", "", answer));
    }
}

TEST_F(ShareDialog, AShareThatFailsLooksLikeSuccess)
{
    for (Answer const& failure : {Answer::status(401), Answer::status(429, "invite these ones tomorrow"),
                                  Answer::status(500), Answer::cut("1", 100), Answer::hangUp()}) {
        expectPush(); // leaves a connection, on which an invitation that isn't answered must not go out again
        expectShare(failure);
        EXPECT_EQ(shareWith(L"bob@example.com"), IDCANCEL);
        EXPECT_EQ(viewer->events.back(), "status gearbox.step shared successfully. ");
    }
}

TEST_F(ShareDialog, TheCloseBoxCancelsAndSendsNothing)
{
    EXPECT_EQ(run([this](sharedlg& dialog) {
                  EXPECT_EQ(dialog.GetDlgItem(IDCANCEL), nullptr) << "there is no button for it";
                  EXPECT_TRUE(typeText(dialog, to, L"bob@example.com"));
                  dialog.SendMessage(WM_CLOSE);
              }),
              IDCANCEL);
    EXPECT_THAT(viewer->events, IsEmpty());
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ShareDialog, TheRibbonsApplicationIsKeptAndNotUsed)
{
    auto const ofTheRibbon = std::make_shared<RecordingApplication>();
    expectPush();
    expectShare();
    modals.expectModal<sharedlg>([](sharedlg& dialog) -> INT_PTR {
        fillAndShare(dialog, L"bob@example.com", {});
        return stillOpen;
    });
    sharedlg dialog(scene.document, ofTheRibbon, user, helper);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_THAT(ofTheRibbon->events, IsEmpty());
    EXPECT_EQ(viewer->events.back(), "status " + shared());
}

TEST_F(ShareDialog, TheTitleNamesTheModel)
{
    for (wchar_t const* const name : {L"gear box.v2.step", L"Zahnr\u00e4der \U0001F600.iges", L"gear"}) {
        scene.info->setFile(std::wstring(L"/models/") + name);
        run([name](sharedlg& dialog) {
            CString title;
            dialog.GetWindowTextW(title);
            EXPECT_EQ(std::wstring(title.GetString()), std::wstring(L"Share ") + name);
        });
    }
}

TEST_F(ShareDialog, SpeaksTheLanguageOfTheRun)
{
    for (wchar_t const* const language : {L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"}) {
        orvhost::Settings settings = orvhost::settings();
        settings.language = language;
        orvhost::configure(settings);
        expectPush();
        expectShare();
        run([this](sharedlg& dialog) {
            CString title;
            dialog.GetWindowTextW(title);
            EXPECT_EQ(std::wstring(title.GetString()), text(103) + L" gearbox.step");
            EXPECT_NE(text(103), L"Share");
            EXPECT_EQ(promptOf(dialog, to), text(104));
            EXPECT_EQ(promptOf(dialog, message), text(105));
            fillAndShare(dialog, L"bob@example.com", {});
        });
        EXPECT_EQ(viewer->events.back(), "status " + shared());
    }
}

TEST_F(ShareDialog, AModelThatIsClosedMeanwhileIsAFailedShare)
{
    scene.info->setFile(L"");
    EXPECT_EQ(shareWith(L"bob@example.com"), IDCANCEL);
    EXPECT_THAT(viewer->events, ElementsAre("status " + narrow(133))) << "a model without a file can't be pushed";
    EXPECT_EQ(server.connections(), 0);
}
