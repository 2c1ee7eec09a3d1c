#include "exporters/prc/Scene.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace prc
{

namespace
{

// Coordinates are counted, not points, and the count has 32 bits.
constexpr std::size_t mostNumbers = std::numeric_limits<std::uint32_t>::max() / 2;

using Problem = std::optional<std::string>;

bool areFinite(std::vector<double> const& numbers)
{
    return std::all_of(numbers.begin(), numbers.end(), [](double x) { return std::isfinite(x); });
}

bool areBelow(std::vector<std::uint32_t> const& indices, std::size_t end)
{
    return std::all_of(indices.begin(), indices.end(), [end](std::uint32_t i) { return i < end; });
}

Problem problemOf(Mesh const& mesh, std::size_t styleCount)
{
    if (mesh.points.size() % 3 != 0 || mesh.normals.size() % 3 != 0 || mesh.pointIndices.size() % 3 != 0)
        return "a mesh has an incomplete point, normal or triangle";
    if (std::max({mesh.points.size(), mesh.normals.size(), 2 * mesh.pointIndices.size()}) > mostNumbers)
        return "a mesh is too large for the format";
    if (!areFinite(mesh.points) || !areFinite(mesh.normals))
        return "a mesh has a coordinate that is not finite";
    if (mesh.normalIndices.size() != (mesh.normals.empty() ? 0 : mesh.pointIndices.size()))
        return "a mesh has not one normal for each corner";
    if (!areBelow(mesh.pointIndices, mesh.points.size() / 3) || !areBelow(mesh.normalIndices, mesh.normals.size() / 3))
        return "a triangle has a corner that the mesh doesn't hold";
    std::size_t covered = 0;
    for (auto const& face : mesh.faces) {
        if (face.triangles > mesh.triangleCount() - covered)
            return "the faces of a mesh hold more triangles than the mesh";
        covered += face.triangles;
        if (face.styles.size() > 1 && face.styles.size() != face.triangles)
            return "a face has neither one style nor one for each triangle";
        if (std::any_of(face.styles.begin(), face.styles.end(), [&](std::size_t s) { return s >= styleCount; }))
            return "a face has a style that the scene doesn't hold";
    }
    if (mesh.faces.empty() || covered != mesh.triangleCount())
        return "the faces of a mesh don't cover it";
    return {};
}

Problem problemOf(Part const& part, Scene const& scene)
{
    for (auto const& body : part.bodies) {
        if (body.mesh && *body.mesh >= scene.meshes.size())
            return "a body has a mesh that the scene doesn't hold";
        if (body.style && *body.style >= scene.styles.size())
            return "a body has a style that the scene doesn't hold";
    }
    return {};
}

Problem problemOf(Occurrence const& occurrence, Scene const& scene)
{
    std::size_t const count = scene.occurrences.size();
    if (occurrence.part && *occurrence.part >= scene.parts.size())
        return "an occurrence has a part that the scene doesn't hold";
    if (occurrence.prototype && *occurrence.prototype >= count)
        return "an occurrence has a prototype that the scene doesn't hold";
    if (std::any_of(occurrence.children.begin(), occurrence.children.end(), [&](std::size_t c) { return c >= count; }))
        return "an occurrence has a child that the scene doesn't hold";
    if (!std::all_of(occurrence.placement.begin(), occurrence.placement.end(),
                     [](double x) { return std::isfinite(x); }))
        return "a placement is not finite";
    return {};
}

// Every occurrence has at most one parent, so a way that goes up for more steps than there are occurrences is a cycle.
Problem treeProblem(Scene const& scene)
{
    std::size_t const count = scene.occurrences.size();
    std::vector<std::size_t> parent(count, count);
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t const child : scene.occurrences[i].children) {
            if (parent[child] != count)
                return "an occurrence has two parents";
            parent[child] = i;
        }
    if (parent[scene.root] != count)
        return "the root of the tree has a parent";

    // 0 not visited, 1 on the way, 2 known to end
    std::vector<char> state(count, 0);
    for (std::size_t start = 0; start < count; ++start) {
        std::size_t at = start;
        for (; at != count && state[at] == 0; at = parent[at])
            state[at] = 1;
        if (at != count && state[at] == 1)
            return "the tree of occurrences has a cycle";
        for (at = start; at != count && state[at] == 1; at = parent[at])
            state[at] = 2;
    }
    for (auto const& occurrence : scene.occurrences)
        if (occurrence.prototype && parent[*occurrence.prototype] != count)
            return "a prototype stands in the tree itself";
    return {};
}

} // namespace

void Box::add(double x, double y, double z)
{
    std::array<double, 3> const point{x, y, z};
    for (std::size_t i = 0; i < 3; ++i) {
        minimum[i] = empty ? point[i] : std::min(minimum[i], point[i]);
        maximum[i] = empty ? point[i] : std::max(maximum[i], point[i]);
    }
    empty = false;
}

Box boxOf(Part const& part, std::vector<Mesh> const& meshes)
{
    Box box;
    for (auto const& body : part.bodies)
        if (body.mesh) {
            auto const& points = meshes.at(*body.mesh).points;
            for (std::size_t i = 0; i + 2 < points.size(); i += 3)
                box.add(points[i], points[i + 1], points[i + 2]);
        }
    return box;
}

std::optional<std::string> problemOf(Scene const& scene)
{
    if (!std::isfinite(scene.unit) || scene.unit <= 0)
        return "the unit of length is not a positive number";
    if (scene.root >= scene.occurrences.size())
        return "the scene has no root";
    for (auto const& style : scene.styles)
        for (double const part : {style.color.red, style.color.green, style.color.blue})
            if (!(part >= 0 && part <= 1))
                return "a colour lies outside 0 to 1";
    for (auto const& mesh : scene.meshes)
        if (auto problem = problemOf(mesh, scene.styles.size()))
            return problem;
    for (auto const& part : scene.parts)
        if (auto problem = problemOf(part, scene))
            return problem;
    for (auto const& occurrence : scene.occurrences)
        if (auto problem = problemOf(occurrence, scene))
            return problem;
    return treeProblem(scene);
}

} // namespace prc
