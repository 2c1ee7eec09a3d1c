#include "cloud/api/Api.h"

#include "cloud/api/Requests.h"
#include "cloud/api/Upload.h"
#include "cloud/api/WelcomePage.h"
#include "cloud/feed/Record.h"

#include <array>
#include <vector>

namespace orvcloud
{
namespace
{
enum class Asks { nothing, cookieIfThere, cookie, token };

struct Route {
    std::string_view method;
    std::string_view path;
    Asks asks;
    Answer (*handle)(const Call&); ///< null for uploads
    std::vector<std::string_view> required;
    std::uint64_t bodyLimit;
};

constexpr std::uint64_t formLimit = 1U << 20;
// Nobody is known yet who could be told to stop.
constexpr std::uint64_t strangersLimit = 16 * 1024;
// Every byte of the largest comment may come as three, and a plus sign, already escaped by the client, as five.
constexpr std::uint64_t commentLimit = 5 * largestRecord + 64 * 1024;

const std::vector<Route>& routes()
{
    static const std::vector<Route> all{
        {"POST", "/api/Login/", Asks::nothing, logIn, {"username", "password"}, strangersLimit},
        {"POST",
         "/api/InstalledDevice/",
         Asks::cookie,
         recordDevice,
         {"username", "devicename", "devicetype"},
         formLimit},
        {"POST", "/api/Logout/", Asks::cookieIfThere, logOut, {}, strangersLimit},
        {"GET", "/api/AccountInfo/", Asks::token, accountInfo, {"username"}, 0},
        {"GET", "/api/isFilePresent/", Asks::token, findFile, {"username", "filename"}, 0},
        {"POST", "/api/UploadInput/", Asks::token, nullptr, {}, 0},
        {"POST", "/api/Upload/", Asks::token, nullptr, {}, 0},
        {"GET", "/api/CommentSync/", Asks::token, readFeed, {"username", "jobid"}, 0},
        {"POST",
         "/api/CommentSync/",
         Asks::token,
         addComment,
         {"username", "jobid", "commentid", "comment"},
         commentLimit},
        {"POST", "/api/DeleteComment/", Asks::token, deleteComment, {"username", "jobid", "commentid"}, formLimit},
        {"POST", "/api/Share/", Asks::token, shareModel, {"username", "fileid", "shareto", "comment"}, formLimit},
    };
    return all;
}

/// Takes a form's body, or none, and hands the call over.
class FormSink final : public BodySink
{
public:
    FormSink(const Parts& parts, const RequestHead& head, Account account, const Route& served)
        : call{parts, head, {}, std::move(account)}, route(served)
    {
    }

    std::optional<Answer> take(std::string_view bytes) override
    {
        body += bytes;
        return std::nullopt;
    }

    Answer finish() override
    {
        auto parsed = parseForm(route.method == "GET" ? call.head.query : body);
        std::string().swap(body);
        if (!parsed)
            return fail(400, "The request's parameters can't be read: each is given once, as UTF-8, percent-encoded.");
        call.parameters = std::move(*parsed);
        const bool namesAccount = route.asks == Asks::token;
        // A comment's record names its author by the token; what is stored of it doesn't.
        if (auto answer =
                checkParameters(call, route.required, namesAccount, route.handle == addComment ? "comment" : ""))
            return std::move(*answer);
        return route.handle(call);
    }

private:
    Call call;
    const Route& route;
    std::string body;
};

Admission refused(Answer answer)
{
    Admission admission;
    admission.refusal = std::move(answer);
    return admission;
}

Admission refuseMethod(const std::string& allowed)
{
    Answer answer = fail(405, "This address takes " + allowed + " alone.");
    answer.headers.emplace_back("Allow", allowed);
    return refused(std::move(answer));
}

Answer signInFirst()
{
    Answer answer = fail(401, "The session isn't valid or has expired; sign in again.");
    answer.headers.emplace_back("WWW-Authenticate", "Bearer");
    return answer;
}

std::optional<Account> senderOf(const Parts& parts, const RequestHead& head, Asks asks)
{
    const std::int64_t now = parts.clock();
    if (asks == Asks::token && !head.bearer.empty())
        return parts.store.accountOfToken(hashOf(head.bearer), now, now - sessionLength);
    if (asks == Asks::cookie && !head.cookie.empty())
        return parts.store.accountOfCookie(hashOf(head.cookie), now, now - sessionLength);
    return std::nullopt;
}

Admission admitTo(const Route& route, const Parts& parts, const RequestHead& head)
{
    if (!equalInConstantTime(head.apiKey, parts.apiKey))
        return refused(fail(403, "This application isn't known to the service."));
    Account account;
    if (route.asks == Asks::token || route.asks == Asks::cookie) {
        auto sender = senderOf(parts, head, route.asks);
        if (!sender)
            return refused(signInFirst());
        account = std::move(*sender);
    }
    Admission admission;
    if (!route.handle) {
        admission.sink = makeUploadSink(parts, head, account);
        admission.bodyLimit = parts.uploadBytes;
        if (!admission.sink)
            return refused(fail(415, "Send the file as multipart/form-data."));
        return admission;
    }
    const auto type = std::string_view(head.contentType).substr(0, head.contentType.find(';'));
    if (route.method == "POST" && lowerAscii(trimmed(type)) != "application/x-www-form-urlencoded")
        return refused(fail(415, "Send the parameters as application/x-www-form-urlencoded."));
    admission.sink = std::make_unique<FormSink>(parts, head, std::move(account), route);
    admission.bodyLimit = route.bodyLimit;
    admission.slow = route.handle == logIn;
    return admission;
}

/// Answers what needs no parameters.
class PageSink final : public BodySink
{
public:
    std::optional<Answer> take(std::string_view) override { return std::nullopt; }
    Answer finish() override { return welcomePage(); }
};
} // namespace

Api::Api(Parts serviceParts) : parts(std::move(serviceParts)) {}

Admission Api::admit(const RequestHead& head)
{
    constexpr std::string_view pagePath = "/shared/";
    if (head.path.starts_with(pagePath)) {
        Admission admission;
        if (head.method != "GET")
            admission = refuseMethod("GET");
        admission.sink = std::make_unique<PageSink>();
        admission.loggedPath = pagePath;
        return admission;
    }
    std::string allowed;
    for (const Route& route : routes()) {
        if (route.path != head.path)
            continue;
        if (route.method == head.method) {
            Admission admission = admitTo(route, parts, head);
            admission.loggedPath = route.path;
            return admission;
        }
        allowed += (allowed.empty() ? "" : ", ") + std::string(route.method);
    }
    if (allowed.empty())
        return refused(fail(404, "There is nothing at this address."));
    Admission admission = refuseMethod(allowed);
    admission.loggedPath = head.path;
    return admission;
}

} // namespace orvcloud
