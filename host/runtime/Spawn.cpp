#include "host/runtime/Spawn.h"

#include <algorithm>
#include <chrono>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvhost
{

namespace
{

constexpr std::chrono::seconds patience(5);
constexpr std::size_t outputLimit = 65536;

/// The process id, or -1. What the program prints goes to `output`, or nowhere with -1.
pid_t spawn(std::vector<std::string> arguments, int output)
{
    std::vector<char*> argv;
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    if (output >= 0) {
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    } else {
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    }
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = -1;
    int const error = posix_spawnp(&process, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? process : -1;
}

/// Reads until the other end closes. False where that doesn't come before the limit or the deadline.
bool readOutput(int pipe, std::string& text)
{
    auto const deadline = std::chrono::steady_clock::now() + patience;
    char block[4096];
    while (text.size() < outputLimit) {
        auto const left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        pollfd ready{pipe, POLLIN, 0};
        if (left.count() <= 0 || ::poll(&ready, 1, static_cast<int>(left.count())) == 0) {
            return false;
        }
        ssize_t const count = ::read(pipe, block, sizeof block);
        if (count <= 0) {
            return count == 0;
        }
        text.append(block, static_cast<std::size_t>(count));
    }
    return false;
}

} // namespace

bool startProgram(std::vector<std::string> const& arguments)
{
    static std::vector<pid_t> running;
    // Those that have ended in the meantime are taken off the system's list here.
    std::erase_if(running, [](pid_t process) { return ::waitpid(process, nullptr, WNOHANG) != 0; });
    pid_t const process = spawn(arguments, -1);
    if (process > 0) {
        running.push_back(process);
    }
    return process > 0;
}

std::optional<std::string> outputOf(std::vector<std::string> const& arguments)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        return std::nullopt;
    }
    pid_t const process = spawn(arguments, ends[1]);
    ::close(ends[1]);
    std::string text;
    bool const isRead = process > 0 && readOutput(ends[0], text);
    ::close(ends[0]);
    if (process <= 0) {
        return std::nullopt;
    }
    if (!isRead) {
        ::kill(process, SIGKILL);
    }
    int status = 0;
    ::waitpid(process, &status, 0);
    if (!isRead || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        return std::nullopt;
    }
    return text;
}

} // namespace orvhost
