#pragma once

#include <array>
#include <cstddef>

namespace orvmath
{

/// A fixed number of values of one kind: a point, a direction, a colour (3 floats), or a 4 by 4 matrix (16 floats,
/// column by column, the translation in elements 12 to 14). All elements are zero by default.
template <class T, std::size_t N>
class Tuple
{
public:
    Tuple() = default;
    Tuple(T x, T y, T z) requires(N == 3) : values{x, y, z} {}

    /// The caller keeps `index` below N.
    T& operator[](unsigned char const& index) { return values[index]; }
    T const& operator[](unsigned char const& index) const { return values[index]; }

    bool operator==(Tuple const&) const = default;

private:
    std::array<T, N> values{};
};

} // namespace orvmath
