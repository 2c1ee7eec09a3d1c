#include "host/orvsgutils/VisibilityChanger.h"

#include <cstddef>

namespace orvsgutils
{

void VisibilityChanger::operator()(int node)
{
    if (node >= 0 && static_cast<std::size_t>(node) < bits.size()) {
        bits[static_cast<std::size_t>(node)] = value;
    }
}

} // namespace orvsgutils
