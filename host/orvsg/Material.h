#pragma once

namespace orvsg
{

/// How a node looks: what the file says and what the user has laid over it. Packed colour: red in bits 0-7, green in
/// 8-15, blue in 16-23.
struct Material {
    bool hasOwnColor = false;     ///< the file gives this very node a colour
    unsigned long ownColor = 0;   ///< packed; meaningful with hasOwnColor
    float ownTransparency = 0.0F; ///< 0 opaque to 1 invisible, from the file
    bool isColored = false;       ///< the user has coloured the node
    unsigned long color = 0;      ///< packed; meaningful with isColored
    bool isTransparent = false;   ///< the user has made the node transparent
    float transparency = 0.0F;    ///< 0 to 1; meaningful with isTransparent

    bool operator==(Material const&) const = default;
};

} // namespace orvsg
