#include "tests/viewer/SessionFixture.h"

#include "host/orv/Document.h"
#include "host/orvsg/SCInfo.h"
#include "host/runtime/Files.h"
#include "platform/testing/Input.h"
#include "platform/text/Text.h"
#include "service/ModelFiles.h"
#include "support/FileWatch.h"
#include "tests/exporters/FileSizeLimit.h"
#include "viewer/app/CommandTable.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecentFiles.h"
#include "viewer/app/StartPage.h"
#include "viewer/commands/CommandId.h"

#include <gmock/gmock.h>

#include <QListWidget>

#include <sys/stat.h>

using namespace orvtest;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class RecentFilesTest : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        orvhost::Settings settings;
        settings.dataDirectory = (folder.path / "data").wstring();
        settings.libraryDirectory = (folder.path / "lib").wstring();
        orvhost::configure(settings);
    }

    /// A document whose file exists, below `folder`.
    std::shared_ptr<orv::Document> document(std::string const& name, int kind = orvsg::SCInfo::assembly) const
    {
        auto const file = folder.path / name;
        std::filesystem::create_directories(file.parent_path());
        writeFile(file, "model");
        return documentOf(orvtext::fromUtf8(file.string()), kind);
    }
    static std::shared_ptr<orv::Document> documentOf(std::wstring const& path, int kind = orvsg::SCInfo::assembly)
    {
        auto result = std::make_shared<orv::Document>();
        auto info = std::make_shared<orvsg::SCInfo>();
        info->setFile(path);
        info->documentKind = kind;
        result->setSchema(orvsg::SCInfo::key, info);
        return result;
    }
    static std::wstring pathOf(std::shared_ptr<orv::Document> const& document)
    {
        return orv::recordOf<orvsg::SCInfo>(document)->file();
    }

    static QImage picture(QColor const& colour)
    {
        QImage image(256, 256, QImage::Format_RGB888);
        image.fill(colour);
        return image;
    }
    static QColor colourOf(QIcon const& icon) { return icon.pixmap(256, 256).toImage().pixelColor(128, 128); }

    void open(orvviewer::RecentFiles& list, std::shared_ptr<orv::Document> const& document, QColor const& colour) const
    {
        list.savePreview(document, picture(colour));
        list.add(document);
    }

    std::filesystem::path listFile() const { return folder.path / "data/Orvanta/RecentFile/recent.txt"; }

    orvviewer::RecentFiles files;
};

} // namespace

TEST_F(RecentFilesTest, AreListedNewestFirstAndOnce)
{
    EXPECT_TRUE(files.isEmpty());
    EXPECT_THAT(files.paths(), IsEmpty());
    auto const first = document("first.step");
    auto const second = document("second.step");
    files.add(first);
    files.add(second);
    EXPECT_FALSE(files.isEmpty());
    EXPECT_THAT(files.paths(), ElementsAre(pathOf(second), pathOf(first)));
    files.add(first);
    EXPECT_THAT(files.paths(), ElementsAre(pathOf(first), pathOf(second)));
    EXPECT_THAT(orvviewer::RecentFiles().paths(), ElementsAre(pathOf(first), pathOf(second))) << "in the next run too";
}

TEST_F(RecentFilesTest, AreTenAtMost)
{
    for (int i = 0; i < 13; ++i) {
        files.add(document("model " + std::to_string(i) + ".step"));
    }
    ASSERT_EQ(files.paths().size(), 10U);
    EXPECT_EQ(std::filesystem::path(files.paths().back()).filename(), "model 3.step");
}

TEST_F(RecentFilesTest, ModelsWithoutAFileOrWithALineEndInTheNameAreNotListed)
{
    files.add(documentOf(L""));
    files.add(std::make_shared<orv::Document>());
    files.add(nullptr);
    files.add(document("two\nlines.step"));
    EXPECT_TRUE(files.isEmpty());
    EXPECT_FALSE(std::filesystem::exists(listFile()));
}

TEST_F(RecentFilesTest, ThatAreGoneAreNotOffered)
{
    auto const gone = document("gone.step");
    auto const stays = document("stays.step");
    files.add(gone);
    files.add(stays);
    std::filesystem::remove(folder.path / "gone.step");
    EXPECT_THAT(files.paths(), ElementsAre(pathOf(stays)));
    writeFile(folder.path / "gone.step", "back");
    EXPECT_THAT(files.paths(), ElementsAre(pathOf(stays), pathOf(gone))) << "a drive that was away for a while";
}

