// The feed pane with 100, 1,000 and 10,000 records that carry pictures: how long it takes to fill it for the first
// time, to rebuild it, to load a feed whole and to scroll, and what it keeps in memory, beside the bare cost of parsing
// the feed and reading the pictures' headers. Times are the processor's, since one thread does it all and others may
// use the machine, and the lower quartiles of several rounds, each with a pane of its own.
// Ends non-zero where an aim is missed: QT_QPA_PLATFORM=offscreen build/release/bin/bench_pane
// Numbers of records as arguments measure these alone.

#include "bench/Aims.h"
#include "bench/LowerQuartile.h"
#include "feed/FeedReader.h"
#include "tests/ui/feed/FeedPaneFixture.h"

#include <benchmark/benchmark.h>

#include <QAbstractScrollArea>
#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <malloc.h>
#include <map>
#include <string>
#include <vector>

namespace
{

namespace codes = orv::HintCode;

double processorMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double timed(std::function<void()> const& work)
{
    double const start = processorMilliseconds();
    work();
    return processorMilliseconds() - start;
}

/// All but one in twenty took no longer. Steps of scrolling aren't alike, so it is the slow ones that are felt.
double percentile95(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() * 95 / 100];
}

double residentMebibytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmRSS:") {
            double kibibytes = 0.0;
            status >> kibibytes;
            return kibibytes / 1024.0;
        }
    }
    return 0.0;
}

/// A picture as the viewer takes one: soft shades and hard edges, 256 pixels square.
std::string jpeg(int number)
{
    QImage image(256, 256, QImage::Format_RGB32);
    image.fill(QColor(235, 238, 242));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 24; ++i) {
        QRadialGradient shade(90 + i * 5, 100 + i * 3, 60);
        shade.setColorAt(0, QColor::fromHsv((number * 37 + i * 15) % 360, 120, 240));
        shade.setColorAt(1, QColor::fromHsv((number * 37 + i * 15) % 360, 160, 90));
        painter.setBrush(shade);
        painter.drawEllipse(QPoint(30 + (i * 53 + number * 11) % 200, 30 + (i * 31) % 200), 12 + i, 10 + i);
    }
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 85);
    return buffer.data().toStdString();
}

std::string feedOf(std::size_t count)
{
    constexpr int pictures = 32;
    std::vector<std::wstring> uris;
    for (int i = 0; i < pictures; ++i) {
        uris.push_back(orvtest::dataUri(jpeg(i)));
    }
    std::vector<Feed> feeds;
    for (std::size_t i = 0; i < count; ++i) {
        Feed feed = orvtest::comment(L"The planet carrier touches the housing here; move it by two millimetres, " +
                                     std::to_wstring(i));
        feed.comment.objects.hidden = {1, 2, 3};
        feed.thumbnail = uris[i % pictures];
        feeds.push_back(std::move(feed));
    }
    return orvtest::feedJson(feeds);
}

struct Costs {
    double parse = 0.0;   ///< milliseconds of processor time, as all the next
    double headers = 0.0; ///< decoding the texts and reading the pictures' headers
    double first = 0.0;   ///< hint 40 with a pool of 100 blocks, until the pane is drawn
    double rebuild = 0.0; ///< hint 40 again, until the pane is drawn
    double load = 0.0;    ///< of the first load what comes before hint 40: answers taken over, parse
    double frame = 0.0;   ///< one step of scrolling over the whole bar, the 95th percentile
    double slowestFrame = 0.0;
    double selection = 0.0; ///< hint 10 with all records on show, until the pane is drawn
    double texts = 0.0;     ///< MiB of three copies of the records' texts
    double files = 0.0;     ///< MiB of one copy of their pictures' files
    double grown = 0.0;     ///< MiB in memory with the feed on show, less what was there before
    bool isWhole = true;
};

constexpr int rounds = 5;
constexpr double bytesOfMebibyte = 1048576.0;

double textBytes(Feed const& feed)
{
    std::size_t characters = feed.thumbnail.size() + feed.source.size();
    for (std::wstring const* text :
         {&feed.author.id, &feed.author.name, &feed.author.email, &feed.file.id, &feed.file.name, &feed.comment.id,
          &feed.comment.content, &feed.comment.publishedTime, &feed.comment.updatedTime}) {
        characters += text->size();
    }
    return static_cast<double>(characters * sizeof(wchar_t) + sizeof(Feed));
}

void measureBareCost(std::string const& answer, Costs& costs)
{
    std::wstring const response = orvtext::widenBytes(answer);
    std::vector<double> parses;
    std::vector<double> headers;
    std::vector<Feed> feeds;
    for (int i = 0; i < rounds; ++i) {
        parses.push_back(timed([&] { feeds = FeedReader().read(response); }));
        headers.push_back(timed([&] {
            for (Feed const& feed : feeds) {
                std::string const bytes = decodeThumbnail(feed);
                QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
                QBuffer buffer(&data);
                buffer.open(QIODevice::ReadOnly);
                benchmark::DoNotOptimize(QImageReader(&buffer).size());
            }
        }));
    }
    for (Feed const& feed : feeds) {
        costs.texts += 3.0 * textBytes(feed) / bytesOfMebibyte;
        costs.files += static_cast<double>(decodeThumbnail(feed).size()) / bytesOfMebibyte;
    }
    costs.parse = orvbench::lowerQuartile(parses);
    costs.headers = orvbench::lowerQuartile(headers);
}

