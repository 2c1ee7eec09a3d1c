#include "exporters/prc/Sections.h"

namespace prc
{

namespace
{

// Degrees; where a mesh has no normals, readers smooth across edges that are flatter than this.
constexpr double creaseAngle = 25.8419;

void numbers(SectionWriter& out, std::vector<double> const& list)
{
    out.count(list.size());
    for (double const number : list)
        out.real(number);
}

void writeFace(SectionWriter& out, Face const& face, std::size_t start)
{
    out.type(Entity::face);
    out.count(face.styles.size());
    for (std::size_t const style : face.styles)
        out.reference(style);
    out.count(0); // wire data
    out.count(0);
    out.unsignedInteger(triangulated::triangles);
    out.count(start);
    out.count(1); // sizes
    out.count(face.triangles);
    out.count(0);       // textures
    out.boolean(false); // colours of vertices
    if (!face.styles.empty())
        out.unsignedInteger(behaviourShown);
}

void writeMesh(SectionWriter& out, Mesh const& mesh)
{
    bool const hasNormals = !mesh.normals.empty();
    out.type(Entity::mesh);
    out.boolean(false); // not calculated
    numbers(out, mesh.points);
    out.boolean(false); // no faces of exact geometry
    out.boolean(false); // no loops
    out.boolean(!hasNormals);
    if (!hasNormals) {
        out.character(0);
        out.real(creaseAngle);
    }
    numbers(out, mesh.normals);
    out.count(0); // wires

    // Indices count coordinates: that of a point is three times its number.
    std::size_t const perTriangle = hasNormals ? 6 : 3;
    out.count(mesh.triangleCount() * perTriangle);
    for (std::size_t i = 0; i < mesh.pointIndices.size(); ++i) {
        if (hasNormals)
            out.unsignedInteger(3 * mesh.normalIndices[i]);
        out.unsignedInteger(3 * mesh.pointIndices[i]);
    }
    out.count(mesh.faces.size());
    std::size_t start = 0;
    for (auto const& face : mesh.faces) {
        writeFace(out, face, start);
        start += face.triangles * perTriangle;
    }
    out.count(0); // texture coordinates
}

} // namespace

Bytes tessellationSection(Scene const& scene, std::function<bool(std::size_t)> const& meshWritten)
{
    SectionWriter out;
    out.type(Entity::tessellation);
    out.base("");
    out.count(scene.meshes.size());
    for (std::size_t i = 0; i < scene.meshes.size(); ++i) {
        writeMesh(out, scene.meshes[i]);
        if (meshWritten && !meshWritten(i))
            break;
    }
    out.noUserData();
    return out.finish();
}

} // namespace prc
