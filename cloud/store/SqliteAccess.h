#pragma once

#include "cloud/store/SqliteConnection.h"
#include "cloud/store/WriteLock.h"

#include <condition_variable>
#include <filesystem>
#include <memory>
#include <mutex>
#include <type_traits>
#include <vector>

namespace orvcloud
{

/// A write transaction: exclusive among all threads and processes until it goes, undone unless it was committed.
class SqliteTransaction
{
public:
    SqliteTransaction(SqliteConnection& writer, WriteLock& lock);
    ~SqliteTransaction();
    SqliteTransaction(const SqliteTransaction&) = delete;
    SqliteTransaction& operator=(const SqliteTransaction&) = delete;

    void commit();

private:
    std::lock_guard<WriteLock> guard;
    SqliteConnection& connection;
    bool committed = false;
};

/// A database's connections: one that writes and checkpoints, some that read. From any thread; failures are
/// StoreErrors.
class SqliteAccess
{
public:
    /// Opens "cloud.db" of the directory and brings it to the present form.
    explicit SqliteAccess(const std::filesystem::path& directory);

    /// Runs `work(connection)` in a transaction of its own. If it throws, nothing is changed.
    template <class Work>
    auto write(const Work& work)
    {
        SqliteTransaction transaction(*writer, lock);
        if constexpr (std::is_void_v<decltype(work(*writer))>) {
            work(*writer);
            transaction.commit();
        } else {
            auto result = work(*writer);
            transaction.commit();
            return result;
        }
    }

    /// Runs `work(connection)` on a connection that can't write; waits for one if all are lent.
    template <class Work>
    auto read(const Work& work)
    {
        const Loan loan(*this);
        return work(*loan.connection);
    }

private:
    struct Loan {
        explicit Loan(SqliteAccess& access);
        ~Loan();
        Loan(const Loan&) = delete;
        Loan& operator=(const Loan&) = delete;

        SqliteAccess& owner;
        std::unique_ptr<SqliteConnection> connection;
    };

    WriteLock lock;
    std::unique_ptr<SqliteConnection> writer;
    std::mutex readerMutex;
    std::condition_variable readerIsIdle;
    std::vector<std::unique_ptr<SqliteConnection>> idleReaders;
};

} // namespace orvcloud
