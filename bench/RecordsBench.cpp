// What reading and writing of feed records costs beside the JSON library's own work on the same texts, in the same run.
// Ends non-zero where an aim is missed: build/release/bin/bench_records

#include "bench/Aims.h"
#include "bench/Pair.h"
#include "feed/FeedReader.h"
#include "feed/FeedWriter.h"
#include "platform/text/Text.h"
#include "service/JsonText.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace
{

constexpr double limit = 1.3;
constexpr std::size_t thumbnailLength = 20 * 1024; // characters

/// A picture's text: every base64 character as often as the others.
std::wstring thumbnail(std::mt19937& random)
{
    static constexpr wchar_t alphabet[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::wstring text = L"data:image/jpeg;base64,";
    while (text.size() < thumbnailLength) {
        text += alphabet[random() % 64];
    }
    return text;
}

Feed recordWithHidden(int hiddenNodes, std::mt19937& random)
{
    Feed feed;
    feed.author = FeedAuthor(L"7c9e6679-7425-40de-944b-e07fc1f90ae7", L"Ann", L"ann@example.com", true, true);
    feed.file = FeedFile(L"0f8fad5b-d9cb-469f-a165-70867728950e", L"gearbox.step");
    feed.action = FeedAction(L"view", L" ");
    feed.comment.id = L"c0ffee00-0000-4000-8000-000000000001";
    feed.comment.commentType = L"text";
    feed.comment.content = L"The planet carrier needs more room here.";
    feed.comment.publishedTime = feed.comment.updatedTime = L"Nov 15, 2026 16:11 PM";
    feed.comment.viewport = FeedViewport(Vector3(103.7F, -42.25F, 12.1F), Vector3(1, 2, 3), Vector3(0, 0, 1), 1.0);
    for (int i = 0; i < hiddenNodes; ++i) {
        feed.comment.objects.hidden.push_back(7 * i);
    }
    feed.source = L"desktop";
    feed.thumbnail = thumbnail(random);
    return feed;
}

/// A record of a scene of that many nodes: 10 % hidden, 5 % coloured, 5 % transparent, 1 % moved.
Feed recordOfScene(int nodes, std::mt19937& random)
{
    Feed feed = recordWithHidden(0, random);
    FeedObjects& objects = feed.comment.objects;
    for (int node = 0; node < nodes; ++node) {
        if (node % 10 == 0) {
            objects.hidden.push_back(node);
        }
        if (node % 20 == 1) {
            objects.nodecolor.emplace(node, static_cast<int>(random() & 0xFFFFFFU));
        }
        if (node % 20 == 2) {
            objects.transparent.push_back(node);
        }
        if (node % 100 == 3) {
            Matrix4 matrix;
            for (unsigned char i = 0; i < 16; ++i) {
                matrix[i] = static_cast<float>(random()) / 1e7F;
            }
            objects.nodetransform.emplace(node, matrix);
        }
    }
    return feed;
}

std::string responseOf(int records)
{
    std::mt19937 random(20261120);
    std::string response = "[";
    for (int i = 0; i < records; ++i) {
        Json::Value element;
        element["Content"] = orvtext::toUtf8(FeedWriter().write(recordWithHidden(100, random)));
        response += i > 0 ? "," : "";
        response += writeJson(element);
    }
    return response + "]";
}

/// The JSON library's work on both layers, and nothing else.
std::size_t parseBothLayers(std::string const& response)
{
    Json::Value root;
    std::size_t parsed = 0;
    if (parseJson(response, root)) {
        for (Json::ArrayIndex i = 0; i < root.size(); ++i) {
            Json::Value document;
            parsed += parseJson(root[i]["Content"].asString(), document) ? 1 : 0;
            benchmark::DoNotOptimize(document);
        }
    }
    return parsed;
}

/// A comparison, and what it needs while it runs: the largest texts take a gigabyte.
struct Case {
    orvbench::Pair pair;
    int iterations;
    std::function<void()> prepare;
    std::function<void()> release;
};

Case reading(int records)
{
    auto const count = static_cast<std::size_t>(records);
    auto const response = std::make_shared<std::string>();
    auto const wide = std::make_shared<std::wstring>();
    return {{"Read/" + std::to_string(records), [=] { return parseBothLayers(*response) == count; },
             [=] { return FeedReader().read(*wide).size() == count; }},
            std::clamp(20000 / records, 5, 100),
            [=] {
                *response = responseOf(records);
                *wide = orvtext::fromUtf8(*response);
            },
            [=] {
                *response = {};
                *wide = {};
            }};
}

Case writing(int nodes)
{
    std::mt19937 random(20261120);
    auto const feed = std::make_shared<Feed>(recordOfScene(nodes, random));
    auto const value = std::make_shared<Json::Value>();
    std::string const text = orvtext::toUtf8(FeedWriter().write(*feed));
    // Equal texts, so that both sides do the same work.
    bool const isSame = parseJson(text, *value) && writeJson(*value) == text;
    return {{"Write/" + std::to_string(nodes),
             [=, size = text.size()] { return isSame && writeJson(*value).size() == size; },
             [=, size = text.size()] { return FeedWriter().write(*feed).size() == size; }},
            std::clamp(1000000 / nodes, 50, 5000),
            [] {},
            [] {}};
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<Case> cases;
    for (int const records : {100, 1000, 10000}) {
        cases.push_back(reading(records));
    }
    for (int const nodes : {10, 1000, 100000}) {
        cases.push_back(writing(nodes));
    }
    benchmark::Initialize(&argc, argv);
    for (Case& each : cases) {
        each.pair.addBenchmark(each.iterations, benchmark::kMicrosecond, each.prepare, each.release);
    }
    benchmark::RunSpecifiedBenchmarks();

    orvbench::Aims aims;
    for (Case const& each : cases) {
        if (!each.pair.wasRun()) {
            continue; // left out by a filter
        }
        aims.expect(each.pair.title() + " did its work", each.pair.succeeded());
        aims.expectUnder(each.pair.title() + ", times the JSON library alone", each.pair.ratio(), limit, "");
    }
    return aims.exitStatus();
}
