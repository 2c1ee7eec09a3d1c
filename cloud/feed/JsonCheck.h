#pragma once

#include <cstddef>
#include <string_view>

namespace orvcloud
{

/// The most values in a record's text, members and elements counted: far more than the nodes of the largest assembly
/// need, and few enough that the text's tree stays below some 50 MB.
constexpr std::size_t mostJsonValues = 500'000;

/// Checks in one pass, before any tree is made of a JSON text, what the parser would let through: numbers that JSON
/// doesn't know (RFC 8259, section 6: no leading zeros, no bare point), control characters inside strings (section 7),
/// and more values than `mostJsonValues`. The rest of the grammar is left to the parser.
bool isPlainJson(std::string_view text);

} // namespace orvcloud
