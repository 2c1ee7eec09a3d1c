#include "viewer/app/VirtualDisplay.h"

#include <QProcess>

namespace orvviewer
{

namespace
{

constexpr int startTimeout = 20000; ///< milliseconds

} // namespace

VirtualDisplay::VirtualDisplay() : server(std::make_unique<QProcess>()) {}

VirtualDisplay::~VirtualDisplay()
{
    if (server->state() != QProcess::NotRunning) {
        server->terminate();
        server->waitForFinished(startTimeout);
    }
}

bool VirtualDisplay::start(std::wstring& error)
{
    // The server chooses a free number and writes it to its standard output once it takes connections.
    server->setStandardErrorFile(QProcess::nullDevice());
    server->start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"});
    while (server->state() != QProcess::NotRunning && !server->canReadLine()) {
        if (!server->waitForReadyRead(startTimeout)) {
            break;
        }
    }
    auto const number = server->readLine().trimmed();
    if (number.isEmpty()) {
        error = L"There is no display to draw on. Install \"xvfb\" or start the viewer from a desktop session.";
        return false;
    }
    qputenv("DISPLAY", ":" + number);
    return true;
}

} // namespace orvviewer
