#include "exporters/prc/PrcReader.h"
#include "exporters/prcdelaywriter/DocumentMaker.h"
#include "host/orvexp/DelayExportHelper.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>
#include <memory>

namespace
{

constexpr wchar_t const* library = L"" ORV_BINARY_DIR "/lib/delay/prcdelaywriter.dll";

auto load()
{
    return std::make_shared<orv::DLLFuncPtrHelper<orvexp::IDelayExporter>>(library, "create", "destroy");
}

TEST(PrcDelayLibrary, IsLoadedByTheNameThatThePluginUses)
{
    auto const loaded = load();
    EXPECT_TRUE(loaded->isValid()) << testing::PrintToString(loaded->errorText());
}

TEST(PrcDelayLibrary, WritesTheModelThroughTheHelper)
{
    DocumentMaker maker;
    maker.addNode(L"Root", -1, maker.addSquare(10));
    std::string folder = testing::TempDir() + "orv-library-XXXXXX";
    ASSERT_NE(mkdtemp(folder.data()), nullptr);
    std::filesystem::path const file = std::filesystem::path(folder) / "a.prc";
    {
        orvexp::DelayExportHelper exporter(load());
        EXPECT_EQ(exporter.save(file.wstring().c_str(), maker.document, nullptr, nullptr), orvexp::Status::ok);
    }
    EXPECT_EQ(prc::readFile(file).problem, "");
    std::filesystem::remove_all(folder);
}

TEST(PrcDelayLibrary, ExportsItsTwoFunctionsAlone)
{
    std::unique_ptr<FILE, int (*)(FILE*)> const names(
        popen("nm -D --defined-only '" ORV_BINARY_DIR "/lib/delay/prcdelaywriter.so' | cut -d' ' -f3 | sort", "r"),
        pclose);
    ASSERT_NE(names, nullptr);
    std::string text;
    for (int c = std::fgetc(names.get()); c != EOF; c = std::fgetc(names.get()))
        text += static_cast<char>(c);
    EXPECT_EQ(text, "create\ndestroy\n");
}

} // namespace
