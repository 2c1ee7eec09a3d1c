// The view in which a 3D PDF opens is the viewer's own: the artwork of a file that the viewer saved is drawn by the
// format's rules and compared with the poster on the same page, which the viewer drew.

#include "exporters/pdf/ArtworkPicture.h"
#include "exporters/pdf/PagePicture.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCSceneTopo.h"
#include "tests/viewer/SessionFixture.h"
#include "viewer/commands/PartCommands.h"
#include "viewer/commands/ViewCommands.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

using namespace orvtest;

namespace
{

constexpr int pixelsPerInch = 144; // the poster's own
constexpr double pixelsPerPoint = pixelsPerInch / 72.0;

struct ModelCase {
    char const* name;
    std::filesystem::path file;
    bool orthographic;
};

class DefaultView : public SessionFixture, public testing::WithParamInterface<ModelCase>
{
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(GetParam().file)) {
            GTEST_SKIP() << "skipped: the public test models are not there";
        }
        SessionFixture::SetUp();
        std::filesystem::create_directory_symlink(ORV_BINARY_DIR "/lib/export", folder.path / "lib/export");
        start();
        ASSERT_TRUE(session->canDraw()) << status();
        ASSERT_TRUE(session->openModel(GetParam().file.wstring())) << status();
        auto const topology = orv::recordOf<orvsg::SCSceneTopo>(session->document());
        for (int node = 0; topology->nodes.contains(node); ++node) {
            if (topology->nodes.getValue(node).mesh >= 0) {
                nodeOfPart.push_back(node);
            }
        }
        orvviewer::setOrthographic(session->context(), GetParam().orthographic);
        turnAndZoom();
    }

    /// From below and behind, rolled, nearer than a fitted view and off the middle: nothing that a mistake could hide
    /// in.
    void turnAndZoom() const
    {
        orvviewer::lookAlong(session->context(), -0.7, 0.5, -0.35);
        auto& camera = *orv::recordOf<orvgl::SCRenderer>(session->document())->camera;
        auto const height = static_cast<float>(camera.radius);
        camera.up = {0.4F, 0.1F, 0.8F};
        for (auto* const point : {&camera.eye, &camera.target}) {
            (*point)[0] += 0.2F * height;
            (*point)[2] -= 0.15F * height;
        }
        orvviewer::zoomView(session->context(), 0.7);
    }

    /// Saves the open model as the plug-in has it saved, and reads the file.
    void save()
    {
        auto const file = folder.path / "view.pdf";
        int outcome = -1;
        session->application()->saveFile(
            file.wstring().c_str(), [&](int const* result, wchar_t const*, orv::IApplication*) { outcome = *result; });
        ASSERT_EQ(outcome, 0) << status();
        view = storedView(file);
        artwork = drawArtwork(view, pixelsPerPoint);
        page = pageOf(file, pixelsPerInch);
    }

    std::array<int, 3> posterAt(int column, int row) const
    {
        return page.pixel(column + static_cast<int>(std::lround(view.left * pixelsPerPoint)),
                          row + static_cast<int>(std::lround(view.top * pixelsPerPoint)));
    }
    static bool isWhite(std::array<int, 3> const& color)
    {
        return std::all_of(color.begin(), color.end(), [](int c) { return c >= 250; });
    }

    /// How much of what either picture covers both cover. The page's frame is left out.
    double sharedSilhouette() const
    {
        int both = 0;
        int any = 0;
        for (int row = border; row < artwork.height - border; ++row) {
            for (int column = border; column < artwork.width - border; ++column) {
                bool const drawn = artwork.at(column, row).front() >= 0;
                bool const onPoster = !isWhite(posterAt(column, row));
                both += drawn && onPoster ? 1 : 0;
                any += drawn || onPoster ? 1 : 0;
            }
        }
        return any > 0 ? static_cast<double>(both) / any : 0;
    }

    /// Nothing but this opaque part shows in the pixel and around it: no edge line, no anti-aliasing.
    bool isInside(int column, int row) const
    {
        int const part = artwork.at(column, row).front();
        for (int y = row - 2; y <= row + 2; ++y) {
            for (int x = column - 2; x <= column + 2; ++x) {
                auto const& pixel = artwork.at(x, y);
                if (pixel.front() != part || pixel.instance != part || pixel.color != artwork.at(column, row).color) {
                    return false;
                }
            }
        }
        return part >= 0;
    }

    using Color = std::array<double, 3>; // 0 to 1

    /// Whether light makes the one colour of the other: more or less of it, and some white where it glances.
    static bool isLit(Color const& shown, Color const& own)
    {
        constexpr double mostWhite = 0.35;
        constexpr double tolerance = 0.04;
        double const brightest = *std::max_element(shown.begin(), shown.end());
        double const least = *std::min_element(own.begin(), own.end());
        Color const pure{own[0] - least, own[1] - least, own[2] - least};
        double const hue = *std::max_element(pure.begin(), pure.end());
        double const white = *std::min_element(shown.begin(), shown.end());
        if (hue < 0.02) { // a grey stays one
            return brightest - white < tolerance;
        }
        double const part = (brightest - white) / hue; // how much of the own colour is in it
        for (std::size_t i = 0; i < 3; ++i) {
            if (std::abs(shown[i] - white - part * pure[i]) > tolerance) {
                return false;
            }
        }
        return white - part * least < mostWhite && white - part * least > -tolerance;
    }

    struct Seen {
        int pixels = 0; ///< inside
        int alike = 0;  ///< of them, those of one hue in both pictures
        Color poster{}; ///< sum of them
        Color file{};   ///< likewise, without light
        Color meanOf(Color const& sum) const { return {sum[0] / pixels, sum[1] / pixels, sum[2] / pixels}; }
    };
    std::map<int, Seen> seenParts() const
    {
        std::map<int, Seen> parts;
        for (int row = border; row < artwork.height - border; ++row) {
            for (int column = border; column < artwork.width - border; ++column) {
                if (!isInside(column, row)) {
                    continue;
                }
                auto const& pixel = artwork.at(column, row);
                auto const poster = posterAt(column, row);
                std::array const color{poster[0] / 255.0, poster[1] / 255.0, poster[2] / 255.0};
                auto& part = parts[pixel.instance];
                ++part.pixels;
                part.alike += isLit(color, pixel.color) ? 1 : 0;
                for (std::size_t i = 0; i < 3; ++i) {
                    part.poster[i] += color[i];
                    part.file[i] += pixel.color[i];
                }
            }
        }
        return parts;
    }
    /// Parts by how much of the picture is theirs, the most first.
    std::vector<int> mostSeen() const
    {
        std::map<int, int> pixels;
        for (auto const& pixel : artwork.pixels) {
            if (pixel.front() >= 0) {
                ++pixels[pixel.front()];
            }
        }
        std::vector<int> parts;
        for (auto const& [part, count] : pixels) {
            parts.push_back(part);
        }
        std::sort(parts.begin(), parts.end(), [&](int a, int b) { return pixels[a] > pixels[b]; });
        return parts;
    }
    bool shows(int part) const
    {
        return std::any_of(artwork.pixels.begin(), artwork.pixels.end(),
                           [part](auto const& pixel) { return pixel.instance == part || pixel.seeThrough == part; });
    }
    int nodeOf(int part) const { return nodeOfPart.at(static_cast<std::size_t>(part)); }

    void expectThePosterIsTheView()
    {
        double const shared = sharedSilhouette();
        RecordProperty("sharedSilhouette", std::to_string(shared));
        EXPECT_GE(shared, 0.985);
        int pixels = 0;
        int alike = 0;
        for (auto const& [part, seen] : seenParts()) {
            pixels += seen.pixels;
            alike += seen.alike;
            if (seen.pixels >= 200) {
                auto const poster = seen.meanOf(seen.poster);
                auto const file = seen.meanOf(seen.file);
                EXPECT_TRUE(isLit(poster, file)) << "part " << part << ": " << testing::PrintToString(file)
                                                 << " shows as " << testing::PrintToString(poster);
            }
        }
        EXPECT_GT(pixels, 50000);
        EXPECT_GE(alike, 0.97 * pixels);
        EXPECT_EQ(view.background, (std::array<double, 3>{1, 1, 1})) << "what is around the model is the poster's";
    }

    static constexpr int border = 3;
    std::vector<int> nodeOfPart;
    StoredView view;
    ArtworkPicture artwork;
    Pixels page;
};

