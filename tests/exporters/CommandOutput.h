#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace orvtest
{

/// What a command writes to its standard output.
inline std::string outputOf(std::string const& command)
{
    std::unique_ptr<FILE, int (*)(FILE*)> const pipe(popen(command.c_str(), "r"), pclose);
    std::string text;
    for (int c = pipe ? std::fgetc(pipe.get()) : EOF; c != EOF; c = std::fgetc(pipe.get())) {
        text += static_cast<char>(c);
    }
    return text;
}

} // namespace orvtest
