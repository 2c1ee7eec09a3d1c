#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace orvbench
{

/// A quarter of the runs took less. On a busy machine more than half of them may wait for a core, now on one side and
/// now on the other. At least one value.
inline double lowerQuartile(std::vector<double> values)
{
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 4);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace orvbench
