// What all exporter plug-ins do alike, each taken from its library.

#include "exporters/CommandOutput.h"
#include "exporters/ExportLibraries.h"
#include "exporters/FileSizeLimit.h"
#include "host/orvexp/ExportManager.h"
#include "support/TestScene.h"
#include "viewer/ModelFixture.h"

#include <algorithm>
#include <new>
#include <set>

using namespace orvtest;
using orvexp::Status;

namespace
{

struct LibraryCase {
    char const* name;
    wchar_t const* path;    ///< that it takes
    wchar_t const* capital; ///< that too
};

LibraryCase const libraries[] = {{"orvwriter", L"/a/b.orvanta", L"B.ORVANTA"},
                                 {"3dswriter", L"a.3ds", L"A.3DS"},
                                 {"bomwriter", L"a.csv", L"A.BOMPDF"},
                                 {"objwriter", L"a.obj", L"A.Obj"},
                                 {"stlwriter", L"a.stl", L"A.STL"},
                                 {"pdfwriter", L"a.pdf", L"A.PDF"},
                                 {"prcwriter", L"a.prc", L"A.PRC"},
                                 {"colladawriter", L"a.dae", L"A.DAE"}};

class ExporterPlugin : public testing::TestWithParam<LibraryCase>
{
protected:
    Status save(std::filesystem::path const& file)
    {
        return loadExporter(GetParam().name)->save(file.wstring().c_str(), scene.document, nullptr, &bar);
    }
    std::filesystem::path fileIn(std::filesystem::path const& place) const
    {
        return place / ("model" + std::filesystem::path(GetParam().path).extension().string());
    }
    std::size_t filesIn(std::filesystem::path const& place) const
    {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(place), std::filesystem::directory_iterator()));
    }

    TestScene scene;
    TemporaryFolder folder;
    ProgressBar bar;
};

TEST_P(ExporterPlugin, TakesItsExtensionAlone)
{
    auto const exporter = loadExporter(GetParam().name);
    EXPECT_EQ(std::wstring(exporter->getName()), std::filesystem::path(GetParam().name).wstring());
    EXPECT_EQ(exporter->getType(), orv::IPlugin::exporterPlugin);
    EXPECT_FALSE(exporter->loadPreferences(nullptr));
    EXPECT_TRUE(exporter->takes(GetParam().path));
    EXPECT_TRUE(exporter->takes(GetParam().capital));
    for (wchar_t const* const other : {L"", L"a", L"stl", L"/x.stl/a", L"a.stlx", L"a.", L".", L"a.xyz", L".xyz"}) {
        EXPECT_FALSE(exporter->takes(other)) << std::filesystem::path(other);
    }
}

TEST_P(ExporterPlugin, WritesAFileAndNothingElseButWhatTheFormatNeeds)
{
    EXPECT_EQ(save(fileIn(folder.path)), Status::ok);
    EXPECT_GT(std::filesystem::file_size(fileIn(folder.path)), 20U);
    EXPECT_EQ(filesIn(folder.path), std::string(GetParam().name) == "objwriter" ? 2U : 1U);
}

TEST_P(ExporterPlugin, FolderOfThatNameStays)
{
    std::filesystem::create_directory(fileIn(folder.path));
    EXPECT_EQ(save(fileIn(folder.path)), Status::isFolder);
    EXPECT_TRUE(std::filesystem::is_directory(fileIn(folder.path)));
    EXPECT_EQ(filesIn(folder.path), 1U);
}

TEST_P(ExporterPlugin, NameThatIsTooLongIsAReasonOfItsOwn)
{
    auto const extension = fileIn("").extension().string();
    std::size_t const longest = 255 - extension.size();
    EXPECT_EQ(save(folder.path / (std::string(longest + 1, 'n') + extension)), Status::nameTooLong);
    EXPECT_EQ(filesIn(folder.path), 0U);
    EXPECT_EQ(save(folder.path / (std::string(longest, 'n') + extension)), Status::ok);
}

TEST_P(ExporterPlugin, FileOfTheBareExtensionIsOfThatType)
{
    auto const bare = folder.path / fileIn("").extension();
    EXPECT_TRUE(loadExporter(GetParam().name)->takes(bare.wstring().c_str()));
    ASSERT_EQ(save(fileIn(folder.path)), Status::ok);
    ASSERT_EQ(save(bare), Status::ok);
    EXPECT_EQ(contentOf(bare).substr(0, 5), contentOf(fileIn(folder.path)).substr(0, 5));
}

TEST_P(ExporterPlugin, ProtectedFileStays)
{
    auto const file = writeFile(fileIn(folder.path), "kept");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    EXPECT_EQ(save(file), Status::isProtected);
    EXPECT_EQ(contentOf(file), "kept");
    EXPECT_EQ(filesIn(folder.path), 1U);
}

