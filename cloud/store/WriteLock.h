#pragma once

#include <filesystem>
#include <mutex>

namespace orvcloud
{

/// Excludes all other writers of a data directory, in this process and in others, while it is held. The database's own
/// locks would keep transactions apart, but a transaction of one process and a checkpoint of another can still meet;
/// the log of the packaged database version may then lose pages, so both run under this lock.
class WriteLock
{
public:
    /// Makes the lock's file if there is none. Throws StoreError if it can't.
    explicit WriteLock(const std::filesystem::path& file);
    ~WriteLock();
    WriteLock(const WriteLock&) = delete;
    WriteLock& operator=(const WriteLock&) = delete;

    void lock();
    /// False at once if somebody else holds it.
    bool try_lock();
    void unlock();

private:
    std::mutex threads;
    int descriptor;
};

} // namespace orvcloud
