#pragma once

#include <optional>
#include <string>
#include <vector>

/// Other programs, started without a shell: no argument is ever read as a command.
namespace orvhost
{

/// Starts a program and leaves it alone. The first argument is its name, looked up in PATH. False where it can't be
/// started.
bool startProgram(std::vector<std::string> const& arguments);

/// What a program prints; empty where it can't be started, fails, prints 64 KiB or more, or takes longer than 5
/// seconds.
std::optional<std::string> outputOf(std::vector<std::string> const& arguments);

} // namespace orvhost
