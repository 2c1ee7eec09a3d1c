#pragma once

#include "host/orvweb/ITransport.h"
#include "host/runtime/Runtime.h"
#include "platform/Process.h"
#include "ui/UiTest.h"
#include "ui/feed/ShareDialog.h"

#include <functional>
#include <memory>
#include <string>

namespace orvtest
{

/// The share dialog with the web classes as they are, which send to the address that a test gives.
class ShareTest : public UiTest
{
protected:
    static constexpr int to = 1034;
    static constexpr int message = 1035;
    static constexpr int error = 1036;
    static constexpr INT_PTR stillOpen = 77; ///< the script's answer where nothing had closed the dialog

    ShareTest() : scripted(orvweb::setTransport({})) {}
    ~ShareTest() override
    {
        orvweb::setTransport(scripted);
        EXPECT_EQ(orvplatform::waitCursorDepth(), 0) << "the busy cursor stayed";
    }

    static void useService(std::wstring const& url)
    {
        orvhost::Settings settings = orvhost::settings();
        settings.serviceUrl = url;
        orvhost::configure(settings);
    }

    INT_PTR run(std::function<void(sharedlg&)> const& use)
    {
        modals.expectModal<sharedlg>([&use](sharedlg& dialog) -> INT_PTR {
            use(dialog);
            return stillOpen;
        });
        sharedlg dialog(scene.document, user, helper);
        orvweb::UserInfo const before = *user;
        INT_PTR const result = dialog.DoModal();
        EXPECT_EQ(user->username, before.username) << "sharing changes nothing of what is known of the user";
        EXPECT_EQ(user->userid, before.userid);
        EXPECT_EQ(user->name, before.name);
        return result;
    }
    INT_PTR shareWith(std::wstring const& recipients, std::wstring const& words = {})
    {
        return run([&](sharedlg& dialog) { fillAndShare(dialog, recipients, words); });
    }
    static void fillAndShare(sharedlg& dialog, std::wstring const& recipients, std::wstring const& words)
    {
        using namespace orvplatform::testing;
        if (!recipients.empty()) {
            EXPECT_TRUE(typeText(dialog, to, recipients));
        }
        if (!words.empty()) {
            EXPECT_TRUE(typeText(dialog, message, words));
        }
        EXPECT_TRUE(clickButton(dialog, IDOK));
    }

private:
    std::shared_ptr<orvweb::ITransport> scripted;
};

} // namespace orvtest
