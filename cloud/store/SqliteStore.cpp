#include "cloud/store/SqliteStore.h"

#include "cloud/store/SqliteAccess.h"

namespace orvcloud
{
namespace
{
constexpr std::int64_t useGranularity = 300;

Account accountIn(const SqliteStatement& row)
{
    return {row.number(0), std::string(row.text(1)), std::string(row.text(2)), std::string(row.text(3)),
            std::string(row.text(4))};
}

class SqliteStore final : public Store
{
public:
    explicit SqliteStore(const std::filesystem::path& directory) : database(directory) {}

    bool addAccount(std::string_view email, std::string_view name, std::string_view publicId,
                    std::string_view passwordHash, std::int64_t now) override
    {
        return database.write([&](SqliteConnection& writer) {
            SqliteStatement(writer, "INSERT INTO account(email, name, public_id, password_hash, created) "
                                    "VALUES (?, ?, ?, ?, ?) ON CONFLICT(email) DO NOTHING")
                .with(email)
                .with(name)
                .with(publicId)
                .with(passwordHash)
                .with(now)
                .run();
            return writer.changes() == 1;
        });
    }

    std::optional<Account> findAccount(std::string_view email) override
    {
        return database.read([&](SqliteConnection& reader) -> std::optional<Account> {
            SqliteStatement row(reader,
                                "SELECT id, public_id, email, name, password_hash FROM account WHERE email = ?");
            row.with(email);
            return row.step() ? std::optional(accountIn(row)) : std::nullopt;
        });
    }

    std::vector<Account> accounts() override
    {
        return database.read([&](SqliteConnection& reader) {
            std::vector<Account> all;
            SqliteStatement row(reader, "SELECT id, public_id, email, name, password_hash FROM account ORDER BY email");
            while (row.step())
                all.push_back(accountIn(row));
            return all;
        });
    }

    void changePassword(std::int64_t account, std::string_view passwordHash) override
    {
        database.write([&](SqliteConnection& writer) {
            SqliteStatement(writer, "UPDATE account SET password_hash = ? WHERE id = ?")
                .with(passwordHash)
                .with(account)
                .run();
            SqliteStatement(writer, "DELETE FROM session WHERE account = ?").with(account).run();
        });
    }

    bool addSession(const Account& account, const SecretHash& token, const SecretHash& cookie,
                    std::int64_t now) override
    {
        return database.write([&](SqliteConnection& writer) {
            SqliteStatement(writer, "INSERT INTO session(account, token_hash, cookie_hash, created, last_used) "
                                    "SELECT id, ?, ?, ?, ? FROM account WHERE id = ? AND password_hash = ?")
                .with(token)
                .with(cookie)
                .with(now)
                .with(now)
                .with(account.id)
                .with(std::string_view(account.passwordHash))
                .run();
            return writer.changes() == 1;
        });
    }

    bool renewPasswordHash(std::int64_t account, std::string_view oldHash, std::string_view newHash) override
    {
        return database.write([&](SqliteConnection& writer) {
            SqliteStatement(writer, "UPDATE account SET password_hash = ? WHERE id = ? AND password_hash = ?")
                .with(newHash)
                .with(account)
                .with(oldHash)
                .run();
            return writer.changes() == 1;
        });
    }

    std::optional<Account> accountOfToken(const SecretHash& token, std::int64_t now, std::int64_t notBefore) override
    {
        return accountOfSession("SELECT a.id, public_id, email, name, password_hash, last_used, token_hash "
                                "FROM session s JOIN account a ON a.id = s.account WHERE token_hash = ?",
                                "UPDATE session SET last_used = ? WHERE token_hash = ?", token, now, notBefore);
    }

    std::optional<Account> accountOfCookie(const SecretHash& cookie, std::int64_t now, std::int64_t notBefore) override
    {
        return accountOfSession("SELECT a.id, public_id, email, name, password_hash, last_used, cookie_hash "
                                "FROM session s JOIN account a ON a.id = s.account WHERE cookie_hash = ?",
                                "UPDATE session SET last_used = ? WHERE cookie_hash = ?", cookie, now, notBefore);
    }

    void endSessionOfCookie(const SecretHash& cookie) override
    {
        database.write([&](SqliteConnection& writer) {
            SqliteStatement(writer, "DELETE FROM session WHERE cookie_hash = ?").with(cookie).run();
        });
    }

    void dropSessionsUnusedSince(std::int64_t moment) override
    {
        database.write([&](SqliteConnection& writer) {
            SqliteStatement(writer, "DELETE FROM session WHERE last_used < ?").with(moment).run();
        });
    }

