#pragma once

#include <string>

namespace orvbench
{

/// What a process of its own used.
struct Usage {
    bool succeeded = false;
    double seconds = 0.0;       ///< from the start of the process to the moment that it reported
    double peakMegabytes = 0.0; ///< largest resident set
};

/// Starts this program again with `--child NAME`, so that every run begins with nothing loaded, and waits for its end.
Usage runChild(std::string const& name);

/// In the child: says that what is measured is done now.
void reportDone();

} // namespace orvbench
