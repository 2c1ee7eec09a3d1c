#include "exporters/orvwriter/PartShape.h"

#include "exporters/orvwriter/FaceBorders.h"

#include <BRep_Builder.hxx>
#include <Poly_Polygon3D.hxx>
#include <Poly_Triangulation.hxx>
#include <TColgp_Array1OfPnt.hxx>
#include <TopoDS_Edge.hxx>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>

namespace orvwriter
{

namespace
{

gp_Pnt pointOf(orvsg::Mesh const& mesh, std::uint32_t vertex)
{
    auto const* const p = &mesh.positions[std::size_t{3} * vertex];
    return {p[0], p[1], p[2]};
}

bool isUsable(orvsg::Mesh const& mesh, std::uint32_t vertex)
{
    if (vertex >= mesh.positions.size() / 3) {
        return false;
    }
    auto const* const p = &mesh.positions[std::size_t{3} * vertex];
    return std::all_of(p, p + 3, [](float x) { return std::isfinite(x); });
}

/// The triangles of a run, its vertices in the order of the mesh; null where there are none.
Handle(Poly_Triangulation) triangulationOf(orvsg::Mesh const& mesh, std::size_t first, std::size_t count)
{
    std::map<std::uint32_t, int> numbers;
    std::vector<std::uint32_t> corners;
    for (std::size_t triangle = first; triangle < first + count; ++triangle) {
        auto const* const corner = &mesh.triangles[3 * triangle];
        if (std::all_of(corner, corner + 3, [&](std::uint32_t vertex) { return isUsable(mesh, vertex); })) {
            corners.insert(corners.end(), corner, corner + 3);
        }
    }
    if (corners.empty()) {
        return nullptr;
    }
    for (auto const vertex : corners) {
        numbers[vertex] = 0;
    }
    bool const withNormals = mesh.normals.size() == mesh.positions.size();
    Handle(Poly_Triangulation) const result = new Poly_Triangulation(
        static_cast<int>(numbers.size()), static_cast<int>(corners.size() / 3), Standard_False, withNormals);
    int next = 0;
    for (auto& [vertex, number] : numbers) {
        number = ++next;
        result->SetNode(number, pointOf(mesh, vertex));
        if (withNormals) {
            auto const* const n = &mesh.normals[std::size_t{3} * vertex];
            result->SetNormal(number, gp_Vec3f(n[0], n[1], n[2]));
        }
    }
    for (std::size_t i = 0; i < corners.size(); i += 3) {
        result->SetTriangle(static_cast<int>(i / 3) + 1,
                            Poly_Triangle(numbers[corners[i]], numbers[corners[i + 1]], numbers[corners[i + 2]]));
    }
    return result;
}

} // namespace

PartShape makePartShape(orvsg::Mesh const& mesh)
{
    PartShape part;
    BRep_Builder builder;
    builder.MakeCompound(part.shape);
    std::size_t const all = mesh.triangles.size() / 3;
    auto const addFace = [&](std::size_t first, std::size_t count, std::optional<unsigned long> const& color) {
        auto const triangulation = triangulationOf(mesh, first, count);
        if (triangulation.IsNull()) {
            return;
        }
        TopoDS_Face face;
        builder.MakeFace(face, triangulation);
        builder.Add(part.shape, face);
        if (color) {
            part.colored.emplace_back(face, *color & 0xFFFFFF);
        }
    };
    std::size_t next = 0;
    for (auto const& face : mesh.faces) {
        if (face.firstTriangle != next || face.triangleCount > all - next) {
            break;
        }
        addFace(next, face.triangleCount, face.color);
        next += face.triangleCount;
    }
    addFace(next, all - next, {});

    for (auto const& chain : faceBorders(mesh)) {
        TColgp_Array1OfPnt points(1, static_cast<int>(chain.size()));
        for (std::size_t i = 0; i < chain.size(); ++i) {
            points.SetValue(static_cast<int>(i) + 1, gp_Pnt(chain[i][0], chain[i][1], chain[i][2]));
        }
        TopoDS_Edge edge;
        builder.MakeEdge(edge, new Poly_Polygon3D(points));
        builder.Add(part.shape, edge);
    }
    return part;
}

} // namespace orvwriter
