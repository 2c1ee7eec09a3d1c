#include "service/Exporters.h"
#include "host/orvexp/ExportHelper.h"
#include "host/orvsg/Value.h"
#include "support/PluginEnvironment.h"
#include "support/TestScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

using Switch = orvsg::Value<bool, 0>;
using Choice = orvsg::Value<int, 3>;

class Exporters : public testing::Test
{
protected:
    std::shared_ptr<orvexp::ExportManager> loadFrom(std::string const& folder)
    {
        environment.setLibraries(std::filesystem::path(ORV_TEST_LIBRARIES) / folder);
        auto manager = std::make_shared<orvexp::ExportManager>(nullptr);
        loadExporters(manager);
        return manager;
    }

    static std::vector<std::wstring> namesOf(orvexp::ExportManager const& manager)
    {
        std::vector<std::wstring> names;
        for (auto const& plugin : manager.plugins()) {
            names.emplace_back(plugin->getName());
        }
        return names;
    }

    orvtest::PluginEnvironment environment;
};

TEST_F(Exporters, GetSevenSettingsInOrder)
{
    std::vector<std::pair<std::wstring, std::string>> settings;
    auto const preferences = exportPreferences();
    for (auto const& [value, ui] : preferences->entries()) {
        EXPECT_FALSE(ui); // nobody is asked about them
        if (auto const* flag = dynamic_cast<Switch const*>(value.get())) {
            settings.emplace_back(value->name(), flag->get() ? "true" : "false");
        } else if (auto const* choice = dynamic_cast<Choice const*>(value.get())) {
            settings.emplace_back(value->name(), std::to_string(choice->get()));
        } else {
            ADD_FAILURE() << "a setting of another kind";
        }
    }
    using Setting = std::pair<std::wstring, std::string>;
    EXPECT_THAT(settings, ElementsAre(Setting{L"COMPRESS_MOBILE_FORMAT", "true"}, Setting{L"IMAGE_TRANSPARENT", "true"},
                                      Setting{L"ORVANTA2_MOBILE_FORMAT", "true"}, Setting{L"PREVIEW_IMAGE", "false"},
                                      Setting{L"EXPORT_UNIT", "1"}, Setting{L"IMAGE_BRANDING", "false"},
                                      Setting{L"FEATURE Export", "true"}));
}

TEST_F(Exporters, GetNewSettingsEachTime)
{
    auto const first = exportPreferences();
    std::dynamic_pointer_cast<Choice>(first->find(L"EXPORT_UNIT"))->set(7);
    first->add(std::make_shared<Switch>(L"ANOTHER", true), nullptr);
    auto const second = exportPreferences();
    EXPECT_EQ(std::dynamic_pointer_cast<Choice>(second->find(L"EXPORT_UNIT"))->get(), 1);
    EXPECT_EQ(second->entries().size(), 7U);
}

TEST_F(Exporters, ThatAreAllMissingLeaveTheManagerEmpty)
{
    auto const manager = loadFrom("nothing here");
    EXPECT_THAT(manager->plugins(), IsEmpty());
    EXPECT_FALSE(manager->getPlugin(L"/models/part.orvanta"));
}

TEST_F(Exporters, AreLoadedInTheirOrder)
{
    auto const manager = loadFrom("good");
    EXPECT_THAT(namesOf(*manager), ElementsAre(L"native", L"stl"));
    ASSERT_TRUE(manager->getPlugin(L"/models/part.orvanta"));
    EXPECT_STREQ(manager->getPlugin(L"/models/part.orvanta")->getName(), L"native");
    EXPECT_FALSE(manager->getPlugin(L"/models/part.unknown"));
}

