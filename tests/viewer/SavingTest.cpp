// Saves by the exporters of the build, asked for as the viewer's own command and as plug-ins ask for them.

#include "tests/exporters/FileSizeLimit.h"
#include "tests/exporters/mesh/PartsScene.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/viewer/SaveOutcomes.h"
#include "tests/viewer/SessionFixture.h"

#include "host/orvexp/Status.h"
#include "viewer/app/Exporting.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/StatusLine.h"

#include <QGuiApplication>
#include <QProgressBar>

#include <cerrno>
#include <new>

#include <sys/syscall.h>
#include <unistd.h>

using namespace orvtest;
using orvexp::Status;

namespace
{
int failureOfSync = 0; ///< of the exporters' files on their way to the disk; 0 for none
}

// In the system's place, for the exporters' libraries, too.
extern "C" int fsync(int file)
{
    errno = failureOfSync;
    return failureOfSync != 0 ? -1 : static_cast<int>(syscall(SYS_fsync, file));
}

namespace
{

std::string inQuotes(std::string const& name)
{
    return '"' + name + '"';
}

class Saving : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        installExporters();
        start();
        ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring())) << status();
        std::filesystem::create_directory(output);
    }

    /// As a plug-in does; gives the status that its completion function is told.
    int save(std::filesystem::path const& file)
    {
        SaveOutcomes outcomes;
        session->application()->saveFile(file.wstring().c_str(), outcomes.completion());
        EXPECT_EQ(outcomes.told.size(), 1U);
        return outcomes.told.empty() ? -1 : outcomes.told[0].status;
    }
    std::size_t filesInOutput() const
    {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(output), std::filesystem::directory_iterator()));
    }
    QProgressBar& bar() { return *session->window().findChild<QProgressBar*>(); }

    std::filesystem::path const output = folder.path / "out";
};

} // namespace

TEST_F(Saving, SuccessIsToldOnceWithItsPathAndTheApplication)
{
    auto const before = status();
    for (char const* const extension : {"3ds", "obj", "stl", "pdf", "csv", "bompdf", "dae", "orvanta", "prc"}) {
        auto const file = (output / (std::string("cubes.") + extension)).wstring();
        SaveOutcomes outcomes;
        session->application()->saveFile(file.c_str(), outcomes.completion());
        ASSERT_EQ(outcomes.told.size(), 1U) << extension;
        EXPECT_EQ(outcomes.told[0], (SaveOutcome{0, file, session->application()})) << extension;
        EXPECT_TRUE(std::filesystem::exists(file)) << extension;
    }
    EXPECT_EQ(status(), before) << "who asked for the save tells its outcome";
}

TEST_F(Saving, IsSeenToBeBusyAsLongAsItTakes)
{
    std::vector<int> percents;
    std::vector<Qt::CursorShape> cursors;
    auto const connection = QObject::connect(&bar(), &QProgressBar::valueChanged, [&](int percent) {
        auto const* const cursor = QGuiApplication::overrideCursor();
        cursors.push_back(cursor == nullptr ? Qt::ArrowCursor : cursor->shape());
        percents.push_back(percent);
    });
    for (char const* const name : {"cubes.stl", "cubes.pdf", "cubes.prc", "cubes.bompdf"}) {
        percents.clear();
        cursors.clear();
        EXPECT_EQ(save(output / name), 0);
        EXPECT_GE(percents.size(), 2U) << name;
        EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end())) << name;
        EXPECT_EQ(cursors, std::vector<Qt::CursorShape>(percents.size(), Qt::WaitCursor)) << name;
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << name;
        EXPECT_FALSE(session->window().status().isProgressShown()) << name;
    }
    QObject::disconnect(connection);
    EXPECT_NE(save(output / "missing" / "cubes.stl"), 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(session->window().status().isProgressShown());
}

TEST_F(Saving, EachReasonHasASentenceOfItsOwn)
{
    struct Case {
        std::filesystem::path name;
        Status reason;
        std::string sentence;
    };
    for (std::string const kind : {"3ds", "obj", "stl", "pdf", "csv", "bompdf", "dae", "orvanta", "prc"}) {
        std::string const directory = "folder." + kind;
        std::string const kept = "kept." + kind;
        std::string const other = "a." + kind;
        std::string const longName = std::string(256 - kind.size(), 'n') + '.' + kind;
        std::filesystem::create_directory(output / directory);
        std::filesystem::permissions(writeFile(output / kept, "kept"), std::filesystem::perms::owner_read);
        for (auto const& [name, reason, why] :
             {Case{directory, Status::isFolder, "it is a folder. Choose a name for the file."},
              Case{kept, Status::isProtected, "it is protected against writing. Choose another name."},
              Case{"none/" + other, Status::noFolder, "its folder doesn't exist. Choose another folder."},
              Case{longName, Status::nameTooLong, "its name is too long. Choose a shorter name."},
              Case{std::string(256, 'f') + '/' + other, Status::pathTooLong,
                   "the path of its folder is too long. Choose a folder with a shorter path."}}) {
            auto const sentence = inQuotes(name.filename()) + " can't be written: " + why;
            EXPECT_FALSE(session->exportModel((output / name).wstring()));
            EXPECT_EQ(status(), sentence);
            EXPECT_EQ(save(output / name), static_cast<int>(reason));
            EXPECT_EQ(status(), sentence);
        }
        EXPECT_EQ(contentOf(output / kept), "kept");
        EXPECT_TRUE(std::filesystem::is_empty(output / directory));
        EXPECT_EQ(filesInOutput(), 2U) << kind;
        std::filesystem::remove(output / directory);
        std::filesystem::remove(output / kept);
    }
    EXPECT_EQ(save(output / "a.xyz"), static_cast<int>(Status::noLibrary));
    EXPECT_EQ(status(), "\"a.xyz\" can't be saved: its exporter isn't installed. Choose another format.");
}

