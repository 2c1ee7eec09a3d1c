#include "bench/Pair.h"

#include "bench/LowerQuartile.h"

#include <chrono>
#include <ctime>
#include <utility>
#include <vector>

namespace orvbench
{

namespace
{

/// What this thread has had of the processor, seconds.
double processorTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Of each round, seconds.
struct Times {
    std::vector<double> clock;
    std::vector<double> processor;
};

bool timed(Pair::Work const& work, Times& times)
{
    double const before = processorTime();
    auto const start = std::chrono::steady_clock::now();
    bool const succeeded = work();
    times.clock.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    times.processor.push_back(processorTime() - before);
    return succeeded;
}

} // namespace

Pair::Pair(std::string title, Work plainWork, Work ownWork)
    : name(std::move(title)), plain(std::move(plainWork)), own(std::move(ownWork))
{
}

void Pair::addBenchmark(int iterations, benchmark::TimeUnit unit, std::function<void()> prepare,
                        std::function<void()> release)
{
    auto const whole = [this, prepare = std::move(prepare), release = std::move(release)](benchmark::State& state) {
        if (prepare) {
            prepare();
        }
        run(state);
        if (release) {
            release();
        }
    };
    benchmark::RegisterBenchmark(name.c_str(), whole)->UseManualTime()->Unit(unit)->Iterations(iterations);
}

void Pair::run(benchmark::State& state)
{
    isBegun = true;
    Times plainTimes;
    Times ownTimes;
    bool plainFirst = false;
    done = plain() && own(); // what is made once is made before the clock runs
    for (auto _ : state) {
        plainFirst = !plainFirst;
        bool const first = plainFirst ? timed(plain, plainTimes) : timed(own, ownTimes);
        bool const second = plainFirst ? timed(own, ownTimes) : timed(plain, plainTimes);
        if (!first || !second) {
            done = false;
            state.SkipWithError("a run failed");
            return;
        }
        state.SetIterationTime(ownTimes.clock.back());
    }
    plainTime = lowerQuartile(plainTimes.clock);
    ownTime = lowerQuartile(ownTimes.clock);
    ownProcessor = lowerQuartile(ownTimes.processor);
    state.counters["plain_us"] = plainTime * 1e6;
    state.counters["own_us"] = ownTime * 1e6;
    state.counters["own_cpu_us"] = ownProcessor * 1e6;
    state.counters["ratio"] = ratio();
}

} // namespace orvbench
