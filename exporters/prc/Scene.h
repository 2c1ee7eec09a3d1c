#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace prc
{

// What a PRC file holds, as plain values: the tessellated subset of ISO 14739-1. Indices count from 0 in the lists of
// Scene. Texts are UTF-8.

struct Color {
    double red = 0, green = 0, blue = 0; ///< 0 to 1
    bool operator==(Color const&) const = default;
};

/// How a body or a face looks.
struct Style {
    Color color;
    std::uint8_t opacity = 255; ///< 255 opaque, 0 invisible
    bool operator==(Style const&) const = default;
};

/// Seconds since 1970.
struct Time {
    std::uint32_t seconds = 0;
    bool operator==(Time const&) const = default;
};
using AttributeValue = std::variant<std::monostate, std::int32_t, double, Time, std::string>;

/// A titled group of named values.
struct Attribute {
    std::string title;
    std::vector<std::pair<std::string, AttributeValue>> entries;
    bool operator==(Attribute const&) const = default;
};

/// A run of a mesh's triangles. Runs follow one another in the order of the triangles.
struct Face {
    std::size_t triangles = 0;       ///< how many
    std::vector<std::size_t> styles; ///< none (the body's style holds), one for all, or one a triangle
    bool operator==(Face const&) const = default;
};

/// Triangles in part coordinates, corners counter-clockwise seen from outside.
struct Mesh {
    std::vector<double> points;               ///< x y z for each point
    std::vector<double> normals;              ///< unit vectors; empty leaves them to the reader
    std::vector<std::uint32_t> pointIndices;  ///< three a triangle
    std::vector<std::uint32_t> normalIndices; ///< three a triangle, or none if there are no normals
    std::vector<Face> faces;                  ///< cover all triangles; at least one
    std::size_t triangleCount() const { return pointIndices.size() / 3; }
    bool operator==(Mesh const&) const = default;
};

/// A mesh as it stands in a part.
struct Body {
    std::string name;
    std::optional<std::size_t> mesh;
    std::optional<std::size_t> style;
    bool closed = false; ///< a closed solid: readers may leave out the triangles' backs
    bool hidden = false;
    bool operator==(Body const&) const = default;
};

struct Part {
    std::string name;
    std::vector<Attribute> attributes;
    std::vector<Body> bodies;
    bool operator==(Part const&) const = default;
};

/// A 4 x 4 matrix column by column, acting on column vectors: the translation stands in elements 12 to 14.
using Matrix = std::array<double, 16>;
inline constexpr Matrix identity{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

/// A node of the assembly tree: an assembly has children, an instance a part or a prototype, whose part or children it
/// takes over.
struct Occurrence {
    std::string name;
    std::vector<Attribute> attributes;
    std::optional<std::size_t> part;
    std::optional<std::size_t> prototype; ///< an occurrence that is nobody's child
    std::vector<std::size_t> children;    ///< each occurrence is the child of at most one
    Matrix placement = identity;          ///< relative to the parent
    bool hidden = false;
    bool operator==(Occurrence const&) const = default;
};

struct Scene {
    std::string name;
    double unit = 1; ///< millimetres to one unit of all coordinates and translations
    std::vector<Style> styles;
    std::vector<Mesh> meshes;
    std::vector<Part> parts;
    std::vector<Occurrence> occurrences;
    std::size_t root = 0; ///< index of an occurrence
    bool operator==(Scene const&) const = default;
};

/// Box along the axes.
struct Box {
    std::array<double, 3> minimum{};
    std::array<double, 3> maximum{};
    bool empty = true;
    void add(double x, double y, double z);
};

/// The box of a part's meshes; empty where it has none.
Box boxOf(Part const& part, std::vector<Mesh> const& meshes);

/// The first thing that keeps the scene from being a PRC file (an index out of range, a cycle, a number that is not
/// finite, ...) as a sentence; nothing where it is sound.
std::optional<std::string> problemOf(Scene const& scene);

} // namespace prc
