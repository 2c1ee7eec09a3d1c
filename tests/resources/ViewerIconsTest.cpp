#include "resources/ResFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>

namespace fs = std::filesystem;

namespace
{

const fs::path artwork = fs::path(ORV_SOURCE_DIR) / "resources/artwork";

std::string textOf(const fs::path& path)
{
    const restest::Bytes bytes = restest::readFile(path);
    return {bytes.begin(), bytes.end()};
}

std::set<std::string> matches(const std::string& text, const std::string& pattern)
{
    const std::regex expression(pattern);
    std::set<std::string> found;
    for (std::sregex_iterator it(text.begin(), text.end(), expression), end; it != end; ++it) {
        found.insert((*it)[1]);
    }
    return found;
}

std::set<std::string> drawingsIn(const fs::path& folder)
{
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() == ".svg") {
            names.insert(entry.path().filename().string());
        }
    }
    return names;
}

} // namespace

TEST(ViewerIcons, AreAllListedUnderTheirNames)
{
    const std::string list = textOf(fs::path(ORV_SOURCE_DIR) / "resources/viewer/viewer.qrc");
    EXPECT_NE(list.find("prefix=\"/icons\""), std::string::npos);
    EXPECT_EQ(matches(list, "alias=\"([^\"]+)\""), drawingsIn(artwork / "viewer"));
    EXPECT_EQ(matches(list, ">\\.\\./artwork/viewer/([^<]+)</file>"), drawingsIn(artwork / "viewer"));
}

TEST(ViewerIcons, AreDrawnOnOneGrid)
{
    for (const std::string& name : drawingsIn(artwork / "viewer")) {
        EXPECT_NE(textOf(artwork / "viewer" / name).find("viewBox=\"0 0 32 32\""), std::string::npos) << name;
    }
}

TEST(Artwork, UsesOnlyWhatEveryRendererDraws)
{
    const std::set<std::string> allowed{"svg", "g", "path", "circle"};
    for (const fs::path& folder : {artwork, artwork / "viewer"}) {
        const std::set<std::string> drawings = drawingsIn(folder);
        ASSERT_FALSE(drawings.empty());
        for (const std::string& name : drawings) {
            const std::set<std::string> used = matches(textOf(folder / name), "<([a-zA-Z]+)");
            EXPECT_TRUE(std::includes(allowed.begin(), allowed.end(), used.begin(), used.end())) << name;
        }
    }
}
