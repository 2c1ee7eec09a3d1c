#pragma once

#include "host/orv/IStatusManager.h"

#include <QStatusBar>

#include <optional>
#include <string>

class QLabel;
class QProgressBar;

namespace orvviewer
{

/// The line at the bottom: the last message at the left, progress and facts of the model at the right. Messages and
/// progress show at once, also while a plug-in holds the interface's thread.
class StatusLine : public QStatusBar, public orv::IStatusManager
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    void showSentence(std::wstring const& text);
    std::wstring sentence() const { return message; }
    void showFacts(QString const& facts);

    void setProgress(int const& percent, int channel) override;
    void showProgress(int on, int channel) override;
    bool isProgressShown() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOutMessage();

    std::wstring message;
    std::optional<int> shownChannel; ///< whose course the bar shows; empty while it is hidden
    QLabel* messageLabel;
    QLabel* factsLabel;
    QProgressBar* progressBar;
};

} // namespace orvviewer
