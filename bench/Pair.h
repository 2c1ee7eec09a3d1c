#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace orvbench
{

/// Two ways to the same end, measured in turns in one run, so that whatever else the machine does slows both alike.
class Pair
{
public:
    using Work = std::function<bool()>; ///< false where the work failed

    /// `name` is the benchmark's; `plain` is what `own` is compared with.
    Pair(std::string name, Work plain, Work own);

    /// Makes it a benchmark of its title, in this many iterations. It must stay in its place until that has run;
    /// `prepare` runs before and `release` after it.
    void addBenchmark(int iterations, benchmark::TimeUnit unit = benchmark::kMicrosecond,
                      std::function<void()> prepare = {}, std::function<void()> release = {});

    /// One round of each in each iteration, in alternating order. The benchmark's own time is that of `own`.
    void run(benchmark::State& state);

    std::string const& title() const { return name; }
    double ratio() const { return ownTime / plainTime; } ///< of the lower quartiles; after run
    /// What one round of `own` takes of this thread's processor time, milliseconds: the lower quartile; after run.
    double ownProcessorTime() const { return ownProcessor * 1e3; }
    bool wasRun() const { return isBegun; } ///< false where the command line left it out
    bool succeeded() const { return done; }

private:
    std::string name;
    Work plain;
    Work own;
    double plainTime = 1.0; ///< seconds
    double ownTime = 0.0;
    double ownProcessor = 0.0; ///< seconds
    bool isBegun = false;
    bool done = false;
};

} // namespace orvbench
