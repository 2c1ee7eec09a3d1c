#include "cloud/api/Requests.h"

namespace orvcloud
{
namespace
{
std::string cookie(const std::string& value, std::int64_t seconds, bool secure)
{
    return "orvanta_session=" + value + "; Path=/api/; Max-Age=" + std::to_string(seconds) +
           "; HttpOnly; SameSite=Strict" + (secure ? "; Secure" : "");
}

/// Null unless the password is the account's. Takes equally long with and without an account.
bool passwordFits(const Parts& parts, const std::optional<Account>& account, const std::string& password)
{
    return account ? parts.passwords.matches(account->passwordHash, password) : parts.passwords.matchesNobody(password);
}
} // namespace

Answer logIn(const Call& call)
{
    const Parts& parts = call.parts;
    const std::string& email = call["username"];
    const std::string& password = call["password"];
    if (email.size() > 254 || password.size() > 1024)
        return fail(401, "The e-mail address or the password is wrong.");
    const std::int64_t wait = parts.throttle.begin(email, call.head.peer, call.head.peerIsLoopback);
    if (wait > 0) {
        Answer answer = fail(429, "There were too many attempts to sign in; try again in " + std::to_string(wait) +
                                      (wait == 1 ? " second." : " seconds."));
        answer.headers.emplace_back("Retry-After", std::to_string(wait));
        return answer;
    }
    const std::int64_t now = parts.clock();
    const std::string token = randomUuid();
    const std::string secret = randomSecret();
    std::optional<Account> account;
    do { // once more if the password was changed meanwhile
        account = parts.store.findAccount(email);
        if (!passwordFits(parts, account, password))
            return fail(401, "The e-mail address or the password is wrong.");
    } while (!parts.store.addSession(*account, hashOf(token), hashOf(secret), now));
    parts.throttle.succeeded(email, call.head.peer);
    if (parts.passwords.isOutdated(account->passwordHash))
        parts.store.renewPasswordHash(account->id, account->passwordHash, parts.passwords.hash(password));
    parts.store.dropSessionsUnusedSince(now - sessionLength);
    // The new cookie takes the old one's place in the client, so nobody could end the old session any more.
    if (!call.head.cookie.empty())
        parts.store.endSessionOfCookie(hashOf(call.head.cookie));
    Answer answer = succeed(token);
    answer.headers.emplace_back("Set-Cookie", cookie(secret, sessionLength, parts.secureCookies));
    return answer;
}

Answer recordDevice(const Call& call)
{
    const std::string& name = call["devicename"];
    const std::string& type = call["devicetype"];
    if (name.empty() || name.size() > 1000 || hasControlCharacter(name) || type.size() > 32 ||
        hasControlCharacter(type))
        return fail(400, "The device's name or type can't be used.");
    call.parts.store.recordDevice(call.account.id, name, type, call.parts.clock());
    return succeed("ok");
}

Answer logOut(const Call& call)
{
    if (!call.head.cookie.empty())
        call.parts.store.endSessionOfCookie(hashOf(call.head.cookie));
    Answer answer = succeed("ok");
    answer.headers.emplace_back("Set-Cookie", cookie("", 0, call.parts.secureCookies));
    return answer;
}

Answer accountInfo(const Call& call)
{
    Answer answer =
        succeed("{\"email\":" + jsonString(call.account.email) + ",\"id\":" + jsonString(call.account.publicId) +
                ",\"name\":" + jsonString(call.account.name) + "}\n");
    answer.contentType = "application/json";
    return answer;
}

} // namespace orvcloud
