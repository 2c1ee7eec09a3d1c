#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orvexp::native
{

// What the exporter of the viewer's own format and the viewer that opens it agree on. A file ".orvanta" is a binary
// document of the CAD kernel's application framework: the assembly tree with names, colours, placements and triangles,
// as any program on that kernel reads it. Behind it stands a seal, and on a label of the document's own what a tree of
// shapes has no place for: the state of each node, in the order of the nodes.

/// A binary document begins with it.
inline constexpr std::string_view beginning = "BINFILE";

/// The seal: this mark, the length of what stands before it in 8 bytes, and its CRC-32 in 4, the lowest byte first.
inline constexpr std::string_view sealMark = "ORVANTA1";
inline constexpr std::size_t sealSize = 8 + 8 + 4;

/// Tag of the label below the main label that holds the state.
inline constexpr int stateTag = 4177;

/// Tags of the labels below it, each with one array.
enum StateTag : int {
    names = 1,             ///< texts, one a node
    placements = 2,        ///< reals, 16 a node: the current placements, column by column
    initialPlacements = 3, ///< the same, as the model's first file gave them
    flags = 4,             ///< integers, one a node: Flag, or-ed
    colors = 5,            ///< integers, two a node: own and of the user
    transparencies = 6,    ///< reals, two a node: own and of the user
    coloredNodes = 7,      ///< integers in the order of the record; missing where it is empty
    transparentNodes = 8,  ///< the same
    camera = 9             ///< reals: eye, target, up, centre (3 each), radius, field of view, 1 if orthographic
};
inline constexpr int cameraNumbers = 15;

enum Flag : int {
    visible = 1,
    isPlaced = 2,          ///< the current placement is set
    isPlacedInitially = 4, ///< the initial placement is set
    hasOwnColor = 8,
    isColored = 16,
    isTransparent = 32
};

} // namespace orvexp::native
