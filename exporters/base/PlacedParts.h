#pragma once

#include "host/orvmath/Tuple.h"
#include "host/orvsg/Mesh.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orv
{
class IDocument;
}

namespace orvexport
{

/// How triangles look.
struct Look {
    std::uint32_t color = 0;  ///< packed: red in bits 0-7, green in 8-15, blue in 16-23
    float transparency = 0.F; ///< 0 opaque to 1 invisible
    bool operator==(Look const&) const = default;
    auto operator<=>(Look const&) const = default;
};

/// Triangles of one look, corners as vertex indices.
struct Piece {
    Look look;
    std::vector<std::uint32_t> triangles;
};

/// One occurrence of a part as it stands in the model.
struct PlacedPart {
    int node = 0;
    std::string name;                 ///< UTF-8
    orvmath::Tuple<double, 16> world; ///< column by column, millimetres
    std::shared_ptr<orvsg::Mesh const> mesh;
    std::vector<Piece> pieces;   ///< what can be drawn of the mesh; triangles that lead outside it are left out
    bool turnsInsideOut = false; ///< the placement mirrors: corners are to be taken the other way round
};

/// All parts of the model with triangles, in the order of their nodes, hidden ones too: what is not seen at the moment
/// is part of the model all the same. The user's colour of a node covers those of single faces.
std::vector<PlacedPart> placedParts(std::shared_ptr<orv::IDocument> const& document);

/// The vertex in the world, millimetres.
std::array<double, 3> worldPoint(PlacedPart const& part, std::uint32_t vertex);
/// Its unit normal in the world; zero where the mesh has none.
std::array<double, 3> worldNormal(PlacedPart const& part, std::uint32_t vertex);

/// The name of the model: that of its file without extension, or that of the root. UTF-8.
std::string modelName(std::shared_ptr<orv::IDocument> const& document);

} // namespace orvexport
