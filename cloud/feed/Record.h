#pragma once

#include "cloud/store/Store.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

namespace orvcloud
{

/// The largest record of a comment, in bytes of JSON text.
constexpr std::size_t largestRecord = std::size_t{4} << 20;

/// Why a record isn't taken, in one sentence.
struct RecordRefusal {
    std::string sentence;
};

/// Makes of a record that a client sent the one that is stored: `author.id`, `.name` and `.email` become the account's
/// own; every other byte stays as it came. Refused is what isn't one JSON object in UTF-8 of at most `largestRecord`
/// bytes, what a reader of the feed couldn't take (see `unreadable`), and a record in which `token`, the secret that
/// came with the request, stands anywhere but in `author.id`, `.name` or `.email`.
std::variant<std::string, RecordRefusal> prepareRecord(std::string_view value, const Account& author,
                                                       std::string_view token);

/// Undoes the one escape that clients put into a comment besides the form's own: "%2b" stands for "+".
std::string withPlusSigns(std::string_view value);

} // namespace orvcloud
