// What a user may come with that is broken: model files, service addresses, session files, plug-in files. A sentence
// (or silence, where silence is right), no crash, nothing lost.

#include "tests/e2e/RoadTest.h"
#include "tests/support/ScriptedHttpServer.h"
#include "viewer/app/ViewerSession.h"
#include "viewer/plugins/PluginHost.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

using orvtest::Answer;
using orvtest::ScriptedHttpServer;

QByteArray contentOf(QString const& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(QString const& path, QByteArray const& content)
{
    QFileInfo(path).dir().mkpath(".");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

class BadInput : public RoadTest
{
};

TEST_F(BadInput, ModelsThatCannotBeReadLeaveTheOpenOneAndSayWhy)
{
    QByteArray const whole = contentOf(QString::fromStdWString(sampleModel()));
    ASSERT_GT(whole.size(), 10000);
    struct Case {
        char const* file;
        QByteArray content;
    };
    auto driver = startViewer();
    ASSERT_TRUE(driver->openModel(sampleModel())) << driver->status();
    auto const open = driver->document();
    for (Case const& bad :
         {Case{"cut.step", whole.left(whole.size() / 2)}, Case{"empty.step", {}},
          Case{"picture.step", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) + QByteArray(4000, '\7')},
          Case{"words.step", "This is no model at all.\n"}}) {
        QString const path = data.filePath(bad.file);
        write(path, bad.content);
        EXPECT_FALSE(driver->openModel(path.toStdWString())) << bad.file;
        EXPECT_TRUE(driver->status().contains(bad.file)) << driver->status();
        EXPECT_TRUE(driver->status().endsWith('.')) << driver->status();
        EXPECT_EQ(driver->document(), open) << bad.file;
    }
    EXPECT_FALSE(driver->openModel(data.filePath("absent.step").toStdWString()));
    EXPECT_TRUE(driver->status().contains("absent.step")) << driver->status();
    EXPECT_EQ(driver->document(), open);
}

struct BadService {
    char const* name;
    Answer answer;
};

class BadAddress : public RoadTest, public testing::WithParamInterface<BadService>
{
};

// The login sends one request; a failed one is not followed by the registration of the device.
TEST_P(BadAddress, ALoginAgainstItFailsWithTheGivenWords)
{
    ScriptedHttpServer server;
    server.expect("POST", "/api/Login/", GetParam().answer);
    if (std::string(GetParam().name) == "AnswersWithHtml") {
        // A page with status 200 counts as an answer, so the computer is registered before the text is found wanting.
        server.expect("POST", "/api/InstalledDevice/", GetParam().answer);
    }
    auto driver = startViewer(QString::fromStdString(server.url()));
    ASSERT_TRUE(driver->openModel(sampleModel())) << driver->status();
    expectLoginToFail(*driver);
}

INSTANTIATE_TEST_SUITE_P(Services, BadAddress,
                         testing::Values(BadService{"Answers500", Answer::status(500, "broken")},
                                         BadService{"AnswersWithHtml",
                                                    Answer::ok("<html><body>It works!</body></html>")},
                                         BadService{"ClosesInMidBody", Answer::cut("0123456789", 36)},
                                         BadService{"HangsUp", Answer::hangUp()}),
                         [](testing::TestParamInfo<BadService> const& each) { return std::string(each.param.name); });

TEST_F(BadInput, AServiceThatDoesNotAnswerIsAFailedLogin)
{
    QString url;
    {
        ScriptedHttpServer gone;
        url = QString::fromStdString(gone.url());
    }
    auto driver = startViewer(url);
    ASSERT_TRUE(driver->openModel(sampleModel())) << driver->status();
    expectLoginToFail(*driver);
}

// Silence is right for a session file that can't be used: nobody is signed in, and signing in still works.
TEST_F(BadInput, ASessionFileThatIsADirectoryIsNoSession)
{
    ASSERT_NO_FATAL_FAILURE(startService());
    QDir().mkpath(sessionFile() + "/inside");
    auto driver = startViewer();
    ASSERT_TRUE(driver->openModel(sampleModel())) << driver->status();
    EXPECT_TRUE(driver->hasPrompt());
    ASSERT_TRUE(driver->signIn(email, password));
    EXPECT_TRUE(driver->hasCommentBox()) << "Signed in for this run, though nothing could be kept.";
    EXPECT_TRUE(QFileInfo(sessionFile() + "/inside").isDir());
}

// A link to itself can be opened by nobody, not even by root.
TEST_F(BadInput, AnUnreadableSessionFileIsNoSession)
{
    ASSERT_NO_FATAL_FAILURE(startService());
    QFileInfo(sessionFile()).dir().mkpath(".");
    ASSERT_TRUE(QFile::link("temp", sessionFile()));
    auto driver = startViewer();
    ASSERT_TRUE(driver->openModel(sampleModel())) << driver->status();
    EXPECT_TRUE(driver->hasPrompt());
    ASSERT_TRUE(driver->signIn(email, password));
    EXPECT_TRUE(driver->hasCommentBox());
}

TEST_F(BadInput, BinaryNoiseInTheSessionFileHarmsNothing)
{
    ASSERT_NO_FATAL_FAILURE(startService());
    QByteArray noise;
    for (int i = 0; i < 5000; ++i) {
        noise.append(static_cast<char>((i * 7919) >> 3));
    }
    write(sessionFile(), noise);
    auto driver = startViewer();
    ASSERT_TRUE(driver->openModel(sampleModel())) << driver->status();
    driver->activateFeeds();
    EXPECT_TRUE(driver->blocks().empty());
    EXPECT_EQ(contentOf(sessionFile()), noise) << "Only a login or a logout touches the file.";
    ASSERT_TRUE(driver->signOut());
}

TEST_F(BadInput, PluginFilesThatAreNoneAreReportedAndTheViewerWorks)
{
    auto driver = startViewer("http://127.0.0.1:9");
    QString const text = data.filePath("cloudplugin.so");
    write(text, "no library");
    EXPECT_FALSE(driver->session().plugins().load(text.toStdWString()));
    EXPECT_TRUE(driver->status().contains("cloudplugin")) << driver->status();
    EXPECT_TRUE(driver->status().endsWith('.')) << driver->status();
    EXPECT_FALSE(driver->session().plugins().load(data.filePath("absent.so").toStdWString()));
    EXPECT_TRUE(driver->status().contains("absent")) << driver->status();
    EXPECT_TRUE(driver->openModel(sampleModel())) << driver->status();
    for (char const* part : {"is open.", "cloudplugin", "absent"}) {
        EXPECT_TRUE(driver->status().contains(part)) << "Opening a model must not hide the news: " << driver->status();
    }
}

} // namespace
