#include "bench/ChildProcess.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace orvbench
{

namespace
{
constexpr char const* pipeVariable = "ORV_BENCH_PIPE";
} // namespace

Usage runChild(std::string const& name)
{
    Usage usage;
    int ends[2];
    if (pipe(ends) != 0) {
        return usage;
    }
    auto const start = std::chrono::steady_clock::now();
    pid_t const child = fork();
    if (child == 0) {
        close(ends[0]);
        setenv(pipeVariable, std::to_string(ends[1]).c_str(), 1);
        execl("/proc/self/exe", "bench", "--child", name.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    close(ends[1]);
    char done = 0;
    bool const reported = child > 0 && read(ends[0], &done, 1) == 1;
    usage.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    close(ends[0]);
    int status = 0;
    rusage used{};
    wait4(child, &status, 0, &used);
    usage.succeeded = reported && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    usage.peakMegabytes = static_cast<double>(used.ru_maxrss) / 1024.0;
    return usage;
}

void reportDone()
{
    if (char const* const end = std::getenv(pipeVariable)) {
        if (write(std::atoi(end), "!", 1) != 1) {
            std::perror("The measurement could not be reported");
        }
    }
}

} // namespace orvbench
