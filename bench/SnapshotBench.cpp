// What the picture of a comment, and bringing a view back to the screen, cost beside a plain redraw of the same scene
// in the same window: once the classic assembly (the sample where that isn't there), and 600 times. Ends non-zero where
// either takes over one and a half times as long. Needs a display: tests/with-display build/release/bin/bench_snapshot

#include "bench/Aims.h"
#include "bench/Pair.h"
#include "feed/ViewCapture.h"
#include "feed/ViewReplay.h"
#include "host/orvsg/SCSceneTopo.h"
#include "platform/Process.h"
#include "platform/testing/Input.h"
#include "tests/support/RandomView.h"
#include "tests/support/RepeatedStep.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/ModelView.h"
#include "viewer/app/ViewerSession.h"

#include <QTemporaryDir>
#include <QWindow>

#include <array>
#include <deque>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>

namespace input = orvplatform::testing;

namespace
{

constexpr double limit = 1.5;
constexpr int patience = 60000; // milliseconds

class Viewer
{
public:
    Viewer() : session(settings())
    {
        auto& window = session.window();
        window.resize(1440, 900);
        window.show();
        input::waitFor([&window] { return window.windowHandle() != nullptr && window.windowHandle()->isExposed(); },
                       patience);
    }

    /// False where it can't be opened or drawn.
    bool open(int times)
    {
        std::filesystem::path const classic = ORV_SHARED_DIR "/models/as1-oc-214.stp";
        bool const hasClassic = std::filesystem::exists(classic);
        auto const source =
            hasClassic ? classic : std::filesystem::path(ORV_BINARY_DIR "/samples/planetary-gearbox.step");
        auto const file = std::filesystem::path(folder.filePath("many.step").toStdString());
        if (times > 1 && !orvtest::writeRepeatedStep(source, times, hasClassic ? 220.0 : 400.0, file)) {
            return false;
        }
        if (!session.canDraw() || !session.openModel((times > 1 ? file : source).wstring())) {
            return false;
        }
        for (unsigned int seed = 0; seed < views.size(); ++seed) {
            orvtest::arrangeRandomView(session.context(), seed + 1);
            views[seed] = capture();
        }
        input::processEvents();
        return true;
    }

    int parts() const
    {
        int count = 0;
        for (auto const& node : orv::recordOf<orvsg::SCSceneTopo>(session.document())->nodes) {
            count += node.mesh >= 0 ? 1 : 0;
        }
        return count;
    }

    bool redraw()
    {
        auto& view = session.window().view();
        int const before = view.frames();
        view.redrawNow();
        return view.frames() == before + 1;
    }

    Feed capture()
    {
        return captureView(session.document(), {}, L"", L"", folder.filePath("image.jpeg").toStdWString());
    }

    bool snapshot() { return capture().thumbnail.size() > 1000; }

    /// Two views in turns, so that each brings something to change.
    bool restore()
    {
        auto& view = session.window().view();
        int const before = view.frames();
        restoreView(session.document(), views[static_cast<std::size_t>(next)]);
        next = 1 - next;
        return view.frames() == before + 1;
    }

private:
    orvhost::Settings settings() const
    {
        orvhost::Settings settings;
        settings.dataDirectory = folder.filePath("data").toStdWString();
        settings.libraryDirectory = std::filesystem::path(ORV_BINARY_DIR "/lib").wstring();
        return settings;
    }

    QTemporaryDir folder;
    orvviewer::ViewerSession session;
    std::array<Feed, 2> views;
    int next = 0;
};

/// One model is open at a time; the next one takes its place.
class Stage
{
public:
    Viewer& of(int times)
    {
        if (times != open) {
            viewer.reset();
            viewer = std::make_unique<Viewer>();
            isDrawn = viewer->open(times);
            open = times;
        }
        return *viewer;
    }
    bool drawn(int times)
    {
        of(times);
        return isDrawn;
    }

private:
    std::unique_ptr<Viewer> viewer;
    int open = 0;
    bool isDrawn = false;
};

} // namespace

int main(int argc, char** argv)
{
    orvplatform::prepareProcess();
    input::ensureApplication();
    benchmark::Initialize(&argc, argv);
    orvbench::Aims aims;
    Stage stage;
    std::deque<orvbench::Pair> pairs; // keeps its elements in their places
    auto const add = [&](std::string const& name, int times, int iterations, bool (Viewer::*work)()) {
        std::string const title = std::string(name).append("/").append(std::to_string(times)).append(" times");
        auto const plain = [&stage, times] { return stage.drawn(times) && stage.of(times).redraw(); };
        auto const own = [&stage, times, work] { return stage.drawn(times) && (stage.of(times).*work)(); };
        pairs.emplace_back(title, plain, own).addBenchmark(iterations, benchmark::kMillisecond);
    };
    for (auto const& [times, iterations] : {std::pair{1, 100}, std::pair{600, 4}}) {
        add("Snapshot", times, iterations, &Viewer::snapshot);
        add("Restore", times, iterations, &Viewer::restore);
    }
    benchmark::RunSpecifiedBenchmarks();
    for (auto const& pair : pairs) {
        if (!pair.wasRun()) {
            continue;
        }
        aims.expect(pair.title() + " was drawn, once each time", pair.succeeded());
        aims.expectUnder(pair.title() + ", times a plain redraw", pair.ratio(), limit, "");
    }
    return aims.exitStatus();
}