TEST_F(RecentFilesTest, ListsOfEarlierVersionsAndNoiseAreRead)
{
    auto const model = document("part.step", orvsg::SCInfo::part);
    files.savePreview(model, picture(Qt::red));
    std::string const line = std::filesystem::path(pathOf(model)).string();
    writeFile(listFile(), std::string("\n").append(line).append("\n/nowhere\n\xff\xfe\npart\t\n"));
    EXPECT_THAT(files.paths(), ElementsAre(pathOf(model)));
    EXPECT_EQ(colourOf(files.previewOf(pathOf(model))), QColor(Qt::red));
}

TEST_F(RecentFilesTest, AreReadFromTheDiskOnlyWhenTheyHaveChanged)
{
    auto const model = document("model.step");
    files.add(model);
    FileWatch watch(listFile());
    for (int i = 0; i < 20; ++i) {
        EXPECT_FALSE(files.isEmpty());
        EXPECT_EQ(files.paths().size(), 1U);
    }
    EXPECT_THAT(watch.events(), IsEmpty());

    orvviewer::RecentFiles ofAnotherViewer;
    auto const other = document("other.step");
    ofAnotherViewer.add(other);
    EXPECT_THAT(files.paths(), ElementsAre(pathOf(other), pathOf(model)));
    EXPECT_FALSE(files.refresh());
    auto const third = document("third.step");
    files.add(third);
    EXPECT_THAT(ofAnotherViewer.paths(), ElementsAre(pathOf(third), pathOf(other), pathOf(model)))
        << "neither viewer takes the other's entries away";
}

TEST_F(RecentFilesTest, KnowTheListInMemoryWhereItCannotBeWritten)
{
    writeFile(folder.path / "data", "a file in the directory's place");
    auto const model = document("model.step");
    files.savePreview(model, picture(Qt::red));
    files.add(model);
    EXPECT_THAT(files.paths(), ElementsAre(pathOf(model)));
    EXPECT_TRUE(files.previewOf(pathOf(model)).isNull());
}

TEST_F(RecentFilesTest, PreviewsLieWhereThePushLooksForThemAndArePng)
{
    for (int const kind : {orvsg::SCInfo::assembly, orvsg::SCInfo::part}) {
        for (char const* const name : {"gear.step", "gear box.v2.step", "Getriebe \u00e4\u6a5f.iges", "noext"}) {
            auto const model = document(name, kind);
            files.savePreview(model, picture(Qt::green));
            auto const sent = orvhost::nativePath(previewFilePath(*orv::recordOf<orvsg::SCInfo>(model)));
            ASSERT_TRUE(std::filesystem::exists(sent)) << sent;
            EXPECT_EQ(contentOf(sent).substr(0, 8), "\x89PNG\r\n\x1a\n") << "it travels as a PNG picture";
            struct stat status {
            };
            ASSERT_EQ(::stat(sent.c_str(), &status), 0);
            EXPECT_EQ(status.st_mode & 0777U, 0600U);
        }
    }
}

TEST_F(RecentFilesTest, PreviewsOfLongNamesEndWhereTheSystemDoes)
{
    // "part_" and ".bmp" take nine of the 255 bytes that a name may have.
    auto const longest = document(std::string(246, 'n') + ".stp", orvsg::SCInfo::part);
    open(files, longest, Qt::blue);
    EXPECT_EQ(colourOf(files.previewOf(pathOf(longest))), QColor(Qt::blue));
    auto const tooLong = document(std::string(251, 'n') + ".stp", orvsg::SCInfo::part);
    open(files, tooLong, Qt::blue);
    EXPECT_THAT(files.paths(), ElementsAre(pathOf(tooLong), pathOf(longest)));
    EXPECT_TRUE(files.previewOf(pathOf(tooLong)).isNull()) << "listed without a picture";
    auto const entries = std::filesystem::directory_iterator(listFile().parent_path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2) << "the list and one picture";
}

TEST_F(RecentFilesTest, ModelsOfOneNameShareAFileAndOnlyTheLastShowsIt)
{
    auto const early = document("a/gear.step");
    auto const late = document("b/gear.iges");
    auto const single = document("c/gear.step", orvsg::SCInfo::part);
    open(files, early, Qt::red);
    EXPECT_EQ(colourOf(files.previewOf(pathOf(early))), QColor(Qt::red));
    open(files, late, Qt::green);
    open(files, single, Qt::blue);
    EXPECT_EQ(colourOf(files.previewOf(pathOf(single))), QColor(Qt::blue)) << "a part's picture is another file";
    EXPECT_EQ(colourOf(files.previewOf(pathOf(late))), QColor(Qt::green));
    EXPECT_TRUE(files.previewOf(pathOf(early)).isNull()) << "better none than another model's";
}

