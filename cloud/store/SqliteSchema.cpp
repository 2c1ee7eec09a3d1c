#include "cloud/store/SqliteSchema.h"

#include "cloud/store/SqliteConnection.h"
#include "cloud/store/StoreError.h"

namespace orvcloud
{
namespace
{
constexpr std::int64_t presentVersion = 2;

// An author of NULL is the service itself. Shares name an address and not an account, so that an invitation works for
// somebody who gets an account afterwards.
constexpr const char* firstSchema = R"sql(
CREATE TABLE account (
    id INTEGER PRIMARY KEY,
    public_id TEXT NOT NULL UNIQUE,
    email TEXT NOT NULL COLLATE NOCASE UNIQUE,
    name TEXT NOT NULL,
    password_hash TEXT NOT NULL,
    created INTEGER NOT NULL
) STRICT;
CREATE TABLE session (
    token_hash BLOB NOT NULL PRIMARY KEY,
    cookie_hash BLOB NOT NULL UNIQUE,
    account INTEGER NOT NULL REFERENCES account(id) ON DELETE CASCADE,
    created INTEGER NOT NULL,
    last_used INTEGER NOT NULL
) STRICT;
CREATE INDEX session_by_account ON session(account);
CREATE TABLE device (
    account INTEGER NOT NULL REFERENCES account(id) ON DELETE CASCADE,
    name TEXT NOT NULL,
    type TEXT NOT NULL,
    recorded INTEGER NOT NULL,
    PRIMARY KEY (account, name)
) STRICT;
CREATE TABLE model (
    id INTEGER PRIMARY KEY,
    job_id TEXT NOT NULL UNIQUE,
    owner INTEGER NOT NULL REFERENCES account(id),
    file_name TEXT NOT NULL,
    created INTEGER NOT NULL,
    UNIQUE (owner, file_name)
) STRICT;
CREATE TABLE version (
    id INTEGER PRIMARY KEY,
    model INTEGER NOT NULL REFERENCES model(id) ON DELETE CASCADE,
    type TEXT NOT NULL,
    content_hash TEXT NOT NULL,
    size INTEGER NOT NULL,
    created INTEGER NOT NULL
) STRICT;
CREATE INDEX version_by_model ON version(model);
CREATE TABLE share (
    model INTEGER NOT NULL REFERENCES model(id) ON DELETE CASCADE,
    address TEXT NOT NULL COLLATE NOCASE,
    created INTEGER NOT NULL,
    PRIMARY KEY (model, address)
) STRICT;
CREATE INDEX share_by_address ON share(address);
CREATE TABLE comment (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    model INTEGER NOT NULL REFERENCES model(id) ON DELETE CASCADE,
    comment_id TEXT NOT NULL,
    author INTEGER REFERENCES account(id),
    content TEXT NOT NULL,
    created INTEGER NOT NULL,
    updated INTEGER NOT NULL,
    UNIQUE (model, comment_id)
) STRICT;
CREATE INDEX comment_by_model ON comment(model, id);
)sql";

// The size in bytes is kept beside the text, so that an author's comments are added up without reading them.
constexpr const char* secondSchema = R"sql(
ALTER TABLE comment ADD COLUMN size INTEGER NOT NULL DEFAULT 0;
UPDATE comment SET size = length(CAST(content AS BLOB));
CREATE INDEX comment_by_author ON comment(model, author, size);
PRAGMA user_version = 2;
)sql";
} // namespace

void prepareSchema(SqliteConnection& connection)
{
    SqliteStatement version(connection, "PRAGMA user_version");
    version.step();
    const std::int64_t found = version.number(0);
    if (found > presentVersion)
        throw StoreError("The data directory was written by a newer version of orvanta-cloud; start that version.");
    if (found < 1)
        connection.run(firstSchema);
    if (found < 2)
        connection.run(secondSchema);
}

} // namespace orvcloud
