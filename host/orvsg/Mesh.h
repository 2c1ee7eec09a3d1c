#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace orvsg
{

/// A run of a mesh's triangles that came from one face of the solid.
struct MeshFace {
    std::uint32_t firstTriangle = 0;
    std::uint32_t triangleCount = 0;
    std::optional<unsigned long> color; ///< packed; set where the file colours this face by itself

    bool operator==(MeshFace const&) const = default;
};

/// The tessellation of one part, in the part's own coordinates (millimetres). Shared by all occurrences of the part.
struct Mesh {
    std::vector<float> positions;         ///< x y z for each vertex
    std::vector<float> normals;           ///< unit vectors, one for each vertex
    std::vector<std::uint32_t> triangles; ///< three vertex indices each, counter-clockwise seen from outside
    std::vector<MeshFace> faces;          ///< cover all triangles, in order
};

} // namespace orvsg
