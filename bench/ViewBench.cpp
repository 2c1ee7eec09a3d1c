// What the capture of a view without its picture, and its replay without drawing, cost beside loops by hand over plain
// arrays, in the same run. Ends non-zero where an aim is missed: build/release/bin/bench_view

#include "bench/Aims.h"
#include "bench/Pair.h"
#include "bench/PlainView.h"
#include "feed/SceneCapture.h"
#include "feed/ViewReplay.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace
{

constexpr double captureLimit = 2.0;
constexpr double replayLimit = 1.5;

// A widely used viewer in the browser takes 65 ms to capture 100,000 objects and 53 ms to apply a view to them without
// drawing, on a machine like the one of docs/performance.md: a tenth of the first and a third of the second.
constexpr int orientationNodes = 100000;
constexpr double captureOrientation = 65.0 / 10; // milliseconds
constexpr double replayOrientation = 53.0 / 3;

/// One scene twice, in its records and in plain arrays, in the state of a view under review.
struct Scene {
    explicit Scene(int nodes) : records(nodes, 20261120)
    {
        records.disturb();
        plain = std::make_unique<orvbench::PlainView>(records);
        SceneRecords found(records.document);
        feed.comment.objects = captureObjects(found);
        feed.comment.objects.colored.clear(); // no record brings them along
        feed.comment.viewport = captureViewport(found);
    }

    orvtest::TreeScene records;
    std::unique_ptr<orvbench::PlainView> plain;
    Feed feed;
};

bool captureByHand(Scene const& scene)
{
    auto const state = scene.plain->capture();
    return state.hidden.size() == scene.feed.comment.objects.hidden.size() &&
           state.nodetransform.size() == scene.feed.comment.objects.nodetransform.size();
}

bool capture(Scene const& scene)
{
    SceneRecords records(scene.records.document);
    FeedObjects const objects = captureObjects(records);
    FeedViewport const viewport = captureViewport(records);
    return objects.hidden.size() == scene.feed.comment.objects.hidden.size() && viewport == scene.feed.comment.viewport;
}

} // namespace

int main(int argc, char** argv)
{
    struct Case {
        orvbench::Pair pair;
        double limit;
        double processorLimit; ///< milliseconds; 0 where nothing is aimed at
    };
    std::vector<std::unique_ptr<Case>> cases;
    benchmark::Initialize(&argc, argv);
    auto const add = [&cases](orvbench::Pair pair, double limit, double processorLimit, int iterations) {
        cases.push_back(std::make_unique<Case>(Case{std::move(pair), limit, processorLimit}));
        cases.back()->pair.addBenchmark(iterations);
    };
    for (int const nodes : {1000, 100000, 1000000}) {
        auto const scene = std::make_shared<Scene>(nodes);
        int const iterations = std::clamp(10000000 / nodes, 15, 1000);
        add({"Capture/" + std::to_string(nodes), [=] { return captureByHand(*scene); },
             [=] { return capture(*scene); }},
            captureLimit, nodes == orientationNodes ? captureOrientation : 0.0, iterations);
        auto const byHand = [=] {
            scene->plain->replay(scene->feed);
            return true;
        };
        auto const own = [=] {
            restoreView(scene->records.document, scene->feed);
            return true;
        };
        add({"Replay/" + std::to_string(nodes), byHand, own}, replayLimit,
            nodes == orientationNodes ? replayOrientation : 0.0, iterations);
    }
    benchmark::RunSpecifiedBenchmarks();

    orvbench::Aims aims;
    for (auto const& each : cases) {
        if (!each->pair.wasRun()) {
            continue; // left out by a filter
        }
        aims.expect(each->pair.title() + " did its work", each->pair.succeeded());
        aims.expectUnder(each->pair.title() + ", times the same by hand", each->pair.ratio(), each->limit, "");
        if (each->processorLimit > 0.0) {
            aims.expectUnder(each->pair.title() + ", processor time", each->pair.ownProcessorTime(),
                             each->processorLimit, " ms");
        }
    }
    return aims.exitStatus();
}
