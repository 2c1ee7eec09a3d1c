#pragma once

#include "tests/viewer/ModelFixture.h"

#include "platform/Process.h"
#include "platform/testing/Input.h"
#include "platform/text/Text.h"
#include "viewer/app/ViewerSession.h"

#include <memory>

namespace orvtest
{

/// A viewer whose user data and libraries lie in a folder of the test's own; nothing of the build is loaded.
class SessionFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        orvplatform::testing::ensureApplication();
        orvplatform::setConnectedForTest(false);
        std::filesystem::create_directories(guiFolder());
    }
    void TearDown() override
    {
        session.reset();
        orvplatform::setConnectedForTest(std::nullopt);
    }

    std::filesystem::path guiFolder() const { return folder.path / "lib" / "gui"; }

    /// Puts the product's plug-in where this viewer looks. The suite depends on the target `cloudplugin`.
    void installCloudPlugin() const
    {
        std::filesystem::copy_file(std::filesystem::path(ORV_BINARY_DIR) / "lib" / "gui" / "cloudplugin.so",
                                   guiFolder() / "cloudplugin.so");
    }

    /// Puts the product's exporters where this viewer looks. The suite depends on them.
    void installExporters() const
    {
        for (char const* const kind : {"export", "delay"}) {
            std::filesystem::copy(std::filesystem::path(ORV_BINARY_DIR) / "lib" / kind, folder.path / "lib" / kind,
                                  std::filesystem::copy_options::recursive);
        }
    }

    orvviewer::ViewerSession& start(wchar_t const* language = L"en")
    {
        session.reset();
        orvhost::Settings settings;
        settings.dataDirectory = (folder.path / "data").wstring();
        settings.libraryDirectory = (folder.path / "lib").wstring();
        settings.language = language;
        session = std::make_unique<orvviewer::ViewerSession>(settings);
        return *session;
    }

    std::string status() const { return orvtext::toUtf8(session->statusText()); }

    TemporaryFolder folder;
    std::unique_ptr<orvviewer::ViewerSession> session;
};

} // namespace orvtest