TEST_F(RecentFilesTest, PicturesOfEarlierVersionsAreShownAndOtherContentIsNot)
{
    auto const model = document("model.step");
    open(files, model, Qt::red);
    auto const file = QString::fromStdWString(previewFilePath(*orv::recordOf<orvsg::SCInfo>(model)));
    ASSERT_TRUE(picture(Qt::cyan).save(file, "BMP"));
    EXPECT_EQ(colourOf(files.previewOf(pathOf(model))), QColor(Qt::cyan));
    ASSERT_TRUE(picture(Qt::cyan).scaled(2000, 10).save(file, "PNG"));
    EXPECT_TRUE(files.previewOf(pathOf(model)).isNull());
    writeFile(file.toStdString(), "no picture");
    EXPECT_TRUE(files.previewOf(pathOf(model)).isNull());
    std::filesystem::remove(file.toStdString());
    EXPECT_TRUE(files.previewOf(pathOf(model)).isNull());
    EXPECT_TRUE(files.previewOf(L"/never/opened.step").isNull());
}

TEST_F(RecentFilesTest, TheIdleViewerDoesNotTouchTheDisk)
{
    start();
    auto& commands = session->commands();
    commands.refresh();
    EXPECT_FALSE(commands.action(orvviewer::recentFiles)->isEnabled());
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring()));
    EXPECT_TRUE(commands.action(orvviewer::recentFiles)->isEnabled());
    FileWatch watch(listFile());
    for (int i = 0; i < 20; ++i) {
        commands.refresh();
    }
    EXPECT_THAT(watch.events(), IsEmpty());
}

TEST_F(RecentFilesTest, AnotherViewersModelsAppearOnTheStartPage)
{
    start();
    auto const* const list = session->window().startPage().findChild<QListWidget*>();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->count(), 0);
    orvviewer::RecentFiles ofAnotherViewer;
    open(ofAnotherViewer, document("their.step"), Qt::red);
    EXPECT_TRUE(orvplatform::testing::waitFor([&] { return list->count() == 1; }));
    session->commands().refresh();
    EXPECT_TRUE(session->commands().action(orvviewer::recentFiles)->isEnabled());
    EXPECT_EQ(colourOf(list->item(0)->icon()), QColor(Qt::red));
}

TEST_F(RecentFilesTest, WithoutANewPictureTheFormerOneIsGone)
{
    auto const former = document("former/gear.step");
    auto const latter = document("latter/gear.step"); // another model, whose picture has the same name
    open(files, former, Qt::red);
    auto const preview = orvhost::nativePath(previewFilePath(*orv::recordOf<orvsg::SCInfo>(latter)));
    ASSERT_TRUE(std::filesystem::exists(preview));
    files.savePreview(latter, QImage()); // there is no display that could draw
    files.add(latter);
    EXPECT_FALSE(std::filesystem::exists(preview)) << "a push with preview would send it";
    EXPECT_TRUE(files.previewOf(pathOf(latter)).isNull());
    files.savePreview(latter, QImage());
    EXPECT_FALSE(std::filesystem::exists(preview));
}

TEST_F(RecentFilesTest, APictureThatTheDiskHasNoRoomForTakesTheFormerOneWithIt)
{
    auto const former = document("former/gear.step");
    auto const latter = document("latter/gear.step");
    open(files, former, Qt::red);
    auto const preview = orvhost::nativePath(previewFilePath(*orv::recordOf<orvsg::SCInfo>(latter)));
    ASSERT_TRUE(std::filesystem::exists(preview));
    std::string const list = contentOf(listFile());
    {
        prctest::FileSizeLimit const disk(16);
        open(files, latter, Qt::blue);
        EXPECT_THAT(files.paths(), ElementsAre(pathOf(latter), pathOf(former))) << "this run knows it all the same";
    }
    EXPECT_FALSE(std::filesystem::exists(preview));
    EXPECT_TRUE(files.previewOf(pathOf(latter)).isNull());
    EXPECT_EQ(contentOf(listFile()), list) << "the list is whole, though old";
    std::size_t left = 0;
    for (auto const& entry : std::filesystem::directory_iterator(listFile().parent_path())) {
        left += entry.is_regular_file() ? 1U : 0U;
    }
    EXPECT_EQ(left, 1U) << "half a file stayed";
    open(files, latter, Qt::blue);
    EXPECT_EQ(colourOf(files.previewOf(pathOf(latter))), QColor(Qt::blue));
}
