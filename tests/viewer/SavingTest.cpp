// Saves by the exporters of the build, asked for as the viewer's own command and as plug-ins ask for them.

#include "tests/exporters/CommandOutput.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/viewer/SaveOutcomes.h"
#include "tests/viewer/SessionFixture.h"

#include "host/orvexp/Status.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/StatusLine.h"

#include <QGuiApplication>
#include <QProgressBar>

using namespace orvtest;
using orvexp::Status;

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
    std::filesystem::create_directory(output / "folder.stl");
    std::filesystem::permissions(writeFile(output / "kept.stl", "kept"), std::filesystem::perms::owner_read);
    std::string const longName = std::string(252, 'n') + ".stl";
    std::string const deep = std::string(256, 'f') + "/a.stl";
    for (auto const& [name, reason, sentence] :
         {Case{"folder.stl", Status::isFolder,
               "\"folder.stl\" can't be written: it is a folder. Choose a name for the file."},
          Case{"kept.stl", Status::isProtected,
               "\"kept.stl\" can't be written: it is protected against writing. Choose another name."},
          Case{"none/a.stl", Status::noFolder,
               "\"a.stl\" can't be written: its folder doesn't exist. Choose another folder."},
          Case{longName, Status::nameTooLong,
               inQuotes(longName) + " can't be written: its name is too long. Choose a shorter name."},
          Case{deep, Status::pathTooLong,
               "\"a.stl\" can't be written: the path of its folder is too long. Choose a folder with a shorter path."},
          Case{"a.xyz", Status::noLibrary,
               "\"a.xyz\" can't be saved: its exporter isn't installed. Choose another format."}}) {
        EXPECT_FALSE(session->exportModel((output / name).wstring()));
        EXPECT_EQ(status(), sentence);
        EXPECT_EQ(save(output / name), static_cast<int>(reason));
        EXPECT_EQ(status(), sentence);
    }
    EXPECT_EQ(contentOf(output / "kept.stl"), "kept");
    EXPECT_EQ(filesInOutput(), 2U);
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
        for (char const* const name : {"a.stl", "a.csv", "a.prc"}) {
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
