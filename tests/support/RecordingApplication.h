#pragma once

#include "host/orv/IApplication.h"
#include "host/orvui/Hint.h"
#include "platform/text/Text.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvtest
{

/// Stands in for the main window and keeps what it was asked to do, one line an event, in order:
/// "status <text>", "progress <percent>", "progress on", "progress off", "hint <code>", "save <path>".
class RecordingApplication : public orv::IApplication, public orv::IStatusManager
{
public:
    void saveFile(wchar_t const* path, orv::SaveCompletion completed) override
    {
        events.push_back("save " + orvtext::toUtf8(path));
        lastCompletion = std::move(completed);
    }
    void showStatus(wchar_t const* text, int kind) override
    {
        events.push_back("status " + orvtext::toUtf8(text) + (kind == 0 ? "" : " (kind isn't 0)"));
    }
    std::shared_ptr<orv::IViewNotifier> getViewNotifier() override
    {
        return hasNotifier ? std::make_shared<Notifier>(*this) : nullptr;
    }
    orv::IStatusManager* getStatusManager() override { return hasStatusManager ? this : nullptr; }

    void setProgress(int const& percent, int channel) override
    {
        events.push_back("progress " + std::to_string(percent) + (channel == 1 ? "" : " (channel isn't 1)"));
        if (onProgress) {
            onProgress(percent);
        }
    }
    void showProgress(int on, int channel) override
    {
        events.push_back(std::string(on == 1 ? "progress on" : "progress off") +
                         (channel == 1 ? "" : " (channel isn't 1)"));
    }

    /// The texts shown so far.
    std::vector<std::string> statuses() const
    {
        std::vector<std::string> texts;
        for (std::string const& event : events) {
            if (event.starts_with("status ")) {
                texts.push_back(event.substr(7));
            }
        }
        return texts;
    }

    std::vector<std::string> events;
    bool hasNotifier = true;
    bool hasStatusManager = true;
    std::function<void(int)> onProgress;      ///< called at each progress; may throw
    std::function<void(orvui::Hint&)> onHint; ///< delivers a hint
    orv::SaveCompletion lastCompletion;

private:
    class Notifier final : public orv::IViewNotifier
    {
    public:
        explicit Notifier(RecordingApplication& application) : target(application) {}
        void notify(orvui::Hint& hint) override
        {
            target.events.push_back("hint " + std::to_string(hint.getCode()));
            if (target.onHint) {
                target.onHint(hint);
            }
        }

    private:
        RecordingApplication& target;
    };
};

} // namespace orvtest
