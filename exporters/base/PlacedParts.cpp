#include "exporters/base/PlacedParts.h"

#include "host/orv/FilePath.h"
#include "host/orv/IDocument.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"
#include "platform/text/Text.h"

#include <cmath>
#include <map>
#include <utility>

namespace orvexport
{

namespace
{

using Vector = std::array<double, 3>;

double at(orvmath::Tuple<double, 16> const& matrix, unsigned row, unsigned column)
{
    return matrix[static_cast<unsigned char>(4 * column + row)];
}

double determinant(orvmath::Tuple<double, 16> const& m)
{
    return at(m, 0, 0) * (at(m, 1, 1) * at(m, 2, 2) - at(m, 1, 2) * at(m, 2, 1)) -
           at(m, 0, 1) * (at(m, 1, 0) * at(m, 2, 2) - at(m, 1, 2) * at(m, 2, 0)) +
           at(m, 0, 2) * (at(m, 1, 0) * at(m, 2, 1) - at(m, 1, 1) * at(m, 2, 0));
}

bool isFinite(orvmath::Tuple<double, 16> const& matrix)
{
    for (unsigned char i = 0; i < 16; ++i) {
        if (!std::isfinite(matrix[i])) {
            return false;
        }
    }
    return true;
}

bool isUsable(orvsg::Mesh const& mesh, std::uint32_t vertex)
{
    auto const* const point = &mesh.positions[std::size_t{3} * vertex];
    return std::isfinite(point[0]) && std::isfinite(point[1]) && std::isfinite(point[2]);
}

void addTriangles(orvsg::Mesh const& mesh, std::size_t first, std::size_t count, std::vector<std::uint32_t>& list)
{
    std::size_t const vertices = mesh.positions.size() / 3;
    for (std::size_t triangle = first; triangle < first + count; ++triangle) {
        auto const* const corner = &mesh.triangles[3 * triangle];
        bool isSound = true;
        for (int i = 0; i < 3; ++i) {
            isSound = isSound && corner[i] < vertices && isUsable(mesh, corner[i]);
        }
        if (isSound) {
            list.insert(list.end(), corner, corner + 3);
        }
    }
}

/// By looks, in the order in which they first occur.
std::vector<Piece> piecesOf(orvsg::Mesh const& mesh, Look const& ofPart, bool withFaceColors)
{
    std::vector<Piece> pieces;
    std::map<Look, std::size_t> places;
    auto const pieceOf = [&](Look const& look) -> std::vector<std::uint32_t>& {
        auto const [place, isNew] = places.try_emplace(look, pieces.size());
        if (isNew) {
            pieces.push_back({look, {}});
        }
        return pieces[place->second].triangles;
    };
    std::size_t const triangles = mesh.triangles.size() / 3;
    std::size_t next = 0;
    for (auto const& face : mesh.faces) {
        if (face.firstTriangle != next || face.triangleCount > triangles - next) {
            break;
        }
        Look look = ofPart;
        if (withFaceColors && face.color) {
            look.color = static_cast<std::uint32_t>(*face.color & 0xFFFFFF);
        }
        addTriangles(mesh, next, face.triangleCount, pieceOf(look));
        next += face.triangleCount;
    }
    if (next < triangles) { // faces that don't cover the mesh
        addTriangles(mesh, next, triangles - next, pieceOf(ofPart));
    }
    std::erase_if(pieces, [](Piece const& piece) { return piece.triangles.empty(); });
    return pieces;
}

} // namespace

std::vector<PlacedPart> placedParts(std::shared_ptr<orv::IDocument> const& document)
{
    std::vector<PlacedPart> parts;
    auto const resources = orv::recordOf<orvsg::SCSceneRes>(document);
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    if (!resources || !topology) {
        return parts;
    }
    orvsgutils::SceneQuery const query(document);
    for (int node = 0; topology->nodes.contains(node); ++node) {
        auto const& record = topology->nodes.getValue(node);
        auto const index = static_cast<std::size_t>(record.mesh);
        if (record.mesh < 0 || index >= resources->meshes.size() || !resources->meshes[index]) {
            continue;
        }
        PlacedPart part;
        part.node = node;
        part.name = orvtext::toUtf8(record.name);
        part.mesh = resources->meshes[index];
        part.world = query.worldMatrix(node);
        if (!isFinite(part.world)) {
            continue;
        }
        part.turnsInsideOut = determinant(part.world) < 0;
        Look const look{static_cast<std::uint32_t>(query.color(node) & 0xFFFFFF), query.transparency(node)};
        part.pieces = piecesOf(*part.mesh, look, !query.isColoredByUser(node));
        if (!part.pieces.empty()) {
            parts.push_back(std::move(part));
        }
    }
    return parts;
}

std::array<double, 3> worldPoint(PlacedPart const& part, std::uint32_t vertex)
{
    auto const* const p = &part.mesh->positions[std::size_t{3} * vertex];
    Vector result{};
    for (unsigned row = 0; row < 3; ++row) {
        result[row] = at(part.world, row, 0) * p[0] + at(part.world, row, 1) * p[1] + at(part.world, row, 2) * p[2] +
                      at(part.world, row, 3);
    }
    return result;
}

std::array<double, 3> worldNormal(PlacedPart const& part, std::uint32_t vertex)
{
    if (part.mesh->normals.size() != part.mesh->positions.size()) {
        return {};
    }
    auto const* const n = &part.mesh->normals[std::size_t{3} * vertex];
    // By the matrix of cofactors, which keeps normals upright under any scaling. A mirroring turns them over, and the
    // corners with them.
    double const sign = part.turnsInsideOut ? -1 : 1;
    Vector result{};
    for (unsigned row = 0; row < 3; ++row) {
        unsigned const r1 = (row + 1) % 3;
        unsigned const r2 = (row + 2) % 3;
        for (unsigned column = 0; column < 3; ++column) {
            unsigned const c1 = (column + 1) % 3;
            unsigned const c2 = (column + 2) % 3;
            result[row] +=
                sign * n[column] *
                (at(part.world, r1, c1) * at(part.world, r2, c2) - at(part.world, r1, c2) * at(part.world, r2, c1));
        }
    }
    double const length = std::sqrt(result[0] * result[0] + result[1] * result[1] + result[2] * result[2]);
    if (!(length > 0) || !std::isfinite(length)) {
        return {};
    }
    return {result[0] / length, result[1] / length, result[2] / length};
}

std::string modelName(std::shared_ptr<orv::IDocument> const& document)
{
    auto const info = orv::recordOf<orvsg::SCInfo>(document);
    std::wstring const file = info ? orv::FilePath(info->file()).getFName() : std::wstring();
    if (!file.empty()) {
        return orvtext::toUtf8(file);
    }
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    return topology ? orvtext::toUtf8(topology->nodes.getValue(0).name) : std::string();
}

} // namespace orvexport
