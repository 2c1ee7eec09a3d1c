#include "viewer/scene/PartGeometry.h"

#include <cstdint>
#include <map>

namespace orvviewer
{

namespace
{

/// The triangles of some faces with just the vertices that they use.
Handle(Graphic3d_ArrayOfTriangles) makeTriangles(orvsg::Mesh const& mesh, std::vector<std::uint32_t> const& corners)
{
    std::map<std::uint32_t, int> numberOf;
    std::vector<std::uint32_t> used;
    for (auto const corner : corners) {
        if (numberOf.emplace(corner, static_cast<int>(used.size()) + 1).second) {
            used.push_back(corner);
        }
    }
    Handle(Graphic3d_ArrayOfTriangles) const triangles = new Graphic3d_ArrayOfTriangles(
        static_cast<int>(used.size()), static_cast<int>(corners.size()), Graphic3d_ArrayFlags_VertexNormal);
    for (auto const vertex : used) {
        auto const* p = &mesh.positions[3 * static_cast<std::size_t>(vertex)];
        auto const* n = &mesh.normals[3 * static_cast<std::size_t>(vertex)];
        triangles->AddVertex(p[0], p[1], p[2], n[0], n[1], n[2]);
    }
    for (auto const corner : corners) {
        triangles->AddEdge(numberOf[corner]);
    }
    return triangles;
}

} // namespace

PartGeometry makePartGeometry(orvsg::Mesh const& mesh, std::vector<float> const& edgeSegments)
{
    PartGeometry geometry;
    std::map<std::optional<unsigned long>, std::vector<std::uint32_t>> cornersOfColor;
    for (auto const& face : mesh.faces) {
        auto& corners = cornersOfColor[face.color];
        auto const first = mesh.triangles.begin() + static_cast<std::ptrdiff_t>(3 * std::size_t{face.firstTriangle});
        corners.insert(corners.end(), first, first + static_cast<std::ptrdiff_t>(3 * std::size_t{face.triangleCount}));
    }
    for (auto const& [color, corners] : cornersOfColor) {
        if (!corners.empty()) {
            geometry.surfaces.push_back({makeTriangles(mesh, corners), color});
        }
    }
    if (!edgeSegments.empty()) {
        geometry.edges = new Graphic3d_ArrayOfSegments(static_cast<int>(edgeSegments.size() / 3));
        for (std::size_t i = 0; i + 2 < edgeSegments.size(); i += 3) {
            geometry.edges->AddVertex(edgeSegments[i], edgeSegments[i + 1], edgeSegments[i + 2]);
        }
    }
    return geometry;
}

} // namespace orvviewer
