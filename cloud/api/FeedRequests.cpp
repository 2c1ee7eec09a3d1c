#include "cloud/api/Requests.h"

#include "cloud/feed/Feed.h"
#include "cloud/feed/Record.h"

namespace orvcloud
{
namespace
{
bool isCommentId(const std::string& id)
{
    return !id.empty() && id.size() <= 200 && !hasControlCharacter(id);
}
} // namespace

Answer findFile(const Call& call)
{
    return succeed(call.parts.store.findModel(call.account, call["filename"]).value_or(""));
}

Answer readFeed(const Call& call)
{
    const auto model = call.parts.store.accessTo(call.account, call["jobid"]);
    if (!model)
        return noSuchModel();
    FeedText feed;
    // A client tells its user's own comments by comparing the address with the one that was typed at the login.
    const std::string& spelling = call["username"];
    const bool respells = spelling != call.account.email;
    call.parts.store.readFeed(model->modelId, [&](std::string_view record, std::int64_t author) {
        if (respells && author == call.account.id)
            return feed.add(withAuthorsAddress(record, spelling));
        return feed.add(record);
    });
    Answer answer = succeed(feed.finish());
    answer.contentType = "application/json";
    return answer;
}

Answer addComment(const Call& call)
{
    const auto model = call.parts.store.accessTo(call.account, call["jobid"]);
    if (!model)
        return noSuchModel();
    if (!isCommentId(call["commentid"]))
        return fail(400, "The comment's id can't be used; give it a new GUID.");
    auto record = prepareRecord(withPlusSigns(call["comment"]),
                                {call.account, call.head.bearer, call["jobid"], call["commentid"]});
    if (const auto* refusal = std::get_if<RecordRefusal>(&record))
        return fail(400, refusal->sentence);
    const auto change = call.parts.store.putComment(model->modelId, call.account.id,
                                                    {call["commentid"], std::move(std::get<std::string>(record))},
                                                    call.parts.commentQuota, call.parts.clock());
    if (change == CommentChange::refused)
        return fail(409, "This comment's id belongs to somebody else's comment; give the comment a new one.");
    if (change == CommentChange::overQuota)
        return fail(413, "Your comments take all the room that they may in this model's feed; delete some of them.");
    return succeed("ok");
}

Answer deleteComment(const Call& call)
{
    const auto model = call.parts.store.accessTo(call.account, call["jobid"]);
    if (!model)
        return noSuchModel();
    if (call.parts.store.deleteComment(model->modelId, call["commentid"], call.account.id) == CommentChange::refused)
        return fail(403, "Only the comment's author and the model's owner may delete it.");
    return succeed("ok");
}

} // namespace orvcloud
