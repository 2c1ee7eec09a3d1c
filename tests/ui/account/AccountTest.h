#pragma once

#include "host/orvweb/APIUtils.h"
#include "host/orvweb/CurlTransport.h"
#include "host/orvweb/RequestObserver.h"
#include "host/runtime/Runtime.h"
#include "platform/text/Text.h"
#include "support/RecordingApplication.h"
#include "support/ScriptedHttpServer.h"
#include "ui/UiTest.h"
#include "ui/account/CloudLoginDlg.h"
#include "ui/account/FeedLoginDlg.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace orvtest
{

/// Where the session file lies. Asking SessionFile for it would make the directory.
inline std::filesystem::path cloudDirectory()
{
    return std::filesystem::path(orvhost::settings().dataDirectory) / "Cloud";
}

/// The bytes of the session file on one line, a bar for each line feed; "none" where there is no file, and "no
/// directory" where there isn't even a place for one.
inline std::string sessionState()
{
    std::filesystem::path const file = cloudDirectory() / "temp";
    if (!std::filesystem::exists(file)) {
        return std::filesystem::exists(cloudDirectory()) ? "none" : "no directory";
    }
    std::ifstream stream(file, std::ios::binary);
    std::string content(std::istreambuf_iterator<char>(stream), {});
    std::replace(content.begin(), content.end(), '\n', '|');
    return content;
}

/// One answer of the service, for a suite of its own with several.
struct NamedAnswer {
    char const* name;
    Answer answer;
};
inline std::ostream& operator<<(std::ostream& stream, NamedAnswer const& each)
{
    return stream << each.name;
}

/// Names a parameter's tests after its field `name`.
struct NameOfCase {
    template <class Case>
    std::string operator()(testing::TestParamInfo<Case> const& each) const
    {
        return each.param.name;
    }
};

/// Writes behind each text and each hint, in braces, what the session file held at that moment.
class CourseApplication final : public RecordingApplication
{
public:
    CourseApplication()
    {
        onHint = [this](orvui::Hint& hint) {
            events.back() += " {" + sessionState() + "}";
            if (onDelivered) {
                onDelivered(hint);
            }
        };
    }
    void showStatus(wchar_t const* text, int kind) override
    {
        RecordingApplication::showStatus(text, kind);
        events.back() += " {" + sessionState() + "}";
    }

    std::function<void(orvui::Hint&)> onDelivered;
};

/// The account's windows, the plug-in's operations and the web classes as they are, over loopback to a server that
/// fails on any request it was not told to expect. Transfers are given up after a second of silence.
class AccountTest : public UiTest
{
protected:
    static constexpr INT_PTR stillOpen = 77; ///< the dialog's result where nothing closed it
    static constexpr int loginButton = 1001;
    static constexpr int emailBox = 1017;
    static constexpr int passwordBox = 1018;
    static constexpr int promptButton = 270;

    AccountTest()
        : transportBefore(orvweb::setTransport(std::make_shared<orvweb::CurlTransport>(shortLimits()))),
          observerBefore(orvweb::setRequestObserver([this](orvweb::ObservedRequest const& call) {
              busyCursors.push_back(orvplatform::waitCursorDepth());
              viewer->events.push_back(orvtext::toUtf8(call.record.tokens.at(0).at(0)) + " {" + sessionState() + "}");
          }))
    {
        useService(server.wideUrl());
        scene.application->application = viewer;
        scene.info->setFile(L""); // a test that is about the model names one
    }
    ~AccountTest() override
    {
        orvweb::setRequestObserver(observerBefore);
        orvweb::setTransport(transportBefore);
        EXPECT_EQ(orvplatform::waitCursorDepth(), 0) << "the busy cursor stayed";
    }

    static orvweb::TransferLimits shortLimits()
    {
        orvweb::TransferLimits limits;
        limits.connectMilliseconds = 2000;
        limits.slowSeconds = 1;
        return limits;
    }
    static void useService(std::wstring const& url)
    {
        orvhost::Settings settings = orvhost::settings();
        settings.serviceUrl = url;
        orvhost::configure(settings);
    }

    INT_PTR openLogin(std::function<void(CloudLoginDlg&)> const& use)
    {
        expectLoginDialog(use);
        CloudLoginDlg dialog(scene.document, user, helper);
        return dialog.DoModal();
    }
    /// The same by way of the prompt in the feed pane.
    void openPrompt(std::function<void(CloudLoginDlg&)> const& use)
    {
        auto* const prompt = new FeedLoginDlg; // goes with its window
        ASSERT_TRUE(prompt->Create(FeedLoginDlg::templateId(), &frame));
        prompt->ShowWindow(SW_SHOW);
        frame.ShowWindow(SW_SHOW);
        prompt->SetContext(user, helper);
        sendHint(*prompt, orv::HintCode::documentActivated, scene.document);
        expectLoginDialog(use);
        EXPECT_TRUE(orvplatform::testing::clickButton(*prompt, promptButton));
        prompt->DestroyWindow();
    }
    void expectLoginDialog(std::function<void(CloudLoginDlg&)> const& use)
    {
        modals.expectModal<CloudLoginDlg>([use](CloudLoginDlg& dialog) -> INT_PTR {
            use(dialog);
            return stillOpen;
        });
    }
    static void signInAs(CloudLoginDlg& dialog, std::wstring const& name, std::wstring const& secret)
    {
        if (!name.empty()) {
            EXPECT_TRUE(orvplatform::testing::typeText(dialog, emailBox, name));
        }
        if (!secret.empty()) {
            EXPECT_TRUE(orvplatform::testing::typeText(dialog, passwordBox, secret));
        }
        EXPECT_TRUE(orvplatform::testing::clickButton(dialog, loginButton));
    }
    static void signInAsAnn(CloudLoginDlg& dialog) { signInAs(dialog, L"ann@example.com", L"secret"); }

    void expectLogin(Answer account = Answer::ok(R"({"name":"Ann"})"))
    {
        server.expect("POST", "/api/Login/", Answer::ok(tokenBytes));
        server.expect("POST", "/api/InstalledDevice/", Answer::ok("ok"));
        server.expect("GET", "/api/AccountInfo/", std::move(account));
    }

    /// What was shown to the user, without the session file's state.
    std::vector<std::string> texts() const
    {
        std::vector<std::string> shown = viewer->statuses();
        for (std::string& each : shown) {
            each.erase(each.rfind(" {"));
        }
        return shown;
    }
    std::vector<std::string> eventsOf(std::string const& kind) const
    {
        std::vector<std::string> found;
        std::copy_if(viewer->events.begin(), viewer->events.end(), std::back_inserter(found),
                     [&](std::string const& event) { return event.starts_with(kind); });
        return found;
    }
    std::vector<std::string> hints() const { return eventsOf("hint "); }
    std::vector<std::string> requests() const { return eventsOf("/api/"); }
    std::string narrow(int textId) const { return orvtext::toUtf8(text(textId)); }
    static std::string apiId() { return orvtext::toUtf8(orvweb::APIUtils::apiId()); }

    static std::string twoLines() { return std::string("ann@example.com|") + tokenBytes + "|"; }

    std::vector<int> busyCursors; ///< how many stood at each request
    std::shared_ptr<CourseApplication> viewer = std::make_shared<CourseApplication>();
    ScriptedHttpServer server;

private:
    std::shared_ptr<orvweb::ITransport> transportBefore;
    orvweb::RequestObserver observerBefore;
};

} // namespace orvtest
