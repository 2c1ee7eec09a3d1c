// The pictures are one family, and each is seen on the light and on the dark theme, at the smallest size, too.
#include "resources/Expected.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <regex>
#include <set>

using namespace restest;
namespace fs = std::filesystem;

namespace
{

const Name png{u"PNG"};
const std::vector<QColor> backgrounds{QColor(0xF4, 0xF5, 0xF7), QColor(0xFF, 0xFF, 0xFF), QColor(0x1E, 0x20, 0x23),
                                      QColor(0x29, 0x2C, 0x30)};

// Relative luminance and contrast as the web's accessibility guidelines define them (WCAG 2.1, 1.4.11: 3 to 1 for
// pictures).
double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QImage pictureOf(const Resource& resource)
{
    return QImage::fromData(QByteArray(reinterpret_cast<const char*>(resource.data.data()),
                                       static_cast<qsizetype>(resource.data.size())))
        .convertToFormat(QImage::Format_ARGB32);
}

std::vector<const Resource*> englishPictures()
{
    std::vector<const Resource*> found;
    for (const Resource& resource : resources()) {
        if (resource.type == png && resource.language == english) {
            found.push_back(&resource);
        }
    }
    return found;
}

// The drawings of one kind by their names, without the window icon, which is filled.
std::map<std::string, std::string> lineDrawings()
{
    std::map<std::string, std::string> texts;
    for (const auto& entry : fs::directory_iterator(fs::path(ORV_SOURCE_DIR) / "resources/artwork")) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() == ".svg" && !name.starts_with("cloud")) {
            const Bytes bytes = readFile(entry.path());
            texts.emplace(entry.path().stem().string(), std::string(bytes.begin(), bytes.end()));
        }
    }
    return texts;
}

std::set<std::string> found(const std::string& text, const std::string& pattern)
{
    const std::regex expression(pattern);
    std::set<std::string> result;
    for (std::sregex_iterator it(text.begin(), text.end(), expression), end; it != end; ++it) {
        result.insert((*it)[1]);
    }
    return result;
}

// The numbers that a drawing holds in this pattern's place, as one; all of them are alike in a drawing of the family.
double theOne(const std::string& drawing, const std::string& pattern)
{
    const std::set<std::string> all = found(drawing, pattern);
    EXPECT_EQ(all.size(), 1U) << pattern;
    return all.empty() ? 0 : std::stod(*all.begin());
}

// The pictures that the resources name: the drawing and the side in pixels.
std::set<std::pair<std::string, int>> renderedSizes()
{
    const Bytes bytes = readFile(fs::path(ORV_SOURCE_DIR) / "resources/imagelist.rc");
    const std::string list(bytes.begin(), bytes.end());
    const std::regex expression("\"([a-z-]+)-([0-9]+)\\.png\"");
    std::set<std::pair<std::string, int>> result;
    for (std::sregex_iterator it(list.begin(), list.end(), expression), end; it != end; ++it) {
        result.emplace((*it)[1], std::stoi((*it)[2]));
    }
    return result;
}

} // namespace

TEST(Pictures, StandOutFromLightAndDark)
{
    for (const Resource* resource : englishPictures()) {
        SCOPED_TRACE(std::get<unsigned>(resource->name));
        const QImage picture = pictureOf(*resource);
        ASSERT_FALSE(picture.isNull());
        int strong = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                if (pixel.alpha() < 200) {
                    continue; // an edge's soft pixel, or the tint of a surface
                }
                ++strong;
                for (const QColor& background : backgrounds) {
                    EXPECT_GE(contrast(pixel, background), 3.0) << x << ", " << y;
                }
            }
        }
        // A line drawing leaves most of its square free, and is still more than a few dots.
        const int area = picture.width() * picture.height();
        EXPECT_GE(strong, area * 6 / 100);
        EXPECT_LE(strong, area * 50 / 100);
    }
}

TEST(Pictures, AreDrawnForTheirSize)
{
    // A step that was only enlarged from the one before would be softer than its line of sharp pixels.
    for (const Resource* resource : englishPictures()) {
        const QImage picture = pictureOf(*resource);
        int soft = 0;
        int strong = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const int alpha = qAlpha(picture.pixel(x, y));
                strong += alpha >= 200;
                soft += alpha > 64 && alpha < 200; // 51 is the tint of a surface
            }
        }
        EXPECT_LE(soft, 2 * strong) << std::get<unsigned>(resource->name);
    }
}

