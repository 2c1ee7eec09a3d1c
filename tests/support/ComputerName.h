#pragma once

#include <string>

namespace orvtest
{

/// While it lives, the computer has this name for the program, or, where it is null, none that can be asked for. The
/// program links ComputerName.cpp, which stands before the system's function.
class ComputerName
{
public:
    explicit ComputerName(char const* name);
    ~ComputerName();
    ComputerName(ComputerName const&) = delete;
    ComputerName& operator=(ComputerName const&) = delete;
};

} // namespace orvtest
