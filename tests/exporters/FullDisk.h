#pragma once

#include <csignal>

#include <sys/resource.h>

namespace prctest
{

/// Files of this process can't grow past a limit while this lives: a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t room) : handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit const limit{room, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }
    FullDisk(FullDisk const&) = delete;
    FullDisk& operator=(FullDisk const&) = delete;

private:
    void (*handler)(int);
    rlimit before{};
};

} // namespace prctest