TEST_F(Exporters, AreElevenAndTheNativeFormatsComesFirst)
{
    // One library under every name that the viewer ships, and under some that nobody asks for.
    std::filesystem::path const named = std::filesystem::path(ORV_TEST_LIBRARIES) / "named/export/named.so";
    std::filesystem::path const shipped = environment.data / "shipped";
    std::filesystem::create_directories(shipped / "export");
    for (std::string const name :
         {"3dswriter", "aaawriter", "bomwriter", "colladawriter", "imgwriter", "objwriter", "orvwriter", "pdfwriter",
          "pptwriter", "prcdelaywriter", "prcwriter", "stlwriter", "xmlwriter", "zzzwriter"}) {
        std::filesystem::copy_file(named, shipped / "export" / (name + ".so"));
    }
    EXPECT_THAT(namesOf(*loadFrom(shipped.string())),
                ElementsAre(L"orvwriter", L"3dswriter", L"bomwriter", L"imgwriter", L"objwriter", L"stlwriter",
                            L"pdfwriter", L"prcwriter", L"xmlwriter", L"colladawriter", L"pptwriter"));
}

TEST_F(Exporters, FindWhatTheyDependOnInTheDeferredDirectory)
{
    SetDllDirectoryW(nullptr);
    ASSERT_EQ(LoadLibraryW(L"prcdelaywriter.dll"), nullptr) << "a bare name, found nowhere";
    loadFrom("good");
    HMODULE const library = LoadLibraryW(L"prcdelaywriter.dll"); // also after the exporters are loaded
    EXPECT_NE(library, nullptr);
    FreeLibrary(library);
    loadFrom("nothing here"); // the directory goes with the viewer's
    EXPECT_EQ(LoadLibraryW(L"prcdelaywriter.dll"), nullptr);
    SetDllDirectoryW(nullptr);
}

TEST_F(Exporters, MayDependOnLibrariesOfTheDeferredDirectory)
{
    SetDllDirectoryW(nullptr);
    std::wstring const alone = std::filesystem::path(ORV_TEST_LIBRARIES "/dependent/export/objwriter.so").wstring();
    ASSERT_EQ(LoadLibraryW(alone.c_str()), nullptr) << "the system's loader doesn't find what it needs";
    EXPECT_THAT(namesOf(*loadFrom("dependent")), ElementsAre(L"dependent"));
    loadFrom("nothing here");
    EXPECT_EQ(LoadLibraryW(alone.c_str()), nullptr) << "and nothing of it stayed behind";
    SetDllDirectoryW(nullptr);
}

TEST_F(Exporters, ThatAreUnusableAreSkippedAndTheNextIsTried)
{
    // orvwriter lacks both entry points, 3dswriter isn't a library at all, bomwriter lacks the destroying one.
    EXPECT_THAT(namesOf(*loadFrom("broken")), ElementsAre(L"stl"));
}

TEST_F(Exporters, DeferredOneSavesThroughItsLibrary)
{
    environment.setLibraries(std::filesystem::path(ORV_TEST_LIBRARIES) / "good");
    auto const exporter = makeDeferredExporter(nullptr);
    ASSERT_TRUE(exporter);
    orvtest::TestScene const scene;
    std::filesystem::path const file = environment.data / "part.prc";
    EXPECT_EQ(exporter->save(file.wstring().c_str(), scene.document, nullptr, nullptr), orvexp::Status::ok);
    EXPECT_EQ(orvtest::contentOf(file), "deferred");
}

TEST_F(Exporters, DeferredOneWithoutItsLibrarySavesNothing)
{
    environment.setLibraries(std::filesystem::path(ORV_TEST_LIBRARIES) / "nothing here");
    auto const exporter = makeDeferredExporter(nullptr);
    ASSERT_TRUE(exporter);
    orvtest::TestScene const scene;
    std::filesystem::path const file = environment.data / "part.prc";
    EXPECT_NE(exporter->save(file.wstring().c_str(), scene.document, nullptr, nullptr), orvexp::Status::ok);
    EXPECT_FALSE(std::filesystem::exists(file));
}

} // namespace
