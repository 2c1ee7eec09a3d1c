#include "tests/viewer/ModelFixture.h"

#include "host/runtime/Runtime.h"
#include "viewer/app/Preferences.h"

#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>

using namespace orvtest;

namespace
{

struct Run {
    int status = -1;
    std::string errors;
    std::string output;
};

/// Runs the program without a display, its data in a folder of the test's own.
Run runViewer(TemporaryFolder const& folder, QStringList const& arguments)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("LIBGL_ALWAYS_SOFTWARE", "1");
    process.setProcessEnvironment(environment);
    auto const data = QString::fromStdString((folder.path / "data").string());
    process.start(QString(ORV_BINARY_DIR) + "/bin/orvanta", QStringList{"--data", data} + arguments);
    Run run;
    if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit) {
        run.status = process.exitCode();
    }
    run.errors = process.readAllStandardError().toStdString();
    run.output = process.readAllStandardOutput().toStdString();
    return run;
}

QString text(std::filesystem::path const& path)
{
    return QString::fromStdString(path.string());
}

/// Sets the language in the options of whose program it is.
void setOptions(TemporaryFolder const& folder, std::wstring const& language)
{
    orvhost::Settings const earlier = orvhost::settings();
    orvhost::Settings settings;
    settings.dataDirectory = (folder.path / "data").wstring();
    orvhost::configure(settings);
    orvviewer::ViewerPreferences preferences;
    preferences.language = language;
    preferences.save();
    orvhost::configure(earlier);
}

} // namespace

TEST(Program, DrawsAPictureWithoutADisplay)
{
    TemporaryFolder const folder;
    auto const picture = folder.path / "view.png";
    auto const run = runViewer(folder, {text(sampleModel()), "--screenshot", text(picture)});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.errors.find("orvanta:"), std::string::npos) << run.errors;
    QImage const image(text(picture));
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.width(), 1280);
    int dark = 0;
    for (int y = 0; y < image.height(); y += 8) {
        for (int x = 0; x < image.width(); x += 8) {
            dark += qGray(image.pixel(x, y)) < 150 ? 1 : 0;
        }
    }
    EXPECT_GT(dark, 500) << "the model fills a good part of the picture";
}

TEST(Program, AnswersABadFileOnStandardError)
{
    TemporaryFolder const folder;
    auto const bad = writeFile(folder.path / "cut.step", "ISO-10303-21;\nHEADER;");
    auto const picture = folder.path / "view.png";
    auto const run = runViewer(folder, {text(bad), "--screenshot", text(picture)});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors.find("ends too early"), std::string::npos) << run.errors;
    EXPECT_FALSE(std::filesystem::exists(picture));
}

TEST(Program, AnswersInTheLanguageOfTheOptionsOrTheOneAskedFor)
{
    TemporaryFolder const folder;
    auto const bad = writeFile(folder.path / "leer.step", "");
    QStringList const arguments{text(bad), "--screenshot", text(folder.path / "view.png")};
    std::string const german =
        "orvanta: „leer.step“ ist leer. Exportieren Sie das Modell erneut, und öffnen Sie die neue Datei.\n";
    EXPECT_NE(runViewer(folder, arguments).errors.find("\"leer.step\" is empty."), std::string::npos);
    auto const expectGerman = [&](QStringList const& line) {
        auto const errors = runViewer(folder, line).errors; // the toolkit may have a word of its own before it
        EXPECT_TRUE(errors.ends_with(german)) << errors;
    };
    expectGerman(QStringList{"--language", "de"} + arguments);
    setOptions(folder, L"de");
    expectGerman(arguments);
    EXPECT_NE(runViewer(folder, QStringList{"--language", "en"} + arguments).errors.find("\"leer.step\" is empty."),
              std::string::npos);
}

TEST(Program, AnswersAnUnknownFormatOnStandardError)
{
    TemporaryFolder const folder;
    auto const run = runViewer(folder, {text(sampleModel()), "--export", text(folder.path / "out.unknown")});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors.find("out.unknown"), std::string::npos) << run.errors;
}

TEST(Program, AnswersAPictureThatCantBeWritten)
{
    TemporaryFolder const folder;
    auto const run =
        runViewer(folder, {text(sampleModel()), "--screenshot", text(folder.path / "no-such-folder" / "view.png")});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors.find("can't be written"), std::string::npos) << run.errors;
}

TEST(Program, TellsItsOptionsAndItsVersion)
{
    TemporaryFolder const folder;
    EXPECT_NE(runViewer(folder, {"--help"}).output.find("--screenshot"), std::string::npos);
    EXPECT_NE(runViewer(folder, {"--version"}).output.find("orvanta"), std::string::npos);
    auto const run = runViewer(folder, {"--frobnicate"});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.errors.find("isn't known"), std::string::npos);
}

TEST(Program, TellsItsOptionsAndMistakesInTheLanguage)
{
    TemporaryFolder const folder;
    auto const help = runViewer(folder, {"--language", "fr", "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.output.find("Utilisation\u00a0: orvanta [FILE] [OPTION]...\n"), std::string::npos) << help.output;
    EXPECT_NE(help.output.find("\n  --service URL      adresse du service cloud\n"), std::string::npos) << help.output;
    EXPECT_EQ(help.output.find("exit"), std::string::npos) << "nothing in English";
    auto const mistake = runViewer(folder, {"--language", "de", "--frobnicate"});
    EXPECT_EQ(mistake.status, 2);
    EXPECT_EQ(mistake.errors,
              "orvanta: Die Option „--frobnicate“ ist nicht bekannt. Mit --help werden alle Optionen angezeigt.\n");
    auto const noDisplay = runViewer(folder, {"--language", "de"});
    EXPECT_EQ(noDisplay.status, 1);
    EXPECT_EQ(noDisplay.errors.rfind("orvanta: Es gibt keinen Bildschirm für ein Fenster.", 0), 0U) << noDisplay.errors;
}

TEST(Program, AnswersAMistakeInTheLanguageOfTheOptionsOrTheOneThatFollowsIt)
{
    TemporaryFolder const folder;
    std::string const unknown =
        "orvanta: Die Option „--frobnicate“ ist nicht bekannt. Mit --help werden alle Optionen angezeigt.\n";
    EXPECT_EQ(runViewer(folder, {"--frobnicate", "--language", "de"}).errors, unknown);
    setOptions(folder, L"de");
    EXPECT_EQ(runViewer(folder, {"--frobnicate"}).errors, unknown);
    auto const run = runViewer(folder, {"--language", "german"});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, "orvanta: Die Sprache muss ein Code aus zwei Buchstaben sein, zum Beispiel „de“.\n");
}

TEST(Program, MakesNoFolderToAnswer)
{
    for (auto const& arguments : {QStringList{"--help"}, {"--version"}, {"--frobnicate"}, {}}) {
        TemporaryFolder const folder;
        runViewer(folder, arguments);
        EXPECT_FALSE(std::filesystem::exists(folder.path / "data")) << arguments.join(' ').toStdString();
    }
}

TEST(Program, SaysThatAWindowNeedsADisplay)
{
    TemporaryFolder const folder;
    auto const run = runViewer(folder, {text(sampleModel())});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors.find("no display"), std::string::npos) << run.errors;
}