    void recordDevice(std::int64_t account, std::string_view name, std::string_view type, std::int64_t now) override
    {
        database.write([&](SqliteConnection& writer) {
            SqliteStatement(writer, "INSERT INTO device(account, name, type, recorded) VALUES (?, ?, ?, ?) "
                                    "ON CONFLICT DO UPDATE SET type = excluded.type, recorded = excluded.recorded")
                .with(account)
                .with(name)
                .with(type)
                .with(now)
                .run();
        });
    }

    std::vector<Device> devicesOf(std::int64_t account) override
    {
        return database.read([&](SqliteConnection& reader) {
            std::vector<Device> all;
            SqliteStatement row(reader, "SELECT name, type, recorded FROM device WHERE account = ? ORDER BY name");
            row.with(account);
            while (row.step())
                all.push_back({std::string(row.text(0)), std::string(row.text(1)), row.number(2)});
            return all;
        });
    }

    std::optional<std::string> findModel(const Account& account, std::string_view fileName) override
    {
        return database.read([&](SqliteConnection& reader) -> std::optional<std::string> {
            SqliteStatement row(reader,
                                "SELECT job_id FROM (SELECT job_id, 1 AS own, 0 AS since, id FROM model "
                                "WHERE owner = ?1 AND file_name = ?2 UNION ALL "
                                "SELECT job_id, 0, s.created, m.id FROM share s JOIN model m ON m.id = s.model "
                                "WHERE s.address = ?3 AND m.file_name = ?2) ORDER BY own DESC, since DESC, id DESC");
            row.with(account.id).with(fileName).with(std::string_view(account.email));
            return row.step() ? std::optional(std::string(row.text(0))) : std::nullopt;
        });
    }

    std::optional<ModelAccess> accessTo(const Account& account, std::string_view jobId) override
    {
        return database.read([&](SqliteConnection& reader) -> std::optional<ModelAccess> {
            SqliteStatement row(reader, "SELECT id, file_name, owner = ?1 FROM model WHERE job_id = ?2 AND (owner = ?1 "
                                        "OR EXISTS (SELECT 1 FROM share WHERE model = model.id AND address = ?3))");
            row.with(account.id).with(jobId).with(std::string_view(account.email));
            if (!row.step())
                return std::nullopt;
            return ModelAccess{row.number(0), std::string(row.text(1)), row.number(2) != 0};
        });
    }

    std::string addVersion(std::int64_t owner, std::string_view fileName, const ModelVersion& version,
                           std::string_view newJobId, const std::function<std::vector<FeedEntry>()>& firstEntries,
                           std::int64_t now) override
    {
        return database.write([&](SqliteConnection& writer) {
            std::int64_t model = 0;
            std::string jobId;
            {
                SqliteStatement row(writer, "SELECT id, job_id FROM model WHERE owner = ? AND file_name = ?");
                row.with(owner).with(fileName);
                if (row.step()) {
                    model = row.number(0);
                    jobId = row.text(1);
                }
            }
            if (jobId.empty()) {
                jobId = newJobId;
                SqliteStatement(writer, "INSERT INTO model(job_id, owner, file_name, created) VALUES (?, ?, ?, ?)")
                    .with(newJobId)
                    .with(owner)
                    .with(fileName)
                    .with(now)
                    .run();
                model = writer.lastRow();
                for (const FeedEntry& entry : firstEntries())
                    insertComment(writer, model, std::nullopt, entry, now);
            }
            SqliteStatement(writer, "INSERT INTO version(model, type, content_hash, size, created) "
                                    "VALUES (?, ?, ?, ?, ?)")
                .with(model)
                .with(std::string_view(version.type))
                .with(std::string_view(version.contentHash))
                .with(static_cast<std::int64_t>(version.size))
                .with(now)
                .run();
            return jobId;
        });
    }

    void share(std::int64_t model, std::span<const std::string> addresses, std::int64_t now) override
    {
        database.write([&](SqliteConnection& writer) {
            for (const std::string& address : addresses)
                SqliteStatement(writer, "INSERT INTO share(model, address, created) VALUES (?, ?, ?) "
                                        "ON CONFLICT DO NOTHING")
                    .with(model)
                    .with(std::string_view(address))
                    .with(now)
                    .run();
        });
    }

