#pragma once

#include <json/value.h>
#include <optional>
#include <string>

namespace orvcloud
{

/// Reads a record as the service's clients do, and says in one sentence what they couldn't take: a value of another
/// kind than its member has, an integer outside 32 bits, a coordinate outside the range of a float. Members that are
/// missing or unknown are fine; those that are missing are null in the record afterwards. Nothing if all is well.
std::optional<std::string> unreadable(Json::Value& record);

} // namespace orvcloud
