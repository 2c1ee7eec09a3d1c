#pragma once

#include <cstdlib>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>

namespace orvtest
{

/// Environment variables that a test changes: they have their earlier values again at the end.
class ScopedVariables
{
public:
    explicit ScopedVariables(std::initializer_list<char const*> names)
    {
        for (char const* const name : names) {
            char const* const value = std::getenv(name);
            earlier[name] = value == nullptr ? std::nullopt : std::optional<std::string>(value);
        }
    }
    ~ScopedVariables()
    {
        for (auto const& [name, value] : earlier) {
            value ? ::setenv(name.c_str(), value->c_str(), 1) : ::unsetenv(name.c_str());
        }
    }
    ScopedVariables(ScopedVariables const&) = delete;
    ScopedVariables& operator=(ScopedVariables const&) = delete;

private:
    std::map<std::string, std::optional<std::string>> earlier;
};

} // namespace orvtest
