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

/// What the request says that a record comes with.
struct RecordOrigin {
    const Account& author;
    std::string_view token; ///< the request's secret
    std::string_view jobId;
    std::string_view commentId;
};

/// Makes of a record that a client sent the one that is stored: `author.id`, `.name` and `.email` become the account's
/// own; every other byte stays as it came. Refused is what isn't one JSON object in UTF-8 of at most `largestRecord`
/// bytes and `mostJsonValues` values, what a reader of the feed couldn't take (see `unreadable`), a record whose own
/// `file.id` or `commentcontent.id` is another than the request's, and one in which the token stands anywhere but in
/// `author.id`, `.name` or `.email`.
std::variant<std::string, RecordRefusal> prepareRecord(std::string_view value, const RecordOrigin& origin);

/// A stored record with its author's e-mail address spelled in another way, everything else byte for byte as it is.
std::string withAuthorsAddress(std::string_view record, std::string_view email);

/// Undoes the one escape that clients put into a comment besides the form's own: "%2b" stands for "+".
std::string withPlusSigns(std::string_view value);

} // namespace orvcloud
