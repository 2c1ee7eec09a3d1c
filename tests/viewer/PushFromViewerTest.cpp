// What the two pushes send of a model that is open in the viewer, with a display: converted copy and preview picture.

#include "tests/viewer/SessionFixture.h"

#include "host/orv/FileUtils.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvweb/UserInfo.h"
#include "host/runtime/Files.h"
#include "platform/text/Text.h"
#include "service/CloudHelper.h"
#include "service/Exporters.h"
#include "service/ModelFiles.h"
#include "support/ScriptedHttpServer.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/StartPage.h"
#include "viewer/app/StatusLine.h"
#include "viewer/commands/CommandId.h"
#include "viewer/scene/SceneDisplay.h"

#include <QImage>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QTest>

#include <algorithm>
#include <set>
#include <utility>

using namespace orvtest;

namespace
{

std::string const job = "7c9e6679-7425-40de-944b-e07fc1f90ae7";

class PushFromViewer : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        ASSERT_TRUE(orvplatform::registerModuleFile(L"cloudplugin.dll", ORV_RESOURCE_FILE));
        std::filesystem::create_directory_symlink(ORV_BINARY_DIR "/lib/delay", folder.path / "lib/delay");
        user->username = L"ada@example.com";
        user->userid = L"0f8fad5b-d9cb-469f-a165-70867728950e";
        start();
        ASSERT_TRUE(session->canDraw()) << status();
        orvhost::Settings settings = orvhost::settings();
        settings.serviceUrl = server.wideUrl();
        orvhost::configure(settings);
        session->window().resize(1200, 800);
        session->window().show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&session->window()));
    }

    std::filesystem::path copyOf(std::filesystem::path const& model, std::string const& name) const
    {
        auto const copy = folder.path / name;
        std::filesystem::copy_file(model, copy);
        return copy;
    }
    std::wstring pushDirect()
    {
        return CloudHelper(makeDeferredExporter(nullptr)).pushDirect(session->document(), user);
    }
    std::wstring pushWithPreview()
    {
        return CloudHelper(nullptr).pushWithPreview(session->document(), session->application(), user);
    }
    /// The content of the part "file" of the last upload.
    std::string sentFile() const
    {
        std::string const body = server.last().body;
        auto const part = body.find("name=\"file\"");
        auto const begin = body.find("\r\n\r\n", part) + 4;
        auto const end = body.rfind("\r\n--", body.size() - 4);
        return part == std::string::npos ? std::string() : body.substr(begin, end - begin);
    }
    std::filesystem::path previewFile() const
    {
        return orvhost::nativePath(previewFilePath(*orv::recordOf<orvsg::SCInfo>(session->document())));
    }

    std::shared_ptr<orvweb::UserInfo> user = std::make_shared<orvweb::UserInfo>();
    ScriptedHttpServer server;
};

/// Notes when a progress bar comes and goes, and each value that it shows meanwhile.
class BarWatch : public QObject
{
public:
    explicit BarWatch(QProgressBar& watched) : bar(watched)
    {
        bar.installEventFilter(this);
        connect(&bar, &QProgressBar::valueChanged, this, [this](int value) {
            if (!bar.isHidden()) {
                course += std::to_string(value) + ' ';
            }
        });
    }
    std::string takeCourse() { return std::exchange(course, {}); }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            course += "shown ";
        } else if (event->type() == QEvent::Hide) {
            course += "hidden ";
        }
        return false;
    }

private:
    QProgressBar& bar;
    std::string course;
};

/// How many colours a picture has, up to a few.
std::size_t coloursOf(QImage const& picture)
{
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width() && colours.size() < 100; ++x) {
            colours.insert(picture.pixel(x, y));
        }
    }
    return colours.size();
}

/// The background is a gradient from top to bottom, so each row of the left and the right edge has one colour where
/// nothing of the model reaches them.
bool isWholeIn(QImage const& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixel(0, y) != picture.pixel(picture.width() - 1, y)) {
            return false;
        }
    }
    return true;
}

} // namespace

TEST_F(PushFromViewer, AModelWhoseFileIsGoneIsPushedAsItIsOpen)
{
    auto const model = copyOf(sampleModel(), "gear box.step");
    ASSERT_TRUE(session->openModel(orvtext::fromUtf8(model.string()))) << status();
    std::filesystem::remove(model);
    server.expect("POST", "/api/UploadInput/", Answer::ok(job));
    EXPECT_EQ(orvtext::toUtf8(pushDirect()), job);
    EXPECT_EQ(sentFile().substr(0, 3), "PRC");
    EXPECT_NE(status().find("gear box.step"), std::string::npos);
    server.expect("POST", "/api/Upload/", Answer::ok(job));
    EXPECT_EQ(orvtext::toUtf8(pushWithPreview()), job);
    EXPECT_EQ(sentFile().substr(1, 3), "PNG");
    EXPECT_TRUE(session->document()) << "the model stays open";
    EXPECT_FALSE(std::filesystem::exists(model));
    EXPECT_TRUE(std::filesystem::is_empty(orvhost::nativePath(orv::FileUtils::getTempPath()) / "orvanta"));
}

