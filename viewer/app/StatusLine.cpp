#include "viewer/app/StatusLine.h"

#include <QLabel>
#include <QProgressBar>

#include <algorithm>

namespace orvviewer
{

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent), messageLabel(new QLabel(this)), factsLabel(new QLabel(this)),
      progressBar(new QProgressBar(this))
{
    setSizeGripEnabled(false);
    messageLabel->setContentsMargins(8, 0, 8, 0);
    messageLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    messageLabel->setAccessibleName(tr("Message"));
    factsLabel->setContentsMargins(8, 0, 8, 0);
    factsLabel->setAccessibleName(tr("Model"));
    progressBar->setFixedSize(160, 12);
    progressBar->setTextVisible(false);
    progressBar->setRange(0, 100);
    progressBar->hide();
    addWidget(messageLabel, 1);
    addPermanentWidget(progressBar);
    addPermanentWidget(factsLabel);
}

void StatusLine::showSentence(std::wstring const& text)
{
    message = text;
    layOutMessage();
    if (isVisible()) {
        repaint();
        messageLabel->repaint();
    }
}

void StatusLine::layOutMessage()
{
    auto const text = QString::fromStdWString(message).simplified();
    int const width = std::max(messageLabel->width() - 16, 40);
    messageLabel->setText(messageLabel->fontMetrics().elidedText(text, Qt::ElideRight, width));
    messageLabel->setToolTip(messageLabel->text() == text ? QString() : text);
    messageLabel->setAccessibleDescription(text);
}

void StatusLine::resizeEvent(QResizeEvent* event)
{
    QStatusBar::resizeEvent(event);
    layOutMessage();
}

void StatusLine::showFacts(QString const& facts)
{
    factsLabel->setText(facts);
}

void StatusLine::setProgress(int const& percent, int channel)
{
    if (channel != shownChannel) {
        return;
    }
    progressBar->setValue(std::clamp(percent, 0, 100));
    if (progressBar->isVisible()) {
        progressBar->repaint();
    }
}

void StatusLine::showProgress(int on, int channel)
{
    shownChannel = on != 0 ? std::optional(channel) : std::nullopt;
    if (on != 0) {
        progressBar->setValue(0);
    }
    progressBar->setVisible(on != 0);
    if (isVisible()) {
        repaint();
    }
}

bool StatusLine::isProgressShown() const
{
    return progressBar->isVisibleTo(const_cast<StatusLine*>(this));
}

} // namespace orvviewer
