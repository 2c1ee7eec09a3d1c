#pragma once

#include "cloud/base/Secret.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvcloud
{

struct Account {
    std::int64_t id = 0;
    std::string publicId; ///< a UUID that every reader of a feed may see
    std::string email;    ///< as it was registered; compared without regard to case
    std::string name;
    std::string passwordHash;
};

/// A computer that an account was used on.
struct Device {
    std::string name;
    std::string type;
    std::int64_t recorded = 0;
};

/// What a user may do with a model, as far as the model exists for this user at all.
struct ModelAccess {
    std::int64_t modelId = 0;
    std::string fileName;
    bool owns = false;
};

/// One stored file of a model. The hash is SHA-256 in 64 hexadecimal digits.
struct ModelVersion {
    std::string type;
    std::string contentHash;
    std::uint64_t size = 0;
};

struct FeedEntry {
    std::string commentId;
    std::string content; ///< the record's JSON text
};

enum class CommentChange { done, refused, absent, overQuota };

/// What one author may keep in one model's feed.
struct CommentQuota {
    std::int64_t comments = 5'000;
    std::int64_t bytes = std::int64_t{64} << 20; ///< of JSON text
};

/// All that the service keeps, except the models' files. Every operation is one transaction and is durable when it
/// returns; all may be called from any thread. Moments are seconds since 1970. E-mail addresses are compared without
/// regard to the case of A to Z. Operations throw StoreError if the database fails, and only then.
class Store
{
public:
    virtual ~Store() = default;

    /// False, and nothing changed, if the address is taken. Shares made to the address before apply at once.
    virtual bool addAccount(std::string_view email, std::string_view name, std::string_view publicId,
                            std::string_view passwordHash, std::int64_t now) = 0;
    virtual std::optional<Account> findAccount(std::string_view email) = 0;
    virtual std::vector<Account> accounts() = 0;
    /// Gives the account another password, which ends all its sessions.
    virtual void changePassword(std::int64_t account, std::string_view passwordHash) = 0;

    /// A session has two secrets: the token, and the cookie for what carries no token. `account` is the one that the
    /// password was checked against: false, and nothing changed, if its password is another one by now.
    virtual bool addSession(const Account& account, const SecretHash& token, const SecretHash& cookie,
                            std::int64_t now) = 0;
    /// Another hash of the same password. False, and nothing changed, if the account's hash isn't `oldHash` any more.
    virtual bool renewPasswordHash(std::int64_t account, std::string_view oldHash, std::string_view newHash) = 0;
    /// The account of a session that was used after `notBefore`; its last use becomes `now`, to within five minutes.
    virtual std::optional<Account> accountOfToken(const SecretHash& token, std::int64_t now,
                                                  std::int64_t notBefore) = 0;
    virtual std::optional<Account> accountOfCookie(const SecretHash& cookie, std::int64_t now,
                                                   std::int64_t notBefore) = 0;
    virtual void endSessionOfCookie(const SecretHash& cookie) = 0;
    virtual void dropSessionsUnusedSince(std::int64_t moment) = 0;

    /// The same account and name are one device; a second record of it renews its type and moment.
    virtual void recordDevice(std::int64_t account, std::string_view name, std::string_view type, std::int64_t now) = 0;
    /// By name.
    virtual std::vector<Device> devicesOf(std::int64_t account) = 0;

    /// The job id of the account's own model of this file name, else of the one most recently shared with it.
    virtual std::optional<std::string> findModel(const Account& account, std::string_view fileName) = 0;
    /// Empty both for a model that isn't there and for one that the account has no access to.
    virtual std::optional<ModelAccess> accessTo(const Account& account, std::string_view jobId) = 0;
    /// Adds a version to the owner's model of this file name and returns the model's job id. A model that is new gets
    /// `newJobId` and, in its feed, what `firstEntries` makes for it.
    virtual std::string addVersion(std::int64_t owner, std::string_view fileName, const ModelVersion& version,
                                   std::string_view newJobId,
                                   const std::function<std::vector<FeedEntry>()>& firstEntries, std::int64_t now) = 0;
    virtual void share(std::int64_t model, std::span<const std::string> addresses, std::int64_t now) = 0;

    /// Adds the entry, or replaces the one of the same id by the same author, which keeps its place in the feed.
    /// `refused` if the id belongs to another author, `overQuota` if the author had more than `quota` in the feed with
    /// it; then nothing is changed.
    virtual CommentChange putComment(std::int64_t model, std::int64_t author, const FeedEntry& entry,
                                     const CommentQuota& quota, std::int64_t now) = 0;
    /// `absent` if there is none, `refused` unless `asker` is the comment's author or the model's owner.
    virtual CommentChange deleteComment(std::int64_t model, std::string_view commentId, std::int64_t asker) = 0;
    /// Gives the entries, newest first, until `visit(content, author)` returns false. The service's own have author 0.
    virtual void readFeed(std::int64_t model,
                          const std::function<bool(std::string_view content, std::int64_t author)>& visit) = 0;
    /// A model's versions, oldest first.
    virtual std::vector<ModelVersion> versionsOf(std::int64_t model) = 0;
};

} // namespace orvcloud
