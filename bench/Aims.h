#pragma once

#include <string>

namespace orvbench
{

/// Says what was measured against what is aimed at, and keeps whether all aims were met.
class Aims
{
public:
    /// Met where `value` is under `limit`.
    void expectUnder(std::string const& what, double value, double limit, std::string const& unit);
    /// Met where it holds.
    void expect(std::string const& what, bool holds);

    int exitStatus() const { return missed ? 1 : 0; }

private:
    bool missed = false;
};

} // namespace orvbench