TEST_F(Saving, ReasonsThatAreRareHaveTheirSentencesToo)
{
    /// Runs out of memory as soon as it is told of any progress.
    struct NoMemory final : orv::IStatusManager {
        void setProgress(int const&, int) override { throw std::bad_alloc(); }
        void showProgress(int, int) override {}
    } noMemory;
    auto const document = TestScene().document;
    auto const file = output / "a.3ds";
    auto const sentenceOf = [](Status reason, orvviewer::ExportResult const& result) {
        EXPECT_EQ(result.status, static_cast<int>(reason));
        return orvtext::toUtf8(result.message);
    };
    using orvviewer::exportDocument;
    EXPECT_EQ(sentenceOf(Status::ok, exportDocument(document, file.wstring(), nullptr)), "\"a.3ds\" was saved.");
    std::filesystem::remove(file);
    EXPECT_EQ(sentenceOf(Status::nothingToWrite, exportDocument(nullptr, file.wstring(), nullptr)),
              "There is nothing to save in this format. Open a model with parts first.");
    std::vector<std::wstring> const names(16384, L"part");
    EXPECT_EQ(sentenceOf(Status::modelTooLarge, exportDocument(PartsScene(names).document, file.wstring(), nullptr)),
              "\"a.3ds\" can't be saved: the model is too large for this format. Choose another format.");
    EXPECT_EQ(sentenceOf(Status::noMemory, exportDocument(document, file.wstring(), &noMemory)),
              "\"a.3ds\" can't be written: the memory is full. Close other programs and try again.");
    EXPECT_EQ(sentenceOf(Status::cannotWrite, exportDocument(document, L"/proc/a.3ds", nullptr)),
              "\"a.3ds\" can't be written. Check the folder and the free space, or choose another place.");
    {
        prctest::FileSizeLimit const limit(10);
        EXPECT_EQ(sentenceOf(Status::fileTooLarge, exportDocument(document, file.wstring(), nullptr)),
                  "\"a.3ds\" can't be written: its disk takes no file of this size. Choose another disk.");
    }
    failureOfSync = EDQUOT;
    EXPECT_EQ(sentenceOf(Status::overQuota, exportDocument(document, file.wstring(), nullptr)),
              "\"a.3ds\" can't be written: your quota is used up. Make room, or choose another disk.");
    failureOfSync = 0;
    EXPECT_EQ(filesInOutput(), 0U);
}

TEST_F(Saving, FileBesideThatStandsInTheWayIsTheOneNamed)
{
    std::filesystem::create_directory(output / "cubes.mtl");
    EXPECT_EQ(save(output / "cubes.obj"), static_cast<int>(Status::isFolder));
    EXPECT_EQ(status(), "\"cubes.mtl\" can't be written: it is a folder. Choose a name for the file.");
    EXPECT_EQ(save(output / "cubes.stl"), 0) << "which puts nothing beside it";
    std::filesystem::remove(output / "cubes.mtl");

    std::filesystem::permissions(writeFile(output / "cubes.mtl", "kept"), std::filesystem::perms::owner_read);
    EXPECT_FALSE(session->exportModel((output / "cubes.obj").wstring()));
    EXPECT_EQ(status(), "\"cubes.mtl\" can't be written: it is protected against writing. Choose another name.");
    EXPECT_EQ(contentOf(output / "cubes.mtl"), "kept");

    EXPECT_FALSE(session->exportModel((output / "none" / "cubes.obj").wstring()));
    EXPECT_EQ(status(), "\"cubes.obj\" can't be written: its folder doesn't exist. Choose another folder.");
    EXPECT_EQ(filesInOutput(), 2U);
}

TEST_F(Saving, FolderOfSomebodyElseIsAReason)
{
    auto const locked = output / "locked";
    std::filesystem::create_directory(locked);
    using std::filesystem::perms;
    std::filesystem::permissions(locked, perms::owner_read | perms::owner_exec);
    {
        OrdinaryUser const user(folder.path);
        for (char const* const name :
             {"a.3ds", "a.obj", "a.stl", "a.pdf", "a.csv", "a.bompdf", "a.dae", "a.orvanta", "a.prc"}) {
            EXPECT_FALSE(session->exportModel((locked / name).wstring()));
            EXPECT_EQ(status(),
                      inQuotes(name) + " can't be written: you may not write to its folder. Choose another folder.");
        }
    }
    EXPECT_TRUE(std::filesystem::is_empty(locked));
    std::filesystem::permissions(locked, perms::owner_all);
}

TEST_F(Saving, ProposedNameThatIsTooLongSaysSo)
{
    // As a bill of a model with a long Japanese name is called.
    std::string name;
    for (int i = 0; i < 80; ++i) {
        name += "歯";
    }
    name += "_PartLevel.bompdf";
    EXPECT_FALSE(session->exportModel(orvtext::fromUtf8((output / name).string())));
    EXPECT_EQ(status(), inQuotes(name) + " can't be written: its name is too long. Choose a shorter name.");
    EXPECT_EQ(filesInOutput(), 0U);
}

TEST_F(Saving, FileOfTheBareExtensionIsOfThatType)
{
    for (auto const& [name, beginning] :
         {std::pair{".csv", "\xEF\xBB\xBFItem"}, std::pair{".CSV", "\xEF\xBB\xBFItem"}, std::pair{".bompdf", "%PDF"},
          std::pair{".prc", "PRC"}, std::pair{".PRC", "PRC"}}) {
        EXPECT_EQ(save(output / name), 0) << name << ' ' << status();
        EXPECT_TRUE(contentOf(output / name).starts_with(beginning)) << name;
    }
}
