#include "tour/ServiceProcess.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QUrl>

namespace orvtour
{

namespace
{
constexpr int startMilliseconds = 20000;
constexpr int stopMilliseconds = 15000;
} // namespace

ServiceProcess::ServiceProcess(QString programPath, QString dataPath)
    : program(std::move(programPath)), data(std::move(dataPath))
{
    QDir().mkpath(data);
}

ServiceProcess::~ServiceProcess()
{
    stop();
}

bool ServiceProcess::addUser(QString const& email, QString const& name, QString const& password)
{
    QProcess tool;
    tool.start(program, {"user", "add", email, "--name", name, "--password-stdin", "--data", data});
    tool.write(password.toUtf8() + "\n");
    tool.closeWriteChannel();
    bool const ended = tool.waitForFinished(startMilliseconds);
    error = QString::fromUtf8(tool.readAllStandardError());
    return ended && tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0;
}

bool ServiceProcess::start(int port)
{
    stop();
    process.start(program, {"serve", "--listen", QString("127.0.0.1:%1").arg(port), "--data", data});
    static QRegularExpression const readyLine(R"((http://127\.0\.0\.1:\d+))");
    QByteArray said;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < startMilliseconds && process.state() != QProcess::NotRunning) {
        process.waitForReadyRead(200);
        said += process.readAllStandardOutput();
        auto const match = readyLine.match(QString::fromUtf8(said));
        if (match.hasMatch() && said.contains('\n')) {
            address = match.captured(1);
            return true;
        }
    }
    error = "The service did not start: " + QString::fromUtf8(said + process.readAllStandardError());
    return false;
}

bool ServiceProcess::stop()
{
    if (process.state() == QProcess::NotRunning) {
        return true;
    }
    process.terminate();
    if (!process.waitForFinished(stopMilliseconds)) {
        process.kill();
        process.waitForFinished(stopMilliseconds);
        return false;
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

int ServiceProcess::port() const
{
    return QUrl(address).port(0);
}

} // namespace orvtour
