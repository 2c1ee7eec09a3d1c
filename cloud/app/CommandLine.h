#pragma once

#include "cloud/app/Service.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace orvcloud
{

/// What a command line asks for.
struct Command {
    enum class Kind { help, serve, addUser, setPassword, listUsers };
    Kind kind = Kind::help;
    Config config;
    std::string email;
    std::string name;
};

/// Reads a command line (without the program's name). Nothing, with a sentence in `error`, if it can't be understood.
std::optional<Command> readCommandLine(const std::vector<std::string>& arguments, std::string& error);

/// Does what the command line asks for and returns the program's exit code: 0 for success, 1 for a failure, 2 for a
/// command line that can't be understood. `serve` returns after SIGTERM or SIGINT.
int runCommandLine(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err);

} // namespace orvcloud