/// Drawing takes its time, so that one model stands for both.
class SeeThroughView : public DefaultView
{
};

TEST_P(DefaultView, IsTheViewOfThePoster)
{
    ASSERT_NO_FATAL_FAILURE(save());
    expectThePosterIsTheView();
    auto const& camera = *orv::recordOf<orvgl::SCRenderer>(session->document())->camera;
    EXPECT_EQ(view.orthographic, camera.orthographic);
    auto const target = view.fromWorld({camera.target[0], camera.target[1], camera.target[2]});
    EXPECT_NEAR(target[0], 0, 1e-3);
    EXPECT_NEAR(target[1], 0, 1e-3);
    EXPECT_NEAR(target[2], view.orbit, 1e-3) << "the model turns about what the viewer's own does";
}

TEST_P(DefaultView, ShowsPartsAsTheReviewerLeftThem)
{
    ASSERT_NO_FATAL_FAILURE(save());
    auto const parts = mostSeen();
    ASSERT_GE(parts.size(), 4U);
    auto const [hidden, moved, coloured] = std::array{parts[1], parts[2], parts[0]};
    auto& context = session->context();
    orvviewer::hideNodes(context, {nodeOf(hidden)});
    auto const far = 0.25 * orv::recordOf<orvgl::SCRenderer>(session->document())->camera->radius;
    orvviewer::moveNodes(context, {nodeOf(moved)}, -far, far, -far);
    orvviewer::colourNodes(context, {nodeOf(coloured)}, 0xC800FF); // a purple that no model has
    auto const before = artwork;
    ASSERT_NO_FATAL_FAILURE(save());
    EXPECT_FALSE(shows(hidden));
    EXPECT_TRUE(shows(moved));
    EXPECT_TRUE(shows(coloured));
    int changed = 0;
    for (std::size_t i = 0; i < artwork.pixels.size(); ++i) {
        changed += artwork.pixels[i].front() != before.pixels[i].front() ? 1 : 0;
    }
    EXPECT_GT(changed, 10000) << "else the comparison says nothing about what was hidden and moved";
    expectThePosterIsTheView();
}

