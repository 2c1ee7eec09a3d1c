#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>

namespace orvtest
{

/// Red, green and blue, a byte each, from the top row down.
struct Pixels {
    int width = 0;
    int height = 0;
    std::string bytes;

    std::array<int, 3> pixel(int column, int row) const
    {
        auto const* const p =
            reinterpret_cast<unsigned char const*>(bytes.data()) +
            3 * (static_cast<std::size_t>(row) * static_cast<std::size_t>(width) + static_cast<std::size_t>(column));
        return {p[0], p[1], p[2]};
    }
    /// 0 to 1 from the upper left corner.
    std::array<int, 3> at(double x, double y) const
    {
        return pixel(static_cast<int>(x * (width - 1)), static_cast<int>(y * (height - 1)));
    }
};

/// The first page of a PDF file as poppler draws it.
Pixels pageOf(std::filesystem::path const& pdf, int pixelsPerInch);

} // namespace orvtest
