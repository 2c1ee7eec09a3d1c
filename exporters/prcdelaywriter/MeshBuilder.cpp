#include "exporters/prcdelaywriter/MeshBuilder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace prcdelay
{

namespace
{

using Triple = std::array<float, 3>;

struct TripleHash {
    std::size_t operator()(Triple const& triple) const
    {
        std::size_t hash = 0;
        for (float const number : triple)
            hash = (hash ^ std::hash<float>()(number)) * 0x9E3779B97F4A7C15U;
        return hash ^ (hash >> 32);
    }
};

Triple tripleAt(std::vector<float> const& numbers, std::size_t i)
{
    return {numbers[3 * i], numbers[3 * i + 1], numbers[3 * i + 2]};
}

bool isFinite(Triple const& triple)
{
    return std::all_of(triple.begin(), triple.end(), [](float x) { return std::isfinite(x); });
}

// A list of triples, each stored once. Numbers are found again by the vertex that they came from.
class Pool
{
public:
    explicit Pool(std::size_t vertices) : places(vertices, unset) {}

    template <class Stored>
    std::uint32_t place(std::size_t vertex, Triple const& triple, std::vector<double>& list, Stored stored)
    {
        if (places[vertex] == unset) {
            auto const [entry, isNew] = known.try_emplace(triple, static_cast<std::uint32_t>(list.size() / 3));
            if (isNew)
                for (double const number : stored(triple))
                    list.push_back(number);
            places[vertex] = entry->second;
        }
        return places[vertex];
    }

private:
    static constexpr std::uint32_t unset = 0xFFFFFFFF;
    std::vector<std::uint32_t> places;
    std::unordered_map<Triple, std::uint32_t, TripleHash> known;
};

// The parts of the mesh that look alike, in order: the faces, or everything where they don't cover the triangles.
std::vector<orvsg::MeshFace> runsOf(orvsg::Mesh const& mesh)
{
    auto const triangles = static_cast<std::uint32_t>(mesh.triangles.size() / 3);
    std::uint32_t next = 0;
    for (auto const& face : mesh.faces) {
        if (face.firstTriangle != next || face.triangleCount > triangles - next)
            return {{0, triangles, {}}};
        next += face.triangleCount;
    }
    if (next != triangles || mesh.faces.empty())
        return {{0, triangles, {}}};
    return mesh.faces;
}

bool hasUsableNormals(orvsg::Mesh const& mesh)
{
    if (mesh.normals.empty() || mesh.normals.size() != mesh.positions.size())
        return false;
    for (std::size_t i = 0; i < mesh.normals.size() / 3; ++i)
        if (Triple const n = tripleAt(mesh.normals, i); !isFinite(n) || n == Triple{0, 0, 0})
            return false;
    return true;
}

} // namespace

prc::Mesh buildMesh(orvsg::Mesh const& mesh, double scale, FaceStyle const& styleOf)
{
    prc::Mesh result;
    std::size_t const vertices = mesh.positions.size() / 3;
    bool const withNormals = hasUsableNormals(mesh);
    Pool points(vertices);
    Pool normals(withNormals ? vertices : 0);
    auto const scaled = [scale](Triple const& p) { return std::array{p[0] * scale, p[1] * scale, p[2] * scale}; };
    auto const unit = [](Triple const& n) {
        double const x = n[0], y = n[1], z = n[2];
        double const length = std::sqrt(x * x + y * y + z * z);
        // Single precision is all that there was: a normal that is a unit vector up to that stays short to write.
        double const factor = std::abs(length - 1) > 1e-6 ? 1 / length : 1;
        return std::array{x * factor, y * factor, z * factor};
    };
    auto const isUsable = [&](std::uint32_t vertex) {
        return vertex < vertices && isFinite(tripleAt(mesh.positions, vertex));
    };

    result.pointIndices.reserve(mesh.triangles.size());
    for (auto const& run : runsOf(mesh)) {
        std::size_t const before = result.triangleCount();
        for (std::size_t t = run.firstTriangle; t < std::size_t{run.firstTriangle} + run.triangleCount; ++t) {
            auto const corners = mesh.triangles.begin() + static_cast<std::ptrdiff_t>(3 * t);
            if (!std::all_of(corners, corners + 3, isUsable))
                continue;
            for (auto corner = corners; corner != corners + 3; ++corner) {
                result.pointIndices.push_back(
                    points.place(*corner, tripleAt(mesh.positions, *corner), result.points, scaled));
                if (withNormals)
                    result.normalIndices.push_back(
                        normals.place(*corner, tripleAt(mesh.normals, *corner), result.normals, unit));
            }
        }
        std::vector<std::size_t> styles;
        if (run.color)
            if (auto const style = styleOf(*run.color))
                styles.push_back(*style);
        std::size_t const added = result.triangleCount() - before;
        if (!result.faces.empty() && result.faces.back().styles == styles)
            result.faces.back().triangles += added;
        else if (added > 0 || result.faces.empty())
            result.faces.push_back({added, styles});
    }
    return result;
}

} // namespace prcdelay
