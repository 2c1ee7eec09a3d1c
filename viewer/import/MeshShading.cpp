#include "viewer/import/MeshShading.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <numbers>
#include <utility>

namespace orvviewer
{

namespace
{

using Vector = std::array<float, 3>;

Vector vertexOf(orvsg::Mesh const& mesh, std::uint32_t index)
{
    auto const* p = &mesh.positions[3 * static_cast<std::size_t>(index)];
    return {p[0], p[1], p[2]};
}

Vector triangleNormal(orvsg::Mesh const& mesh, std::size_t triangle)
{
    auto const a = vertexOf(mesh, mesh.triangles[3 * triangle]);
    auto const b = vertexOf(mesh, mesh.triangles[3 * triangle + 1]);
    auto const c = vertexOf(mesh, mesh.triangles[3 * triangle + 2]);
    Vector const u{b[0] - a[0], b[1] - a[1], b[2] - a[2]};
    Vector const v{c[0] - a[0], c[1] - a[1], c[2] - a[2]};
    return {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]};
}

Vector normalized(Vector v)
{
    float const length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    if (length > 0.0F) {
        for (auto& part : v) {
            part /= length;
        }
    }
    return v;
}

float dot(Vector const& a, Vector const& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

float cosineOf(double degrees)
{
    return static_cast<float>(std::cos(degrees * std::numbers::pi / 180.0));
}

/// Vertices at the same place count as one, whatever their number.
std::vector<std::uint32_t> placeOfVertex(orvsg::Mesh const& mesh)
{
    std::map<Vector, std::uint32_t> places;
    std::vector<std::uint32_t> result(mesh.positions.size() / 3);
    for (std::uint32_t i = 0; i < result.size(); ++i) {
        result[i] = places.emplace(vertexOf(mesh, i), static_cast<std::uint32_t>(places.size())).first->second;
    }
    return result;
}

} // namespace

void shadeByCrease(orvsg::Mesh& mesh, double creaseDegrees)
{
    std::size_t const count = mesh.triangles.size() / 3;
    auto const place = placeOfVertex(mesh);
    float const limit = cosineOf(creaseDegrees);

    std::vector<Vector> area(count);
    std::vector<Vector> direction(count);
    std::vector<std::vector<std::uint32_t>> trianglesAt(place.size());
    for (std::size_t t = 0; t < count; ++t) {
        area[t] = triangleNormal(mesh, t);
        direction[t] = normalized(area[t]);
        for (std::size_t corner = 0; corner < 3; ++corner) {
            trianglesAt[place[mesh.triangles[3 * t + corner]]].push_back(static_cast<std::uint32_t>(t));
        }
    }

    std::vector<float> positions;
    std::vector<float> normals;
    std::map<std::pair<std::uint32_t, Vector>, std::uint32_t> made;
    for (std::size_t t = 0; t < count; ++t) {
        for (std::size_t corner = 0; corner < 3; ++corner) {
            auto& index = mesh.triangles[3 * t + corner];
            auto const where = place[index];
            Vector sum{};
            for (auto const other : trianglesAt[where]) {
                if (dot(direction[t], direction[other]) >= limit) {
                    for (std::size_t axis = 0; axis < 3; ++axis) {
                        sum[axis] += area[other][axis];
                    }
                }
            }
            auto const normal = normalized(sum);
            auto const [entry, isNew] =
                made.emplace(std::pair(where, normal), static_cast<std::uint32_t>(positions.size() / 3));
            if (isNew) {
                auto const position = vertexOf(mesh, index);
                positions.insert(positions.end(), position.begin(), position.end());
                normals.insert(normals.end(), normal.begin(), normal.end());
            }
            index = entry->second;
        }
    }
    mesh.positions = std::move(positions);
    mesh.normals = std::move(normals);
}

std::vector<float> creaseSegments(orvsg::Mesh const& mesh, double creaseDegrees)
{
    struct Side {
        Vector normal{};
        int uses = 0;
        bool isCrease = false;
        std::pair<std::uint32_t, std::uint32_t> vertices;
    };
    auto const place = placeOfVertex(mesh);
    float const limit = cosineOf(creaseDegrees);
    std::map<std::pair<std::uint32_t, std::uint32_t>, Side> sides;
    for (std::size_t t = 0; t < mesh.triangles.size() / 3; ++t) {
        auto const normal = normalized(triangleNormal(mesh, t));
        for (std::size_t corner = 0; corner < 3; ++corner) {
            auto const a = mesh.triangles[3 * t + corner];
            auto const b = mesh.triangles[3 * t + (corner + 1) % 3];
            auto& side = sides[std::minmax(place[a], place[b])];
            if (side.uses++ == 0) {
                side.normal = normal;
                side.vertices = {a, b};
            } else if (dot(side.normal, normal) < limit) {
                side.isCrease = true;
            }
        }
    }
    std::vector<float> segments;
    for (auto const& [key, side] : sides) {
        if (side.isCrease || side.uses == 1) {
            auto const a = vertexOf(mesh, side.vertices.first);
            auto const b = vertexOf(mesh, side.vertices.second);
            segments.insert(segments.end(), a.begin(), a.end());
            segments.insert(segments.end(), b.begin(), b.end());
        }
    }
    return segments;
}

} // namespace orvviewer
