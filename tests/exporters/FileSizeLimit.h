#pragma once

#include <csignal>

#include <sys/resource.h>

namespace prctest
{

/// Files of this process can't grow past a limit while this lives, as on a disk that takes no larger ones.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t most) : handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit const limit{most, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }
    FileSizeLimit(FileSizeLimit const&) = delete;
    FileSizeLimit& operator=(FileSizeLimit const&) = delete;

private:
    void (*handler)(int);
    rlimit before{};
};

} // namespace prctest
