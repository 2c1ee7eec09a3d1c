#pragma once

#include "cloud/api/Parts.h"
#include "cloud/http/Exchange.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orvcloud
{

/// A request whose parameters are there and whose sender is known.
struct Call {
    const Parts& parts;
    RequestHead head;
    Parameters parameters;
    Account account; ///< the sender; without meaning where a route asks for none

    /// The parameter's value, empty where it is missing: required ones were checked before.
    const std::string& operator[](std::string_view name) const;
};

Answer succeed(std::string body);
/// A failure with its sentence, which tells the client what to do next. It becomes one line, whatever it quotes.
Answer fail(unsigned status, std::string sentence);
/// For a model that isn't there and for one that the sender may not see. Nobody can tell one from the other.
Answer noSuchModel();

/// What must hold for the parameters of every request before it is handled: no text is there twice or isn't UTF-8
/// (checked by the parser), the application is the known one, all of `required` are there, the e-mail address is the
/// account's, and the session's token stands in none but `mayHoldToken`. An answer if something doesn't.
std::optional<Answer> checkParameters(const Call& call, std::span<const std::string_view> required, bool namesAccount,
                                      std::string_view mayHoldToken);

} // namespace orvcloud