    CommentChange putComment(std::int64_t model, std::int64_t author, const FeedEntry& entry, const CommentQuota& quota,
                             std::int64_t now) override
    {
        return database.write([&](SqliteConnection& writer) {
            SqliteStatement row(writer, "SELECT id, author, size FROM comment WHERE model = ? AND comment_id = ?");
            row.with(model).with(std::string_view(entry.commentId));
            const bool replaces = row.step();
            if (replaces && (row.isNull(1) || row.number(1) != author))
                return CommentChange::refused;

            SqliteStatement kept(writer, "SELECT count(*), total(size) FROM comment WHERE model = ? AND author = ?");
            kept.with(model).with(author).step();
            const auto size = static_cast<std::int64_t>(entry.content.size());
            if (kept.number(0) + (replaces ? 0 : 1) > quota.comments ||
                kept.number(1) + size - (replaces ? row.number(2) : 0) > quota.bytes)
                return CommentChange::overQuota;

            if (replaces)
                SqliteStatement(writer, "UPDATE comment SET content = ?, size = ?, updated = ? WHERE id = ?")
                    .with(std::string_view(entry.content))
                    .with(size)
                    .with(now)
                    .with(row.number(0))
                    .run();
            else
                insertComment(writer, model, author, entry, now);
            return CommentChange::done;
        });
    }

    CommentChange deleteComment(std::int64_t model, std::string_view commentId, std::int64_t asker) override
    {
        return database.write([&](SqliteConnection& writer) {
            SqliteStatement row(writer, "SELECT c.id, c.author, m.owner FROM comment c JOIN model m ON m.id = c.model "
                                        "WHERE c.model = ? AND c.comment_id = ?");
            row.with(model).with(commentId);
            if (!row.step())
                return CommentChange::absent;
            const bool isAuthor = !row.isNull(1) && row.number(1) == asker;
            if (!isAuthor && row.number(2) != asker)
                return CommentChange::refused;
            SqliteStatement(writer, "DELETE FROM comment WHERE id = ?").with(row.number(0)).run();
            return CommentChange::done;
        });
    }

    void readFeed(std::int64_t model, const std::function<bool(std::string_view, std::int64_t)>& visit) override
    {
        database.read([&](SqliteConnection& reader) {
            SqliteStatement row(reader, "SELECT content, author FROM comment WHERE model = ? ORDER BY id DESC");
            row.with(model);
            while (row.step() && visit(row.text(0), row.number(1))) { // a NULL is read as 0
            }
        });
    }

    std::vector<ModelVersion> versionsOf(std::int64_t model) override
    {
        return database.read([&](SqliteConnection& reader) {
            std::vector<ModelVersion> all;
            SqliteStatement row(reader, "SELECT type, content_hash, size FROM version WHERE model = ? ORDER BY id");
            row.with(model);
            while (row.step())
                all.push_back(
                    {std::string(row.text(0)), std::string(row.text(1)), static_cast<std::uint64_t>(row.number(2))});
            return all;
        });
    }

private:
    static void insertComment(SqliteConnection& writer, std::int64_t model, std::optional<std::int64_t> author,
                              const FeedEntry& entry, std::int64_t now)
    {
        SqliteStatement statement(writer, "INSERT INTO comment(model, comment_id, author, content, size, created, "
                                          "updated) VALUES (?, ?, ?, ?, ?, ?, ?)");
        statement.with(model).with(std::string_view(entry.commentId));
        if (author)
            statement.with(*author);
        else
            statement.withNull();
        statement.with(std::string_view(entry.content)).with(static_cast<std::int64_t>(entry.content.size()));
        statement.with(now).with(now).run();
    }

    std::optional<Account> accountOfSession(const char* find, const char* renew, const SecretHash& secret,
                                            std::int64_t now, std::int64_t notBefore)
    {
        std::int64_t lastUsed = 0;
        auto account = database.read([&](SqliteConnection& reader) -> std::optional<Account> {
            SqliteStatement row(reader, find);
            row.with(secret);
            if (!row.step() || row.number(5) < notBefore)
                return std::nullopt;
            const std::string_view found = row.text(6);
            const std::string_view given(reinterpret_cast<const char*>(secret.data()), secret.size());
            if (!equalInConstantTime(found, given))
                return std::nullopt;
            lastUsed = row.number(5);
            return accountIn(row);
        });
        if (account && now - lastUsed >= useGranularity)
            database.write(
                [&](SqliteConnection& writer) { SqliteStatement(writer, renew).with(now).with(secret).run(); });
        return account;
    }

    SqliteAccess database;
};

} // namespace

std::unique_ptr<Store> openSqliteStore(const std::filesystem::path& dataDirectory)
{
    return std::make_unique<SqliteStore>(dataDirectory);
}

} // namespace orvcloud
