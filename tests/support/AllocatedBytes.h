#pragma once

#include <cstddef>

namespace orvtest
{

/// How many bytes this program has asked of `new` so far, those given back included. The program links
/// AllocatedBytes.cpp, which takes the operator's place.
std::size_t allocatedBytes();

} // namespace orvtest
