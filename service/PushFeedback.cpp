#include "service/PushFeedback.h"

#include "service/CloudHelper.h"
#include "service/ModelName.h"
#include "service/PluginText.h"

#include <utility>

namespace
{

/// Texts of the plug-in.
constexpr int uploadingText = 116;
constexpr int uploadedText = 117; ///< follows the model's name
constexpr int failedText = 129;

} // namespace

PushFeedback::PushFeedback(std::shared_ptr<orv::IApplication> target) : application(std::move(target)) {}

void PushFeedback::showUploading()
{
    show(pluginText(uploadingText));
}

void PushFeedback::showFailed()
{
    show(pluginText(failedText));
}

void PushFeedback::showOutcome(std::wstring const& answer, wchar_t const* modelPath)
{
    if (answer == CloudHelper::uploadFailed) {
        showFailed();
    } else {
        show(modelName(modelPath) + L" " + pluginText(uploadedText));
    }
}

void PushFeedback::begin()
{
    if (orv::IStatusManager* const manager = statusManager()) {
        manager->showProgress(1, 1);
    }
}

void PushFeedback::advance(int percent)
{
    if (orv::IStatusManager* const manager = statusManager()) {
        manager->setProgress(percent, 1);
    }
}

void PushFeedback::end()
{
    if (orv::IStatusManager* const manager = statusManager()) {
        manager->showProgress(0, 1);
    }
}

orv::IStatusManager* PushFeedback::statusManager() const
{
    return application ? application->getStatusManager() : nullptr;
}

void PushFeedback::show(std::wstring const& text)
{
    if (application) {
        application->showStatus(text.c_str(), 0);
    }
}
