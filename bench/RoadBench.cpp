// From the start of the viewer to the first drawn frame, and the whole road of one comment: time, and memory of the
// viewer. Every run is a process of its own. Needs a display: tests/with-display build/release/bin/bench_road

#include "bench/ChildProcess.h"
#include "platform/Process.h"
#include "tour/Driver.h"
#include "tour/ReviewView.h"
#include "tour/ServiceProcess.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>

namespace
{

QString as1()
{
    return ORV_SHARED_DIR "/models/as1-oc-214.stp";
}
QString sample()
{
    return ORV_BINARY_DIR "/samples/planetary-gearbox.step";
}

orvtour::Driver::Options options(QTemporaryDir const& data, QString const& url)
{
    orvtour::Driver::Options made;
    made.dataDirectory = data.filePath("viewer").toStdWString();
    made.libraryDirectory = QStringLiteral(ORV_BINARY_DIR "/lib").toStdWString();
    made.serviceUrl = url.toStdWString();
    made.failure = [](std::string const& why) { std::fprintf(stderr, "%s\n", why.c_str()); };
    return made;
}

bool drawFirstFrame(QString const& model)
{
    QTemporaryDir const data;
    orvtour::Driver driver(options(data, "http://127.0.0.1:9"));
    if (!driver.showWindow() || !driver.openModel(model.toStdWString()) || driver.viewPicture().isNull()) {
        return false;
    }
    orvbench::reportDone();
    return true;
}

bool walkTheRoad(QString const& model)
{
    QTemporaryDir const data;
    orvtour::ServiceProcess service(ORV_BINARY_DIR "/bin/orvanta-cloud", data.filePath("service"));
    if (!service.addUser("ann@example.com", "Ann", "planet carrier 42") || !service.start()) {
        return false;
    }
    orvtour::Driver driver(options(data, service.url()));
    bool const walked = driver.showWindow() && driver.openModel(model.toStdWString()) &&
                        driver.signIn("ann@example.com", "planet carrier 42") && orvtour::arrangeReviewView(driver) &&
                        driver.typeComment("A remark") && driver.submitComment() && orvtour::resetView(driver);
    if (!walked || !driver.clickBlock(0) || driver.viewPicture().isNull()) {
        return false;
    }
    orvbench::reportDone();
    return true;
}

int runAsChild(std::string const& name, int& argc, char** argv)
{
    orvplatform::prepareProcess();
    QApplication application(argc, argv);
    QString const model = name.ends_with("as1") ? as1() : sample();
    return (name.starts_with("frame") ? drawFirstFrame(model) : walkTheRoad(model)) ? 0 : 1;
}

void measure(benchmark::State& state, std::string const& child, QString const& model)
{
    if (!QFile::exists(model)) {
        state.SkipWithError("skipped: the model is not beside this checkout");
        return;
    }
    double peak = 0.0;
    for (auto _ : state) {
        orvbench::Usage const usage = orvbench::runChild(child);
        if (!usage.succeeded) {
            state.SkipWithError("the run failed");
            return;
        }
        state.SetIterationTime(usage.seconds);
        peak = std::max(peak, usage.peakMegabytes);
    }
    state.counters["peak_MB"] = peak;
}

void registerAll()
{
    auto const add = [](char const* title, std::string child, QString model) {
        benchmark::RegisterBenchmark(title, [=](benchmark::State& state) { measure(state, child, model); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(3);
    };
    add("StartToFirstFrame/as1-oc-214", "frame-as1", as1());
    add("StartToFirstFrame/planetary-gearbox", "frame-sample", sample());
    add("WholeRoad/as1-oc-214", "road-as1", as1());
    add("WholeRoad/planetary-gearbox", "road-sample", sample());
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3 && std::strcmp(argv[1], "--child") == 0) {
        std::string const name = argv[2];
        argc = 1;
        return runAsChild(name, argc, argv);
    }
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
