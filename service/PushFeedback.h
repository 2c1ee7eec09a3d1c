#pragma once

#include "host/orv/IApplication.h"

#include <memory>
#include <string>

/// What the user sees of a push: texts in the status line and the progress bar. Without an application nothing is
/// shown.
class PushFeedback
{
public:
    explicit PushFeedback(std::shared_ptr<orv::IApplication> target);

    void showUploading();
    void showFailed();
    /// The closing text for an upload's answer, naming the model at `modelPath`.
    void showOutcome(std::wstring const& answer, wchar_t const* modelPath);

    void begin();              ///< shows the bar
    void advance(int percent); ///< 0 to 100
    void end();                ///< hides the bar

    orv::IStatusManager* statusManager() const; ///< may be null

private:
    void show(std::wstring const& text);

    std::shared_ptr<orv::IApplication> application;
};
