#include "cloud/api/Call.h"

namespace orvcloud
{

const std::string& Call::operator[](std::string_view name) const
{
    static const std::string missing;
    const std::string* value = parameters.find(name);
    return value ? *value : missing;
}

Answer succeed(std::string body)
{
    Answer answer;
    answer.body = std::move(body);
    return answer;
}

Answer fail(unsigned status, std::string sentence)
{
    Answer answer;
    answer.status = status;
    answer.body = oneLine(std::move(sentence));
    return answer;
}

Answer noSuchModel()
{
    return fail(404, "There is no such model; push it first, or ask its owner to share it with you.");
}

std::optional<Answer> checkParameters(const Call& call, std::span<const std::string_view> required, bool namesAccount,
                                      std::string_view mayHoldToken)
{
    if (!equalInConstantTime(call["name"], call.parts.apiId))
        return fail(403, "This application isn't known to the service.");
    for (const std::string_view name : required)
        if (!call.parameters.find(name))
            return fail(400, "The parameter \"" + std::string(name) + "\" is missing.");
    if (namesAccount && lowerAscii(call["username"]) != lowerAscii(call.account.email))
        return fail(401, "The session belongs to another user; sign in again.");
    if (!call.head.bearer.empty())
        for (const auto& [name, value] : call.parameters.all())
            if (name != mayHoldToken && (name + value).find(call.head.bearer) != std::string::npos)
                return fail(400, "The session's token is a secret and belongs into the Authorization header alone.");
    return std::nullopt;
}

} // namespace orvcloud
