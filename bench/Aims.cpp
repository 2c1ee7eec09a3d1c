#include "bench/Aims.h"

#include <cstdio>

namespace orvbench
{

void Aims::expectUnder(std::string const& what, double value, double limit, std::string const& unit)
{
    bool const met = value < limit;
    missed = missed || !met;
    std::printf("%s %s: %.2f%s (aim: under %g%s)\n", met ? "met   " : "MISSED", what.c_str(), value, unit.c_str(),
                limit, unit.c_str());
}

void Aims::expect(std::string const& what, bool holds)
{
    missed = missed || !holds;
    std::printf("%s %s\n", holds ? "met   " : "MISSED", what.c_str());
}

} // namespace orvbench