TEST_P(SeeThroughView, LetsThroughWhatStandsBehindASeeThroughPart)
{
    ASSERT_NO_FATAL_FAILURE(save());
    int const clear = mostSeen().at(0);
    orvviewer::makeTransparent(session->context(), {nodeOf(clear)}, 0.7F);
    ASSERT_NO_FATAL_FAILURE(save());
    int see = 0;
    int shown = 0;
    for (int row = border; row < artwork.height - border; ++row) {
        for (int column = border; column < artwork.width - border; ++column) {
            auto const& pixel = artwork.at(column, row);
            see += pixel.front() == clear ? 1 : 0;
            shown += pixel.front() == clear && pixel.instance < 0 && !isWhite(posterAt(column, row)) ? 1 : 0;
        }
    }
    EXPECT_GT(see, 10000);
    EXPECT_GT(shown, 1000) << "tinted, not gone";
    EXPECT_GE(sharedSilhouette(), 0.97);
    auto const& part = view.artwork;
    EXPECT_TRUE(std::any_of(part.styles.begin(), part.styles.end(), [](auto const& style) {
        return style.opacity == 77; // 0.3 of 255
    }));
}

std::string nameOf(testing::TestParamInfo<ModelCase> const& tested)
{
    return tested.param.name + std::string(tested.param.orthographic ? "_InParallel" : "_InPerspective");
}

INSTANTIATE_TEST_SUITE_P(Models, DefaultView,
                         testing::Values(ModelCase{"Gearbox", sampleModel(), false},
                                         ModelCase{"Gearbox", sampleModel(), true},
                                         ModelCase{"As1", sharedModel("as1-oc-214.stp"), false},
                                         ModelCase{"As1", sharedModel("as1-oc-214.stp"), true}),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Models, SeeThroughView, testing::Values(ModelCase{"Gearbox", sampleModel(), false}), nameOf);

} // namespace
