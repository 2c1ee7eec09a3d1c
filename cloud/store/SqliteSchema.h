#pragma once

namespace orvcloud
{

class SqliteConnection;

/// Brings a database to the present form. Call it inside a write transaction. Throws StoreError if the database is of
/// a newer version than this program.
void prepareSchema(SqliteConnection& connection);

} // namespace orvcloud
