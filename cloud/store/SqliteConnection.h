#pragma once

#include "cloud/base/Secret.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace orvcloud
{

/// One connection to the database. Not for two threads at once. Every failure is a StoreError.
class SqliteConnection
{
public:
    enum class Role { writer, reader };

    SqliteConnection(const std::filesystem::path& file, Role role);
    ~SqliteConnection();
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;

    /// Runs statements that return nothing and take no values.
    void run(const char* sql);
    std::int64_t lastRow() const;
    int changes() const;
    sqlite3* handle() const { return database; }

private:
    void keepWriteAheadLog(const std::filesystem::path& file);

    sqlite3* database = nullptr;
};

/// One prepared statement with its values. Columns and values are counted from zero.
class SqliteStatement
{
public:
    SqliteStatement(SqliteConnection& connection, const char* sql);
    ~SqliteStatement();
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;

    SqliteStatement& with(std::int64_t value);
    SqliteStatement& with(std::string_view text);
    SqliteStatement& with(const SecretHash& hash);
    SqliteStatement& withNull();

    /// True while there is a row to read.
    bool step();
    /// For statements that give no row.
    void run();

    std::int64_t number(int column) const;
    bool isNull(int column) const;
    /// Valid until the next step.
    std::string_view text(int column) const;

private:
    void check(int code) const;

    sqlite3* database;
    sqlite3_stmt* statement = nullptr;
    int values = 0;
};

} // namespace orvcloud
