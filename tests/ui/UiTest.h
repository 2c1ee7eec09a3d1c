#pragma once

#include "host/orv/IHint.h"
#include "host/orvsgutils/ResourceLoader.h"
#include "host/orvweb/UserInfo.h"
#include "host/runtime/Runtime.h"
#include "platform/Process.h"
#include "platform/testing/Input.h"
#include "platform/testing/ModalExpectation.h"
#include "service/CloudHelper.h"
#include "service/PluginText.h"
#include "support/RecordingTransport.h"
#include "support/TestScene.h"
#include "ui/FakeViewer.h"
#include "ui/ResourceModule.h"
#include "ui/account/SessionStore.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <unistd.h>

namespace orvtest
{

/// 36 characters, as the service's ids and tokens have.
inline constexpr wchar_t jobId[] = L"0f8fad5b-d9cb-469f-a165-70867728950e";
inline constexpr char jobIdBytes[] = "0f8fad5b-d9cb-469f-a165-70867728950e";
inline constexpr char shortIdBytes[] = "0f8fad5b-d9cb-469f-a165-70867728950";
inline constexpr wchar_t token[] = L"7c9e6679-7425-40de-944b-e07fc1f90ae7";
inline constexpr char tokenBytes[] = "7c9e6679-7425-40de-944b-e07fc1f90ae7";

/// A run of the viewer's user interface: the plug-in's resources, a data directory of its own, a network that fails on
/// unexpected requests, modal dialogs that fail unless they are expected, and a top-level window for child dialogs.
class UiTest : public ::testing::Test
{
protected:
    UiTest()
    {
        orvplatform::testing::ensureApplication();
        // The code under test is linked into this program, so the resources come from their file.
        EXPECT_TRUE(orvplatform::registerModuleFile(L"cloudplugin.dll", ORV_PLUGIN_RESOURCES));
        dataDirectory = std::filesystem::temp_directory_path() / ("orvanta-ui-" + std::to_string(getpid()));
        std::filesystem::remove_all(dataDirectory);
        std::filesystem::create_directories(dataDirectory);
        configure(L"en");
        orvplatform::setConnectedForTest(true);
        application->notifier->deliver = nullptr;
        scene.application->application = application;
        ResourceModule::use();
        EXPECT_TRUE(frame.CreateEx(0, L"OrvTestFrame", L"frame", WS_OVERLAPPED, CRect(0, 0, 400, 900), nullptr, 0));
    }
    ~UiTest() override
    {
        frame.DestroyWindow();
        orvplatform::setConnectedForTest({});
        AfxSetResourceHandle(nullptr);
        std::filesystem::remove_all(dataDirectory);
    }

    void configure(std::wstring language, double dpi = 96.0)
    {
        orvhost::Settings settings;
        settings.dataDirectory = dataDirectory.wstring();
        settings.libraryDirectory = ORV_TEST_LIBRARIES;
        settings.serviceUrl = L"http://127.0.0.1:9";
        settings.language = std::move(language);
        settings.dpi = dpi;
        orvhost::configure(settings);
    }

    void signIn()
    {
        user->username = L"ann@example.com";
        user->userid = token;
        user->name = L"Ann";
        SessionFile().write(user->username, user->userid, user->name);
    }

    /// A module that isn't the plug-in's, as the viewer's own.
    static HINSTANCE otherModule()
    {
        EXPECT_TRUE(orvplatform::registerModuleFile(L"viewer.dll", ORV_PLUGIN_RESOURCES));
        return GetModuleHandleW(L"viewer.dll");
    }

    /// One in which nothing of the plug-in is found.
    HINSTANCE emptyModule() const
    {
        // The format's opening entry and nothing behind it.
        std::string const opening = {0, 0, 0, 0, 32, 0, 0, 0, -1, -1, 0, 0, -1, -1, 0, 0};
        auto const file = dataDirectory / "empty.res";
        std::ofstream(file, std::ios::binary) << opening + std::string(16, '\0');
        EXPECT_TRUE(orvplatform::registerModuleFile(L"empty.dll", file.string()));
        return GetModuleHandleW(L"empty.dll");
    }

    std::wstring text(int id) const { return pluginText(id); }

    std::filesystem::path dataDirectory;
    std::shared_ptr<FakeApplication> application = std::make_shared<FakeApplication>();
    TestScene scene;
    std::shared_ptr<orvweb::UserInfo> user = std::make_shared<orvweb::UserInfo>();
    std::shared_ptr<FakeExporter> exporter = std::make_shared<FakeExporter>();
    std::shared_ptr<CloudHelper> helper = std::make_shared<CloudHelper>(exporter);
    RecordingTransport network;
    orvplatform::testing::ModalScript modals{[](std::string const& why) { ADD_FAILURE() << why; }};
    CWnd frame;
};

/// Delivers one hint to whatever has an OnUpdate.
template <class Target>
void sendHint(Target& target, short code, std::shared_ptr<orv::IDocument> const& document)
{
    orvui::Hint hint(code, document);
    target.OnUpdate(&hint);
}

/// The place of a control in its dialog, pixels.
inline CRect placeOf(CWnd& dialog, int id)
{
    CRect place;
    dialog.GetDlgItem(id)->GetWindowRect(&place);
    dialog.ScreenToClient(&place);
    return place;
}

} // namespace orvtest
