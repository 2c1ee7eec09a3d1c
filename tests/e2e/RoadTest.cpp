#include "tests/e2e/RoadTest.h"

#include <QDir>
#include <QFile>
#include <QtGlobal>

#include <ostream>

namespace
{

QtMessageHandler earlier = nullptr;

void failOnWarning(QtMsgType kind, QMessageLogContext const& context, QString const& text)
{
    if (kind == QtWarningMsg || kind == QtCriticalMsg) {
        ADD_FAILURE() << "The toolkit warned: " << text.toStdString();
    } else if (earlier != nullptr) {
        earlier(kind, context, text);
    }
}

} // namespace

std::ostream& operator<<(std::ostream& stream, QString const& text)
{
    return stream << text.toStdString();
}

RoadTest::RoadTest()
{
    earlier = qInstallMessageHandler(&failOnWarning);
}

RoadTest::~RoadTest()
{
    qInstallMessageHandler(earlier);
}

void RoadTest::expectLoginToFail(orvtour::Driver& driver)
{
    bool stillOpen = false;
    QString typed;
    EXPECT_TRUE(driver.trySignIn(email, password, stillOpen, typed));
    EXPECT_EQ(driver.status(), "Login failed, please login again.");
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(typed, email);
    EXPECT_TRUE(driver.hasPrompt());
    EXPECT_FALSE(QFile::exists(sessionFile()));
}

void RoadTest::startService()
{
    service = std::make_unique<orvtour::ServiceProcess>(QStringLiteral(ORV_BINARY_DIR "/bin/orvanta-cloud"),
                                                        data.filePath("service"));
    ASSERT_TRUE(service->addUser(email, "Ann Miller", password)) << service->errorText();
    ASSERT_TRUE(service->start()) << service->errorText();
}

std::unique_ptr<orvtour::Driver> RoadTest::startViewer(QString const& url, std::wstring const& language)
{
    orvtour::Driver::Options options;
    options.dataDirectory = viewerData().toStdWString();
    options.libraryDirectory = QStringLiteral(ORV_BINARY_DIR "/lib").toStdWString();
    options.serviceUrl = (url.isEmpty() && service ? service->url() : url).toStdWString();
    options.language = language;
    options.failure = [](std::string const& why) { ADD_FAILURE() << why; };
    auto driver = std::make_unique<orvtour::Driver>(options);
    EXPECT_TRUE(driver->showWindow());
    return driver;
}

std::wstring RoadTest::sampleModel()
{
    return QStringLiteral(ORV_BINARY_DIR "/samples/planetary-gearbox.step").toStdWString();
}

std::string RoadTest::keepPictures(QImage const& expected, QImage const& actual)
{
    QDir const folder(QStringLiteral(ORV_BINARY_DIR "/failed-pictures"));
    folder.mkpath(".");
    QString const name = testing::UnitTest::GetInstance()->current_test_info()->name();
    QString stem = name;
    stem.replace('/', '-');
    expected.save(folder.filePath(stem + "-expected.png"));
    actual.save(folder.filePath(stem + "-actual.png"));
    return "The pictures are kept in " + folder.path().toStdString() + ".";
}
