#include "cloud/store/SqliteConnection.h"

#include "cloud/store/StoreError.h"

#include <sqlite3.h>
#include <string>

namespace orvcloud
{
namespace
{
[[noreturn]] void fail(sqlite3* database, int code)
{
    const std::string reason = database ? sqlite3_errmsg(database) : sqlite3_errstr(code);
    throw StoreError("The database failed: " + reason + ".", (code & 0xFF) == SQLITE_FULL);
}
} // namespace

SqliteConnection::SqliteConnection(const std::filesystem::path& file, Role role)
{
    // Readers open for writing too, since a reader of a write-ahead log takes part in its shared memory.
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (role == Role::writer ? SQLITE_OPEN_CREATE : 0);
    const int code = sqlite3_open_v2(file.c_str(), &database, flags, nullptr);
    if (code != SQLITE_OK) {
        sqlite3_close_v2(database);
        throw StoreError("The database " + file.string() + " can't be opened: " + sqlite3_errstr(code) + ".");
    }
    sqlite3_extended_result_codes(database, 1);
    sqlite3_busy_timeout(database, 10'000);
    // The checkpoint belongs to the holder of the write lock, so closing must not start one.
    sqlite3_db_config(database, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    try {
        keepWriteAheadLog(file);
        run("PRAGMA synchronous=FULL");
        run("PRAGMA foreign_keys=ON");
        run("PRAGMA trusted_schema=OFF");
        if (role == Role::reader) {
            run("PRAGMA wal_autocheckpoint=0");
            run("PRAGMA query_only=ON");
        }
    } catch (...) {
        sqlite3_close_v2(database);
        throw;
    }
}

void SqliteConnection::keepWriteAheadLog(const std::filesystem::path& file)
{
    SqliteStatement mode(*this, "PRAGMA journal_mode=WAL"); // answers with the mode that is in force afterwards
    if (!mode.step() || mode.text(0) != "wal")
        throw StoreError("The database " + file.string() +
                         " can't keep a write-ahead log; the data directory must lie on a local file system.");
}

SqliteConnection::~SqliteConnection()
{
    sqlite3_close_v2(database);
}

void SqliteConnection::run(const char* sql)
{
    const int code = sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        fail(database, code);
}

std::int64_t SqliteConnection::lastRow() const
{
    return sqlite3_last_insert_rowid(database);
}

int SqliteConnection::changes() const
{
    return sqlite3_changes(database);
}

SqliteStatement::SqliteStatement(SqliteConnection& connection, const char* sql) : database(connection.handle())
{
    check(sqlite3_prepare_v2(database, sql, -1, &statement, nullptr));
}

SqliteStatement::~SqliteStatement()
{
    sqlite3_finalize(statement);
}

SqliteStatement& SqliteStatement::with(std::int64_t value)
{
    check(sqlite3_bind_int64(statement, ++values, value));
    return *this;
}

SqliteStatement& SqliteStatement::with(std::string_view text)
{
    const char* bytes = text.data() ? text.data() : "";
    check(sqlite3_bind_text64(statement, ++values, bytes, text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
    return *this;
}

SqliteStatement& SqliteStatement::with(const SecretHash& hash)
{
    check(sqlite3_bind_blob64(statement, ++values, hash.data(), hash.size(), SQLITE_TRANSIENT));
    return *this;
}

SqliteStatement& SqliteStatement::withNull()
{
    check(sqlite3_bind_null(statement, ++values));
    return *this;
}

bool SqliteStatement::step()
{
    const int code = sqlite3_step(statement);
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        fail(database, code);
    return code == SQLITE_ROW;
}

void SqliteStatement::run()
{
    while (step()) {
    }
}

std::int64_t SqliteStatement::number(int column) const
{
    return sqlite3_column_int64(statement, column);
}

bool SqliteStatement::isNull(int column) const
{
    return sqlite3_column_type(statement, column) == SQLITE_NULL;
}

std::string_view SqliteStatement::text(int column) const
{
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return bytes ? std::string_view(bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)))
                 : std::string_view();
}

void SqliteStatement::check(int code) const
{
    if (code != SQLITE_OK)
        fail(database, code);
}

} // namespace orvcloud
