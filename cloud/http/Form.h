#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvcloud
{

/// A request's parameters in the order in which they came. UTF-8, checked by whoever reads them.
class Parameters
{
public:
    /// False, and nothing added, if the name is already there: no parameter may be given twice.
    bool add(std::string name, std::string value);
    /// Null if there is no such parameter.
    const std::string* find(std::string_view name) const;
    const std::vector<std::pair<std::string, std::string>>& all() const { return entries; }

private:
    std::vector<std::pair<std::string, std::string>> entries;
};

/// Undoes percent-encoding, and "+" for a blank as forms have it. Nothing if an escape is broken.
std::optional<std::string> decodeComponent(std::string_view text);

/// Parses `application/x-www-form-urlencoded` text (WHATWG URL, section 5.1), a body or a query. Nothing if an escape
/// is broken, a parameter is given twice, a text isn't UTF-8, or there are more than 64 parameters.
std::optional<Parameters> parseForm(std::string_view text);

} // namespace orvcloud
