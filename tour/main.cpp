// The guided tour: the whole road of a comment through the real windows and the real service, with a picture of every
// step. It needs a display; `run` gives it a virtual one where there is none.

#include "platform/Process.h"
#include "platform/qt/Look.h"
#include "tour/Driver.h"
#include "tour/ReviewView.h"
#include "tour/ServiceProcess.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>

namespace
{

class Guide
{
public:
    Guide(QString folder, QString model) : pictures(std::move(folder)), modelPath(std::move(model)) {}

    bool run()
    {
        QString const bin = QCoreApplication::applicationDirPath();
        orvtour::ServiceProcess service(bin + "/orvanta-cloud", data.filePath("service"));
        if (!service.addUser(email, "Dana Demo", password) || !service.start()) {
            return fail(service.errorText());
        }
        return walk(service.url(), "en") && glanceIn(service.url(), "de") && !failed;
    }

private:
    orvtour::Driver::Options options(QString const& url, QString const& language)
    {
        orvtour::Driver::Options made;
        made.dataDirectory = data.filePath("viewer").toStdWString();
        made.libraryDirectory = QDir(QCoreApplication::applicationDirPath() + "/../lib").canonicalPath().toStdWString();
        made.serviceUrl = url.toStdWString();
        made.language = language.toStdWString();
        made.failure = [this](std::string const& why) { fail(QString::fromStdString(why)); };
        return made;
    }

    bool walk(QString const& url, QString const& language)
    {
        orvtour::Driver* running = nullptr;
        auto set = options(url, language);
        set.step = [this, &running](QString const& name) { picture(running, name); };
        orvtour::Driver driver(set);
        running = &driver;
        if (!driver.showWindow()) {
            return fail("The window did not show.");
        }
        picture(running, "empty-viewer");
        if (!driver.openModel(modelPath.toStdWString())) {
            return fail("The model did not open: " + driver.status());
        }
        if (!driver.signIn(email, password) || !driver.hasCommentBox()) {
            return fail("Signing in failed: " + driver.status());
        }
        if (!orvtour::arrangeReviewView(driver)) {
            return fail("The view for the remark could not be arranged: " + driver.status());
        }
        picture(running, "view-arranged");
        if (!driver.typeComment(
                "The planet pin stands proud of the carrier. Please check its length against the drawing.") ||
            !driver.submitComment()) {
            return fail("Submitting the comment failed: " + driver.status());
        }
        if (!orvtour::resetView(driver)) {
            return fail("The view could not be reset: " + driver.status());
        }
        picture(running, "view-reset");
        if (!driver.clickBlock(0)) {
            return fail("The comment's block could not be clicked.");
        }
        return true;
    }

    /// A later run in another language: signed in from the start, then signed out.
    bool glanceIn(QString const& url, QString const& language)
    {
        orvtour::Driver* running = nullptr;
        auto set = options(url, language);
        set.step = [this, &running, language](QString const& name) { picture(running, language + "-" + name); };
        orvtour::Driver driver(set);
        running = &driver;
        if (!driver.showWindow() || !driver.openModel(modelPath.toStdWString())) {
            return fail("The second run did not open the model: " + driver.status());
        }
        driver.activateFeeds();
        picture(running, language + "-signed-in-from-the-start");
        return driver.signOut() && driver.hasPrompt() ? true : fail("Signing out failed: " + driver.status());
    }

    void picture(orvtour::Driver* driver, QString const& name)
    {
        if (driver == nullptr) {
            return;
        }
        QString const file = QString("%1/%2-%3.png").arg(pictures).arg(++count, 2, 10, QChar('0')).arg(name);
        if (!driver->screenPicture().save(file)) {
            fail("The picture " + file + " could not be written.");
            return;
        }
        QTextStream(stdout) << "  " << file << Qt::endl;
    }

    bool fail(QString const& sentence)
    {
        QTextStream(stderr) << sentence << Qt::endl;
        failed = true;
        return false;
    }

    QString const email = "demo@orvanta.example";
    QString const password = "a tour through the gearbox";
    QString pictures;
    QString modelPath;
    QTemporaryDir data;
    int count = 0;
    bool failed = false; ///< also where the walk could go on, as after an unexpected dialog
};

} // namespace

int main(int argc, char* argv[])
{
    orvplatform::prepareProcess();
    QApplication application(argc, argv);
    orvplatform::applyLook(application);
    QCommandLineParser parser;
    QCommandLineOption const model("model", "The STEP file to walk through.", "file");
    QCommandLineOption const pictures("pictures", "The folder for the pictures; it is emptied first.", "folder");
    parser.addOptions({model, pictures});
    parser.addHelpOption();
    parser.process(application);
    QString const folder = QDir(parser.value(pictures)).absolutePath();
    QDir old(folder);
    for (QString const& name : old.entryList({"*.png"}, QDir::Files)) {
        old.remove(name);
    }
    QDir().mkpath(folder);
    return Guide(folder, QDir().absoluteFilePath(parser.value(model))).run() ? 0 : 1;
}
