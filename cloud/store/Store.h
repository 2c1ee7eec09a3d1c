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

enum class CommentChange { done, refused, absent };

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
    virtual void setPasswordHash(std::int64_t account, std::string_view passwordHash) = 0;

    /// A session has two secrets: the token, and the cookie for what carries no token.
    virtual void addSession(std::int64_t account, const SecretHash& token, const SecretHash& cookie,
                            std::int64_t now) = 0;
    /// The account of a session that was used after `notBefore`; its last use becomes `now`, to within five minutes.
    virtual std::optional<Account> accountOfToken(const SecretHash& token, std::int64_t now,
                                                  std::int64_t notBefore) = 0;
    virtual std::optional<Account> accountOfCookie(const SecretHash& cookie, std::int64_t now,
                                                   std::int64_t notBefore) = 0;
    virtual void endSessionOfCookie(const SecretHash& cookie) = 0;
    virtual void endSessionsOf(std::int64_t account) = 0;
    virtual void dropSessionsUnusedSince(std::int64_t moment) = 0;

    /// The same account and name are one device; a second record of it renews its type and moment.
    virtual void recordDevice(std::int64_t account, std::string_view name, std::string_view type, std::int64_t now) = 0;

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
    /// `refused` if the id belongs to another author; then nothing is changed.
    virtual CommentChange putComment(std::int64_t model, std::int64_t author, const FeedEntry& entry,
                                     std::int64_t now) = 0;
    /// `absent` if there is none, `refused` unless `asker` is the comment's author or the model's owner.
    virtual CommentChange deleteComment(std::int64_t model, std::string_view commentId, std::int64_t asker) = 0;
    /// Gives the entries' contents, newest first, until `visit` returns false.
    virtual void readFeed(std::int64_t model, const std::function<bool(std::string_view)>& visit) = 0;
};

} // namespace orvcloud
