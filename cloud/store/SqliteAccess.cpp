#include "cloud/store/SqliteAccess.h"

#include "cloud/store/SqliteSchema.h"
#include "cloud/store/StoreError.h"

#include <utility>

namespace orvcloud
{
namespace
{
constexpr std::size_t readerCount = 4;

std::unique_ptr<SqliteConnection> openWriter(const std::filesystem::path& file, WriteLock& lock)
{
    const std::lock_guard guard(lock); // the first opening writes the file's header
    return std::make_unique<SqliteConnection>(file, SqliteConnection::Role::writer);
}
} // namespace

SqliteTransaction::SqliteTransaction(SqliteConnection& writer, WriteLock& lock) : guard(lock), connection(writer)
{
    connection.run("BEGIN IMMEDIATE");
}

SqliteTransaction::~SqliteTransaction()
{
    if (committed)
        return;
    try {
        connection.run("ROLLBACK");
    } catch (const StoreError&) {
        // a failed statement may have rolled back by itself
    }
}

void SqliteTransaction::commit()
{
    connection.run("COMMIT");
    committed = true;
}

SqliteAccess::SqliteAccess(const std::filesystem::path& directory)
    : lock(directory / "write.lock"), writer(openWriter(directory / "cloud.db", lock))
{
    write([](SqliteConnection& connection) { prepareSchema(connection); });
    for (std::size_t i = 0; i < readerCount; ++i)
        idleReaders.push_back(
            std::make_unique<SqliteConnection>(directory / "cloud.db", SqliteConnection::Role::reader));
}

SqliteAccess::Loan::Loan(SqliteAccess& access) : owner(access)
{
    std::unique_lock guard(owner.readerMutex);
    owner.readerIsIdle.wait(guard, [this] { return !owner.idleReaders.empty(); });
    connection = std::move(owner.idleReaders.back());
    owner.idleReaders.pop_back();
}

SqliteAccess::Loan::~Loan()
{
    const std::lock_guard guard(owner.readerMutex);
    owner.idleReaders.push_back(std::move(connection));
    owner.readerIsIdle.notify_one();
}

} // namespace orvcloud
