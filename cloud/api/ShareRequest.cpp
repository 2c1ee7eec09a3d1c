#include "cloud/api/Requests.h"

#include "cloud/mail/Invitation.h"

#include <algorithm>
#include <set>

namespace orvcloud
{
namespace
{
constexpr std::size_t mostInvitations = 100;
constexpr std::size_t longestMessage = 16 * 1024;
} // namespace

Answer shareModel(const Call& call)
{
    const Parts& parts = call.parts;
    const auto model = parts.store.accessTo(call.account, call["fileid"]);
    if (!model)
        return noSuchModel();
    if (!model->owns)
        return fail(403, "Only the model's owner may share it.");
    if (call["comment"].size() > longestMessage)
        return fail(400, "The message is too long; keep it under 16,000 characters.");

    std::vector<std::string> addresses;
    std::set<std::string> known{lowerAscii(call.account.email)}; // the owner has access already
    for (const std::string_view piece : split(call["shareto"], ",;")) {
        const std::string_view address = trimmed(piece);
        if (address.empty())
            continue;
        if (!isMailAddress(address))
            return fail(400, "\"" + std::string(cut(address, 254)) + "\" isn't an e-mail address; nobody was invited.");
        if (known.insert(lowerAscii(address)).second)
            addresses.emplace_back(address);
    }
    if (known.size() == 1 && trimmed(call["shareto"]).find('@') == std::string_view::npos)
        return fail(400, "Give at least one e-mail address.");
    if (addresses.size() > mostInvitations)
        return fail(400, "Invite at most 100 people at a time; nobody was invited.");

    const std::int64_t wait = parts.invitations.take(call.account.id, static_cast<std::int64_t>(addresses.size()));
    if (wait > 0) {
        Answer answer = fail(429, "You have invited many people today; invite these ones tomorrow.");
        answer.headers.emplace_back("Retry-After", std::to_string(wait));
        return answer;
    }
    const std::int64_t now = parts.clock();
    parts.store.share(model->modelId, addresses, now);
    for (const std::string& address : addresses)
        parts.mailer.post(
            address, invitationMail({address, call.account.name, call.account.email, model->fileName, call["comment"],
                                     parts.publicUrl + "/shared/" + call["fileid"], parts.mailSender},
                                    now));
    return succeed(std::to_string(addresses.size()));
}

} // namespace orvcloud