TEST_P(ExporterPlugin, FolderThatTakesNoFileIsFound)
{
    EXPECT_EQ(save(fileIn(folder.path / "missing")), Status::noFolder);
    EXPECT_EQ(save(fileIn(writeFile(folder.path / "file", ""))), Status::noFolder);
    EXPECT_EQ(save(fileIn("/proc")), Status::cannotWrite);
    EXPECT_EQ(filesIn(folder.path), 1U);
}

TEST_P(ExporterPlugin, SizeThatTheDiskRefusesLeavesTheEarlierFile)
{
    auto const file = writeFile(fileIn(folder.path), "kept");
    Status status = Status::ok;
    {
        prctest::FileSizeLimit const limit(10);
        status = save(file);
    }
    EXPECT_EQ(status, Status::fileTooLarge);
    EXPECT_EQ(contentOf(file), "kept");
    EXPECT_EQ(filesIn(folder.path), 1U);
}

TEST_P(ExporterPlugin, MemoryThatRunsOutIsAReasonOfItsOwn)
{
    // Wherever it happens: also within what the exporter's library calls.
    for (int const percent : {1, 45}) {
        struct LastStraw final : orv::IStatusManager {
            void setProgress(int const& done, int) override
            {
                if (done >= least) {
                    throw std::bad_alloc();
                }
            }
            void showProgress(int, int) override {}
            int least = 0;
        } full;
        full.least = percent;
        auto const file = writeFile(fileIn(folder.path), "kept");
        EXPECT_EQ(loadExporter(GetParam().name)->save(file.wstring().c_str(), scene.document, nullptr, &full),
                  Status::noMemory)
            << percent;
    }
}

TEST_P(ExporterPlugin, LinkStaysALinkAndItsFileIsReplaced)
{
    auto const file = writeFile(folder.path / "real", "old");
    std::filesystem::create_symlink("real", fileIn(folder.path));
    EXPECT_EQ(save(fileIn(folder.path)), Status::ok);
    EXPECT_TRUE(std::filesystem::is_symlink(fileIn(folder.path)));
    EXPECT_NE(contentOf(file), "old");
}

TEST_P(ExporterPlugin, WithoutAModelOrAPathThereIsNothing)
{
    auto const exporter = loadExporter(GetParam().name);
    auto const path = fileIn(folder.path).wstring();
    EXPECT_EQ(exporter->save(path.c_str(), nullptr, nullptr, &bar), Status::nothingToWrite);
    EXPECT_EQ(exporter->save(path.c_str(), std::make_shared<orv::Document>(), nullptr, nullptr),
              Status::nothingToWrite);
    EXPECT_EQ(exporter->save(L"", scene.document, nullptr, nullptr), Status::cannotWrite);
    EXPECT_EQ(exporter->save(nullptr, scene.document, nullptr, nullptr), Status::cannotWrite);
    EXPECT_EQ(filesIn(folder.path), 0U);
}

TEST_P(ExporterPlugin, RecordsThatDontHoldTogetherAreBorne)
{
    auto broken = std::make_shared<orvsg::Mesh>(*scene.resources->meshes[0]);
    broken->triangles[0] = 4000000;
    broken->positions[4] = std::numeric_limits<float>::infinity();
    broken->faces[3].triangleCount = 4000000000U;
    scene.resources->meshes[0] = broken;
    auto node = scene.topology->nodes.getValue(4);
    node.mesh = 77;
    scene.topology->nodes.setValue(4, node);
    node = scene.topology->nodes.getValue(5);
    node.parent = 5;
    scene.topology->nodes.setValue(5, node);
    EXPECT_EQ(save(fileIn(folder.path)), Status::ok);
    EXPECT_GT(std::filesystem::file_size(fileIn(folder.path)), 20U);
}

TEST_P(ExporterPlugin, ShowsItsEntryPointsAlone)
{
    // What the standard library shares between libraries stays visible where a library below shows it too.
    EXPECT_EQ(outputOf(std::string("nm -D --defined-only '" ORV_BINARY_DIR "/lib/export/") + GetParam().name +
                       ".so' | cut -d' ' -f3 | grep -v '^_Z[A-Z]*St' | sort"),
              "createPlugin\ndestroyPlugin\n");
}

INSTANTIATE_TEST_SUITE_P(All, ExporterPlugin, testing::ValuesIn(libraries),
                         [](auto const& tested) { return std::string("In_") + tested.param.name; });

TEST(ExporterPlugins, EachHasAnIdentityOfItsOwn)
{
    std::set<std::wstring> identities;
    for (auto const& library : libraries) {
        identities.insert(loadExporter(library.name)->id().toString());
    }
    EXPECT_EQ(identities.size(), std::size(libraries));
}

} // namespace