TEST_F(PushFromViewer, ThePushWithPreviewSendsThePictureThatTheViewerMade)
{
    for (auto const& model : {copyOf(sampleModel(), "Zahnr\u00e4der v2.step"), writeThreeCubes(folder.path)}) {
        ASSERT_TRUE(session->openModel(orvtext::fromUtf8(model.string()))) << status();
        ASSERT_TRUE(std::filesystem::exists(previewFile())) << previewFile();
        server.expect("POST", "/api/Upload/", Answer::ok(job));
        EXPECT_EQ(orvtext::toUtf8(pushWithPreview()), job);
        std::string const sent = sentFile();
        EXPECT_EQ(sent, contentOf(previewFile()));
        auto const picture =
            QImage::fromData(reinterpret_cast<uchar const*>(sent.data()), static_cast<int>(sent.size()),
                             "PNG"); // as which it was announced
        EXPECT_EQ(picture.size(), QSize(256, 256));
        EXPECT_GT(coloursOf(picture), 20U) << "the model is in it";
        EXPECT_TRUE(isWholeIn(picture)) << "the model is cut off";
    }
}

TEST_F(PushFromViewer, TheBarShowsThePushesCourseOnceWhateverTheExportersReport)
{
    std::filesystem::create_directory_symlink(ORV_BINARY_DIR "/lib/export", folder.path / "lib/export");
    ASSERT_TRUE(session->openModel(sampleModel().wstring())) << status();
    auto* const bar = session->window().status().findChild<QProgressBar*>();
    ASSERT_NE(bar, nullptr);
    BarWatch watch(*bar);
    server.expect("POST", "/api/UploadInput/", Answer::ok(job));
    EXPECT_EQ(orvtext::toUtf8(pushDirect()), job);
    EXPECT_EQ(watch.takeCourse(), "shown 20 50 80 100 hidden ");
    server.expect("POST", "/api/Upload/", Answer::ok(job));
    server.expect("POST", "/api/Upload/", Answer::ok(job));
    EXPECT_EQ(orvtext::toUtf8(pushWithPreview()), job);
    EXPECT_EQ(watch.takeCourse(), "shown 20 50 80 100 hidden ");

    EXPECT_TRUE(session->exportModel((folder.path / "copy.prc").wstring())) << status();
    std::string const save = watch.takeCourse();
    EXPECT_TRUE(save.starts_with("shown ")) << save;
    EXPECT_TRUE(save.ends_with(" 100 hidden ")) << save;
    EXPECT_GT(std::count(save.begin(), save.end(), ' '), 4) << "a save shows the exporter's own course: " << save;
    session->application()->saveFile((folder.path / "again.prc").wstring().c_str(), {});
    EXPECT_EQ(watch.takeCourse(), save) << "that a comment asked for";
}

TEST_F(PushFromViewer, PreviewsAreShownInTheRecentFiles)
{
    auto const gears = copyOf(sampleModel(), "gears & more.step");
    ASSERT_TRUE(session->openModel(gears.wstring())) << status();
    QImage const gearsPicture(QString::fromStdString(previewFile().string()), "PNG");
    auto const cubes = writeThreeCubes(folder.path);
    ASSERT_TRUE(session->openModel(cubes.wstring())) << status();
    QImage const cubesPicture(QString::fromStdString(previewFile().string()), "PNG");
    ASSERT_FALSE(gearsPicture.isNull());
    ASSERT_NE(gearsPicture, cubesPicture);
    session->closeModel();

    auto const same = [](QIcon const& icon, QImage const& picture) {
        return icon.pixmap(picture.size()).toImage().convertToFormat(picture.format()) == picture;
    };
    auto const* const list = session->window().startPage().findChild<QListWidget*>();
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->count(), 2);
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(list->item(0)->text().toStdString(), "cubes.obj");
    EXPECT_TRUE(same(list->item(0)->icon(), cubesPicture));
    EXPECT_TRUE(same(list->item(1)->icon(), gearsPicture));

    ASSERT_TRUE(session->runCommand(orvviewer::recentFiles)); // its menu opens
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(menu->actions()[0]->text().toStdString(), "cubes.obj");
    EXPECT_TRUE(same(menu->actions()[0]->icon(), cubesPicture));
    EXPECT_GE(menu->actionGeometry(menu->actions()[0]).height(), 48) << "too small to tell models apart";
    EXPECT_TRUE(same(menu->actions()[1]->icon(), gearsPicture));
    EXPECT_EQ(menu->actions()[1]->text().toStdString(), "gears && more.step") << "no letter is underlined";
    menu->actions()[1]->trigger();
    orvplatform::testing::processEvents();
    EXPECT_NE(status().find("gears & more.step"), std::string::npos) << "choosing one opens it";
}
