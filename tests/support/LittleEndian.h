#pragma once

#include <cstddef>
#include <string>

namespace orvtest
{

/// A number's bytes, the lowest first.
inline std::string littleEndian(std::size_t value, int count)
{
    std::string bytes;
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    }
    return bytes;
}

} // namespace orvtest