TEST(Artwork, IsOneFamily)
{
    const std::map<std::string, std::string> drawings = lineDrawings();
    EXPECT_EQ(drawings.size(), 9U);
    for (const auto& [name, drawing] : drawings) {
        SCOPED_TRACE(name);
        EXPECT_EQ(found(drawing, "stroke=\"(#[0-9A-F]{6})\""), (std::set<std::string>{"#3A7AE8", "#7A838E"}));
        EXPECT_EQ(found(drawing, "stroke-linecap=\"([a-z]+)\""), std::set<std::string>{"round"});
    }
}

TEST(Artwork, HasOneWeightAtEachSize)
{
    // Pixels at the plain step by the picture's side: 16 to 24 are drawn with a pixel and a half, 32 with two. The
    // other steps are so much wider.
    const std::map<std::string, std::vector<int>> plainSides{
        {"feed", {24}},        {"feed-small", {16}}, {"push", {32, 24}}, {"push-small", {16}}, {"share", {32, 24}},
        {"share-small", {16}}, {"account", {24}},    {"refresh", {24}},  {"delete", {20}}};
    const std::map<std::string, std::string> drawings = lineDrawings();
    std::set<std::string> seen;
    for (const auto& [name, side] : renderedSizes()) {
        SCOPED_TRACE(name + ", " + std::to_string(side));
        ASSERT_TRUE(drawings.contains(name) && plainSides.contains(name));
        const std::string& drawing = drawings.at(name);
        const double drawn =
            theOne(drawing, "stroke-width=\"([0-9.]+)\"") * side / theOne(drawing, "viewBox=\"0 0 ([0-9]+) ");
        bool isRight = false;
        for (const int plain : plainSides.at(name)) {
            isRight = isRight || std::abs(drawn - (plain <= 24 ? 1.5 : 2.0) * side / plain) < 1e-9;
        }
        EXPECT_TRUE(isRight) << drawn << " pixels";
        seen.insert(name);
    }
    EXPECT_EQ(seen.size(), drawings.size());
}

TEST(Artwork, OfTheViewerIsOfTheSameFamily)
{
    int count = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(ORV_SOURCE_DIR) / "resources/artwork/viewer")) {
        if (entry.path().extension() != ".svg" || entry.path().stem() == "orvanta") { // the window icon is filled
            continue;
        }
        SCOPED_TRACE(entry.path().filename().string());
        const Bytes bytes = readFile(entry.path());
        const std::string drawing(bytes.begin(), bytes.end());
        std::set<std::string> strokes = found(drawing, "stroke=\"(#[0-9A-Fa-f]{3,6})\"");
        EXPECT_TRUE(strokes.contains("#7A838E"));
        strokes.erase("#7A838E");
        strokes.erase("#3A7AE8");
        EXPECT_TRUE(strokes.empty());
        EXPECT_EQ(found(drawing, "viewBox=\"([0-9 ]+)\""), std::set<std::string>{"0 0 32 32"});
        std::set<std::string> widths = found(drawing, "stroke-width=\"([0-9.]+)\"");
        EXPECT_TRUE(widths.contains("2"));
        widths.erase("2");
        widths.erase("1"); // an edge behind others
        EXPECT_TRUE(widths.empty());
        EXPECT_EQ(found(drawing, "stroke-linecap=\"([a-z]+)\""), std::set<std::string>{"round"});
        ++count;
    }
    EXPECT_GE(count, 29);
}

TEST(Artwork, OfTheWindowIconsIsFilledWithTheFamilysBlue)
{
    for (const char* const name : {"cloud.svg", "cloud-small.svg"}) {
        SCOPED_TRACE(name);
        const Bytes bytes = readFile(fs::path(ORV_SOURCE_DIR) / "resources/artwork" / name);
        const std::string drawing(bytes.begin(), bytes.end());
        EXPECT_EQ(found(drawing, "fill=\"(#[0-9A-Fa-f]{3,6})\""), std::set<std::string>{"#3A7AE8"});
        EXPECT_EQ(found(drawing, "stroke=\"(#[0-9A-Fa-f]{3,6})\""), std::set<std::string>{"#FFFFFF"});
        EXPECT_EQ(found(drawing, "stroke-linecap=\"([a-z]+)\""), std::set<std::string>{"round"});
    }
    const QColor blue(0x3A, 0x7A, 0xE8);
    EXPECT_GE(contrast(blue, Qt::white), 3.0) << "the arrow on the cloud";
    for (const QColor& background : backgrounds) {
        EXPECT_GE(contrast(blue, background), 3.0);
    }
}

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
