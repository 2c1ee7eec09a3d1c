#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace prc
{

/// Numbers that stand before the entities of a section (ISO 14739-1).
enum class Entity : std::uint32_t {
    mesh = 172,
    face = 174,
    polylines = 175,
    attribute = 201,
    cartesianTransformation = 202,
    generalTransformation = 207,
    pointSet = 236,
    polyBrepModel = 237,
    polyWire = 238,
    set = 239,
    coordinateSystem = 240,
    modelFile = 301,
    internalData = 302,
    globals = 303,
    tree = 304,
    tessellation = 305,
    geometry = 306,
    extraGeometry = 307,
    productOccurrence = 310,
    partDefinition = 311,
    style = 701,
    material = 702,
    linePattern = 721,
};

/// Bits of the graphics' behaviour.
inline constexpr std::uint16_t behaviourShown = 0x0001;

/// Data that a Cartesian transformation carries.
namespace cartesian
{
inline constexpr std::uint8_t translation = 0x01;
inline constexpr std::uint8_t rotation = 0x02;
inline constexpr std::uint8_t mirror = 0x04;
inline constexpr std::uint8_t uniformScale = 0x08;
inline constexpr std::uint8_t nonUniformScale = 0x10;
inline constexpr std::uint8_t nonOrthogonal = 0x20;
inline constexpr std::uint8_t homogeneous = 0x40;
} // namespace cartesian

/// Kinds of triangle data in a face. The one-normal kinds stand four bits higher, the textured ones eight.
namespace triangulated
{
inline constexpr std::uint32_t triangles = 0x0002;
inline constexpr std::uint32_t fans = 0x0004;
inline constexpr std::uint32_t strips = 0x0008;
inline constexpr std::uint32_t oneNormalTriangles = 0x0020;
inline constexpr std::uint32_t oneNormalFans = 0x0040;
inline constexpr std::uint32_t oneNormalStrips = 0x0080;
} // namespace triangulated

/// 8137 is the highest version whose content is public, and the one that deployed readers take.
inline constexpr std::uint32_t formatVersion = 8137;

using UniqueId = std::array<std::uint32_t, 4>;

/// Sections of a file structure in their order in the file; the model file follows them.
inline constexpr std::size_t sectionCount = 6;
inline constexpr std::size_t startHeaderSize = 43;
inline constexpr std::size_t fileHeaderSize = 107; ///< with one file structure
inline constexpr std::size_t fileStructureHeaderSize = 47;

} // namespace prc