/// The pane in a window of its own, outside of any test.
class PaneRun : public orvtest::FeedPaneTest
{
public:
    /// Fills the pane for the first time.
    Costs show(std::string const& answer, std::size_t count)
    {
        Costs costs;
        malloc_trim(0); // or what went before would hide what the pane takes
        signIn();
        frame.MoveWindow(0, 0, 340, 900);
        frame.ShowWindow(SW_SHOW);
        openPaneWithModel();
        orvplatform::testing::processEvents();

        double const before = residentMebibytes();
        // The hint alone, apart from the requests and the parse before it.
        application->notifier->deliver = [&](orv::IHint* hint) { costs.first = timed([&] { pane->OnUpdate(hint); }); };
        expectFeedText(answer);
        costs.load = timed([&] { pane->OnActivateChange(true); }) - costs.first;
        costs.first += timed([] { orvplatform::testing::processEvents(); });
        costs.grown = residentMebibytes() - before;
        costs.isWhole = visibleBlocks() == static_cast<int>(count);
        return costs;
    }

    /// A hint to the filled pane, until it is drawn.
    double hint(short code)
    {
        std::vector<double> times;
        for (int i = 0; i < rounds; ++i) {
            times.push_back(timed([&] {
                orvtest::sendHint(*pane, code, scene.document);
                orvplatform::testing::processEvents();
            }));
        }
        return orvbench::lowerQuartile(times);
    }

    /// Down over the whole bar of the filled pane, each step to records that haven't been seen before it.
    void measureScrolling(Costs& costs)
    {
        auto* const area = orvplatform::widgetOf(list())->findChild<QAbstractScrollArea*>();
        QScrollBar& bar = *area->verticalScrollBar();
        std::vector<double> frames;
        constexpr int steps = 200;
        for (int i = 0; i < steps; ++i) {
            frames.push_back(timed([&] {
                bar.setValue(static_cast<int>(std::int64_t{bar.maximum()} * i / (steps - 1)));
                orvplatform::testing::processEvents();
            }));
        }
        costs.frame = percentile95(frames);
        costs.slowestFrame = *std::max_element(frames.begin(), frames.end());
    }

private:
    void TestBody() override {}
};

Costs measure(std::size_t count)
{
    std::string const answer = feedOf(count);
    Costs costs;
    measureBareCost(answer, costs);
    std::vector<double> firsts;
    std::vector<double> loads;
    for (int i = 0; i < rounds; ++i) {
        PaneRun run;
        Costs const shown = run.show(answer, count);
        firsts.push_back(shown.first);
        loads.push_back(shown.load);
        costs.isWhole = costs.isWhole && shown.isWhole;
        if (i == 0) {
            costs.grown = shown.grown; // later ones find room that earlier ones left
        }
        if (i == rounds - 1) {
            costs.rebuild = run.hint(codes::feedReloaded);
            costs.selection = run.hint(codes::selectionChanged);
            run.measureScrolling(costs);
        }
    }
    costs.first = orvbench::lowerQuartile(firsts);
    costs.load = orvbench::lowerQuartile(loads);
    return costs;
}

std::vector<std::size_t> argumentsOf(int argc, char** argv)
{
    std::vector<std::size_t> numbers;
    for (int i = 1; i < argc; ++i) {
        numbers.push_back(std::strtoul(argv[i], nullptr, 10));
    }
    return numbers;
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    std::vector<std::size_t> const chosen = argumentsOf(argc, argv);
    std::vector<std::size_t> const counts = chosen.empty() ? std::vector<std::size_t>{100, 1000, 10000} : chosen;
    std::map<std::size_t, Costs> all;
    std::printf("%8s %10s %10s %10s %10s %10s %9s %9s %9s %10s %10s %10s\n", "records", "parse ms", "headers ms",
                "first ms", "rebuild ms", "load ms", "frame ms", "worst ms", "hint10 ms", "texts MiB", "files MiB",
                "grown MiB");
    for (std::size_t const count : counts) {
        Costs const costs = all[count] = measure(count);
        std::printf("%8zu %10.1f %10.1f %10.1f %10.1f %10.1f %9.2f %9.2f %9.3f %10.1f %10.1f %10.1f\n", count,
                    costs.parse, costs.headers, costs.first, costs.rebuild, costs.load, costs.frame, costs.slowestFrame,
                    costs.selection, costs.texts, costs.files, costs.grown);
        std::fflush(stdout);
    }
    if (!chosen.empty()) {
        return 0; // aims are set for all sizes
    }
    constexpr double linear = 13.0; // ten times as many records, and what caches no longer hold
    orvbench::Aims aims;
    for (std::size_t const count : counts) {
        aims.expect(std::to_string(count) + " records are all on show", all[count].isWhole);
        constexpr double frame = 1000.0 / 60.0;
        aims.expectUnder(std::to_string(count) + " records, 95 of 100 steps over the whole bar", all[count].frame,
                         frame, " ms");
        aims.expectUnder(std::to_string(count) + " records, a selection", all[count].selection, frame, " ms");
    }
    constexpr double atOnce = 150.0;
    aims.expectUnder("1,000 records shown first and drawn", all[1000].first, atOnce, " ms");
    aims.expectUnder("1,000 records rebuilt and drawn", all[1000].rebuild, atOnce, " ms");
    aims.expectUnder("10,000 records shown first, times 1,000", all[10000].first / all[1000].first, linear, "");
    aims.expectUnder("10,000 records rebuilt and drawn, times 1,000", all[10000].rebuild / all[1000].rebuild, linear,
                     "");
    aims.expectUnder("memory for 10,000 records, times three copies of their texts and their pictures' files",
                     all[10000].grown / (all[10000].texts + all[10000].files), 1.15, "");
    return aims.exitStatus();
}
