#include "viewer/app/Program.h"

#include "host/runtime/Runtime.h"
#include "platform/Process.h"
#include "platform/qt/Look.h"
#include "platform/text/Text.h"
#include "viewer/app/CommandLine.h"
#include "viewer/app/Headless.h"
#include "viewer/app/Language.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Preferences.h"
#include "viewer/app/ViewerSession.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <iostream>

namespace orvviewer
{

namespace
{

constexpr int usageError = 2;

orvhost::Settings settingsFor(CommandLine const& line)
{
    orvhost::Settings settings;
    settings.dataDirectory = line.dataDirectory;
    settings.serviceUrl = line.serviceUrl;
    settings.language = line.language;
    settings.libraryDirectory = QDir(QCoreApplication::applicationDirPath() + "/../lib").absolutePath().toStdWString();
    return settings;
}

/// Windows with OpenGL of their own need an X display, also in a session of another kind.
void choosePlatform(bool isHeadless)
{
    if (isHeadless) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !qEnvironmentVariableIsEmpty("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
}

/// The language for what is said before there is an application with windows.
class EarlyWords
{
public:
    EarlyWords(int count, char** arguments, CommandLine const& line) : number(count), application(number, arguments)
    {
        orvhost::Settings settings;
        settings.dataDirectory = line.dataDirectory;
        orvhost::configure(settings); // the preferences are found by it
        useViewerLanguage(chooseLanguage(line.language, ViewerPreferences::load().language));
    }

private:
    int number; // the application refers to it
    QCoreApplication application;
};

void complain(std::wstring const& sentence)
{
    std::cerr << "orvanta: " << orvtext::toUtf8(localizedSentence(sentence)) << std::endl;
}

} // namespace

int runProgram(int count, char** arguments)
{
    auto const line = readCommandLine(count, arguments);
    if (!line.error.empty()) {
        EarlyWords const words(count, arguments, line);
        complain(line.error);
        return usageError;
    }
    if (line.wantsHelp) {
        EarlyWords const words(count, arguments, line);
        std::cout << orvtext::toUtf8(usage());
        return 0;
    }
    if (line.wantsVersion) {
        std::cout << "orvanta " ORVANTA_VERSION << std::endl;
        return 0;
    }
    bool const hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    if (!line.isHeadless() && !hasDisplay) {
        EarlyWords const words(count, arguments, line);
        complain(L"There is no display to open a window on. Start it from a desktop session, or use --export or "
                 L"--screenshot.");
        return 1;
    }
    choosePlatform(line.isHeadless());
    orvplatform::prepareProcess();
    QApplication application(count, arguments);
    QApplication::setApplicationName("Orvanta");
    QApplication::setApplicationVersion(ORVANTA_VERSION);
    auto settings = settingsFor(line);
    if (line.isHeadless()) {
        orvhost::configure(settings); // the preferences are found by it
        settings.language = chooseLanguage(line.language, ViewerPreferences::load().language);
        useViewerLanguage(settings.language);
        orvhost::configure(std::move(settings));
        return runHeadless(line);
    }
    orvplatform::applyLook(application);
    settings.dpi = orvplatform::logicalDpi();
    ViewerSession session(std::move(settings));
    session.window().showOnScreen();
    if (!line.file.empty()) {
        QTimer::singleShot(0, &session.window(), [&] { session.openModel(line.file); });
    }
    return QApplication::exec();
}

} // namespace orvviewer
