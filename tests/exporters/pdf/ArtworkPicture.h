#pragma once

#include "exporters/pdf/StoredView.h"

#include <array>
#include <cstddef>
#include <limits>
#include <vector>

namespace orvtest
{

/// What shows in one pixel of the artwork.
struct ArtworkPixel {
    static constexpr double nowhere = std::numeric_limits<double>::infinity();

    int instance = -1; ///< the nearest opaque part's, counted from 0 as they stand in the tree; -1 for none
    double depth = nowhere;
    std::array<double, 3> color{}; ///< its colour without light, 0 to 1
    int seeThrough = -1;           ///< the nearest see-through part's, in front of the opaque one or behind it
    double seeThroughDepth = nowhere;

    /// What lies in front: -1 for none.
    int front() const { return seeThroughDepth < depth ? seeThrough : instance; }
};

/// The artwork as a reader of 3D content shows it in the stored view, from the top row down: hidden occurrences are
/// absent, parts stand where the tree places them.
struct ArtworkPicture {
    int width = 0;
    int height = 0;
    std::vector<ArtworkPixel> pixels;

    ArtworkPixel const& at(int column, int row) const
    {
        return pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(column)];
    }
};

ArtworkPicture drawArtwork(StoredView const& view, double pixelsPerPoint);

} // namespace orvtest
