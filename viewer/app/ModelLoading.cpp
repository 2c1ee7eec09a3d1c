#include "viewer/app/ModelLoading.h"

#include "host/orv/FileUtils.h"
#include "viewer/app/Language.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/StatusLine.h"

#include <QEventLoop>
#include <QTimer>

#include <thread>

namespace orvviewer
{

namespace
{

constexpr int progressInterval = 50; ///< milliseconds

} // namespace

ImportResult loadModel(std::wstring const& path, MainWindow& window)
{
    auto& status = window.status();
    auto const name = QString::fromStdWString(orv::FileUtils::getStatusFileName(path.c_str()));
    status.showSentence(localized("Opening \"%1\"... Press Esc to stop.").arg(name).toStdWString());
    status.showProgress(1, 1);

    ImportProgress progress;
    ImportResult result;
    QEventLoop loop;
    std::thread worker([&] {
        result = importModel(path, progress);
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    window.block([&progress] { progress.stopRequested = true; });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] { status.setProgress(progress.percent, 1); });
    timer.start(progressInterval);
    loop.exec();
    worker.join();
    window.unblock();
    status.showProgress(0, 1);
    return result;
}

} // namespace orvviewer
