#pragma once

#include "host/orv/FileUtils.h"
#include "host/orv/Preferences.h"
#include "host/orvexp/IDelayExporter.h"
#include "host/orvweb/RequestObserver.h"
#include "host/runtime/Files.h"
#include "platform/Process.h"
#include "platform/testing/Input.h"
#include "platform/text/Text.h"
#include "service/CloudHelper.h"
#include "support/PluginEnvironment.h"
#include "support/RecordingApplication.h"
#include "support/TestScene.h"
#include "ui/account/SessionStore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvtest
{

inline std::string const uploadingText = "Uploading file to " ORVANTA_SERVICE_HOST;
/// Stands behind the model's name. The text begins with a blank of its own, behind the one between name and text.
inline std::string const uploadedText = "  is successfully uploaded to " ORVANTA_SERVICE_HOST;
inline std::string const uploadFailedText = "File upload has failed. Please try again.";

/// Writes "PRC" where it is told to, unless it is told otherwise.
class FakeExporter final : public orvexp::IDelayExporter
{
public:
    orvexp::Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                        std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status) override
    {
        paths.push_back(orvhost::nativePath(path));
        lastDocument = document;
        lastPreferences = preferences;
        lastStatus = status;
        if (onSave) {
            onSave();
        }
        if (throws) {
            throw std::runtime_error("the exporter broke");
        }
        if (outcome == orvexp::Status::ok) {
            writeFile(orvhost::nativePath(path), content);
        }
        return outcome;
    }

    std::vector<std::filesystem::path> paths;
    std::shared_ptr<orv::IDocument> lastDocument;
    std::shared_ptr<orv::Preferences> lastPreferences;
    orv::IStatusManager* lastStatus = nullptr;
    orvexp::Status outcome = orvexp::Status::ok;
    std::string content = "PRC";
    bool throws = false;
    std::function<void()> onSave; ///< before anything is written
};

/// Calls `afterEvent` behind each event that it has recorded, with its number.
class WatchedApplication final : public RecordingApplication
{
public:
    void showStatus(wchar_t const* text, int kind) override
    {
        RecordingApplication::showStatus(text, kind);
        tell();
    }
    void setProgress(int const& percent, int channel) override
    {
        RecordingApplication::setProgress(percent, channel);
        tell();
    }
    void showProgress(int on, int channel) override
    {
        RecordingApplication::showProgress(on, channel);
        tell();
    }

    std::function<void()> afterEvent; ///< may throw

private:
    void tell()
    {
        if (afterEvent) {
            afterEvent();
        }
    }
};

/// A signed-in user with a model open: everything that a push works on. The model is an assembly.
struct PushScene {
    PushScene()
    {
        orvplatform::testing::ensureApplication();
        user->userid = L"0f8fad5b-d9cb-469f-a165-70867728950e";
        user->username = L"ada@example.com";
        user->name = L"Ada";
        SessionFile().write(user->username, user->userid, user->name);
        session = contentOf(environment.session());
        keepUser();
        openModel(L"/models/gear.box.step");
    }
    ~PushScene()
    {
        EXPECT_EQ(orvplatform::waitCursorDepth(), 0) << "the busy cursor stayed";
        EXPECT_EQ(user->username, signedIn.username) << "a push has no business in what is known of the user";
        EXPECT_EQ(user->userid, signedIn.userid);
        EXPECT_EQ(user->name, signedIn.name);
        EXPECT_EQ(contentOf(environment.session()), session) << "a push has no business in the session file";
        for (auto const& file : leftBehind()) {
            std::filesystem::remove(file);
        }
    }
    PushScene(PushScene const&) = delete;
    PushScene& operator=(PushScene const&) = delete;

    void openModel(std::wstring const& path)
    {
        scene = std::make_unique<TestScene>(path);
        scene->application->application = application;
    }

    /// To be called where a test changes the user: what it is from here on has to stay.
    void keepUser() { signedIn = *user; }

    static std::filesystem::path temporary(std::string const& name)
    {
        return orvhost::nativePath(orv::FileUtils::getTempPath()) / name;
    }
    /// The files in the temporary directory and below, directories apart.
    static std::vector<std::filesystem::path> leftBehind()
    {
        std::vector<std::filesystem::path> files;
        for (auto const& entry : std::filesystem::recursive_directory_iterator(temporary(""))) {
            if (!entry.is_directory()) {
                files.push_back(entry.path());
            }
        }
        return files;
    }

    std::wstring pushDirect() { return helper.pushDirect(scene->document, user); }
    std::wstring pushWithPreview() { return helper.pushWithPreview(scene->document, application, user); }

    /// The course of a push as it is called: its events in order, and among them "export", and "/api/..." for each
    /// request; behind each how deep the busy cursor is, and the files that are there under `watched`.
    template <class Push>
    std::vector<std::string> courseOf(Push push, std::vector<std::string> const& watched)
    {
        std::vector<std::string> course;
        auto const note = [&](std::string const& event) {
            std::string line = event + " [cursor " + std::to_string(orvplatform::waitCursorDepth());
            for (auto const& name : watched) {
                line += std::filesystem::exists(temporary(name)) ? ", " + name : "";
            }
            course.push_back(line + "]");
        };
        application->afterEvent = [&] { note(application->events.back()); };
        exporter->onSave = [&] { note("export"); };
        auto const before = orvweb::setRequestObserver([&](orvweb::ObservedRequest const& call) {
            note(orvtext::toUtf8(call.record.tokens.at(0).at(0)) + " " +
                 orvtext::toUtf8(call.record.tokens.at(5).at(1)));
        });
        push();
        orvweb::setRequestObserver(before);
        application->afterEvent = {};
        exporter->onSave = {};
        return course;
    }

    PluginEnvironment environment;
    std::shared_ptr<WatchedApplication> application = std::make_shared<WatchedApplication>();
    std::shared_ptr<FakeExporter> exporter = std::make_shared<FakeExporter>();
    std::shared_ptr<orvweb::UserInfo> user = std::make_shared<orvweb::UserInfo>();
    std::unique_ptr<TestScene> scene;
    CloudHelper helper{exporter};

private:
    std::string session; ///< what the session file held at the start
    orvweb::UserInfo signedIn;
};

} // namespace orvtest
